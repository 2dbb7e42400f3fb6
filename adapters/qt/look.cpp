#include "adapters/qt/look.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QWidget>

void Set_Look() {
  // One style everywhere: others leave wider margins, which would cut the lettering in controls of fixed
  // sizes.
  QApplication::setStyle(QStringLiteral("Fusion"));
  QFont font = QApplication::font();
  font.setPixelSize(Text_Size_px);
  QApplication::setFont(font);
}

void Set_Colors(QWidget& widget, bool own, const Color& fore, const Color& back) {
  QPalette palette;
  if (own) {
    palette.setColor(QPalette::WindowText, To_Qt(fore));
    palette.setColor(QPalette::Text, To_Qt(fore));
    palette.setColor(QPalette::Window, To_Qt(back));
    palette.setColor(QPalette::Base, To_Qt(back));
  }
  if (widget.palette() != palette) widget.setPalette(own ? palette : QPalette());
}
