#include "platform/directories.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "platform/drives.h"
#include "platform/runtime_error.h"

namespace {

std::string The_Program_Directory;
std::string The_Data_Directory;

constexpr std::string_view Portable_Mark = "/MELVOR.FNT";
constexpr std::string_view Own_Name = "melvor";

std::string Configuration_Home() {
  const char* named = std::getenv("XDG_CONFIG_HOME");
  const bool usable = named != nullptr && named[0] == '/';  // a relative one does not count
  return usable ? Program_Path(named) : "C:\\.config";
}

}  // namespace

const std::string& Program_Directory() { return The_Program_Directory; }

void Program_Directory_Make() {
  if (The_Program_Directory.empty()) return;
  std::error_code told_by_the_write;
  try {
    std::filesystem::create_directories(Host_Path(The_Program_Directory), told_by_the_write);
  } catch (const Runtime_Error&) {
    // The drive is gone; the write tells this too.
  }
}

const std::string& Data_Directory() { return The_Data_Directory; }

void Directories_Find(const std::string& executable) {
  const std::filesystem::path folder = std::filesystem::path(executable).parent_path();
  struct stat mark;
  const bool has_font = stat((folder.string() + std::string(Portable_Mark)).c_str(), &mark) == 0;
  const bool portable = has_font && access(folder.c_str(), W_OK) == 0;
  const std::string configuration = Configuration_Home() + "\\" + std::string(Own_Name);
  Directories_Set(portable ? Program_Path(folder.string()) : configuration,
                  has_font ? folder.string() : (folder.parent_path() / "share" / Own_Name).string());
}

void Directories_Set(std::string program_directory, std::string data_directory) {
  The_Program_Directory = std::move(program_directory);
  The_Data_Directory = std::move(data_directory);
}
