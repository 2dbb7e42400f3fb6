#include "adapters/qt/keys.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

#include "desk.h"

namespace {

TEST(Keys, Codes_Shift_States_And_Characters) {
  struct Row {
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    int code, shift, character;
  };
  const Row rows[] = {
      {Qt::Key_PageUp, {}, "", 33, 0, 0},
      {Qt::Key_Down, Qt::KeypadModifier, "", 40, 0, 0},
      {Qt::Key_0, {}, "0", 48, 0, '0'},
      {Qt::Key_9, Qt::KeypadModifier, "9", 105, 0, '9'},
      {Qt::Key_Plus, Qt::KeypadModifier, "+", 107, 0, '+'},
      {Qt::Key_Minus, Qt::KeypadModifier, "-", 109, 0, '-'},
      {Qt::Key_Plus, Qt::ShiftModifier, "+", 187, Shift_Key, '+'},
      {Qt::Key_A, {}, "a", 65, 0, 'a'},
      {Qt::Key_Z, Qt::ControlModifier, "\x1a", 90, Ctrl_Key, 26},
      {Qt::Key_F, Qt::AltModifier, "f", 70, Alt_Key, 0},
      {Qt::Key_F1, {}, "", 112, 0, 0},
      {Qt::Key_F12, {}, "", 123, 0, 0},
      {Qt::Key_Tab, {}, "\t", 9, 0, 9},
      {Qt::Key_Backtab, Qt::ShiftModifier, "", 9, Shift_Key, 9},
      {Qt::Key_Enter, Qt::KeypadModifier, "\r", 13, 0, 13},
      {Qt::Key_Escape, {}, "\x1b", 27, 0, 27},
      {Qt::Key_Backspace, {}, "\b", 8, 0, 8},
      {Qt::Key_Delete, {}, "\x7f", 46, 0, 0},
      {Qt::Key_Exclam, Qt::ShiftModifier, "!", Other_Key, Shift_Key, '!'},
      {Qt::Key_Adiaeresis, {}, "ä", Other_Key, 0, 0xe4},
  };
  for (const Row& row : rows) {
    const QKeyEvent event(QEvent::KeyPress, row.key, row.modifiers, QString::fromUtf8(row.text));
    EXPECT_EQ(Key_Of(event).code, row.code) << std::hex << row.key;
    EXPECT_EQ(Key_Of(event).shift, row.shift) << std::hex << row.key;
    EXPECT_EQ(Character_Of(event), row.character) << std::hex << row.key;
  }
}

TEST_F(Desk, Tab_Goes_By_The_Programs_Order_And_The_Toolkits_Focus_Follows) {
  Text_Box text(panel, "Text");
  text.Place(10, 100, 80, 20);
  text.tab_index = 2;
  Show_Windows();
  EXPECT_EQ(QApplication::focusWidget(), &Widget("Knob"));
  Type(Qt::Key_Tab);
  Type(Qt::Key_Tab);
  EXPECT_EQ(Focused_Control(), &text);
  EXPECT_EQ(QApplication::focusWidget(), &Widget("Text"));
  Type(Qt::Key_Tab);
  Type(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Focused_Control(), &text) << "around the end and back";
  lever.enabled = false;
  Type(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget(), &Widget("Knob"));
}

TEST_F(Desk, A_Key_That_Is_Taken_Does_Not_Reach_The_Text_Field) {
  Text_Box text(panel, "Text");
  text.Place(10, 100, 80, 20);
  text.tab_index = 2;
  text.on_key_down = [](Key_Event& key) {
    if (key.code == Key::Letter_A) key.code = 0;
  };
  text.on_key_press = [](int& character) {
    if (character == 'b') character = 0;
  };
  text.on_change = [&] { Note(text.text()); };
  menu_new.on_click = [&] { Note("new"); };
  Show_Windows();
  Click(Widget("Text"));
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_B, Qt::Key_C}) Type(key);
  Type(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(log, (std::vector<std::string>{"c", "new"}));
  EXPECT_EQ(text.selection_start(), 1);
}

TEST_F(Desk, Enter_Escape_And_Access_Keys_Work_By_The_Program_Alone) {
  Label label(panel, "Label");
  label.caption = std::string("&Lever:");
  label.tab_index = 0;
  Command_Button ok(panel, "Ok");
  ok.caption = std::string("&Ok");
  ok.Place(10, 10, 60, 24);
  ok.tab_index = 2;
  ok.is_default = true;
  ok.on_click = [&] { Note("ok"); };
  Command_Button cancel(panel, "Cancel");
  cancel.Place(80, 10, 60, 24);
  cancel.tab_index = 3;
  cancel.is_cancel = true;
  cancel.on_click = [&] { Note("cancel"); };
  Show_Windows();
  Type(Qt::Key_L, Qt::AltModifier);
  EXPECT_EQ(Focused_Control(), &lever);
  Type(Qt::Key_Return);
  Type(Qt::Key_Escape);
  Type(Qt::Key_O, Qt::AltModifier);
  Type(Qt::Key_Space);
  EXPECT_EQ(log, (std::vector<std::string>{"ok", "cancel", "ok", "ok"}))
      << "once each, the last by the focus";
}

TEST_F(Desk, An_Access_Key_Opens_Its_Menu_Unless_That_Is_Disabled) {
  menu_file.on_click = [&] { Note("opened"); };
  Show_Windows();
  menu_file.enabled = false;
  Type(Qt::Key_F, Qt::AltModifier);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  menu_file.enabled = true;
  Type(Qt::Key_F, Qt::AltModifier);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(log, std::vector<std::string>{"opened"});
  EXPECT_EQ(Focused_Control(), &knob) << "a menu takes no focus from the program";
  QApplication::activePopupWidget()->close();
}

}  // namespace
