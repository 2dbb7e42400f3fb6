#include "panel/element_rules.h"

#include <array>

#include "platform/convert.h"
#include "platform/events.h"
#include "windows/focus_mark.h"

namespace {

constexpr int Switch_Step = 32;
constexpr int Three_Way_Limit = 64;
constexpr int Fine_Knob_Centre = 63;

enum class Move { None, Up, Down, Page_Up, Page_Down, Lowest, Highest, Centre };

struct Key_Row {
  int code;
  Move slider;
  Move knob;
};

constexpr std::array Key_Rows{
    Key_Row{Key::Page_Up, Move::Page_Up, Move::Page_Up},
    Key_Row{Key::Page_Down, Move::Page_Down, Move::Page_Down},
    Key_Row{Key::End, Move::Lowest, Move::Lowest},
    Key_Row{Key::Home, Move::Highest, Move::Highest},
    Key_Row{Key::Up, Move::Up, Move::Up},
    Key_Row{Key::Keypad_Plus, Move::Up, Move::Up},
    Key_Row{Key::Down, Move::Down, Move::Down},
    Key_Row{Key::Keypad_Minus, Move::Down, Move::Down},
    Key_Row{Key::Right, Move::None, Move::Up},
    Key_Row{Key::Left, Move::None, Move::Down},
    Key_Row{Key::Digit_0, Move::None, Move::Centre},
    Key_Row{Key::Keypad_0, Move::None, Move::Centre},
};

Move Move_Of(int key_code, Move Key_Row::*column) {
  for (const Key_Row& row : Key_Rows) {
    if (row.code == key_code) return row.*column;
  }
  return Move::None;
}

struct Range {
  int low;
  int high;
  int centre;
  int page;
};

int Moved(int value, Move move, const Range& range) {
  switch (move) {
    case Move::Up:
      return Clamp(value + 1, range.low, range.high);
    case Move::Down:
      return Clamp(value - 1, range.low, range.high);
    case Move::Page_Up:
      return Clamp(value + range.page, range.low, range.high);
    case Move::Page_Down:
      return Clamp(value - range.page, range.low, range.high);
    case Move::Lowest:
      return range.low;
    case Move::Highest:
      return range.high;
    case Move::Centre:
      return range.centre;
    case Move::None:
      break;
  }
  return Clamp(value, range.low, range.high);
}

}  // namespace

std::optional<int> Slider_Key_Value(int value, int key_code, int page) {
  const Move move = Move_Of(key_code, &Key_Row::slider);
  if (move == Move::None) return {};
  return Moved(value, move, {0, Value_Limit, 0, page});
}

int Slider_Drag_Value(int value, float y) {
  const double moved = static_cast<double>(value) - static_cast<double>(y);
  if (moved <= 0) return 0;
  return moved >= Value_Limit ? Value_Limit : static_cast<int>(moved);
}

std::optional<int> Switch_Key_Value(int value, int key_code, bool three_way) {
  int moved = value;
  switch (Move_Of(key_code, &Key_Row::slider)) {
    case Move::None:
      return {};
    case Move::Up:
    case Move::Page_Up:
      moved = value < Value_Limit ? value + Switch_Step : Value_Limit;
      break;
    case Move::Down:
    case Move::Page_Down:
      moved = value >= Switch_Step ? value - Switch_Step : 0;
      break;
    case Move::Lowest:
      moved = 0;
      break;
    case Move::Highest:
      moved = Value_Limit;
      break;
    case Move::Centre:
      break;
  }
  return Clamp(moved, 0, three_way ? Three_Way_Limit : Value_Limit);
}

int Switch_Drag_Value(int value, float y) {
  const float moved = static_cast<float>(value) - y;
  if (moved <= 0) return 0;
  return moved >= Value_Limit ? Value_Limit : Round_16(static_cast<double>(moved));
}

int Tune_Knob_Key(int semitones, int key_code) {
  return Moved(semitones, Move_Of(key_code, &Key_Row::knob),
               {-Tune_Knob_Limit, Tune_Knob_Limit, 0, Page_Of_Tune_Knob});
}

int Fine_Knob_Key(int value, int key_code) {
  return Moved(value, Move_Of(key_code, &Key_Row::knob),
               {0, Value_Limit, Fine_Knob_Centre, Page_Of_Fine_Knob});
}

int Fine_Dot_Key(int value, int key_code) {
  const bool arrow = key_code >= Key::Left && key_code <= Key::Down;
  return Fine_Knob_Key(value, arrow ? 0 : key_code);
}

bool Is_Toggle_Key(int key_code) { return Move_Of(key_code, &Key_Row::slider) != Move::None; }

int Knob_Drag_Value(int value, int drag_x) {
  const int moved = value + drag_x - Knob_Last_X;
  Knob_Last_X = drag_x;
  return moved;
}

int Tune_Drag_Units(float x) { return Round_16(static_cast<double>(x) / 4.0); }
int Fine_Drag_Units(float x) { return Round_16(static_cast<double>(x)); }
