#include "adapters/qt/button_views.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QSignalBlocker>

#include "adapters/qt/qt_text.h"
#include "adapters/qt/shell.h"
#include "platform/input.h"
#include "platform/text.h"

namespace {

constexpr Control_View::Manner Button_Manner{
    .native_mouse = true, .native_keys = true, .own_click = true, .greys = true};

QString Spoken(const Control& control, const std::string& caption) {
  return To_Qt(control.spoken_name.empty() ? Plain_Caption(caption) : control.spoken_name);
}

}  // namespace

Command_Button_View::Command_Button_View(Shell& the_shell, Control& the_control, QWidget& parent)
    : Control_View(the_shell, the_control, *new QPushButton(&parent), Button_Manner) {
  auto& push_button = static_cast<QPushButton&>(widget);
  push_button.setAutoDefault(false);
  QObject::connect(&push_button, &QPushButton::clicked, &push_button, [this] {
    Report([&button = static_cast<Command_Button&>(control)] { User_Clicked(button); });
  });
}

void Command_Button_View::Show_Values() {
  const auto& button = static_cast<const Command_Button&>(control);
  auto& push_button = static_cast<QPushButton&>(widget);
  if (const QString text = To_Qt(button.caption()); push_button.text() != text) push_button.setText(text);
  push_button.setAccessibleName(Spoken(control, button.caption()));
}

Check_Box_View::Check_Box_View(Shell& the_shell, Control& the_control, QWidget& parent)
    : Control_View(the_shell, the_control, *new QCheckBox(&parent), Button_Manner) {
  auto& check_box = static_cast<QCheckBox&>(widget);
  // Not clicked alone: a screen reader toggles the box without a click.
  QObject::connect(&check_box, &QCheckBox::toggled, &check_box, [this](bool checked) {
    Report([&box = static_cast<Check_Box&>(control), checked] { User_Checked(box, checked); });
  });
}

void Check_Box_View::Show_Values() {
  const auto& box = static_cast<const Check_Box&>(control);
  auto& check_box = static_cast<QCheckBox&>(widget);
  if (const QString text = To_Qt(box.caption()); check_box.text() != text) check_box.setText(text);
  check_box.setAccessibleName(Spoken(control, box.caption()));
  const QSignalBlocker shown_not_toggled(check_box);
  check_box.setChecked(box.value());
}

Frame_Box_View::Frame_Box_View(Shell& the_shell, Control& the_control, QWidget& parent)
    : Control_View(the_shell, the_control, *new QGroupBox(&parent), {.greys = true}) {}

void Frame_Box_View::Show_Values() {
  const auto& frame_box = static_cast<const Frame_Box&>(control);
  auto& group_box = static_cast<QGroupBox&>(widget);
  if (const QString title = To_Qt(frame_box.caption()); group_box.title() != title) group_box.setTitle(title);
  group_box.setAccessibleName(Spoken(control, frame_box.caption()));
}
