#include "core/file_places.h"

#include "platform/desktop.h"
#include "platform/files.h"
#include "windows/state.h"

std::string Dir_Tones;
std::string Dir_Sequences;
std::string Dir_Oscillators;
int File_Error = 0;

std::string Path_Behind(const std::string& path, std::size_t directory_length) {
  return directory_length < path.size() ? path.substr(directory_length) : std::string();
}

int File_Exists(std::string_view path) {
  if (path.ends_with('\\')) path.remove_suffix(1);
  File_Error = path.empty() ? 0 : File_Probe(path);
  return File_Error == 0 ? Flag_True : Flag_False;
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
