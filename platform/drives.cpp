#include "platform/drives.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>

#include "platform/host_files.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

namespace {

std::vector<Drive> Table;

constexpr std::string_view Separators = "\\/";
// What a path cannot hold; the zero byte would end it early on the host.
constexpr std::string_view Forbidden("*?\"<>|\0", 7);
constexpr std::array<std::string_view, 3> Media_Places{"/media", "/run/media", "/mnt"};
constexpr char First_Media_Letter = 'E';
constexpr char Last_Media_Letter = 'L';

bool Exists(const std::string& host_path) {
  struct stat status;
  return lstat(host_path.c_str(), &status) == 0;
}

bool Is_Directory(const std::string& host_path) {
  struct stat status;
  return stat(host_path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::string Joined(const std::string& directory, std::string_view name) {
  std::string path = directory;
  if (path.empty() || path.back() != '/') path += '/';
  return path.append(name);
}

const Drive* Find_Drive(char letter) {
  const std::string wanted = Upper(std::string_view(&letter, 1));
  const auto found = std::find_if(Table.begin(), Table.end(),
                                  [&](const Drive& drive) { return drive.letter == wanted.front(); });
  return found == Table.end() ? nullptr : &*found;
}

// The spelling of a name on disk; the name as given if nothing there matches it.
std::string Spelling(const std::string& directory, const std::string& name) {
  if (Exists(Joined(directory, name))) return name;
  std::optional<std::string> first;
  Host_Directory entry(directory);
  while (entry.Next()) {
    if (Same_Text(entry.Name(), name) && (!first || entry.Name() < *first)) first = entry.Name();
  }
  // A directory that is not there, or may not be listed, holds no other spelling; one that fails may.
  constexpr std::array Nothing_To_List{0, ENOENT, ENOTDIR, EACCES};
  const bool known =
      std::find(Nothing_To_List.begin(), Nothing_To_List.end(), entry.error) != Nothing_To_List.end();
  if (!first && !known) throw Runtime_Error(Host_Directory_Error_Number(entry.error));
  return first.value_or(name);
}

// The names of a path in order, without "." and with ".." applied; the root has no parent.
std::vector<std::string> Components(std::string_view path) {
  std::vector<std::string> names;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of(Separators), path.size());
    const std::string_view name = path.substr(0, end);
    if (name == "..") {
      if (!names.empty()) names.pop_back();
    } else if (!name.empty() && name != ".") {
      names.emplace_back(name);
    }
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return names;
}

bool Has_Drive(std::string_view path) { return path.size() >= 2 && path[1] == ':'; }

// The path with a drive, taken from the current directory if it has none.
std::string With_Drive(std::string_view path) {
  if (Has_Drive(path)) return std::string(path);
  const std::string current = Current_Directory();
  const bool from_root = !path.empty() && Separators.find(path.front()) != std::string_view::npos;
  return (from_root ? current.substr(0, 2) : current + "\\") + std::string(path);
}

// What lies of host_path below root, beginning with a slash or empty; nothing if it lies elsewhere.
std::optional<std::string_view> Below(std::string_view host_path, std::string_view root) {
  if (root == "/") root = {};
  if (!host_path.starts_with(root)) return std::nullopt;
  const std::string_view rest = host_path.substr(root.size());
  if (!rest.empty() && rest.front() != '/') return std::nullopt;
  return rest;
}

// The path without symbolic links, as the process's own directory and executable are told by the host.
std::string Canonical(const std::string& host_path) {
  std::error_code error;
  const std::filesystem::path real = std::filesystem::canonical(host_path, error);
  return error ? host_path : real.string();
}

std::string Home() {
  if (const char* home = std::getenv("HOME"); home != nullptr && home[0] == '/') return Canonical(home);
  const passwd* user = getpwuid(getuid());
  return user != nullptr && user->pw_dir != nullptr && user->pw_dir[0] == '/' ? Canonical(user->pw_dir) : "/";
}

// A directory that the desktop names for the user in lines as XDG_MUSIC_DIR="$HOME/Music"; nothing if it is
// not named, not there, or the home directory itself, which stands for "none".
std::optional<std::string> User_Directory(const std::string& home, std::string_view key) {
  const char* config = std::getenv("XDG_CONFIG_HOME");
  const std::string config_home = config != nullptr && config[0] == '/' ? config : Joined(home, ".config");
  const std::string start = std::string(key) + "=\"";
  std::ifstream file(Joined(config_home, "user-dirs.dirs"));
  std::string directory;
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with(start)) continue;
    const std::size_t end = line.find('"', start.size());
    directory = line.substr(start.size(), end == std::string::npos ? end : end - start.size());
  }
  if (directory.starts_with("$HOME")) directory.replace(0, 5, home);
  if (!directory.starts_with('/') || !Is_Directory(directory)) return std::nullopt;
  directory = Canonical(directory);
  return directory == home ? std::nullopt : std::optional(directory);
}

