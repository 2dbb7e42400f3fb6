// What the values of panel elements mean, in words and as numbers: for those who hear the panel instead of
// seeing it. Called once for each element, when its window is wired.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "platform/controls.h"

// byte: the element's value at this moment, in [0, 255]; what lies beyond 127 is told as the end of the
// scale.

// A slider: "0" to "99". page: what its page keys add to the byte.
void Tell_99(Picture_Box& element, int page, std::function<int()> byte);
// A tune knob: "minus 12 semitones" to "plus 12 semitones".
void Tell_Semitones(Picture_Box& element, std::function<int()> byte);
// A fine knob: "minus 50" to "plus 50".
void Tell_Bipolar(Picture_Box& element, std::function<int()> byte);
// A switch. names: of its positions, from the lowest up; empty ones at the end are none. position: from 0.
void Tell_Position(Picture_Box& element, std::vector<std::string_view> names, std::function<int()> position);
