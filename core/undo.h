// One level of undo for the tone and its patch. Tone_Random fills it, and so does what would push an unsaved
// sound out of the editor without a question: a recent file, and Save As, which shows the undo copy.
// Called by the tone commands, the tone files, Save As and the menus, on the user-interface thread.
#pragma once

#include "core/tone_origin.h"

// Keeps the sound in the editor and where it belongs.
void Undo_Store();
// The same for a sound that the editor held a moment ago.
void Undo_Keep(const Sound& sound, const Tone_Origin& origin);

// The menu command: the copy comes back with the file that it belongs to, and is sent.
void Undo_Restore();

// After a Save As has written: the copy comes into the editor, which stays with the file that was written;
// sent only if Autosend is on. A copy that is in no file counts as unsaved.
void Undo_Restore_Quiet();

// Tone_File has just been written: a copy that belongs to it is not what it holds any more.
void Undo_File_Written();

// Before a save that ends the way back: an unsaved copy is kept beside Tone_File, as NAME~. Runtime_Error as
// in platform/files.h.
void Undo_Keep_Beside_File();

// Lets the panel and an open Patch window show both records.
void Tone_Patch_Show();
