#include "midi/output.h"

#include <string>

#include "midi/devices.h"
#include "midi/state.h"
#include "platform/desktop.h"
#include "platform/timer.h"

std::int32_t MIDI_Out_Handle = -1;
MIDI_Header MIDI_Long_Hdr;
std::function<void()> MIDI_Lost;

namespace {

constexpr std::uint32_t Data_1_Shift = 8;
constexpr std::uint32_t Data_2_Shift = 16;
constexpr int Most_Asked = 150;  // each answer takes 10 ms at most; a full line needs 1.4 s

// What the sequencer's fast path sent last, and what came of it.
int Seq_Note = 0;
int Seq_Velocity = 0;
std::uint32_t Seq_Message = 0;
int Seq_Result = 0;

std::uint32_t Pack(int status, int data_1, int data_2) {
  return static_cast<std::uint32_t>(status) + (static_cast<std::uint32_t>(data_1) << Data_1_Shift) +
         (static_cast<std::uint32_t>(data_2) << Data_2_Shift);
}

void Switch_Off() {
  MIDI_Enabled = 0;
  if (MIDI_Lost) MIDI_Lost();
}

int Byte_At(std::string_view message, std::size_t place) {
  return place < message.size() ? static_cast<std::uint8_t>(message[place]) : 0;
}

}  // namespace

void MIDI_Out_Open() {
  if (MIDI_Enabled != 1 || MIDI_Out_Handle != -1) return;
  const int code = midiOutOpen(MIDI_Out_Handle, MIDI_Out_Device);
  if (code == Midi_Ok) return;
  MIDI_Out_Handle = -1;
  MIDI_Out_Error(code, "MIDI_Out_Open");
  Switch_Off();
}

void MIDI_Out_Close() {
  if (MIDI_Enabled != 1 || MIDI_Out_Handle == -1) return;
  MIDI_Reset();
  if (MIDI_Out_Handle == -1) return;  // the All Notes Off failed, and its report has closed the output
  int code = Midi_Ok;
  do {
    if (Do_Events() == 0 || MIDI_Out_Handle == -1) break;  // a failure meanwhile may have closed it
    code = midiOutClose(MIDI_Out_Handle);
  } while (code == Midi_Still_Playing);
  MIDI_Out_Handle = -1;
  MIDI_Out_Error(code, "MIDI_Out_Close");
}

void MIDI_Out_Close_Wholly() {
  while (MIDI_Out_Handle != -1 && MIDI_Enabled == 1) MIDI_Out_Close();
}

void MIDI_Out_Cut() {
  if (MIDI_Out_Handle == -1) return;
  midiOutShortMsg(MIDI_Out_Handle, Pack(Control_Status(), Controller_All_Notes_Off, 0));
  int asked = 1;
  while (midiOutClose(MIDI_Out_Handle) == Midi_Still_Playing && asked < Most_Asked) ++asked;
  MIDI_Out_Handle = -1;
}

int MIDI_Put(std::string_view message) {
  if (MIDI_Out_Handle == -1) MIDI_Out_Open();
  const std::uint32_t packed = Pack(Byte_At(message, 0), Byte_At(message, 1), Byte_At(message, 2));
  const int code = midiOutShortMsg(MIDI_Out_Handle, packed);
  MIDI_Out_Error(code, "MIDI_Put");
  return code;
}

int MIDI_Reset() {
  SysEx_Text.assign({static_cast<char>(Control_Status()), Controller_All_Notes_Off, 0});
  if (MIDI_Enabled != 1) return Midi_Ok;
  MIDI_Out_Open();
  return MIDI_Put(SysEx_Text);
}

void MIDI_SendNote(int note, int velocity) {
  if (MIDI_Enabled != 1) return;
  MIDI_Out_Open();
  if (MIDI_Enabled != 1) return;
  const int code = midiOutShortMsg(MIDI_Out_Handle, Pack(Note_On_Status(), note, velocity));
  MIDI_Out_Error(code, "MIDI_SendNote");
}

void Seq_SendNote(int note, int velocity) {
  Seq_Note = note;
  Seq_Velocity = velocity;
  Seq_Message = Pack(Seq_Status, note, velocity);
  Seq_Result = midiOutShortMsg(MIDI_Out_Handle, Seq_Message);
  if (Seq_Result != Midi_Ok) MIDI_Out_Error(Seq_Result, "Seq_SendNote");
}

void Seq_SendAllNotesOff() {
  if (MIDI_Enabled != 1) return;
  Seq_Status = Control_Status();
  Seq_Note = Controller_All_Notes_Off;
  Seq_Velocity = 0;
  MIDI_Out_Open();
  if (MIDI_Enabled == 1) {
    const int code = midiOutShortMsg(MIDI_Out_Handle, Pack(Seq_Status, Seq_Note, Seq_Velocity));
    MIDI_Out_Error(code, "Seq_SendAllNotesOff");
  }
  Seq_Status = Note_On_Status();
}

void MIDI_Send_Long(std::string_view message) {
  if (MIDI_Enabled != 1) return;
  MIDI_Out_Open();
  if (MIDI_Enabled != 1) return;
  MIDI_Long_Hdr.data = message;
  MIDI_Long_Hdr.buffer_length = static_cast<std::uint32_t>(message.size());
  MIDI_Long_Hdr.bytes_recorded = MIDI_Long_Hdr.buffer_length;
  MIDI_Long_Hdr.user = 0;
  MIDI_Long_Hdr.flags = 0;
  const int code = midiOutPrepareHeader(MIDI_Out_Handle, MIDI_Long_Hdr);
  if (code != Midi_Ok) MIDI_Long_Error("OutPreparerHeader", code);
  midiOutLongMsg(MIDI_Out_Handle, MIDI_Long_Hdr);
  Do_Events();
  midiOutUnprepareHeader(MIDI_Out_Handle, MIDI_Long_Hdr);
}

void MIDI_Out_Error(int code, std::string_view procedure) {
  if (code == Midi_Ok) return;
  std::string text = midiOutGetErrorText(code);
  if (text.empty()) text = "Unknown error";
  Message_Box(std::string(procedure) + "*: (" + std::to_string(code) + ") " + text);
  if (code < 0) return;
  // A step that fell into the close would sound on behind its All Notes Off.
  const Timers_Suspended until_off;
  // A device that fails for good fails the All Notes Off of this close too; that is told, but closes nothing
  // again.
  static bool closing = false;
  if (!closing) {
    closing = true;
    MIDI_Out_Close();
    closing = false;
  }
  Switch_Off();
}

void MIDI_Long_Error(std::string_view procedure, int code) {
  Message_Box(std::string(procedure) + "\r\n" + midiOutGetErrorText(code));
}
