#include "adapters/qt/form_view.h"

#include <QCloseEvent>
#include <QPainter>

#include "adapters/qt/child_view.h"
#include "adapters/qt/control_view.h"
#include "adapters/qt/frame_view.h"
#include "adapters/qt/independent_view.h"
#include "adapters/qt/look.h"
#include "adapters/qt/qt_text.h"
#include "adapters/qt/shell.h"
#include "platform/controls.h"
#include "platform/input.h"

void Form_Body::Show_Background(const Form& form) {
  if (form.picture() == Picture()) {
    Set_Colors(*this, form.own_colors(), Black, form.back_color());
  } else {
    Set_Panel_Colors(*this);
  }
  setAutoFillBackground(true);
  if (picture_ == form.picture()) return;
  picture_ = form.picture();
  update();
}

void Form_Body::paintEvent(QPaintEvent*) {
  const QPixmap pixmap = shell_.pictures.Get(picture_, devicePixelRatioF());
  if (!pixmap.isNull()) QPainter(this).drawPixmap(0, 0, pixmap);
}

void Form_Body::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (on_close) on_close();
}

void Form_Body::moveEvent(QMoveEvent*) {
  if (on_placed) on_placed();
}

void Form_Body::resizeEvent(QResizeEvent*) {
  if (on_placed) on_placed();
}

Form_View::Form_View(Shell& the_shell, Form& the_form) : shell(the_shell), form(the_form) {
  shell.changes.Add(form, *this);
}

Form_View::~Form_View() = default;

void Form_View::Build_Controls() {
  Body().setObjectName(To_Qt(form.name));
  shell.form_bodies.insert(&Body(), this);
  for (Control* control : form.controls) {
    QWidget& parent = control->container == nullptr ? Body() : shell.View_Of(*control->container)->widget;
    controls_.push_back(Make_Control_View(shell, *control, parent));
  }
}

void Form_View::Detach() {
  Silence();
  for (const auto& view : controls_) view->Detach();
  shell.form_bodies.remove(&Body());
  shell.changes.Remove(form);
  Window().hide();
}

void Form_View::Update() {
  QString title = To_Qt(form.caption());
  // Where the toolkit's mark of a changed document goes; doubled it is these three characters themselves.
  if (form.role == Form_Role::Frame) title = title.replace("[*]", "[*][*]") + "[*]";
  if (Window().windowTitle() != title) Window().setWindowTitle(title);
  Show_Pointer();
  Show_Window();
}

void Form_View::Show_Pointer() {
  for (const auto& view : controls_) view->Show_Pointer();
  Pointer_Shape shape = form.pointer();
  if (shape == Pointer_Shape::Default && shell.frame != nullptr) shape = shell.frame->form.pointer();
  switch (shape) {
    case Pointer_Shape::Default:
      return Body().unsetCursor();
    case Pointer_Shape::Arrow:
      return Body().setCursor(Qt::ArrowCursor);
    case Pointer_Shape::Hourglass:
      return Body().setCursor(Qt::WaitCursor);
  }
}

QRect Form_View::Wanted_Place() const {
  const int twips = Twips_Per_Pixel();
  return {form.left() / twips, form.top() / twips, form.width() / twips, form.height() / twips};
}

void Form_View::Report_Place(const QRect& place) {
  if (place == Wanted_Place() || shell.changes.Applying()) return;
  shell.Deliver([&shell = shell, form = &form, place] {
    if (shell.View_Of(*form) == nullptr) return;
    const int twips = Twips_Per_Pixel();
    User_Placed(*form, place.left() * twips, place.top() * twips, place.width() * twips,
                place.height() * twips);
  });
}

void Form_View::Report_Closing() {
  shell.Deliver([&shell = shell, form = &form] {
    if (shell.View_Of(*form) != nullptr) User_Closes(*form);
  });
}

std::unique_ptr<Form_View> Make_Form_View(Shell& shell, Form& form) {
  std::unique_ptr<Form_View> view;
  switch (form.role) {
    case Form_Role::Frame:
      view = std::make_unique<Frame_View>(shell, form);
      break;
    case Form_Role::Child:
      view = std::make_unique<Child_View>(shell, form);
      break;
    case Form_Role::Independent:
      view = std::make_unique<Independent_View>(shell, form);
      break;
  }
  view->Update();
  return view;
}
