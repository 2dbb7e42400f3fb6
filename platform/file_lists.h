// Lists over the real drives, directories and files of the host.
// Called by the window that holds them, on the user-interface thread. All paths are program paths (drives.h),
// with their names spelled as on disk and no backslash at the end but for the root of a drive. A list starts
// empty, with no path and no drive: Refresh, or setting one, fills it. What cannot be named in a path (hidden
// names, bytes that are no text, control characters, \ * ? " < > |) is not listed.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/controls.h"

// The drives of the table, as "C: [maria]".
struct Drive_List final : List_Control {
  template <class Owner>
  Drive_List(Owner& owner, std::string_view control_name)
      : List_Control(owner, Kind::Drive_List, control_name) {
    on_click = [this] { Follow_Selection(); };
  }

  // Takes the drive that the text begins with ("c", "C:", "c:\\tones") and selects its entry; the change
  // handler runs if it differs. Runtime_Error 68 if there is none, or its root is gone: then nothing changes.
  void Set_Drive(std::string_view text);
  // Reads the table anew. A list without a drive takes that of the current directory, and runs no handler.
  void Refresh();

  Property<std::string> drive{*this};  // "C:". Written through Set_Drive
  std::function<void()> on_change;     // also when the user chose another entry

 private:
  // The user chose an entry. One whose root is gone is chosen all the same, as the window has to tell about
  // it.
  void Follow_Selection();
};

// What directory and file lists share: a list that shows what one directory holds.
struct Path_List : List_Control {
  using List_Control::List_Control;

  // Goes to a directory, taken from the present one if the text has no drive, and lists it; the change
  // handler runs if the path differs. Runtime_Error 76: not there, 68: its drive is gone, 70: it may not be
  // read, 52: a name that cannot be; then nothing changes.
  void Set_Path(std::string_view text);

  Property<std::string> path{*this};  // Written through Set_Path
  std::function<void()> on_change;

 protected:
  // The text as a path, taken from the list's own.
  std::string Full_Path(std::string_view text) const;
  // Shows what full_path holds, with the list's own choice of entries and selection.
  virtual void Fill(const std::string& full_path) = 0;
  // The same; false, and nothing changes, if the directory cannot be listed.
  bool Can_Fill(const std::string& full_path);
};

// The path's ancestors from the root down, the directory itself as the open one, and the directories in it,
// each a step further in (two blanks before its name). The open one is selected after each Set_Path and
// Refresh.
struct Dir_List final : Path_List {
  template <class Owner>
  Dir_List(Owner& owner, std::string_view control_name) : Path_List(owner, Kind::Dir_List, control_name) {}

  // Lists the directory anew. One that has vanished gives way to the nearest one above it that is there, and
  // the change handler runs. A list without a path goes to the current directory, and runs no handler.
  void Refresh();

  // The full path of an entry. Runtime_Error 380 if there is no such entry.
  std::string Entry_Path(int entry_index) const;

 protected:
  void Fill(const std::string& full_path) override;
};

// The files of a directory that match a pattern, without regard to case.
struct File_List final : Path_List {
  template <class Owner>
  File_List(Owner& owner, std::string_view control_name) : Path_List(owner, Kind::File_List, control_name) {}

  // Lists the directory anew; one that cannot be read any more shows nothing. Nothing is selected then. A
  // list without a path goes to the current directory, and runs no handler.
  void Refresh();

  // "*" is any run of characters, "?" any one; "*.*" means all files.
  void Set_Pattern(std::string_view text);

  // What the user may type for a file: the name of one selects it; wildcards become the pattern; a directory,
  // or one in front of either, becomes the path. A file that does not match the pattern is not listed: then
  // nothing is selected. An empty text selects nothing. Runtime_Error 53: no such file, and those of
  // Set_Path; then nothing changes.
  void Set_File_Name(std::string_view text);
  // The selected file, empty for none.
  std::string file_name() const { return Selected_Text(); }

  Property<std::string> pattern{*this, "*.*"};  // Written through Set_Pattern

 protected:
  void Fill(const std::string& full_path) override;

 private:
  bool Select_Name(std::string_view name);  // false if it is not listed
};
