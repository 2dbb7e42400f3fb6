#include "oscillator/field.h"

#include <algorithm>
#include <string>

#include "oscillator/curve.h"
#include "platform/convert.h"

namespace {

constexpr int Field_Border_px = 1;  // the field's own edge, outside its scale
constexpr int Step_Width = 7;
constexpr int Field_Limit = 127;
constexpr int Middle = 63;
constexpr int Parked_Left = 130;  // beyond the field
constexpr int No_Step = -1;

// Last x of each step but the last one, as the pen has it: step 2 takes part of step 3.
constexpr std::array<int, Osc_Steps - 1> Pen_Ends{6,  13, 23, 27, 34, 41,  48,  55, 62,
                                                  69, 76, 83, 90, 97, 104, 111, 118};

Line& Step_Line(int step) { return Oscillator.Line1[static_cast<std::size_t>(step)]; }
Line& Connector(int step) { return Step_Line(step + Osc_Steps); }

void Draw(Line& line, int x1, int y1, int x2, int y2) {
  line.Set(x1 + Field_Border_px, y1 + Field_Border_px, x2 + Field_Border_px, y2 + Field_Border_px);
}

void Draw_Step(int step, int start, int end) {
  const int left = step * Step_Width;
  Draw(Step_Line(step), left, start, left + Step_Width, end);
}

void Draw_Upright(Line& line, int x) { Draw(line, x, 0, x, Field_Limit); }

int Start_Of(int step) { return Step_Line(step).y1 - Field_Border_px; }
int End_Of(int step) { return Step_Line(step).y2 - Field_Border_px; }

void Park(int step) { Draw(Connector(step), Parked_Left, step, Parked_Left + Step_Width, step); }

int Step_At(int x) {
  if (x < 0) return No_Step;
  return static_cast<int>(std::ranges::lower_bound(Pen_Ends, x) - Pen_Ends.begin());
}

// A place of the mouse in the field's scale; places outside it stay outside, within what an integer holds.
int Field_Place(float place_px) {
  const float inside = std::clamp(place_px - static_cast<float>(Field_Border_px), -1.0F, 128.0F);
  return Round_16(static_cast<double>(inside));
}

void Draw_With_Pen(const Mouse_Event& event) {
  const int level = Clamp(Field_Place(event.y), 0, Field_Limit);
  Oscillator.Label2.caption = std::to_string(Field_Limit - level);
  const int step = Step_At(Field_Place(event.x));
  if (step != No_Step) Step_Line(step).y1 = level + Field_Border_px;
}

void Read_Lines() {
  for (int step = 0; step < Osc_Steps; ++step) {
    Osc_Out[static_cast<std::size_t>(step)] = {To_Int16(Start_Of(step)), To_Int16(End_Of(step))};
  }
  Osc_Unshape(Oscillator.VScrollA.value, Oscillator.VScrollDelta.value);
}

}  // namespace

void Osc_Lay_Lines() {
  for (int step = 0; step < Osc_Steps; ++step) Draw_Step(step, Middle, Middle);
  for (int step = 0; step < Osc_Steps - 1; ++step) {
    Draw_Upright(Oscillator.VLine[static_cast<std::size_t>(step)], (step + 1) * Step_Width);
  }
  for (int step = 0; step < Osc_Steps; ++step) Park(step);
  Draw(Oscillator.ZLine1, 61, 62, 66, 62);
  Draw(Oscillator.ZLine2, 61, 64, 66, 64);
  Osc_Show_Time(0);
}

void Osc_Redraw() {
  Osc_Shape(Oscillator.VScrollA.value, Oscillator.VScrollDelta.value);
  for (int step = 0; step < Osc_Steps; ++step) {
    const Osc_Level& level = Osc_Out[static_cast<std::size_t>(step)];
    Draw_Step(step, level.start, level.end);
  }
  Osc_Connect();
}

void Osc_Connect() {
  for (int step = 0; step < Osc_Steps; ++step) Draw_Step(step, Start_Of(step), Start_Of(step));
  for (int step = 1; step < Osc_Steps; ++step) {
    const int level = Start_Of(step);
    const int before = Start_Of(step - 1);
    if (level == before) {
      Park(step);
    } else {
      Draw(Connector(step), step * Step_Width, level, step * Step_Width, before);
    }
  }
}

void Osc_Pen(const Mouse_Event& event) {
  if (event.button == 0 || Oscillator.VScrollA.value == 0) return;
  if (event.button == Left_Button) Draw_With_Pen(event);
  Read_Lines();
  Osc_Connect();
}

void Osc_Show_Time(int step) { Draw_Upright(Oscillator.TimeLine, step * Step_Width); }

void Osc_Show_Offset() {
  const int level = Middle - Oscillator.VScrollDelta.value;
  Draw(Oscillator.HLine, 0, level, Field_Limit, level);
}
