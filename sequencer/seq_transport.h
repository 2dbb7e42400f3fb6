// Starting and stopping the clock: every place that does so, and the buttons that show it.
// Called by the buttons of the Editor, the Sequencer and the file dialog, by menus, by windows that close,
// and where MIDI is lost. Each stop goes through Seq_Stop_Clock and, but for that last one, sends All Notes
// Off: notes are ended by nothing else.
#pragma once

// The clock itself, running or not: Seq_Tmr and Seq_Running off, at step 0, all indicators dark, all start
// buttons up. Sends nothing.
void Seq_Stop_Clock();

// The Editor's buttons. Start does nothing without a sequence, loaded or drawn; it takes step 0 in every
// direction. Stop ends the wait for a tone instead, while that runs; else it closes the output too.
void ED_Seq_Start_Click();
void ED_Seq_Stop_Click();

// The Sequencer's buttons. Start is refused with MIDI off; it takes step 7 if the direction is backward.
void Seq_Start_Click();
void Seq_Stop_Click();

// The file dialog's buttons. Start REQUIRES MIDI_Enabled 1 and Seq_Loaded, else it does nothing. Stop closes
// the output.
void Seq_Start_Play();
void Seq_Stop_Play();

// The tone file menu has been opened: a running clock stops, and the output closes.
void Seq_Stop_For_Tone_Menu();
// The MIDI setup is about to open: a running clock stops, with MIDI off too; the setup closes the output
// itself.
void Seq_Stop_For_Setup();
// The menu command that closes the output, with or without a running clock.
void Menu_MIDI_CloseOutput();

// The start buttons of the Editor and, if it is open, of the Sequencer go down together; up go those of an
// open file dialog too.
void Seq_Start_Faces_Down();
void Seq_Start_Faces_Up();
// A start button was released: it springs back unless the clock runs.
void Seq_Start_Release();

// The Editor's start and stop symbols: whether there is something to play.
void Seq_Buttons_On();
void Seq_Buttons_Off();
