#include "adapters/qt/keys.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>

#include "adapters/qt/shift_state.h"

namespace {

struct Key_Row {
  int qt_key;
  int code;
};

constexpr std::array Key_Rows{
    Key_Row{Qt::Key_Backspace, Key::Backspace},
    Key_Row{Qt::Key_Tab, Key::Tab},
    Key_Row{Qt::Key_Backtab, Key::Tab},
    Key_Row{Qt::Key_Return, Key::Enter},
    Key_Row{Qt::Key_Enter, Key::Enter},
    Key_Row{Qt::Key_Shift, Key::Shift},
    Key_Row{Qt::Key_Control, Key::Ctrl},
    Key_Row{Qt::Key_Alt, Key::Alt},
    Key_Row{Qt::Key_AltGr, Key::Alt},
    Key_Row{Qt::Key_Mode_switch, Key::Alt},
    Key_Row{Qt::Key_Meta, Key::Super},
    Key_Row{Qt::Key_Super_L, Key::Super},
    Key_Row{Qt::Key_Super_R, Key::Super},
    Key_Row{Qt::Key_Pause, Key::Pause},
    Key_Row{Qt::Key_CapsLock, 20},
    Key_Row{Qt::Key_Escape, Key::Escape},
    Key_Row{Qt::Key_Space, Key::Space},
    Key_Row{Qt::Key_PageUp, Key::Page_Up},
    Key_Row{Qt::Key_PageDown, Key::Page_Down},
    Key_Row{Qt::Key_End, Key::End},
    Key_Row{Qt::Key_Home, Key::Home},
    Key_Row{Qt::Key_Left, Key::Left},
    Key_Row{Qt::Key_Up, Key::Up},
    Key_Row{Qt::Key_Right, Key::Right},
    Key_Row{Qt::Key_Down, Key::Down},
    Key_Row{Qt::Key_Insert, Key::Insert},
    Key_Row{Qt::Key_Delete, Key::Delete},
};

constexpr std::array Keypad_Rows{
    Key_Row{Qt::Key_Asterisk, 106}, Key_Row{Qt::Key_Plus, Key::Keypad_Plus},
    Key_Row{Qt::Key_Comma, 110},    Key_Row{Qt::Key_Minus, Key::Keypad_Minus},
    Key_Row{Qt::Key_Period, 110},   Key_Row{Qt::Key_Slash, 111},
};

// The keys of the main block that type a sign.
constexpr std::array Sign_Rows{
    Key_Row{Qt::Key_Plus, 187},
    Key_Row{Qt::Key_Comma, 188},
    Key_Row{Qt::Key_Minus, 189},
    Key_Row{Qt::Key_Period, 190},
};

template <std::size_t count>
int Find(const std::array<Key_Row, count>& rows, int qt_key) {
  const auto row =
      std::find_if(rows.begin(), rows.end(), [&](const Key_Row& one) { return one.qt_key == qt_key; });
  return row == rows.end() ? 0 : row->code;
}

int Code_Of(int qt_key, bool keypad) {
  if (qt_key >= Qt::Key_0 && qt_key <= Qt::Key_9) {
    return (keypad ? Key::Keypad_0 : Key::Digit_0) + qt_key - Qt::Key_0;
  }
  if (qt_key >= Qt::Key_A && qt_key <= Qt::Key_Z) return Key::Letter_A + qt_key - Qt::Key_A;
  if (qt_key >= Qt::Key_F1 && qt_key <= Qt::Key_F12) return Key::F1 + qt_key - Qt::Key_F1;
  if (const int code = Find(Key_Rows, qt_key)) return code;
  if (const int code = keypad ? Find(Keypad_Rows, qt_key) : Find(Sign_Rows, qt_key)) return code;
  return Other_Key;
}

}  // namespace

Key_Event Key_Of(const QKeyEvent& event) {
  Key_Event key{Code_Of(event.key(), event.modifiers().testFlag(Qt::KeypadModifier)),
                Shift_State(event.modifiers()), event.isAutoRepeat()};
  if (event.key() == Qt::Key_Backtab) key.shift |= Shift_Key;
  return key;
}

int Character_Of(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Delete || event.modifiers().testFlag(Qt::AltModifier)) return 0;
  if (event.key() == Qt::Key_Backtab) return Key::Tab;
  const QList<uint> characters = event.text().toUcs4();
  return characters.size() == 1 ? static_cast<int>(characters.front()) : 0;
}
