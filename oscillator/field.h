// The black field of the oscillator's window: the curve as a staircase, its marks, and the pen.
// Called by the handlers of that window and by the playback. Places inside the field are in its own scale, 0
// to 127 both ways, y from the top.
#pragma once

#include "platform/events.h"

// Lays the lines as a window that was just opened has them: a flat curve, no connectors.
void Osc_Lay_Lines();

// Makes Osc_Out of Osc_Raw with the present amplitude and offset, and draws it.
void Osc_Redraw();
// Flattens each step's line at its start, and joins neighbours of different height by an upright line.
void Osc_Connect();

// The mouse moved over the field: with the left button alone the step below it takes its height; with any
// button the curve is read back from the lines. Does nothing at amplitude 0, from which nothing could be read
// back.
void Osc_Pen(const Mouse_Event& event);

void Osc_Show_Time(int step);  // upright line at the start of the step
void Osc_Show_Offset();        // level line of the present offset
