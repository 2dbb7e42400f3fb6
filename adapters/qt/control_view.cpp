#include "adapters/qt/control_view.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <utility>

#include "adapters/qt/accessible.h"
#include "adapters/qt/button_views.h"
#include "adapters/qt/list_views.h"
#include "adapters/qt/picture_views.h"
#include "adapters/qt/qt_text.h"
#include "adapters/qt/scroll_view.h"
#include "adapters/qt/shell.h"
#include "adapters/qt/text_views.h"
#include "platform/form.h"

Control_View::Control_View(Shell& the_shell, Control& the_control, QWidget& the_widget, Manner the_manner)
    : shell(the_shell), control(the_control), widget(the_widget), manner(the_manner) {
  widget.setObjectName(To_Qt(control.name));
  // The program owns the order of Tab; the policy only tells screen readers that the control takes the focus.
  widget.setFocusPolicy(control.tab_index >= 0 ? Qt::TabFocus : Qt::NoFocus);
  widget.setMouseTracking(static_cast<bool>(control.on_mouse_move));
  // What the widget does not want is not a press on what lies below it.
  widget.setAttribute(Qt::WA_NoMousePropagation);
  if (auto* area = dynamic_cast<QAbstractScrollArea*>(&widget)) {
    area->viewport()->setAttribute(Qt::WA_NoMousePropagation);
  }
  if (control.mouse_through) widget.setAttribute(Qt::WA_TransparentForMouseEvents);
  widget.setContextMenuPolicy(Qt::NoContextMenu);
  shell.control_widgets.insert(&widget, this);
  shell.changes.Add(control, *this);
}

Control_View::~Control_View() { shell.control_widgets.remove(&widget); }

void Control_View::Detach() {
  shell.mouse.View_Gone(*this);
  shell.control_widgets.remove(&widget);
  shell.changes.Remove(control);
  widget.blockSignals(true);
}

namespace {

bool Takes_Clicks(const Control& control) { return control.on_click || control.on_mouse_down; }

// Tells which way a control of the panel is moved; Qt::ArrowCursor: it is only looked at.
Qt::CursorShape Shape_Of(const Picture_Box& box) {
  switch (box.role) {
    case Role::Slider:
    case Role::Switch:
      return box.on_mouse_move ? Qt::SizeVerCursor : Qt::PointingHandCursor;
    case Role::Knob:
      return Qt::SizeHorCursor;
    case Role::Button:
    case Role::Check_Light:
    case Role::Choice_Light:
      return Qt::PointingHandCursor;
    case Role::Picture:
      return Qt::ArrowCursor;
  }
  return Qt::ArrowCursor;
}

Qt::CursorShape Shape_Of(const Control& control) {
  switch (control.kind) {
    case Kind::Picture_Box:
      return Shape_Of(static_cast<const Picture_Box&>(control));
    case Kind::Canvas:
      if (control.on_mouse_move) return Qt::CrossCursor;
      [[fallthrough]];
    case Kind::Label:
      return Takes_Clicks(control) ? Qt::PointingHandCursor : Qt::ArrowCursor;
    case Kind::Text_Box:
      return static_cast<const Text_Box&>(control).read_only && Takes_Clicks(control) ? Qt::PointingHandCursor
                                                                                      : Qt::IBeamCursor;
    default:
      return Qt::ArrowCursor;
  }
}

}  // namespace

void Control_View::Show_Pointer() {
  auto* area = dynamic_cast<QAbstractScrollArea*>(&widget);
  QWidget& surface = area == nullptr ? widget : *area->viewport();
  const Qt::CursorShape shape = Usable(control) ? Shape_Of(control) : Qt::ArrowCursor;
  if (shape == Qt::ArrowCursor) {
    if (surface.testAttribute(Qt::WA_SetCursor)) surface.unsetCursor();
  } else if (surface.cursor().shape() != shape) {
    surface.setCursor(shape);
  }
}

void Control_View::Update() {
  if (const QRect place = Place(); place != widget.geometry()) widget.setGeometry(place);
  if (manner.greys && widget.isEnabled() != control.enabled()) widget.setEnabled(control.enabled());
  const QString tip = As_Plain_Tip(control.tool_tip());
  if (widget.toolTip() != tip) widget.setToolTip(tip);
  Show_Pointer();
  Show_Values();
  if (widget.isHidden() == control.visible()) widget.setVisible(control.visible());
  Tell_Value();
}

void Control_View::Tell_Value() {
  if (!QAccessible::isActive()) return;
  std::string value = Spoken_Value(control);
  if (value == told_) return;
  told_ = std::move(value);
  Tell_Change(widget);
}

void Control_View::Before_Press(const Mouse_Event&) {}

bool Control_View::Is_Surface(const QWidget& part) const {
  const auto* area = dynamic_cast<const QAbstractScrollArea*>(&widget);
  return area == nullptr || &part == &widget || &part == area->viewport();
}

QRect Control_View::Place() const {
  const Control_View* container = control.container == nullptr ? nullptr : shell.View_Of(*control.container);
  const QPoint inset = container == nullptr ? QPoint() : container->Inset();
  return {QPoint(control.left(), control.top()) + inset, QSize(control.width(), control.height())};
}

void Control_View::Report(const std::function<void()>& deed) {
  shell.Deliver([this_control = &control, &shell = shell, deed] {
    if (shell.View_Of(*this_control) == nullptr) return;  // closed while this waited
    deed();
    if (Control_View* view = shell.View_Of(*this_control)) view->Update();
  });
}

bool Usable(const Control& control) { return control.form.enabled() && Enabled_In_Form(control); }

namespace {

template <class View>
std::unique_ptr<Control_View> Make(Shell& shell, Control& control, QWidget& parent) {
  return std::make_unique<View>(shell, control, parent);
}

using Maker = std::unique_ptr<Control_View> (*)(Shell&, Control&, QWidget&);

Maker Maker_Of(Kind kind) {
  switch (kind) {
    case Kind::Picture_Box:
      return Make<Picture_Box_View>;
    case Kind::Canvas:
      return Make<Canvas_View>;
    case Kind::Line:
      return Make<Line_View>;
    case Kind::Label:
      return Make<Label_View>;
    case Kind::Text_Box:
      return Make<Text_Box_View>;
    case Kind::Command_Button:
      return Make<Command_Button_View>;
    case Kind::Check_Box:
      return Make<Check_Box_View>;
    case Kind::Frame_Box:
      return Make<Frame_Box_View>;
    case Kind::Combo_Box:
    case Kind::Drive_List:
      return Make<Combo_Box_View>;
    case Kind::List_Box:
    case Kind::Dir_List:
    case Kind::File_List:
      return Make<List_Box_View>;
    case Kind::Scroll_Bar:
      return Make<Scroll_Bar_View>;
  }
  return nullptr;
}

}  // namespace

std::unique_ptr<Control_View> Make_Control_View(Shell& shell, Control& control, QWidget& parent) {
  std::unique_ptr<Control_View> view = Maker_Of(control.kind)(shell, control, parent);
  view->Update();
  return view;
}
