#include "midi/input.h"

#include <array>
#include <string>
#include <utility>

#include "midi/devices.h"
#include "platform/desktop.h"

std::int32_t MIDI_In_Handle = -1;
Byte_String MIDI_In_Slot1;
Byte_String MIDI_In_Slot2;
std::function<void()> MIDI_In_Arrived;

namespace {

constexpr std::uint32_t Buffer_Size = 10000;
std::array<MIDI_Header, 4> MIDI_In_Header;

std::int32_t open_handle = -1;  // of the buffers above; -1 once the input is being closed

// A message that arrives while both slots wait is dropped, like one that finds no buffer.
void Put_Into_Slot(const Byte_String& message) {
  Byte_String& slot = MIDI_In_Slot1.empty() ? MIDI_In_Slot1 : MIDI_In_Slot2;
  if (slot.empty()) slot = message;
}

void Received(MIDI_Header& header) {
  if (header.bytes_recorded == 0) return;
  Put_Into_Slot(header.data.substr(0, header.bytes_recorded));
  const std::int32_t handle = open_handle;
  if (MIDI_In_Arrived) MIDI_In_Arrived();
  if (handle != open_handle) return;  // the message ended the wait, and with it the input
  MIDI_In_Error(midiInAddBuffer(handle, header), "vbMidiInAddBuffer");
}

int Hand_Out_Buffers(std::int32_t handle) {
  for (MIDI_Header& header : MIDI_In_Header) {
    header = MIDI_Header{};
    header.buffer_length = Buffer_Size;
    int code = midiInPrepareHeader(handle, header);
    MIDI_In_Error(code, "vbMidiInPrepareHeader");
    if (code != Midi_Ok) return code;
    code = midiInAddBuffer(handle, header);
    MIDI_In_Error(code, "vbMidiInAddBuffer");
    if (code != Midi_Ok) return code;
  }
  return Midi_Ok;
}

void MIDI_In_Free_Buffers(std::int32_t handle) {
  for (MIDI_Header& header : MIDI_In_Header) {
    if ((header.flags & Header_Prepared) == 0) continue;
    MIDI_In_Error(midiInUnprepareHeader(handle, header), "midiInUnPrepareHeader");
    header = MIDI_Header{};
  }
}

}  // namespace

void MIDI_In_Open() {
  if (MIDI_In_Handle >= 0) return;
  MIDI_In_Handle = vbMidiInOpen(MIDI_In_Device);
  if (MIDI_In_Handle <= 0) return;
  const int code = midiInStart(MIDI_In_Handle);
  MIDI_In_Error(code, "vbMidiInOpen");
  if (code != Midi_Ok) MIDI_In_Close();
}

std::int32_t vbMidiInOpen(int device) {
  MIDI_In_Slot1.clear();
  std::int32_t handle = -1;
  const int code = midiInOpen(handle, device, Received);
  MIDI_In_Error(code, "vbMidiInOpen");
  if (code != Midi_Ok) return -1;
  open_handle = handle;
  if (Hand_Out_Buffers(handle) == Midi_Ok) return handle;
  vbMidiInClose(handle);
  return -1;
}

void MIDI_In_Close() {
  if (MIDI_In_Handle < 0) return;
  vbMidiInClose(MIDI_In_Handle);
  MIDI_In_Handle = -1;
}

int vbMidiInClose(std::int32_t handle) {
  open_handle = -1;
  const int reset = midiInReset(handle);
  MIDI_In_Error(reset, "vbMidiInClose");
  if (reset == Midi_Ok) MIDI_In_Free_Buffers(handle);  // else the service keeps them until the close
  const int code = midiInClose(handle);
  MIDI_In_Error(code, "vbMidiInClose");
  return code;
}

Byte_String MIDI_In_Take1() { return std::exchange(MIDI_In_Slot1, {}); }
Byte_String MIDI_In_Take2() { return std::exchange(MIDI_In_Slot2, {}); }

void MIDI_In_Error(int code, std::string_view procedure) {
  if (code == Midi_Ok) return;
  std::string text = midiInGetErrorText(code);
  if (text.empty()) text = "Unknown error";
  Message_Box(std::string(procedure) + ": " + text);
}
