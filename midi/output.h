// The MIDI output: the one open output handle, short messages, and the long-message path of every System
// Exclusive message. The output opens at the first send and stays open. Nobody else talks to the service's
// output.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/midi_service.h"

extern std::int32_t MIDI_Out_Handle;  // -1: closed

// The one long-message header. The send lets timers tick before it is done, and one of these may send with
// the same header: the service has copied the bytes by then.
extern MIDI_Header MIDI_Long_Hdr;

// Filled by the sequencer, called when a failure has switched MIDI off.
extern std::function<void()> MIDI_Lost;

// Opens the output if MIDI_Enabled is 1 and it is closed. A failure is told in a box; the handle is then -1
// and MIDI_Enabled 0.
void MIDI_Out_Open();

// With MIDI_Enabled 1 and the output open: All Notes Off, then closes, asking again while the service still
// plays (letting events run between), handle -1. Else nothing.
void MIDI_Out_Close();
// Repeats MIDI_Out_Close until the output is closed, or MIDI switched off.
void MIDI_Out_Close_Wholly();

// The same for an end that lets no events run and shows nothing: waits 1.5 s at most, and leaves a failure
// untold.
void MIDI_Out_Cut();

// Sends a short message of 1 to 3 bytes, absent ones counting 0; opens the output before. Returns the
// service's code, after telling a failure. Does not look at MIDI_Enabled.
int MIDI_Put(std::string_view message);

// All Notes Off through MIDI_Put, if MIDI_Enabled is 1. Returns its code, 0 where nothing was sent.
int MIDI_Reset();

// A note on; velocity 0 ends the note. note and velocity in [0, 127].
void MIDI_SendNote(int note, int velocity);

// The sequencer's fast path: a note on with the status Seq_Status. Looks at nothing before it sends.
void Seq_SendNote(int note, int velocity);

// All Notes Off for the sequencer; leaves Seq_Status set to note on.
void Seq_SendAllNotesOff();

// One System Exclusive message. Lets pending events run once while it is in flight. Does nothing with
// MIDI_Enabled 0.
void MIDI_Send_Long(std::string_view message);

// Tells a code that is not 0; a code above 0 also closes the output and switches MIDI off.
void MIDI_Out_Error(int code, std::string_view procedure);
// The same on the long path, where MIDI stays on.
void MIDI_Long_Error(std::string_view procedure, int code);
