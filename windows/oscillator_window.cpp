#include "windows/oscillator_window.h"

Oscillator_Window Oscillator;

Oscillator_Window::Oscillator_Window() : Form(Form_Role::Child, "Oscillator") {
  caption = "Oscillator";
  Osc_Time.maximum = 999;
  Osc_Time.large_change = 50;
  VScrollA.maximum = 127;
  VScrollA.large_change = 1;
  VScrollDelta.minimum = -64;
  VScrollDelta.maximum = 64;
  VScrollDelta.large_change = 1;
  for (Scroll_Bar* bar : {&VScrollDelta, &VScrollA, &Osc_Time}) {
    bar->orientation = Orientation::Vertical;
    bar->largest_on_top = true;
  }
}
