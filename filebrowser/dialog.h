// The file dialog as a window: it opens for the task in Dlg_Kind, holds the program modal, and does the real
// loading and saving itself; its caller only sets Dlg_Kind and shows it.
#pragma once

// Fills all event slots of File_Dlg. Called once by the frame at start.
void FD_Wire();

// Gives every control its place, picture, tab order and name. Runs at the window's load.
void Pics_Assign_Dlg();
