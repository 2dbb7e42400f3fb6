#include "filebrowser/folders.h"

#include <algorithm>
#include <functional>
#include <vector>

#include "filebrowser/state.h"
#include "panel/input_box.h"
#include "panel/push_buttons.h"
#include "platform/desktop.h"
#include "platform/drives.h"
#include "platform/files.h"
#include "platform/profile_file.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "windows/file_dlg_window.h"

namespace {

constexpr std::size_t Drive_Length = 2;  // "C:"
constexpr std::string_view Directory_Not_Ready = "Drive not ready or not available.";
constexpr std::string_view Drive_Not_Ready = "Drive not ready or unavailable.";

// Goes somewhere. A drive that is not ready can be tried again; any other failure leaves the lists where they
// are. False if the user gave the drive up.
bool Go(const std::function<void()>& assignment, std::string_view not_ready) {
  for (;;) {
    try {
      assignment();
      return true;
    } catch (const Runtime_Error& error) {
      if (error.number != Error_Device_Unavailable) return true;
    }
    if (Message_Box(not_ready, Box_Retry_Cancel + Box_Stop) != Answer::Retry) return false;
  }
}

void Go_To(const std::string& path) {
  Go([&path] { File_Dlg.FD_List_Dirs.Set_Path(path); }, Directory_Not_Ready);
}

void Directory_Changed() {
  File_List& files = File_Dlg.FD_List_Files;
  const Dir_List& directories = File_Dlg.FD_List_Dirs;
  if (files.path() == directories.path()) return;
  Go([&] { files.Set_Path(directories.path()); }, Directory_Not_Ready);
}

// The directory list may be on that drive already: then it stays where it is.
void Drive_Changed() {
  const std::string drive = File_Dlg.FD_List_Drives.drive();
  Dir_List& directories = File_Dlg.FD_List_Dirs;
  if (directories.path().substr(0, Drive_Length) == drive) {
    FD_Drive = drive;
    return;
  }
  const auto take_drive = [&] {
    directories.Set_Path(Path_Slash(drive));
    FD_Drive = drive;
  };
  if (!Go(take_drive, Drive_Not_Ready)) File_Dlg.FD_List_Drives.Set_Drive(FD_Drive);
}

std::string Entry() {
  const Dir_List& directories = File_Dlg.FD_List_Dirs;
  return directories.index() < 0 ? directories.path() : directories.Entry_Path(directories.index());
}

void Open_Entry() { Go_To(Entry()); }

void Directory_Key(Key_Event& key) {
  if (key.shift != 0 || (key.code != Key::Space && key.code != Key::Enter)) return;
  key.code = 0;
  Open_Entry();
}

void Select_Directory(const std::string& path) {
  FD_Selected = path;
  FD_Selected_Kind = Selected_Kind::Dir;
}

// --- the buttons; each beeps where nothing is selected

void Up() {
  const std::string parent = FD_Parent_Dir(Entry());
  Go_To(parent);
  Select_Directory(parent);
  File_Dlg.FD_List_Dirs.Refresh();
}

// 0, or the number of what went wrong.
int Error_Of(const std::function<void()>& deed) {
  try {
    deed();
    return 0;
  } catch (const Runtime_Error& error) {
    return error.number;
  }
}

// The one that took the place of the file that is gone; none is heard.
void Choose_Next(int place) {
  File_List& files = File_Dlg.FD_List_Files;
  files.Refresh();
  if (place < 0) return;
  files.Select(std::min(place, files.Count() - 1));
  FD_Selected = files.file_name();
  FD_Selected_Path = Path_Slash(files.path()) + FD_Selected;
  File_Dlg.FD_FileName.Set_Text(FD_Selected);
}

// The file that the name field says goes. One that is not the file asked about leaves a copy.
void Delete_File(bool confirmed) {
  const std::string name = Trim(File_Dlg.FD_FileName.text());
  const std::string path = Path_Slash(File_Dlg.FD_List_Dirs.path()) + name;
  const auto remove = [&] {
    if (path != FD_Selected_Path) File_Keep_Copy(path);
    File_Delete(path);
    FD_Selected_Path.clear();  // a file that now answers to the name was not asked about
  };
  const int place = File_Dlg.FD_List_Files.index();
  if (!confirmed) return File_Dlg.FD_List_Files.Refresh();
  if (Error_Of(remove) == 0) return Choose_Next(place);
  Message_Box(Upper(FD_Selected) + " could not be deleted.", Box_Exclamation);
}

void Delete_Directory(bool confirmed) {
  if (confirmed && Error_Of([] { Directory_Remove(FD_Selected); }) != 0) {
    Message_Box(Upper(FD_Selected) + " could not be removed. The directory is not empty.", Box_Exclamation);
  } else {
    File_Dlg.FD_List_Dirs.Refresh();
    FD_Selected = File_Dlg.FD_List_Dirs.path();
  }
}

void Delete_Selected() {
  const bool confirmed =
      Message_Box("Delete " + Upper(FD_Selected) + " ?", Box_Yes_No + Box_Question) == Answer::Yes;
  if (FD_Selected_Kind == Selected_Kind::File) {
    Delete_File(confirmed);
  } else {
    Delete_Directory(confirmed);
  }
}

bool Can_Make(const std::string& name) {
  return Error_Of([&] { Directory_Make(Lower(Path_Slash(FD_Selected) + name)); }) == 0;
}

// Blanks around a name would make a directory that no path leads to.
std::string Ask_For_Folder(std::string_view prompt, std::string_view title, std::string_view offered) {
  return Trim(Lower(Input_Box(prompt, title, offered)));
}

void New_Folder() {
  std::string name = Ask_For_Folder("Please enter a name for the new folder in:\r" + FD_Selected,
                                    "Create new folder", "folder");
  while (!name.empty() && !Can_Make(name)) {
    name = Ask_For_Folder(
        "\n\nA folder or file of the given name already exists!!\n\nPlease enter another name:",
        "Create new directory", name);
  }
  File_Dlg.FD_List_Dirs.Refresh();
}

// The work is done with the press. What it shows in between may take the release away, so the button rises
// here as well.
void Wire_Button(Picture_Box& button, void (*work)()) {
  button.on_mouse_down = [&button, work](const Mouse_Event&) {
    Push_Down(button);
    if (FD_Selected.empty()) return Beep();
    work();
    Push_Up(button);
  };
  button.on_mouse_up = [&button](const Mouse_Event&) { Push_Up(button); };
}

}  // namespace

