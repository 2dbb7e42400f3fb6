#include "platform/file_lists.h"

#include <algorithm>

#include "platform/drives.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

namespace {

constexpr std::size_t Indent = 2;
constexpr std::string_view All_Files = "*.*";
constexpr std::string_view Wildcards = "*?";

// Whether a name on disk can be written as part of a path, and shown. Blanks around a path are trimmed.
bool Can_Be_Named(std::string_view name) {
  if (name.starts_with(' ') || name.ends_with(' ')) return false;
  constexpr std::string_view Forbidden = "\\*?\"<>|\x7F";
  while (!name.empty()) {
    const std::string_view character = First_Characters(name, 1);
    const auto first = static_cast<unsigned char>(character.front());
    const bool broken = character.size() == 1 && first >= 0x80;
    if (broken || first < ' ' || Forbidden.find(character.front()) != std::string_view::npos) return false;
    name.remove_prefix(character.size());
  }
  return true;
}

bool Is_Root(std::string_view path) { return path.ends_with('\\'); }

std::string Joined(std::string_view directory, std::string_view name) {
  return std::string(directory) + (Is_Root(directory) ? "" : "\\") + std::string(name);
}

// The path up to its directory at that depth, 0 for the root.
std::string Ancestor(const std::string& path, std::size_t depth) {
  std::size_t end = path.find('\\');
  if (depth == 0) return path.substr(0, end + 1);
  for (; depth > 0; --depth) end = path.find('\\', end + 1);
  return path.substr(0, end);
}

std::size_t Depth_Of(const std::string& path) {
  return Is_Root(path) ? 0 : static_cast<std::size_t>(std::count(path.begin(), path.end(), '\\'));
}

std::string Label_Of(const Drive& drive) {
  const std::string name = drive.host_root.substr(drive.host_root.rfind('/') + 1);
  return std::string{drive.letter, ':'} + " [" + (name.empty() ? "/" : name) + "]";
}

}  // namespace

void Drive_List::Set_Drive(std::string_view text) {
  if (text.empty()) throw Runtime_Error(Error_Device_Unavailable);
  const std::string letter = Upper(text.substr(0, 1));
  Host_Path(letter + ":\\");  // raises if the drive is gone
  if (items().empty()) Refresh();
  const auto entry = std::find_if(items().begin(), items().end(),
                                  [&](const std::string& item) { return item.starts_with(letter); });
  if (entry == items().end()) throw Runtime_Error(Error_Device_Unavailable);
  index = static_cast<int>(entry - items().begin());
  Follow_Selection();
}

void Drive_List::Refresh() {
  const std::string shown = drive().empty() ? Current_Directory().substr(0, 2) : drive();
  std::vector<std::string> labels;
  int shown_index = -1;
  for (const Drive& one : Drives()) {
    if (one.letter == shown.front()) shown_index = static_cast<int>(labels.size());
    labels.push_back(Label_Of(one));
  }
  items = std::move(labels);
  index = shown_index;
  drive = shown;
}

void Drive_List::Follow_Selection() {
  const std::string chosen = Selected_Text().substr(0, 2);
  if (chosen.empty() || chosen == drive()) return;
  drive = chosen;
  if (on_change) on_change();
}

void Path_List::Set_Path(std::string_view text) {
  const std::string full_path = Spelled_Path(Full_Path(text));
  Fill(full_path);
  if (full_path == path()) return;
  path = full_path;
  if (on_change) on_change();
}

std::string Path_List::Full_Path(std::string_view text) const {
  const bool has_drive = text.size() >= 2 && text[1] == ':';
  if (has_drive || path().empty()) return std::string(text);
  const bool from_root = text.starts_with('\\') || text.starts_with('/');
  return from_root ? path().substr(0, 2) + std::string(text) : Joined(path(), text);
}

bool Path_List::Can_Fill(const std::string& full_path) {
  try {
    Fill(full_path);
    return true;
  } catch (const Runtime_Error&) {
    return false;
  }
}

void Dir_List::Fill(const std::string& full_path) {
  const std::vector<Directory_Entry> found = Directory_List(full_path);
  const std::size_t depth = Depth_Of(full_path);
  std::vector<std::string> entries{Ancestor(full_path, 0)};
  for (std::size_t step = 1; step <= depth; ++step) {
    const std::string ancestor = Ancestor(full_path, step);
    entries.push_back(std::string(step * Indent, ' ') + ancestor.substr(ancestor.rfind('\\') + 1));
  }
  for (const Directory_Entry& one : found) {
    if (one.is_directory && Can_Be_Named(one.name)) {
      entries.push_back(std::string((depth + 1) * Indent, ' ') + one.name);
    }
  }
  items = std::move(entries);
  index = static_cast<int>(depth);
}

void Dir_List::Refresh() {
  const bool first = path().empty();
  std::string shown = first ? Current_Directory() : path();
  while (!Can_Fill(shown)) {
    if (Is_Root(shown)) return Clear();
    shown = Ancestor(shown, Depth_Of(shown) - 1);
  }
  if (shown == path()) return;
  path = shown;
  if (!first && on_change) on_change();
}

std::string Dir_List::Entry_Path(int entry_index) const {
  const std::string& item = Item(entry_index);
  const std::size_t open_depth = Depth_Of(path());
  const auto depth = static_cast<std::size_t>(entry_index);
  if (depth <= open_depth) return Ancestor(path(), depth);
  return Joined(path(), std::string_view(item).substr((open_depth + 1) * Indent));
}

void File_List::Fill(const std::string& full_path) {
  const bool all = pattern() == All_Files;
  const std::string wanted = Upper(pattern());
  std::vector<std::string> names;
  for (Directory_Entry& one : Directory_List(full_path)) {
    if (one.is_directory || !Can_Be_Named(one.name)) continue;
    if (all || Has_Form(Upper(one.name), wanted)) names.push_back(std::move(one.name));
  }
  items = std::move(names);
  index = -1;
}

void File_List::Refresh() {
  if (path().empty()) path = Current_Directory();
  if (!Can_Fill(path())) Clear();
}

void File_List::Set_Pattern(std::string_view text) {
  pattern = std::string(text);
  if (!path().empty()) Refresh();
}

bool File_List::Select_Name(std::string_view name) {
  const std::vector<std::string>& names = items();
  auto entry = std::find(names.begin(), names.end(), name);
  if (entry == names.end()) {
    entry = std::find_if(names.begin(), names.end(),
                         [&](const std::string& one) { return Same_Text(one, name); });
  }
  if (entry == names.end()) return false;
  Select(static_cast<int>(entry - names.begin()));
  return true;
}

void File_List::Set_File_Name(std::string_view text) {
  const std::string name = Trim(text);
  if (Select_Name(name)) return;
  const std::size_t start = name.find_last_of("\\/:") + 1;  // 0 if there is no directory before it
  const std::string directory = name.substr(0, start);
  const std::string last = name.substr(start);
  if (last.find_first_of(Wildcards) != std::string::npos) {
    if (!directory.empty()) Set_Path(directory);
    return Set_Pattern(last);
  }
  if (!name.empty()) {
    const int error = File_Probe(Full_Path(name));
    if (error == Error_Path_Access) return Set_Path(name);
    if (error != 0) throw Runtime_Error(error);
    if (!directory.empty()) Set_Path(directory);
  }
  if (!Select_Name(last)) index = -1;
}
