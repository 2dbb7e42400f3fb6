// The detune knob of the patch panels: a knob with its dot that moves a byte one step a pixel.
#pragma once

#include "panel/elements.h"
#include "platform/controls.h"

struct Patch_Knob {
  Picture_Box& body;
  Picture_Box& dot;
  int (*value)();
  void (*set)(int value);  // stores, shows and sends
  Knob_Circle drag_circle;
};

// Fills the event slots of one of the two. Either selects the dot, and shows and sends the byte at each
// press, each key and each move with a button held. key_value: what a key makes of the byte; key_circle:
// where the dot goes then.
void Wire_Patch_Knob(const Patch_Knob& knob, Picture_Box& element, int (*key_value)(int value, int key_code),
                     Knob_Circle (*key_circle)());
