// Save As for tones: the file dialog writes, the editor then shows the undo copy, and Edit / Undo brings the
// saved sound back together with its file. However it ends, the sound that was in the editor is in the file
// that the user named, or still in the editor. Called by the menus, the save questions and the file dialog.
#pragma once

// Runs the file dialog in the kind "SaveAs_SYX", then asks about an existing file and saves.
void Tone_SaveAs();

// The file dialog has written Tone_File: it is the undo copy's turn in the editor.
void Save_As_Written();
