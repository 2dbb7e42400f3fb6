#include "filebrowser/confirm.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "core/file_places.h"
#include "core/records.h"
#include "core/save_as.h"
#include "core/tone_files.h"
#include "core/tone_save.h"
#include "filebrowser/folders.h"
#include "filebrowser/state.h"
#include "platform/desktop.h"
#include "platform/drives.h"
#include "platform/files.h"
#include "platform/profile_file.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "sequencer/model.h"
#include "sequencer/seq_files.h"
#include "windows/file_dlg_window.h"
#include "windows/state.h"

namespace {

constexpr std::string_view No_Choice = "*.syx";  // the text that saves nothing, for sequences too
constexpr int Longest_Extension = 4;

std::string Typed() { return File_Dlg.FD_FileName.text(); }

// The name field's text, in the program's own way of writing paths.
std::string Typed_Name() { return Typed_Path(Trim(Typed())); }

bool Is_Full(std::string_view name) { return name.size() > 2 && name[1] == ':' && name[2] == '\\'; }

std::string Path_Of(const std::string& name) {
  if (Is_Full(name)) return name;
  return name.starts_with('\\') ? FD_Dir.substr(0, 2) + name : Path_Slash(FD_Dir) + name;
}

void Show_Directory_Of_Files() { File_Dlg.FD_List_Dirs.Set_Path(File_Dlg.FD_List_Files.path()); }

// --- loading

using Loader = void (*)(const std::string& path, Load_Mode mode);

// Whether the text changes what the lists show instead of naming a file.
bool Leads_Elsewhere(const std::string& name) {
  if (name.find_first_of("*?") != std::string::npos) return true;
  const std::string& shown = File_Dlg.FD_List_Files.path();
  return File_Probe(name.starts_with('\\') || Is_Full(name) ? Path_Of(name) : Path_Slash(shown) + name) ==
         Error_Path_Access;
}

void Open_Typed(bool show_directory, Loader load) {
  const std::string name = Typed_Name();
  const bool leads_elsewhere = Leads_Elsewhere(name);
  if (show_directory) Show_Directory_Of_Files();
  File_Dlg.FD_List_Files.Set_File_Name(name);
  const std::string path = Path_Of(name);
  if (File_Exists(path) == Flag_True) {
    if (load != nullptr) load(path, Load_Mode::Open);
  } else if (!leads_elsewhere) {
    throw Runtime_Error(File_Error);
  }
}

// --- saving

bool May_Write(const std::string& path) {
  if (File_Exists(path) == Flag_False) return true;
  return Message_Box("File exists: " + path + " Overwrite?", Box_Yes_No + Box_Stop, "Write TONE file") ==
         Answer::Yes;
}

// Whether the user has chosen a name, which file then holds, and agrees to write there.
bool May_Save_Typed(std::string& file) {
  Show_Directory_Of_Files();
  if (Lower(Typed()) == No_Choice) return false;
  const std::string name = Typed_Name();
  // The file becomes the current one, and the title leaves the shown directory out.
  if (Is_Full(name)) File_Dlg.FD_List_Files.Set_Path(FD_Parent_Dir(name));
  file = Lower(Path_Of(name));
  return May_Write(file);
}

// The tone's flag decides for both kinds of files.
void Close_After_Save() {
  if (Tone_Saved == Flag_True) FD_Done = Flag_On;
}

void Confirm_Save_Tone() {
  if (!May_Save_Typed(Tone_File)) return;
  const bool written = Tone_Save();
  Close_After_Save();
  if (written) Save_As_Written();
}

void Confirm_Save_Sequence() {
  if (!May_Save_Typed(Seq_File)) return;
  Seq_Save();
  Close_After_Save();
}

// The name alone is taken; Save As goes on after the dialog.
void Pick_Tone_Name() {
  if (Lower(Typed()) == No_Choice) return;
  Tone_File = Lower(Path_Of(Typed_Name()));
  FD_Done = Flag_On;
}

// --- by kind

struct Action_Row {
  std::string_view kind;
  void (*confirm)();
  void (*double_click)();
};

void Nothing() {}

// Of a kind that neither opens nor saves.
void Refuse() {
  if (File_Exists(Path_Of(Typed_Name())) == Flag_False) throw Runtime_Error(File_Error);
  Message_Box("Nothing can be opened or saved among all files : " + Typed(), Box_Exclamation);
}

constexpr std::array Action_Rows{
    Action_Row{"Open_SYX", [] { Open_Typed(false, Tone_Load); }, [] { Open_Typed(true, Tone_Load); }},
    Action_Row{"Open_SEQ", [] { Open_Typed(true, Seq_Load); }, [] { Open_Typed(true, Seq_Load); }},
    Action_Row{"Open_OSC", [] { Open_Typed(true, nullptr); }, Nothing},
    Action_Row{"SaveAs_SYX", Confirm_Save_Tone, Pick_Tone_Name},
    Action_Row{"SaveAs_SEQ", Confirm_Save_Sequence, Nothing},
};

void Run_Action(void (*Action_Row::*action)()) {
  const auto row = std::ranges::find(Action_Rows, std::string_view(Dlg_Kind), &Action_Row::kind);
  try {
    row == Action_Rows.end() ? Refuse() : ((*row).*action)();
  } catch (const Runtime_Error& error) {
    Message_Box(std::string(Error_Text(error.number)) + " : " + Typed(), Box_Exclamation);
  }
}

void Begin() {
  FD_Done = Flag_Off;
  FD_Dir = File_Dlg.FD_List_Dirs.path();
}

bool Is_Host_Directory(std::string_view text) {
  return text == "~" || (text.ends_with('/') && (text.starts_with('/') || text.starts_with("~/")));
}

void Add_Extension() {
  const std::string text = Typed();
  const int before = std::max(Character_Count(text) - Longest_Extension, 0);
  const std::string_view end = std::string_view(text).substr(First_Characters(text, before).size());
  const bool complete =
      end.find('.') != std::string_view::npos || end.ends_with('\\') || Is_Host_Directory(text);
  if (!complete) File_Dlg.FD_FileName.Set_Text(text + FD_Ext);
}

// Closes the window after a success. A load that asked for a Save As may have closed it already.
bool Stays() {
  if (FD_Done == Flag_On) Unload(File_Dlg);
  return File_Dlg.Loaded();
}

}  // namespace

void FD_Confirm() {
  Begin();
  Add_Extension();
  Run_Action(&Action_Row::confirm);
  if (Stays()) File_Dlg.FD_FileName.Select_All();
}

void FD_Double_Click() {
  Begin();
  Run_Action(&Action_Row::double_click);
  if (Stays()) Add_Extension();
}
