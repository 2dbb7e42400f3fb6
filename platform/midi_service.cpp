#include "platform/midi_service.h"

#include <utility>

namespace {

Midi_Service* installed = nullptr;

template <class... Parameters, class... Arguments>
int Ask(int (Midi_Service::*operation)(Parameters...), Arguments&&... arguments) {
  return installed == nullptr ? Midi_No_Driver
                              : (installed->*operation)(std::forward<Arguments>(arguments)...);
}

std::string Error_Text(int code) {
  return installed == nullptr ? std::string() : installed->Error_Text(code);
}

}  // namespace

void Install_Midi_Service(Midi_Service* service) { installed = service; }

void midiRefreshDevices() {
  if (installed != nullptr) installed->Refresh();
}

int midiOutGetNumDevs() { return installed == nullptr ? 0 : installed->Out_Count(); }

int midiOutGetDevCaps(int device, MIDI_Out_Caps& caps) { return Ask(&Midi_Service::Out_Caps, device, caps); }

int midiOutOpen(std::int32_t& handle, int device) { return Ask(&Midi_Service::Out_Open, handle, device); }

int midiOutShortMsg(std::int32_t handle, std::uint32_t message) {
  return Ask(&Midi_Service::Out_Short, handle, message);
}

int midiOutPrepareHeader(std::int32_t handle, MIDI_Header& header) {
  return Ask(&Midi_Service::Out_Prepare, handle, header);
}

int midiOutLongMsg(std::int32_t handle, MIDI_Header& header) {
  return Ask(&Midi_Service::Out_Long, handle, header);
}

int midiOutUnprepareHeader(std::int32_t handle, MIDI_Header& header) {
  return Ask(&Midi_Service::Out_Unprepare, handle, header);
}

int midiOutClose(std::int32_t handle) { return Ask(&Midi_Service::Out_Close, handle); }

std::string midiOutGetErrorText(int code) { return Error_Text(code); }

int midiInGetNumDevs() { return installed == nullptr ? 0 : installed->In_Count(); }

int midiInGetDevCaps(int device, MIDI_In_Caps& caps) { return Ask(&Midi_Service::In_Caps, device, caps); }

int midiInOpen(std::int32_t& handle, int device, Midi_Receiver receiver) {
  return Ask(&Midi_Service::In_Open, handle, device, std::move(receiver));
}

int midiInPrepareHeader(std::int32_t handle, MIDI_Header& header) {
  return Ask(&Midi_Service::In_Prepare, handle, header);
}

int midiInAddBuffer(std::int32_t handle, MIDI_Header& header) {
  return Ask(&Midi_Service::In_Add_Buffer, handle, header);
}

int midiInUnprepareHeader(std::int32_t handle, MIDI_Header& header) {
  return Ask(&Midi_Service::In_Unprepare, handle, header);
}

int midiInStart(std::int32_t handle) { return Ask(&Midi_Service::In_Start, handle); }

int midiInReset(std::int32_t handle) { return Ask(&Midi_Service::In_Reset, handle); }

int midiInClose(std::int32_t handle) { return Ask(&Midi_Service::In_Close, handle); }

std::string midiInGetErrorText(int code) { return Error_Text(code); }
