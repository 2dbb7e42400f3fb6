// Menu commands of the sequence. Wired by the frame.
#pragma once

// Each asks "Save actual SEQUENCE first?" about an edited matrix: No gives the edit up, Cancel ends the
// command.
void Menu_File_Seq_New();
void Menu_File_Seq_Open();

void Menu_File_Seq_Save();
void Menu_File_Seq_SaveAs();

// Loads an entry of the recent list, without any question; an empty entry does nothing. place in [0, 3].
void Menu_File_Seq_Recent(int place);

// "Sequencer...": shows the window. A failure for lack of memory is told in a box, another one not at all.
void Menu_MIDI_Seq();
// "Preload Sequence": flips its check.
void Menu_MIDI_Seq_Load();
