// The program with the Editor on the screen, and verbs for its elements.
#pragma once

#include <string>
#include <vector>

#include "panel/editor.h"
#include "support/program.h"
#include "windows/editor_window.h"
#include "windows/focus_mark.h"

using Messages = std::vector<std::string>;

// The message that sets one parameter of the tone, from parameter number and value.
inline std::string Tone_Message(const std::string& number_and_value) {
  return "F0 41 36 00 21 20 01 " + number_and_value + " F7";
}

inline std::string Numbers(std::initializer_list<int> numbers) {
  std::string text;
  for (const int number : numbers) text += (text.empty() ? "" : " ") + std::to_string(number);
  return text;
}

struct Editor_Fixture : Program {
  Editor_Fixture() {
    Editor_Wire();
    Show(Editor);
  }
  ~Editor_Fixture() override {
    Unload(Editor);
    Active_Ctl = nullptr;
  }

  // Puts a byte into the tone without anybody noticing, and the elements to their places.
  void Have(int index, int value) {
    Tone[index] = static_cast<std::uint8_t>(value);
    Tone_Show();
    Tone_Saved = Flag_True;
  }
  void Key_On(Picture_Box& element, int key) {
    Set_Focus(element);
    desktop.Key(key);
  }
  std::string Display() { return Editor.Tone_Name.text(); }
};
