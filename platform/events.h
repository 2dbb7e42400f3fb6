// The user's events in the program's own terms, whatever the toolkit calls them.
#pragma once

namespace Key {
constexpr int Backspace = 8;
constexpr int Tab = 9;
constexpr int Enter = 13;
constexpr int Shift = 16;
constexpr int Ctrl = 17;
constexpr int Alt = 18;  // and AltGr
constexpr int Pause = 19;
constexpr int Escape = 27;
constexpr int Space = 32;
constexpr int Page_Up = 33;
constexpr int Page_Down = 34;
constexpr int End = 35;
constexpr int Home = 36;
constexpr int Left = 37;
constexpr int Up = 38;
constexpr int Right = 39;
constexpr int Down = 40;
constexpr int Insert = 45;
constexpr int Delete = 46;
constexpr int Digit_0 = 48;   // digits run on to 57
constexpr int Letter_A = 65;  // letters run on to 90
constexpr int Super = 91;
constexpr int Keypad_0 = 96;  // keypad digits run on to 105
constexpr int Keypad_Plus = 107;
constexpr int Keypad_Minus = 109;
constexpr int F1 = 112;  // function keys run on to 123
constexpr int F4 = 115;
constexpr int F6 = 117;
}  // namespace Key

// Keys that do nothing alone.
constexpr bool Is_Modifier(int key_code) {
  return (key_code >= Key::Shift && key_code <= Key::Alt) || key_code == Key::Super;
}

// Bits of the shift state.
constexpr int Shift_Key = 1;
constexpr int Ctrl_Key = 2;
constexpr int Alt_Key = 4;

// Mouse buttons; while buttons are held, Mouse_Event::button of a move is the sum of them.
constexpr int Left_Button = 1;
constexpr int Right_Button = 2;
constexpr int Middle_Button = 4;

// A handler takes a key by setting code to 0.
struct Key_Event {
  int code = 0;
  int shift = 0;
  bool repeated = false;  // the key is held, and this is not its first press
};

// x and y in pixels of the control that was pressed, from its top left corner; outside it they are negative
// or beyond its size.
struct Mouse_Event {
  int button = 0;  // 0 on a move with no button held
  int shift = 0;
  float x = 0;
  float y = 0;
};
