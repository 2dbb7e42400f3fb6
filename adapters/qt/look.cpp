#include "adapters/qt/look.h"

#include <QApplication>
#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QStyleOption>
#include <QWidget>

#include "adapters/qt/panel_colors.h"
#include "adapters/qt/title_bar.h"

namespace {

constexpr int Style_Cache_kB = 1024;
constexpr int Smallest_Text_px = 8;
constexpr int Display_Margin_px = 1;  // beside the digits, on each side

int Half_Way(int from, int to) { return (from + to) / 2; }

// What cannot be used is lettered half way between ink and ground. The toolkit's own grey can hardly be read,
// on dark desktops least of all.
void Set_Faint_Lettering() {
  const QPalette desktop = QApplication::palette();
  QPalette faint;
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    const QColor ink = desktop.color(QPalette::Active, role);
    const QColor ground = desktop.color(QPalette::Active, QPalette::Window);
    faint.setColor(QPalette::Disabled, role,
                   QColor(Half_Way(ink.red(), ground.red()), Half_Way(ink.green(), ground.green()),
                          Half_Way(ink.blue(), ground.blue())));
  }
  QApplication::setPalette(faint);
}

// Message boxes have the same plain buttons as the program's own windows, and an empty check box can be seen
// on every desktop: the toolkit's own edge is darker than the ground, which on a dark one leaves nothing.
// Windows inside the frame are square and dark. A text field leaves its focus to the program's own frame.
struct Plain_Style final : QProxyStyle {
  Plain_Style() : QProxyStyle(QStringLiteral("Fusion")) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (element == PE_FrameWindow) return Paint_Window_Edge(*option, *painter);
    if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        element == PE_FrameLineEdit && frame != nullptr) {
      QStyleOptionFrame at_rest = *frame;
      at_rest.state.setFlag(State_HasFocus, false);
      return QProxyStyle::drawPrimitive(element, &at_rest, painter, widget);
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element != PE_IndicatorCheckBox) return;
    painter->save();
    painter->setPen(option->palette.color(QPalette::Disabled, QPalette::Text));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    if (const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
        control == CC_TitleBar && bar != nullptr) {
      return Paint_Title_Bar(*this, *bar, *painter, widget);
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* more) const override {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons || hint == SH_WindowFrame_Mask) return 0;
    return QProxyStyle::styleHint(hint, option, widget, more);
  }
};

}  // namespace

void Set_Look() {
  // The style keeps a picture of each button that it has drawn, anew for each window that opens; a tenth of
  // what the toolkit lets it keep holds all that are seen at a time.
  QPixmapCache::setCacheLimit(Style_Cache_kB);
  // One style everywhere: others leave wider margins, which would cut the lettering in controls of fixed
  // sizes.
  QApplication::setStyle(new Plain_Style);
  Set_Faint_Lettering();
  QFont font = QApplication::font();
  font.setPixelSize(Text_Size_px);
  QApplication::setFont(font);
}

void Set_Panel_Colors(QWidget& widget) {
  QPalette palette(Panel_Button, Panel_Plate);
  palette.setColor(QPalette::Base, Panel_Well);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, Panel_Letter);
    palette.setColor(QPalette::Disabled, role, Panel_Faint_Letter);
  }
  palette.setColor(QPalette::Highlight, Panel_Chosen);
  palette.setColor(QPalette::HighlightedText, Panel_Letter);
  if (widget.palette() != palette) widget.setPalette(palette);
}

QFont Display_Font(const QSize& display) {
  QFont font = QApplication::font();
  const int room = display.width() - 2 * Display_Margin_px;
  for (int size_px = Text_Size_px; size_px >= Smallest_Text_px; --size_px) {
    font.setPixelSize(size_px);
    if (QFontMetrics(font).horizontalAdvance(QStringLiteral("000")) <= room) break;
  }
  return font;
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
