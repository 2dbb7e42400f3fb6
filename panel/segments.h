// The fourteen-segment display: its characters as tables, and the font that shows them in the Editor's
// display. Called by the frame at its load and unload.
#pragma once

#include <array>
#include <string_view>

constexpr int Segment_Rows = 18;
constexpr int Segment_Columns = 9;

// Which segment, A to N, a cell belongs to; Z belongs to none.
extern const std::array<std::string_view, Segment_Rows> Segment_Grid;

// By character code, the segments that the character lights: the cells with these letters. Entry 0 has them
// all.
extern const std::array<std::string_view, 256> Segment_Chars;

extern int Font_Loaded;  // Flag_True while the font is added

// Adds the font and gives it to the Editor's display. A failure is told in a box; the display keeps its
// default face.
void Pics_Build_Segments();
// Takes the font away again, if it was added. A failure is told in a box.
void Pics_Release_Font();
