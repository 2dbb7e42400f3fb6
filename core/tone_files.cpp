#include "core/tone_files.h"

#include <algorithm>
#include <optional>

#include "core/recent.h"
#include "core/records.h"
#include "core/save_as.h"
#include "core/sysex.h"
#include "core/tone_origin.h"
#include "core/tone_params.h"
#include "core/undo.h"
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
int File_Error = 0;

namespace {

constexpr std::uint8_t SysEx_Start = 0xF0;
constexpr std::uint8_t SysEx_End = 0xF7;
constexpr std::uint8_t Highest_Data_Byte = 0x7F;
constexpr std::string_view Tone_Message_Start = "\xF0\x41\x35";  // of any model and channel
constexpr int Head_Size = 7;
constexpr std::string_view Tone_Head_Form = "F0 41 35 ?? 21 20 01 ";
constexpr std::string_view Patch_Head_Form = "F0 41 36 ?? 21 30 01 ";
constexpr int Patch_Message_Step =
    12;  // one less than the message is long: its last value is looked at again
constexpr std::size_t Read_Limit = 32768;  // one byte more than the 16-bit position can reach

// The bytes of a file under a 1-based position of 16 bits.
struct Reader {
  bool At_End() const { return static_cast<std::size_t>(position) > bytes.size(); }

  // Runtime_Error 62 behind the end.
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
  std::string head;  // grows behind a foreign message, and then matches nothing any more
  bool tone_at_start = false;
  std::optional<Sound> first;  // what a save would find there, once a further tone has been met
};

void Take_Head(Scan& scan) {
  for (int place = 0; place < Head_Size; ++place) {
    const int position = scan.file.position + place;
    if (static_cast<std::size_t>(position) <= scan.file.bytes.size())
      scan.head += Hex_2(scan.file.Byte(position)) + " ";
  }
  scan.file.Step(Head_Size);
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
    scan.tone_at_start = scan.file.position == 1 + Head_Size;
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

// --- what a save would overwrite

constexpr std::size_t Patch_Message_Place = 67;  // of a saved file, after the tone

// Whether the bytes after the file's tone are the patch message that a save writes there.
bool Holds_Own_Patch(std::string_view file) {
  Byte_String head;
  for (int place = 0; place < Head_Size; ++place)
    head +=
        Hex_2(static_cast<std::uint8_t>(file[Patch_Message_Place + static_cast<std::size_t>(place)])) + " ";
  const std::string_view values = file.substr(Patch_Message_Place + Head_Size, 2 * Patch_Sent);
  const auto is_data = [](char byte) { return static_cast<std::uint8_t>(byte) <= Highest_Data_Byte; };
  return Has_Form(head, Patch_Head_Form) && std::ranges::all_of(values, is_data) &&
         static_cast<std::uint8_t>(file[SysEx_Image_Size - 1]) == SysEx_End;
}

// The name, in quotes, of the tone whose message begins where a save writes its patch message.
std::string Next_Tone(std::string_view file) {
  const std::size_t place = file.substr(0, SysEx_Image_Size).find(Tone_Message_Start, Patch_Message_Place);
  if (place == std::string_view::npos || file.size() < place + Head_Size + Tone_Name_Length) return {};
  return "\"" + Trim(file.substr(place + Head_Size, Tone_Name_Length)) + "\"";
}

// A save writes its 89 bytes over the file's first ones. In a bank these reach into the next tone.
bool May_Overwrite(const std::string& path) {
  if (File_Probe(path) != 0) return true;
  const Byte_String file = File_Read(path, SysEx_Image_Size + Tone_Size);
  if (file.size() <= SysEx_Image_Size || Holds_Own_Patch(file)) return true;
  const std::string next = Next_Tone(file);
  const std::string text =
      next.empty() ? "File contains other data after its first 67 bytes: " + path +
                         "\rSave writes over 22 bytes of it. Save anyway?"
                   : "File contains another TONE: " + path + "\rSave writes over " + next + ". Save anyway?";
  return Message_Box(text, Box_Yes_No + Box_Stop) == Answer::Yes;
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

bool Tone_Save() {
  File_Error = 0;
  SysEx_Heads_Build();
  SysEx_Image_Build();
  const std::string_view image(reinterpret_cast<const char*>(SysEx_Image.data()), SysEx_Image.size());
  try {
    if (!May_Overwrite(Tone_File)) return false;
    if (FD_Open == Flag_False)
      Undo_Keep_Beside_File();  // Save As brings the undo copy into the editor instead
    File_Keep_Copy(Tone_File, image);
    File_Write(Tone_File, image, Old_Content::Keep_Tail);
    Origin_Sound_Kept();
    Undo_File_Written();
    Recent_Tone_Add(Tone_File);
    Tone_Saved = Flag_True;
    MELVOR.Menu_Edit_Undo.enabled = false;
    return true;
  } catch (const Runtime_Error& error) {
    Report_File_Error(error);
    return false;
  }
}

void Report_File_Error(const Runtime_Error& error, std::string_view label, std::string_view separator) {
  if (error.number == Error_Cancelled) return;
  if (error.number == Error_Bad_File_Name) {
    Message_Box("Wrong filename!", Box_Stop);
    return;
  }
  Message_Box(std::string(label) + std::to_string(error.number) + std::string(separator) +
                  std::string(Error_Text(error.number)),
              Box_Stop);
}

int File_Exists(std::string_view path) {
  if (path.ends_with('\\')) path.remove_suffix(1);
  File_Error = path.empty() ? 0 : File_Probe(path);
  return File_Error == 0 ? Flag_True : Flag_False;
}
