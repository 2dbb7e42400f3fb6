#include "oscillator/curve.h"

#include <cmath>

#include "platform/chance.h"
#include "platform/convert.h"
#include "platform/table.h"

Osc_Curve Osc_Raw;
Osc_Curve Osc_Out;
float Osc_Y = 0;

namespace {

constexpr float Ramp_Level = 96;
constexpr float Ramp_Turn = 38;  // a double ramp starts over above this
constexpr float Ramp_Slope = -7;
constexpr float Long_Ramp_Slope = -4;
constexpr int Half_Of_Steps = Osc_Steps / 2;
constexpr std::int16_t High = 32;
constexpr std::int16_t Low = 96;
constexpr std::int16_t Flat = 64;
constexpr double Sine_Level = 63;
constexpr double Sine_Size = 32;
constexpr double Sine_Phase = 45.0 / 127.0;  // radians a step: a little more than one turn in all
constexpr double Neutral_Amplitude = 64;
constexpr double Middle_Level = 63;

std::int16_t Rounded(double level) { return To_Int16(Round_16(level)); }

// One step from Osc_Y on; Osc_Y moves along.
Osc_Level Slope(float rise) {
  const float start = Osc_Y;
  Osc_Y += rise;
  return {Rounded(static_cast<double>(start)), Rounded(static_cast<double>(Osc_Y))};
}

void Double_Ramp() {
  Osc_Y = Ramp_Level;
  for (Osc_Level& step : Osc_Raw) {
    if (Osc_Y < Ramp_Turn) Osc_Y = Ramp_Level;
    step = Slope(Ramp_Slope);
  }
}

void Single_Ramp() {
  Osc_Y = Ramp_Level;
  for (Osc_Level& step : Osc_Raw) step = Slope(Long_Ramp_Slope);
}

void Triangle() {
  Osc_Y = Ramp_Level;
  for (int step = 0; step < Osc_Steps; ++step) {
    Osc_Raw[static_cast<std::size_t>(step)] = Slope(step < Half_Of_Steps ? Ramp_Slope : -Ramp_Slope);
  }
}

// Steps that stand high or low, as is_high(step) says.
template <class Is_High>
void Levels(Is_High is_high) {
  for (int step = 0; step < Osc_Steps; ++step) {
    const std::int16_t level = is_high(step) ? High : Low;
    Osc_Raw[static_cast<std::size_t>(step)] = {level, level};
  }
}

void Square() {
  Levels([](int step) { return step >= Half_Of_Steps; });
}
void Single_Pulse() {
  Levels([](int step) { return step == 0; });
}
void Alternating() {
  Levels([](int step) { return step % 2 == 0; });
}

template <class Form_Of_Sine>
void Sines(Form_Of_Sine form) {
  Osc_Y = static_cast<float>(Sine_Level);
  const auto level = [&](int step) {
    return Rounded(Sine_Level - form(std::sin(step * Sine_Phase)) * Sine_Size);
  };
  for (int step = 0; step < Osc_Steps; ++step) {
    Osc_Raw[static_cast<std::size_t>(step)] = {level(step), level(step + 1)};
  }
}

void Sine() {
  Sines([](double sine) { return sine; });
}
void Rectified_Sine() {
  Sines([](double sine) { return std::abs(sine); });
}

void Kept() {}

void Random_Levels() {
  constexpr float Span = 127;
  for (Osc_Level& step : Osc_Raw) {
    step.start = Rounded(static_cast<double>(Osc_Y));
    Osc_Y = Span - static_cast<float>(Rnd()) * Span;
    step.end = Rounded(static_cast<double>(Osc_Y));
  }
}

constexpr auto Generators =
    Full_Table<void (*)(), Osc_Waves>({Double_Ramp, Single_Ramp, Square, Triangle, Sine, Rectified_Sine,
                                       Single_Pulse, Alternating, Kept, Random_Levels});

template <class Change>
Osc_Curve Changed(const Osc_Curve& curve, Change change) {
  Osc_Curve result;
  for (std::size_t step = 0; step < curve.size(); ++step) {
    result[step] = {change(curve[step].start), change(curve[step].end)};
  }
  return result;
}

}  // namespace

void Osc_Generate(int wave) { Generators[static_cast<std::size_t>(Checked_Index(wave, Osc_Waves))](); }

void Osc_Turn_Over() {
  Osc_Raw = Changed(Osc_Raw, [](int level) { return To_Int16(Osc_Lowest_Level - level); });
}

void Osc_Flatten() { Osc_Raw.fill({Flat, Flat}); }

void Osc_Shape(int amplitude, int offset) {
  Osc_Out = Changed(Osc_Raw, [=](int level) {
    const double shaped = amplitude / Neutral_Amplitude * level + Middle_Level - amplitude - offset;
    return To_Int16(Clamp(static_cast<int>(shaped), 0, Osc_Lowest_Level));
  });
}

void Osc_Unshape(int amplitude, int offset) {
  const auto size = static_cast<float>(amplitude);
  const float shift = static_cast<float>(offset) + size - static_cast<float>(Middle_Level);
  Osc_Raw = Changed(Osc_Out, [=](int level) {
    const float raw = (shift + static_cast<float>(level)) / size * static_cast<float>(Neutral_Amplitude);
    return Rounded(static_cast<double>(raw));
  });
}
