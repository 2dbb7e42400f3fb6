#include "adapters/qt/independent_view.h"

#include <QGuiApplication>

#include "adapters/qt/frame_view.h"
#include "adapters/qt/shell.h"

Independent_View::Independent_View(Shell& the_shell, Form& the_form)
    : Form_View(the_shell, the_form),
      body_(*new Form_Body(
          the_shell, the_shell.frame == nullptr ? nullptr : &the_shell.frame->Window(),
          Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)) {
  body_.setWindowModality(Qt::ApplicationModal);
  body_.on_close = [this] { Report_Closing(); };
  body_.on_placed = [this] {
    if (body_.isVisible()) Report_Place(QRect(body_.frameGeometry().topLeft(), body_.size()));
  };
  Build_Controls();
}

Independent_View::~Independent_View() { body_.deleteLater(); }

void Independent_View::Activate() {
  // Beside another program that the user works with it waits.
  if (QGuiApplication::applicationState() == Qt::ApplicationActive && !body_.isActiveWindow())
    body_.activateWindow();
}

void Independent_View::Bring_To_Front() { body_.raise(); }

void Independent_View::Silence() { body_.on_close = body_.on_placed = {}; }

void Independent_View::Show_Window() {
  body_.Show_Background(form);
  const QRect wanted = Wanted_Place();
  body_.setFixedSize(wanted.size());
  if (body_.frameGeometry().topLeft() != wanted.topLeft()) body_.move(wanted.topLeft());
  if (body_.isHidden() == form.visible()) body_.setVisible(form.visible());
}
