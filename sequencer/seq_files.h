// Sequence files: 110 bytes, "SEQ1", tempo, base note, and the 104 cells; and the sequence without a file.
// Called by the menus, the file dialog and the Sequencer.
#pragma once

#include <string>

#include "core/tone_files.h"

// Reads a file into the matrix. Open is a real load: it takes over the path, enters it in the recent list,
// shows itself in an open Sequencer, and closes the file dialog by FD_Done. Soundcheck is the dialog's
// preview: it replaces matrix, tempo and base note only, and says nothing about a bad file. While the file
// dialog is open its preview is drawn. Failures are told in boxes. Once a file has been accepted, a later bad
// one counts as loaded, without a word and with the cells as they were, until Seq_Clear.
void Seq_Load(const std::string& path, Load_Mode mode);

// The file dialog opens: a file that it cannot open into the Sequencer brings back what is in memory now.
void Seq_Previews_Begin();

// Empties the matrix and puts tempo, range and flags to their start values. The file's path, the base note,
// the clock and the controls of the window stay as they are.
void Seq_Clear();

// Writes Seq_File. What stands behind the 110 bytes of an older, longer file stays there. Runtime_Error as in
// platform/files.h; then the old file is whole and Seq_Saved as it was.
void Seq_Save();

// Runs the file dialog in the kind "SaveAs_SEQ", which saves.
void Seq_SaveAs();

// Title of the Sequencer: "Sequencer - " and the file's name in upper case.
std::string Seq_Caption();
