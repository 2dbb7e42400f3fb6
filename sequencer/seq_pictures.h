// Pictures of the matrix, its preview and the step indicators. 12 x 12, 8 x 8 and 10 x 10 pixels.
#pragma once

#include "platform/picture.h"
#include "sequencer/model.h"

constexpr int Cell_px = 12;  // width and height of a cell of the matrix

struct Cell_Look {
  Picture matrix;
  Picture preview;
};

constexpr Cell_Look Empty_Cell{{"seq-pics-0"}, {"fd-seq-pics-0"}};
constexpr Cell_Look Strong_Cell{{"seq-pics-2"}, {"fd-seq-pics-2"}};
constexpr Cell_Look Soft_Cell{{"seq-pics-3"}, {"fd-seq-pics-3"}};

constexpr Picture Indicator_Dark{"seq-clock-0"};
constexpr Picture Indicator_Lit{"seq-clock-1"};

// Only the two velocities that the mouse makes are drawn; every other one looks empty.
constexpr const Cell_Look& Look_Of(int velocity) {
  if (velocity == Seq_Strong) return Strong_Cell;
  return velocity == Seq_Soft ? Soft_Cell : Empty_Cell;
}
