#include "adapters/qt/message_box.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <array>

#include "adapters/qt/qt_text.h"

namespace {

struct Buttons_Row {
  int style;
  QMessageBox::StandardButtons buttons;
  QMessageBox::StandardButton first;  // Enter answers this
  // In a box with a stop sign. A question there is whether to overwrite: the Enter that saved must not say
  // yes.
  QMessageBox::StandardButton first_at_stop;
  QMessageBox::StandardButton
      escape;       // Escape and the close box answer this, where they may, and the program's end
  bool may_escape;  // No is an answer that costs: it must be said
};

const std::array Buttons_Rows{
    Buttons_Row{Box_Ok, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok, true},
    Buttons_Row{Box_Yes_No_Cancel, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes,
                QMessageBox::Cancel, QMessageBox::Cancel, true},
    Buttons_Row{Box_Yes_No, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No,
                QMessageBox::No, false},
    Buttons_Row{Box_Retry_Cancel, QMessageBox::Retry | QMessageBox::Cancel, QMessageBox::Retry,
                QMessageBox::Retry, QMessageBox::Cancel, true},
};

const Buttons_Row& Row_Of(int style) {
  const auto row = std::ranges::find(Buttons_Rows, style & Box_Buttons_Mask, &Buttons_Row::style);
  return row == Buttons_Rows.end() ? Buttons_Rows.front() : *row;
}

QMessageBox::Icon Icon_Of(int style) {
  switch (style & Box_Icon_Mask) {
    case Box_Stop:
      return QMessageBox::Critical;
    case Box_Question:
      return QMessageBox::Question;
    case Box_Exclamation:
      return QMessageBox::Warning;
    case Box_Information:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

Answer Answer_Of(int button) {
  switch (button) {
    case QMessageBox::Cancel:
      return Answer::Cancel;
    case QMessageBox::Retry:
      return Answer::Retry;
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    default:
      return Answer::Ok;
  }
}

struct Box final : QMessageBox {
  Box(QWidget* over, bool escapes) : QMessageBox(over), may_escape(escapes) {}

  void keyPressEvent(QKeyEvent* event) override {
    if (may_escape || !event->matches(QKeySequence::Cancel)) QMessageBox::keyPressEvent(event);
  }
  void closeEvent(QCloseEvent* event) override {
    if (may_escape) return QMessageBox::closeEvent(event);
    event->ignore();
  }

  const bool may_escape;
};

}  // namespace

Answer Escape_Answer(int style) { return Answer_Of(Row_Of(style).escape); }

Answer Ask(std::string_view text, int style, std::string_view title, QWidget* over) {
  const Buttons_Row& row = Row_Of(style);
  Box box(over, row.may_escape);
  box.setWindowModality(Qt::ApplicationModal);
  box.setTextFormat(Qt::PlainText);
  box.setText(With_Line_Feeds(text));
  box.setWindowTitle(To_Qt(title));
  box.setIcon(Icon_Of(style));
  box.setStandardButtons(row.buttons);
  box.setDefaultButton((style & Box_Icon_Mask) == Box_Stop ? row.first_at_stop : row.first);
  box.setEscapeButton(row.escape);
  const int button = box.exec();
  return button == 0 || button == -1 ? Answer_Of(row.escape) : Answer_Of(button);
}
