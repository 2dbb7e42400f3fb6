// One level of undo for the tone and its patch, filled by Tone_Random and at the end of a Save As.
// Called by the tone commands, the tone files and the file dialog.
#pragma once

void Undo_Store();
void Undo_Restore();

// For Save As in the file dialog: the same without the menu, which sends only if Autosend is on; and the
// records alone.
void Undo_Restore_Quiet();
void Undo_Take_Back();
// At the end of a Save As: what these two pushed out of the editor becomes the undo copy, and an unsaved tone
// counts as unsaved still, since a save that failed or was given up has it in no file.
void Undo_Keep_Pushed_Out();

// Lets the panel and an open Patch window show both records.
void Tone_Patch_Show();
