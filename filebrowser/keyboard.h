// Keys of the file dialog.
#pragma once

// Fills the key slots of the window, of its file name, and of everything that the space bar works. Called
// once, after the mouse slots are filled.
void FD_Keyboard_Wire();
