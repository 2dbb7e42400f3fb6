#include "adapters/qt/list_views.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QListWidget>
#include <QSignalBlocker>
#include <QToolTip>

#include "adapters/qt/accessible.h"
#include "adapters/qt/qt_text.h"
#include "adapters/qt/shell.h"
#include "platform/input.h"

namespace {

QStringList To_Qt_List(const std::vector<std::string>& items) {
  QStringList texts;
  texts.reserve(static_cast<qsizetype>(items.size()));
  for (const std::string& item : items) texts.push_back(To_Qt(item));
  return texts;
}

// The toolkit's list makes its first row the current one when it gets the focus; the program's selects none
// by itself.
struct Rows final : QListWidget {
  explicit Rows(QWidget& parent) : QListWidget(&parent) {}

  void focusInEvent(QFocusEvent* event) override {
    const QSignalBlocker not_the_users(this);
    QListWidget::focusInEvent(event);
    if (selectedItems().isEmpty()) setCurrentRow(-1);
  }

  // A name that is cut short can be read as a whole.
  bool viewportEvent(QEvent* event) override {
    if (event->type() != QEvent::ToolTip) return QListWidget::viewportEvent(event);
    const auto& help = static_cast<QHelpEvent&>(*event);
    const QModelIndex row = indexAt(help.pos());
    const bool cut = row.isValid() && sizeHintForIndex(row).width() > viewport()->width();
    QToolTip::showText(help.globalPos(),
                       cut ? As_Plain_Tip(From_Qt(row.data().toString().trimmed())) : QString(), viewport());
    return true;
  }
};

}  // namespace

List_Box_View::List_Box_View(Shell& the_shell, Control& the_control, QWidget& parent)
    : Control_View(the_shell, the_control, *new Rows(parent),
                   {.native_keys = true, .own_click = true, .greys = true}) {
  auto& rows = static_cast<QListWidget&>(widget);
  rows.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  rows.setAccessibleName(To_Qt(control.spoken_name));
  QObject::connect(&rows, &QListWidget::currentRowChanged, &rows,
                   [this](int row) { Report([&list = List(), row] { User_Selected(list, row); }); });
}

void List_Box_View::Before_Press(const Mouse_Event& place) {
  auto& rows = static_cast<QListWidget&>(widget);
  const QPointF in_rows = rows.viewport()->mapFrom(&rows, QPointF(place.x, place.y));
  const QModelIndex pressed = rows.indexAt(in_rows.toPoint());
  if (place.button != Left_Button || !pressed.isValid()) return;
  User_Focused(control);
  User_Selected(List(), pressed.row());
}

void List_Box_View::Show_Values() {
  auto& rows = static_cast<QListWidget&>(widget);
  const QSignalBlocker from_the_program(rows);
  if (shown_ != List().items()) {
    shown_ = List().items();
    rows.clear();
    rows.addItems(To_Qt_List(shown_));
  }
  if (rows.currentRow() != List().index()) rows.setCurrentRow(List().index());
}

Combo_Box_View::Combo_Box_View(Shell& the_shell, Control& the_control, QWidget& parent)
    : Control_View(the_shell, the_control, *new QComboBox(&parent),
                   {.native_mouse = true, .native_keys = true, .own_click = true, .greys = true}) {
  auto& drop_down = static_cast<QComboBox&>(widget);
  drop_down.setAccessibleName(To_Qt(control.spoken_name));
  QObject::connect(&drop_down, &QComboBox::activated, &drop_down,
                   [this](int row) { Report([&list = List(), row] { User_Selected(list, row); }); });
}

void Combo_Box_View::Show_Values() {
  auto& drop_down = static_cast<QComboBox&>(widget);
  if (shown_ != List().items()) {
    shown_ = List().items();
    drop_down.clear();
    drop_down.addItems(To_Qt_List(shown_));
  }
  if (drop_down.currentIndex() == List().index()) return;
  drop_down.setCurrentIndex(List().index());
  Tell_Change(drop_down);
}
