// The commands that act on the tone as a whole.
// Called by the menus, the file dialog and the MIDI input.
#pragma once

#include <functional>

#include "platform/desktop.h"
#include "platform/midi_service.h"

// Asks "Save actual TONE first?" if the tone has an unsaved change, and does what the answer says (Yes: Save
// As, No: the change counts as saved). buttons: Box_Yes_No or Box_Yes_No_Cancel. True if the command may go
// on.
bool Tone_May_Go(int buttons);

void Tone_New();
void Tone_Random();
// Composes the heads anew and sends the dump, whatever Autosend says.
void Tone_Send();

// The menu command: save prompt, then the wait for a tone.
void Tone_Receive();
// Starts or ends the wait. Starting opens the MIDI input; if that fails nothing changes.
void Tone_Receive_Toggle();
// The user's choice, which stays while the wait has Autosend at 0.
std::uint8_t Autosend_Chosen();
// Called when Receive_On has changed: the sequencer's buttons show it.
extern std::function<void()> Receive_Changed;

// Takes bytes 8 to 66 of a message of any length into the tone; exactly 67 bytes end the wait and show it.
void Tone_From_SysEx(const Byte_String& message);
// Takes both input slots and handles what they hold.
void MIDI_In_Poll();
