// The preview: a mouse press on a file loads it at once, sends it, and plays a note or the sequence.
// Called by the file list of the dialog.
#pragma once

// Takes the pressed entry as the file's name, and in the kinds "Open_SYX" and "Open_SEQ" lets it be heard.
// Before the note of a tone it waits up to a second for the tick of Timer_Display, letting everything run; no
// note comes if the dialog has been closed meanwhile, or if another file waits for its own. What is loaded
// stays loaded.
void FD_File_Pressed();
