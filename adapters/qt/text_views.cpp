#include "adapters/qt/text_views.h"

#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextCursor>
#include <algorithm>

#include "adapters/qt/look.h"
#include "adapters/qt/qt_text.h"
#include "adapters/qt/shell.h"
#include "platform/input.h"
#include "platform/text.h"

namespace {

// Paints its text itself: the toolkit's label shows an access key only if it may also act on it, which the
// program does.
struct Label_Widget final : QLabel {
  explicit Label_Widget(QWidget& parent) : QLabel(&parent) { setTextFormat(Qt::PlainText); }

  int flags = Qt::TextShowMnemonic;

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), flags, text());
  }
};

// A pasted line has its end with it, which has no place in a name.
QString Without_Controls(QString text) {
  return text.removeIf([](QChar sign) { return sign.category() == QChar::Other_Control; });
}

// A face of the program's own has one sign for all that it lacks, of the same width as the others; to the
// toolkit some of that would be nothing, or blanks.
QString In_Own_Face(const QString& text, const QFont& font) {
  const QFontMetrics metrics(font);
  QString shown;
  for (char32_t sign : text.toUcs4()) {
    if (!metrics.inFontUcs4(sign)) sign = QChar::ReplacementCharacter;
    shown += QString::fromUcs4(&sign, 1);
  }
  return shown;
}

QWidget& Make_Text_Widget(const Control& control, QWidget& parent) {
  if (static_cast<const Text_Box&>(control).multi_line) return *new QPlainTextEdit(&parent);
  return *new QLineEdit(&parent);
}

}  // namespace

Label_View::Label_View(Shell& the_shell, Control& the_control, QWidget& parent)
    : Control_View(the_shell, the_control, *new Label_Widget(parent), {.greys = true}) {
  widget.setFocusPolicy(Qt::NoFocus);  // its place in the order of Tab is for its access key alone
}

void Label_View::Show_Values() {
  const auto& label = static_cast<const Label&>(control);
  auto& shown = static_cast<Label_Widget&>(widget);
  const QString text = With_Line_Feeds(label.caption());
  int flags = Qt::TextShowMnemonic | Qt::AlignTop;
  flags |= label.alignment() == Alignment::Center ? Qt::AlignHCenter : Qt::AlignLeft;
  if (label.wraps()) flags |= Qt::TextWordWrap;
  if (shown.flags != flags || shown.text() != text) {
    shown.flags = flags;
    shown.setText(text);
    shown.update();
  }
  shown.setAccessibleName(
      To_Qt(label.spoken_name.empty() ? Plain_Caption(label.caption()) : label.spoken_name));
  shown.setAutoFillBackground(label.own_colors());
  if (label.own_colors()) shown.setFont(Display_Font(shown.size()));
  Set_Colors(shown, label.own_colors(), label.fore_color(), label.back_color());
}

Text_Box_View::Text_Box_View(Shell& the_shell, Control& the_control, QWidget& parent)
    : Control_View(the_shell, the_control, Make_Text_Widget(the_control, parent),
                   {.native_mouse = true, .native_keys = true, .greys = true}) {
  widget.setAccessibleName(To_Qt(control.spoken_name));
  if (!Box().read_only) widget.setContextMenuPolicy(Qt::DefaultContextMenu);
  if (auto* line = dynamic_cast<QLineEdit*>(&widget)) Listen(*line);
  if (auto* field = dynamic_cast<QPlainTextEdit*>(&widget)) Listen(*field);
}

void Text_Box_View::Listen(QLineEdit& line) {
  line.setReadOnly(Box().read_only);
  if (Box().max_length > 0) line.setMaxLength(Box().max_length);
  const auto report = [this, &line] {
    if (const QString clean = Without_Controls(line.text()); clean != line.text()) return line.setText(clean);
    const int start = line.hasSelectedText() ? line.selectionStart() : line.cursorPosition();
    Report_Typed(line.text(), start, start + line.selectionLength());
  };
  QObject::connect(&line, &QLineEdit::textChanged, &line, report);
  QObject::connect(&line, &QLineEdit::selectionChanged, &line, report);
  QObject::connect(&line, &QLineEdit::cursorPositionChanged, &line, report);
}

void Text_Box_View::Listen(QPlainTextEdit& field) {
  field.setReadOnly(Box().read_only);
  field.setTabChangesFocus(true);
  const auto report = [this, &field] {
    const QTextCursor cursor = field.textCursor();
    Report_Typed(field.toPlainText(), cursor.selectionStart(), cursor.selectionEnd());
  };
  QObject::connect(&field, &QPlainTextEdit::textChanged, &field, report);
  QObject::connect(&field, &QPlainTextEdit::cursorPositionChanged, &field, report);
  QObject::connect(&field, &QPlainTextEdit::selectionChanged, &field, report);
}

void Text_Box_View::Report_Typed(const QString& text, int start_unit, int end_unit) {
  const int start = Characters_Of(text, start_unit);
  const int length = Characters_Of(text, end_unit) - start;
  Report([&box = Box(), typed = From_Qt(text), start, length] { User_Typed(box, typed, start, length); });
}

void Text_Box_View::Show_Values() {
  const QSignalBlocker from_the_program(widget);
  Set_Colors(widget, Box().own_colors(), Box().fore_color(), Box().back_color());
  Show_Face();
  if (auto* line = dynamic_cast<QLineEdit*>(&widget)) Show_Line(*line);
  if (auto* field = dynamic_cast<QPlainTextEdit*>(&widget)) Show_Field(*field);
}

// A face of the program's own fills the height of the field.
void Text_Box_View::Show_Face() {
  const QString face = To_Qt(Box().font_face());
  if (face == shown_face_) return;
  shown_face_ = face;
  QFont font;
  if (!face.isEmpty()) {
    font.setFamily(face);
    font.setStyleStrategy(QFont::NoFontMerging);
    int size_px = std::max(control.height(), 1);
    do {
      font.setPixelSize(size_px);
    } while (QFontMetrics(font).height() > control.height() && --size_px > 1);
  }
  widget.setFont(font);
}

void Text_Box_View::Show_Line(QLineEdit& line) {
  line.setFrame(!Box().own_colors());
  QString text = To_Qt(Box().text());
  if (!shown_face_.isEmpty()) text = In_Own_Face(text, line.font());
  if (line.text() != text) line.setText(text);
  const int start = Units_Of(text, Box().selection_start());
  const int end = Units_Of(text, Box().selection_start() + Box().selection_length());
  const int shown_start = line.hasSelectedText() ? line.selectionStart() : line.cursorPosition();
  if (shown_start == start && line.selectionLength() == end - start) return;
  if (end > start) {
    line.setSelection(start, end - start);
  } else {
    line.setCursorPosition(start);
  }
}

void Text_Box_View::Show_Field(QPlainTextEdit& field) {
  const QString text = With_Line_Feeds(Box().text());
  if (field.toPlainText() != text) field.setPlainText(text);
  QTextCursor cursor = field.textCursor();
  const int start = Units_Of(text, Box().selection_start());
  const int end = Units_Of(text, Box().selection_start() + Box().selection_length());
  if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  field.setTextCursor(cursor);
}
