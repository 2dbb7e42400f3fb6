#include "core/tone_save.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "core/file_places.h"
#include "core/recent.h"
#include "core/records.h"
#include "core/sysex.h"
#include "core/tone_origin.h"
#include "core/undo.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "windows/frame_window.h"
#include "windows/state.h"

namespace {

constexpr std::size_t Patch_Message_Place = 67;  // of a saved file, after the tone
constexpr std::uint8_t SysEx_End = 0xF7;
constexpr std::uint8_t Highest_Data_Byte = 0x7F;
constexpr std::string_view Tone_Message_Start = "\xF0\x41\x35";  // of any model and channel

// Whether the bytes after the file's tone are the patch message that a save writes there.
bool Holds_Own_Patch(std::string_view file) {
  const std::string head = Bytes_To_Text(file.substr(Patch_Message_Place, SysEx_Head_Size));
  const std::string_view values = file.substr(Patch_Message_Place + SysEx_Head_Size, 2 * Patch_Sent);
  const auto is_data = [](char byte) { return static_cast<std::uint8_t>(byte) <= Highest_Data_Byte; };
  return Has_Form(head, Patch_Head_Form) && std::ranges::all_of(values, is_data) &&
         static_cast<std::uint8_t>(file[SysEx_Image_Size - 1]) == SysEx_End;
}

// The name, in quotes, of the tone whose message begins where a save writes its patch message.
std::string Next_Tone(std::string_view file) {
  const std::size_t place = file.substr(0, SysEx_Image_Size).find(Tone_Message_Start, Patch_Message_Place);
  if (place == std::string_view::npos || file.size() < place + SysEx_Head_Size + Tone_Name_Length) return {};
  return "\"" + Trim(file.substr(place + SysEx_Head_Size, Tone_Name_Length)) + "\"";
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
