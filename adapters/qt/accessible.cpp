#include "adapters/qt/accessible.h"

#include <QAccessibleWidget>

#include "adapters/qt/picture_views.h"
#include "adapters/qt/qt_text.h"
#include "adapters/qt/shell.h"
#include "platform/input.h"

namespace {

Shell* The_Shell = nullptr;

QAccessible::Role Role_Of(const Control& control) {
  if (control.kind != Kind::Picture_Box) return QAccessible::Graphic;
  switch (static_cast<const Picture_Box&>(control).role) {
    case Role::Picture:
      return QAccessible::Graphic;
    case Role::Slider:
    case Role::Switch:
      return QAccessible::Slider;
    case Role::Knob:
      return QAccessible::Dial;
    case Role::Button:
      return QAccessible::Button;
    case Role::Light:
      return QAccessible::Indicator;
  }
  return QAccessible::Graphic;
}

bool Has_Steps(const Control& control) {
  const QAccessible::Role role = Role_Of(control);
  return role == QAccessible::Slider || role == QAccessible::Dial;
}

// An element of a panel. Its value is a text, as the panel writes it, so it is told as the description too.
struct Light_Accessible final : QAccessibleWidget {
  explicit Light_Accessible(Light_Widget& light) : QAccessibleWidget(&light), light_(light) {}

  QAccessible::Role role() const override {
    return light_.control == nullptr ? QAccessible::Graphic : Role_Of(*light_.control);
  }
  QString text(QAccessible::Text kind) const override;
  QStringList actionNames() const override;
  void doAction(const QString& action) override;

 private:
  void Step(int key_code);
  void Press();

  Light_Widget& light_;
};

QString Light_Accessible::text(QAccessible::Text kind) const {
  const bool value = kind == QAccessible::Value || kind == QAccessible::Description;
  if (!value || light_.control == nullptr || !light_.control->spoken_value)
    return QAccessibleWidget::text(kind);
  return To_Qt(light_.control->spoken_value());
}

QStringList Light_Accessible::actionNames() const {
  QStringList names = QAccessibleWidget::actionNames();
  if (light_.control == nullptr || light_.control->kind != Kind::Picture_Box) return names;
  if (Has_Steps(*light_.control)) {
    names << increaseAction() << decreaseAction();
  } else {
    names << pressAction();
  }
  return names;
}

void Light_Accessible::doAction(const QString& action) {
  if (action == increaseAction()) return Step(Key::Up);
  if (action == decreaseAction()) return Step(Key::Down);
  if (action == pressAction()) return Press();
  QAccessibleWidget::doAction(action);
}

void Light_Accessible::Step(int key_code) {
  Control* control = light_.control;
  if (control == nullptr || The_Shell == nullptr) return;
  The_Shell->Deliver([control, key_code] {
    if (The_Shell->View_Of(*control) == nullptr) return;
    User_Focused(*control);
    Key_Down(control->form, control, {key_code, 0}, 0);
  });
}

void Light_Accessible::Press() {
  Control* control = light_.control;
  if (control == nullptr || The_Shell == nullptr) return;
  The_Shell->Deliver([control] {
    if (The_Shell->View_Of(*control) == nullptr) return;
    const Mouse_Event middle{Left_Button, 0, static_cast<float>(control->width()) / 2,
                             static_cast<float>(control->height()) / 2};
    Mouse_Down(*control, middle);
    if (The_Shell->View_Of(*control) != nullptr) Mouse_Up(*control, middle, true);
  });
}

QAccessibleInterface* Make_Accessible(const QString&, QObject* object) {
  auto* light = dynamic_cast<Light_Widget*>(object);
  return light == nullptr ? nullptr : new Light_Accessible(*light);
}

}  // namespace

void Install_Accessible(Shell& shell) {
  The_Shell = &shell;
  QAccessible::installFactory(Make_Accessible);
}

void Forget_Accessible() {
  QAccessible::removeFactory(Make_Accessible);
  The_Shell = nullptr;
}
