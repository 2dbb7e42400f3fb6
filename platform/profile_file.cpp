#include "platform/profile_file.h"

#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "platform/directories.h"
#include "platform/drives.h"
#include "platform/files.h"
#include "platform/profile_text.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

std::string INI_File;

namespace {

constexpr int Value_Limit = 31;  // characters of a settings value
constexpr std::size_t Size_Limit = std::size_t{64} << 20;
// A host may give two writes this close the same time; a file this young is read anew.
constexpr std::chrono::milliseconds Clock_Step{50};

struct File_Stamp {
  dev_t device = 0;
  ino_t inode = 0;
  off_t size = 0;
  std::chrono::nanoseconds written{0};
  std::chrono::nanoseconds changed{0};  // also by a rename, or by a program that sets the time of its writing
  bool operator==(const File_Stamp&) const = default;
};

std::chrono::nanoseconds As_Duration(const timespec& time) {
  return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

File_Stamp Stamp_Of(const std::string& host_path) {
  struct stat status;
  if (stat(host_path.c_str(), &status) != 0) return {};  // reading it tells the reason
  return {status.st_dev, status.st_ino, status.st_size, As_Duration(status.st_mtim),
          As_Duration(status.st_ctim)};
}

// The profile that was read last, so that a row of reads parses it once.
struct Kept_Profile {
  std::string host_path;
  File_Stamp stamp;
  bool settled;  // the file was old enough when it was read that a later change shows in its stamp
  Profile_Text text;
};

std::optional<Kept_Profile> Kept;

struct Profile_Value {
  std::string section, key, value;
};

std::vector<Profile_Value> Held;
int Hold_Depth = 0;

// The profile at a path. Raises what reading the file raises.
const Profile_Text& Profile_At(std::string_view path) {
  const std::string host_path = Host_Path(path);
  const File_Stamp stamp = Stamp_Of(host_path);
  if (Kept && Kept->settled && Kept->host_path == host_path && Kept->stamp == stamp) return Kept->text;
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  Profile_Text text(File_Read(path, Size_Limit));
  Kept = Kept_Profile{host_path, stamp, now - stamp.written > Clock_Step, std::move(text)};
  return Kept->text;
}

Profile_Text Profile_To_Change(std::string_view path) {
  if (const int error = File_Probe(path); error == Error_File_Not_Found) return Profile_Text({});
  return Profile_At(path);
}

// Sets the values in their order and replaces the file once, if anything is new in it. 0, or the error
// number.
int Write_Values(std::string_view path, std::span<const Profile_Value> values) {
  try {
    Profile_Text profile = Profile_To_Change(path);
    // There may be more of it on disk than was read.
    if (profile.Text().size() >= Size_Limit) return Error_Out_Of_Memory;
    const std::string before = profile.Text();
    bool all_set = true;
    for (const auto& [section, key, value] : values) all_set = profile.Set(section, key, value) && all_set;
    if (profile.Text() != before) {
      Kept.reset();
      File_Write(path, profile.Text());
    }
    return all_set ? 0 : Error_Bad_Property_Value;
  } catch (const Runtime_Error& error) {
    return error.number;
  }
}

bool Is_For(const Profile_Value& value, std::string_view section, std::string_view key) {
  return Same_Text(value.section, section) && Same_Text(value.key, key);
}

std::string Settings_Value(std::string_view value) {
  value = value.substr(0, value.find('\0'));
  return std::string(First_Characters(value, Value_Limit));
}

}  // namespace

std::string Get_Profile_String(std::string_view section, std::string_view key, std::string_view default_value,
                               std::string_view path) {
  if (path.empty()) return std::string(default_value);
  try {
    return std::string(Profile_At(path).Find(section, key).value_or(default_value));
  } catch (const Runtime_Error&) {
    return std::string(default_value);
  }
}

bool Write_Profile_String(std::string_view section, std::string_view key, std::string_view value,
                          std::string_view path) {
  const Profile_Value row{std::string(section), std::string(key), std::string(value)};
  return !path.empty() && Write_Values(path, {&row, 1}) == 0;
}

std::string INI_Read(std::string_view section, std::string_view key, std::string_view default_value) {
  const auto held = std::find_if(Held.rbegin(), Held.rend(),
                                 [&](const Profile_Value& value) { return Is_For(value, section, key); });
  if (held != Held.rend()) return Settings_Value(held->value);
  return Settings_Value(Get_Profile_String(section, key, default_value, INI_File));
}

void INI_Write(std::string_view section, std::string_view key, std::string_view value) {
  INI_Hold();
  Held.push_back({std::string(section), std::string(key), Trim(value)});
  INI_Release();
}

void INI_Hold() { ++Hold_Depth; }

void INI_Release() {
  if (Hold_Depth == 0 || --Hold_Depth > 0) return;
  const std::vector<Profile_Value> values = std::exchange(Held, {});
  if (values.empty() || INI_File.empty()) return;
  Program_Directory_Make();
  // Not in a box: it would stand in the way of an end that nobody can put off.
  if (const int error = Write_Values(INI_File, values); error != 0)
    std::cerr << "MELVOR: the settings were not written to " << INI_File << ": " << Error_Text(error) << '\n';
}

std::string Path_Slash(std::string_view path) {
  const std::string trimmed = Trim(path);
  return trimmed.ends_with('\\') ? trimmed : trimmed + "\\";
}
