#include "adapters/qt/accessible.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <cmath>

#include "adapters/qt/accessible_cells.h"
#include "adapters/qt/picture_views.h"
#include "adapters/qt/qt_text.h"
#include "adapters/qt/shell.h"
#include "platform/input.h"

namespace {

Shell* The_Shell = nullptr;

QAccessible::Role Role_Of(const Picture_Box& picture) {
  switch (picture.role) {
    case Role::Picture:
      return QAccessible::Graphic;
    case Role::Slider:
    case Role::Switch:
      return QAccessible::Slider;
    case Role::Knob:
      return QAccessible::Dial;
    case Role::Button:
      return QAccessible::Button;
    case Role::Check_Light:
      return QAccessible::CheckBox;
    case Role::Choice_Light:
      return QAccessible::RadioButton;
  }
  return QAccessible::Graphic;
}

// Runs deed as the user's, unless the control's form has gone meanwhile.
template <class Deed>
void Work(Control* control, Deed deed) {
  if (control == nullptr || The_Shell == nullptr) return;
  The_Shell->Deliver([control, deed] {
    if (The_Shell->View_Of(*control) != nullptr) deed();
  });
}

// What a painted view shows: an element of a panel, a canvas, or a mere decoration.
struct Painted_Accessible final : QAccessibleWidget, QAccessibleValueInterface {
  explicit Painted_Accessible(Painted_Widget& painted)
      : QAccessibleWidget(&painted), painted_(painted), cells_(painted, [&painted](const Mouse_Event& place) {
          Control* canvas = painted.control;
          Work(canvas, [canvas, place] { User_Pressed(*canvas, place); });
        }) {}

  int childCount() const override { return Has_Cells() ? cells_.Count() : QAccessibleWidget::childCount(); }
  QAccessibleInterface* child(int index) const override {
    return Has_Cells() ? cells_.Cell(index) : QAccessibleWidget::child(index);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return Has_Cells() ? cells_.Index_Of(child) : QAccessibleWidget::indexOfChild(child);
  }

  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  QString text(QAccessible::Text kind) const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QStringList actionNames() const override;
  void doAction(const QString& action) override;

  QVariant currentValue() const override { return Picture()->scale.value(); }
  void setCurrentValue(const QVariant& value) override;
  QVariant minimumValue() const override { return Picture()->scale.lowest; }
  QVariant maximumValue() const override { return Picture()->scale.highest; }
  QVariant minimumStepSize() const override { return 1; }

 private:
  Picture_Box* Picture() const;  // nullptr: it shows none, or its form is closed
  bool Has_Scale() const { return Picture() != nullptr && Picture()->scale.value; }
  bool Has_Cells() const { return cells_.Count() > 0; }

  Painted_Widget& painted_;
  mutable Accessible_Cells cells_;
};

Picture_Box* Painted_Accessible::Picture() const {
  const bool picture = painted_.control != nullptr && painted_.control->kind == Kind::Picture_Box;
  return picture ? static_cast<Picture_Box*>(painted_.control) : nullptr;
}

QAccessible::Role Painted_Accessible::role() const {
  if (Has_Cells()) return QAccessible::Canvas;
  return Picture() == nullptr ? QAccessible::Graphic : Role_Of(*Picture());
}

QAccessible::State Painted_Accessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  if (painted_.control == nullptr) return state;
  state.disabled = !Usable(*painted_.control);
  // The symbol on a button and the lines of a field have nothing to say.
  if (painted_.control->spoken_name.empty()) state.invisible = true;
  if (Picture() != nullptr && Picture()->is_on) {
    state.checkable = true;
    state.checked = Picture()->is_on();
  }
  return state;
}

QString Painted_Accessible::text(QAccessible::Text kind) const {
  const bool value = kind == QAccessible::Value || kind == QAccessible::Description;
  if (!value || painted_.control == nullptr) return QAccessibleWidget::text(kind);
  const std::string spoken = Spoken_Value(*painted_.control);
  return spoken.empty() ? QAccessibleWidget::text(kind) : To_Qt(spoken);
}

