#include "core/tone_files.h"

#include <algorithm>
#include <optional>

#include "core/file_places.h"
#include "core/recent.h"
#include "core/records.h"
#include "core/save_as.h"
#include "core/sysex.h"
#include "core/tone_origin.h"
#include "core/tone_params.h"
#include "midi/state.h"
#include "platform/convert.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "windows/file_dlg_window.h"
#include "windows/frame_window.h"
#include "windows/state.h"

std::uint8_t Tone_Found = Flag_Off;

namespace {

constexpr std::uint8_t SysEx_Start = 0xF0;
constexpr int Patch_Message_Step =
    12;  // one less than the message is long: its last value is looked at again
constexpr std::size_t Read_Limit = 32768;  // one byte more than the 16-bit position can reach

// The bytes of a file under a 1-based position of 16 bits.
struct Reader {
  bool At_End() const { return static_cast<std::size_t>(position) > bytes.size(); }

  // Runtime_Error 62 beyond the end.
  std::uint8_t Byte(int place) const {
    if (static_cast<std::size_t>(place) > bytes.size()) throw Runtime_Error(Error_Past_End);
    return static_cast<std::uint8_t>(bytes[static_cast<std::size_t>(place) - 1]);
  }

  // Runtime_Error 6 beyond 32,767.
  void Step(int count) { position = To_Int16(position + count); }

  Byte_String bytes;
  int position = 1;
};

struct Scan {
  Reader file;
  std::string head;  // grows after a foreign message, and then matches nothing
  bool tone_at_start = false;
  std::optional<Sound> first;  // what a save would find there, once a further tone has been met
};

// Cut short at the end of the file.
void Take_Head(Scan& scan) {
  const auto place = static_cast<std::size_t>(scan.file.position) - 1;
  scan.head += Bytes_To_Text(std::string_view(scan.file.bytes).substr(place, SysEx_Head_Size));
  scan.file.Step(SysEx_Head_Size);
}

// Asks about a further tone. False: the scan ends. With Open it goes on whatever becomes of the old tone.
bool Take_Further_Tone(Load_Mode mode) {
  if (mode == Load_Mode::Soundcheck)
    return Message_Box("File contains another TONE. Load it?", Box_Yes_No + Box_Question) == Answer::Yes;
  const Answer answer =
      Message_Box("File contains another TONE. Save old TONE first?", Box_Yes_No + Box_Question);
  if (answer == Answer::Yes) Tone_SaveAs();
  return true;
}

void Take_Tone(Scan& scan) {
  Byte_Record<Tone_Size> tone;
  for (int index = 0; index < Tone_Size; ++index) tone[index] = scan.file.Byte(scan.file.position + index);
  Tone = tone;
  scan.file.Step(Tone_Size);
  Tone_Found = Flag_On;
  Tone_Loading = Flag_On;  // a Save As for the tone before may have ended the loading
  Tone_Show();
  scan.head.clear();
}

void Take_Patch(Scan& scan, Load_Mode mode) {
  Byte_Record<Patch_Size> patch = Patch_Rec;
  for (int index = 0; index < Patch_Sent; ++index)
    patch[index] = scan.file.Byte(scan.file.position + 1 + 2 * index);
  Patch_Rec = patch;
  scan.file.Step(Patch_Message_Step);
  if (mode == Load_Mode::Open && Patch_Open == Flag_On) Patch_Show();
  scan.head.clear();
}

// One message from its F0 on. False: the scan ends.
bool Take_Message(Scan& scan, Load_Mode mode) {
  Take_Head(scan);
  if (Has_Form(scan.head, Tone_Head_Form)) {
    scan.tone_at_start = scan.file.position == 1 + SysEx_Head_Size;
    if (Tone_Found == Flag_On) {
      if (!scan.first) scan.first = Sound_Now();
      if (!Take_Further_Tone(mode)) return false;
    }
    Take_Tone(scan);
  } else if (Has_Form(scan.head, Patch_Head_Form) && scan.tone_at_start) {
    Take_Patch(scan, mode);
  }
  if (Autosend == 1) SysEx_Dump_Send();
  return true;
}

void Finish_Open(const Scan& scan, const std::string& path) {
  if (Tone_Found == Flag_Off) {
    Tone_Loading = Flag_Off;
    Message_Box("Wrong MIDI system exclusive data!", Box_Stop);
    return;
  }
  Title_Show(path);
  Recent_Tone_Add(path);
  // A Save As for a tone before may have written this very file.
  if (!scan.first || !Same_Text(Tone_File, path)) Origin_Sound_Kept(scan.first.value_or(Sound_Now()));
  Tone_File = path;
  Tone_Loading = Flag_Off;
  FD_Done = Flag_On;
}

void Scan_File(const std::string& path, Load_Mode mode) {
  Scan scan;
  scan.file.bytes = File_Read(path, Read_Limit);
  while (!scan.file.At_End()) {
    if (scan.file.Byte(scan.file.position) == SysEx_Start && !Take_Message(scan, mode)) return;
    scan.file.Step(1);
  }
  if (mode == Load_Mode::Open) Finish_Open(scan, path);
}

}  // namespace

void Tone_Load(const std::string& path, Load_Mode mode) {
  Tone_Found = Flag_Off;
  if (File_Exists(path) != Flag_True) {
    Message_Box("File not found: " + path);
    return;
  }
  Tone_Loading = Flag_On;
  try {
    Scan_File(path, mode);
  } catch (const Runtime_Error& error) {
    Tone_Loading = Flag_Off;
    if (mode == Load_Mode::Open && Tone_Found == Flag_On) Tone_Saved = Flag_False;
    Report_File_Error(error);
  }
}
