// The MIDI input: one open input with four buffers, whose System Exclusive messages land in two slots.
// Called by Receive and by the setup window.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/midi_service.h"

extern std::int32_t MIDI_In_Handle;  // -1: closed; above 0: started

// At most one received message each, empty when there is none.
extern Byte_String MIDI_In_Slot1;
extern Byte_String MIDI_In_Slot2;

// Called when a slot has been filled.
extern std::function<void()> MIDI_In_Arrived;

// Opens and starts the chosen input if it is closed. The handle stays -1 if that fails; failures are told in
// boxes.
void MIDI_In_Open();

// Opens the device with four buffers of 10,000 bytes. From then on each received message is put into a free
// slot and announced. Returns the handle, -1 on failure.
std::int32_t vbMidiInOpen(int device);

// Closes the input if it is open; the handle is -1 afterwards, whatever the service says.
void MIDI_In_Close();
// Reset, buffers freed, close; each failure is told. Returns the last code.
int vbMidiInClose(std::int32_t handle);

// A slot's content, which is empty afterwards.
Byte_String MIDI_In_Take1();
Byte_String MIDI_In_Take2();

// Tells a code that is not 0.
void MIDI_In_Error(int code, std::string_view procedure);