void* Painted_Accessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::ValueInterface) {
    return Has_Scale() ? static_cast<QAccessibleValueInterface*>(this) : nullptr;
  }
  return QAccessibleWidget::interface_cast(type);
}

QStringList Painted_Accessible::actionNames() const {
  QStringList names = QAccessibleWidget::actionNames();
  if (Has_Scale()) return names << increaseAction() << decreaseAction();
  if (Picture() != nullptr && Picture()->role != Role::Picture) names << pressAction();
  return names;
}

void Painted_Accessible::doAction(const QString& action) {
  Picture_Box* picture = Picture();
  if (action == pressAction()) {
    Work(picture, [picture] {
      const auto half = [](int size_px) { return static_cast<float>(size_px) / 2; };
      User_Pressed(*picture, {Left_Button, 0, half(picture->width()), half(picture->height())});
    });
  } else if (action == increaseAction() || action == decreaseAction()) {
    const bool upwards = action == increaseAction();
    Work(picture, [picture, upwards] { User_Stepped(*picture, upwards); });
  } else {
    QAccessibleWidget::doAction(action);
  }
}

void Painted_Accessible::setCurrentValue(const QVariant& value) {
  Picture_Box* picture = Picture();
  const int wanted = static_cast<int>(std::lround(value.toDouble()));
  Work(picture, [picture, wanted] { User_Turned(*picture, wanted); });
}

// A drop-down list under its own name; the toolkit tells the selected entry in place of it.
struct Drop_Down_Accessible final : QAccessibleWidget {
  explicit Drop_Down_Accessible(QComboBox& list)
      : QAccessibleWidget(&list, QAccessible::ComboBox), list_(list) {}

  int childCount() const override { return 1; }
  QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(list_.view()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* entries) const override {
    return entries != nullptr && entries->object() == list_.view() ? 0 : -1;
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = list_.view()->isVisible();
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    const bool value = kind == QAccessible::Value || kind == QAccessible::Description;
    return value ? list_.currentText() : QAccessibleWidget::text(kind);
  }
  QStringList actionNames() const override { return {showMenuAction(), setFocusAction()}; }
  void doAction(const QString& action) override {
    if (action != showMenuAction()) return QAccessibleWidget::doAction(action);
    if (list_.view()->isVisible()) {
      list_.hidePopup();
    } else if (list_.isEnabled()) {
      list_.showPopup();
    }
  }

 private:
  QComboBox& list_;
};

QAccessibleInterface* Make_Accessible(const QString&, QObject* object) {
  if (auto* painted = dynamic_cast<Painted_Widget*>(object)) return new Painted_Accessible(*painted);
  if (auto* list = dynamic_cast<QComboBox*>(object)) return new Drop_Down_Accessible(*list);
  return nullptr;
}

}  // namespace

void Tell_Change(QWidget& widget) {
  if (!QAccessible::isActive()) return;
  QAccessibleInterface* element = QAccessible::queryAccessibleInterface(&widget);
  if (element == nullptr) return;
  if (auto* value = element->valueInterface()) {
    QAccessibleValueChangeEvent changed(&widget, value->currentValue());
    QAccessible::updateAccessibility(&changed);
  }
  if (element->state().checkable) {
    QAccessible::State checked;
    checked.checked = true;
    QAccessibleStateChangeEvent changed(&widget, checked);
    QAccessible::updateAccessibility(&changed);
  }
  QAccessibleEvent described(&widget, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&described);
}

void Install_Accessible(Shell& shell) {
  The_Shell = &shell;
  QAccessible::installFactory(Make_Accessible);
}

void Forget_Accessible() {
  QAccessible::removeFactory(Make_Accessible);
  The_Shell = nullptr;
}
