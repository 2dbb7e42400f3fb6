// The program with the Editor on the screen, and verbs for elements: those of the tone, unless a fixture says
// otherwise.
#pragma once

#include "panel/editor.h"
#include "support/program.h"

inline std::string Numbers(std::initializer_list<int> numbers) {
  std::string text;
  for (const int number : numbers) text += (text.empty() ? "" : " ") + std::to_string(number);
  return text;
}
inline std::string Place_Of(const Control& control) { return Numbers({control.left(), control.top()}); }

// Element, index, byte before, key, byte behind it, place of what moves, text in the display (empty: the
// name).
using Key_Row = std::tuple<Picture_Box&, int, int, int, int, std::string, std::string>;
// Element, index, place in the element, byte behind the move, whether it is sent, place of what moves.
using Drag_Row = std::tuple<Picture_Box&, int, float, float, int, bool, std::string>;

struct Editor_Fixture : Program {
  Editor_Fixture() {
    Editor_Wire();
    Show(Editor);
  }

  virtual std::uint8_t& Byte(int index) { return Tone[index]; }
  virtual std::string Head() { return "F0 41 36 00 21 20 01 "; }

  std::string Message(int index, int value) {
    return Head() + Hex_Text(std::string{static_cast<char>(index), static_cast<char>(value)}) + " F7";
  }
  // Stores a byte without anybody noticing, and the elements stand in their places.
  void Have(int index, int value) {
    Byte(index) = static_cast<std::uint8_t>(value);
    Tone_Show();
    if (Patch_Open == Flag_On) Patch_Show();
    Tone_Saved = Flag_True;
  }
  void Key_On(Picture_Box& element, int key) {
    Set_Focus(element);
    desktop.Key(key);
  }
  std::string Display() { return Editor.Tone_Name.text(); }

  void Expect(int index, int value, const std::string& place, bool is_sent) {
    EXPECT_EQ(Byte(index), value);
    EXPECT_EQ(Place_Of(*Active_Ctl), place);
    EXPECT_EQ(Sent(), is_sent ? Texts{Message(index, value)} : Texts{});
    EXPECT_EQ(Tone_Saved, Flag_False);
  }
  // Each row starts from its own byte, and every key sends.
  void Expect_Keys(const std::vector<Key_Row>& rows) {
    for (const auto& [element, index, before, key, after, place, shown] : rows) {
      SCOPED_TRACE(testing::Message() << element.name << " " << before << " " << key);
      Have(index, before);
      Key_On(element, key);
      Expect(index, after, place, true);
      EXPECT_EQ(Display(), shown);
    }
  }
  // Each row goes on from the one before; the move is from the place of the press or of the last move.
  void Expect_Drags(const std::vector<Drag_Row>& rows) {
    for (const auto& [element, index, x, y, after, is_sent, place] : rows) {
      SCOPED_TRACE(testing::Message() << element.name << " to " << after);
      Set_Focus(element);
      Tone_Saved = Flag_True;
      desktop.Move(element, 90, 90, 0);  // without a button it is nothing
      desktop.Move(element, x, y);
      Expect(index, after, place, is_sent);
    }
  }
};
