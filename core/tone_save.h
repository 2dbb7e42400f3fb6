// Writing tone files: raw System Exclusive, 89 bytes. Called by the menus, Save As and the file dialog.
#pragma once

// Writes Tone_File; asks first if that would overwrite what another save of MELVOR has not put there. False
// if nothing was written, because the user declined or because of a failure, which a box reports; the old
// file and Tone_Saved are then unchanged.
bool Tone_Save();
