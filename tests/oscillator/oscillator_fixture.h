// The program with an open oscillator window.
#pragma once

#include "oscillator/curve.h"
#include "oscillator/playback.h"
#include "oscillator/window.h"
#include "support/program.h"

struct Oscillator_Test : Program {
  Oscillator_Test() {
    Osc_Wire();
    Osc_Open_Window();
  }
  ~Oscillator_Test() override { Unload(Oscillator); }

  // The starts of the played curve.
  std::vector<int> Played() {
    std::vector<int> levels;
    for (const Osc_Level& step : Osc_Out) levels.push_back(step.start);
    return levels;
  }

  void Choose_Target(int line) { User_Selected(Oscillator.Combo1, line); }
};