void FD_Folders_Wire() {
  Dir_List& directories = File_Dlg.FD_List_Dirs;
  directories.on_change = Directory_Changed;
  directories.on_double_click = Open_Entry;
  directories.on_key_down = Directory_Key;
  directories.on_mouse_down = [](const Mouse_Event&) { Select_Directory(Entry()); };
  File_Dlg.FD_List_Drives.on_change = Drive_Changed;
  Wire_Button(File_Dlg.FD_Button_Updir, Up);
  Wire_Button(File_Dlg.FD_Button_Delete, Delete_Selected);
  Wire_Button(File_Dlg.FD_Button_Newdir, New_Folder);
}

// A place that cannot be shown gives way to the program's own, and that to the drives.
void FD_Show_Directory(const std::string& path) {
  File_List& files = File_Dlg.FD_List_Files;
  std::vector<std::string> places{path, Current_Directory()};
  for (const Drive& drive : Drives()) places.push_back({drive.letter, ':', '\\'});
  const auto shows = [&](const std::string& place) {
    return !place.empty() && Error_Of([&] { files.Set_Path(place); }) == 0;
  };
  if (std::ranges::none_of(places, shows)) throw Runtime_Error(Error_Device_Unavailable);
  File_Dlg.FD_List_Dirs.Set_Path(files.path());
  File_Dlg.FD_List_Drives.Set_Drive(files.path());
}

std::string FD_Parent_Dir(std::string_view path) {
  std::string shorter = Path_Slash(path);
  shorter.pop_back();
  const std::size_t backslash = shorter.rfind('\\');
  const std::size_t kept = backslash == std::string::npos ? Drive_Length : backslash;
  return Path_Slash(shorter.substr(0, std::max(kept, Drive_Length)));
}
