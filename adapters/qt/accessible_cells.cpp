#include "adapters/qt/accessible_cells.h"

#include <algorithm>

#include "adapters/qt/picture_views.h"
#include "adapters/qt/qt_text.h"

namespace {

const Cells* Cells_Of(const Painted_Widget& painted) {
  if (painted.control == nullptr || painted.control->kind != Kind::Canvas) return nullptr;
  const Cells& cells = static_cast<const Canvas*>(painted.control)->cells;
  return cells.spoken_name ? &cells : nullptr;
}

struct Cell_Accessible final : QAccessibleInterface, QAccessibleActionInterface {
  Cell_Accessible(Painted_Widget& painted, int cell, const Accessible_Cells::Press& press)
      : painted_(painted), cell_(cell), press_(press) {}

  bool isValid() const override { return Cells_Of(painted_) != nullptr; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return painted_.window()->windowHandle(); }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&painted_); }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QAccessible::Role role() const override { return QAccessible::CheckBox; }
  QAccessible::State state() const override;
  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }

  QStringList actionNames() const override;
  void doAction(const QString& action) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QRect Place() const;  // in the canvas

  Painted_Widget& painted_;
  const int cell_;
  const Accessible_Cells::Press& press_;
};

QAccessible::State Cell_Accessible::state() const {
  QAccessible::State state = parent()->state();
  if (!isValid()) return state;
  state.checkable = true;
  state.checked = !Cells_Of(painted_)->spoken_value(cell_).empty();
  return state;
}

QString Cell_Accessible::text(QAccessible::Text kind) const {
  const Cells* cells = Cells_Of(painted_);
  if (cells == nullptr) return {};
  if (kind == QAccessible::Name) return To_Qt(cells->spoken_name(cell_));
  const bool value = kind == QAccessible::Value || kind == QAccessible::Description;
  return value ? To_Qt(cells->spoken_value(cell_)) : QString();
}

QRect Cell_Accessible::Place() const {
  const Cells* cells = Cells_Of(painted_);
  if (cells == nullptr) return {};
  const int size_px = cells->size_px;
  return {cell_ / cells->rows * size_px, cell_ % cells->rows * size_px, size_px, size_px};
}

QRect Cell_Accessible::rect() const { return Place().translated(painted_.mapToGlobal(QPoint(0, 0))); }

QStringList Cell_Accessible::actionNames() const {
  const Cells* cells = Cells_Of(painted_);
  return cells == nullptr ? QStringList()
                          : QStringList{To_Qt(cells->left_action), To_Qt(cells->right_action)};
}

void Cell_Accessible::doAction(const QString& action) {
  const auto index = actionNames().indexOf(action);
  if (index < 0) return;
  const QPoint middle = Place().center();
  press_({index == 0 ? Left_Button : Right_Button, 0, static_cast<float>(middle.x()),
          static_cast<float>(middle.y())});
}

}  // namespace

Accessible_Cells::~Accessible_Cells() {
  for (const QAccessible::Id id : ids_) QAccessible::deleteAccessibleInterface(id);
}

int Accessible_Cells::Count() const {
  const Cells* cells = Cells_Of(painted_);
  if (cells == nullptr) return 0;
  const Control& canvas = *painted_.control;
  const auto fit = [&](int length_px) { return (length_px + cells->size_px - 1) / cells->size_px; };
  return fit(canvas.width()) * cells->rows;
}

QAccessibleInterface* Accessible_Cells::Cell(int cell) {
  while (ids_.size() < static_cast<std::size_t>(Count())) {
    const int next = static_cast<int>(ids_.size());
    ids_.push_back(QAccessible::registerAccessibleInterface(new Cell_Accessible(painted_, next, press_)));
  }
  return cell < 0 || cell >= Count() ? nullptr
                                     : QAccessible::accessibleInterface(ids_[static_cast<std::size_t>(cell)]);
}

int Accessible_Cells::Index_Of(const QAccessibleInterface* cell) const {
  const auto is_it = [cell](QAccessible::Id id) { return QAccessible::accessibleInterface(id) == cell; };
  const auto found = std::find_if(ids_.begin(), ids_.end(), is_it);
  return found == ids_.end() ? -1 : static_cast<int>(found - ids_.begin());
}