// A mount point as the host's table writes it, with blanks and the like as three octal digits.
std::string Unescaped(std::string_view field) {
  std::string text;
  for (std::size_t place = 0; place < field.size(); ++place) {
    if (field[place] != '\\' || place + 3 >= field.size()) {
      text += field[place];
      continue;
    }
    text += static_cast<char>((field[place + 1] - '0') * 64 + (field[place + 2] - '0') * 8 +
                              field[place + 3] - '0');
    place += 3;
  }
  return text;
}

std::vector<std::string> Mounted_Media() {
  std::vector<std::string> places;
  std::ifstream mounts("/proc/self/mounts");
  for (std::string device, place, rest; mounts >> device >> place && std::getline(mounts, rest);) {
    place = Unescaped(place);
    const bool medium = std::any_of(Media_Places.begin(), Media_Places.end(), [&](std::string_view parent) {
      return Below(place, parent).has_value();
    });
    if (medium) places.push_back(place);  // unseen: a network's medium may not answer
  }
  std::sort(places.begin(), places.end());
  places.erase(std::unique(places.begin(), places.end()), places.end());
  return places;
}

// The program's path of what lies below the drive's root.
std::string Path_On(const Drive& drive, std::string_view below) {
  std::string path{drive.letter, ':'};
  path += below.empty() ? "/" : below;
  std::replace(path.begin(), path.end(), '/', '\\');
  return path;
}

// Empty if no drive holds the path.
std::string Found_Program_Path(std::string_view host_path) {
  const Drive* best = nullptr;
  std::string_view rest;
  for (const Drive& drive : Table) {
    const auto below = Below(host_path, drive.host_root);
    if (!below || (best != nullptr && drive.host_root.size() <= best->host_root.size())) continue;
    best = &drive;
    rest = *below;
  }
  return best == nullptr ? std::string() : Path_On(*best, rest);
}

struct Disk_Place {
  const Drive& drive;
  std::string host_path;
};

Disk_Place Found_On_Disk(std::string_view path) {
  if (path.find_first_of(Forbidden) != std::string_view::npos) throw Runtime_Error(Error_Bad_File_Name);
  const std::string full = With_Drive(path);
  const Drive* drive = Find_Drive(full.front());
  if (drive == nullptr || !Is_Directory(drive->host_root)) throw Runtime_Error(Error_Device_Unavailable);

  const std::vector<std::string> names = Components(std::string_view(full).substr(2));
  std::string exact = drive->host_root;
  for (const std::string& name : names) exact = Joined(exact, name);
  if (Exists(exact)) return {*drive, exact};

  std::string host = drive->host_root;
  for (const std::string& name : names) host = Joined(host, Spelling(host, name));
  return {*drive, host};
}

}  // namespace

void Drives_Find() {
  const std::string home = Home();
  std::vector<Drive> table{{'C', home}};
  if (auto documents = User_Directory(home, "XDG_DOCUMENTS_DIR")) table.push_back({'D', *documents});
  char letter = First_Media_Letter;
  for (std::string& place : Mounted_Media()) {
    if (letter <= Last_Media_Letter) table.push_back({letter++, std::move(place)});
  }
  if (auto music = User_Directory(home, "XDG_MUSIC_DIR")) table.push_back({'M', *music});
  table.push_back({'Z', "/"});
  Drives_Set(std::move(table));
}

void Drives_Set(std::vector<Drive> table) { Table = std::move(table); }

const std::vector<Drive>& Drives() { return Table; }

std::string Host_Path(std::string_view path) { return Found_On_Disk(path).host_path; }

std::string Spelled_Path(std::string_view path) {
  const auto [drive, host_path] = Found_On_Disk(path);
  return Path_On(drive, *Below(host_path, drive.host_root));
}

std::string Program_Path(std::string_view host_path) {
  const std::string path = Found_Program_Path(host_path);
  if (path.empty()) throw Runtime_Error(Error_Device_Unavailable);
  return path;
}

// ".." goes first: a drive's root may lie deep in the host's file system, and has no parent.
std::string Typed_Path(std::string_view text) {
  const bool from_home = text == "~" || text.starts_with("~/");
  if (!from_home && !text.starts_with('/')) return std::string(text);
  const std::string full = from_home ? Host_Path("C:\\") + std::string(text.substr(1)) : std::string(text);
  return Program_Path(std::filesystem::path(full).lexically_normal().string());
}

std::string Current_Directory() {
  std::error_code error;
  const std::filesystem::path current = std::filesystem::current_path(error);
  const std::string path = error ? std::string() : Found_Program_Path(current.string());
  if (!path.empty()) return path;
  if (Table.empty()) throw Runtime_Error(Error_Device_Unavailable);
  return std::string{Table.front().letter, ':', '\\'};
}
