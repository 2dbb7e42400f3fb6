// The font that shows the tone's name in the Editor's display with fourteen segments a character.
// Called by the frame at its load and unload.
#pragma once

extern int Font_Loaded;  // Flag_True while the font is added

// Adds the font and gives it to the Editor's display. A failure is told in a box; the display keeps its
// default face.
void Pics_Build_Segments();
// Takes the font away again, if it was added. A failure is told in a box.
void Pics_Release_Font();
