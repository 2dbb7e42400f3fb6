// Files by path (drives.h). Failures are Runtime_Error by the number of the host's error: 53 not there, 76
// its directory is not there, 70 no right or in use, 75 not a regular file, 61 full, 57 other device error,
// 52 bad name.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/midi_service.h"

// The whole content of a regular file, at most limit bytes of it.
Byte_String File_Read(std::string_view path, std::size_t limit = SIZE_MAX);

enum class Old_Content {
  Replace,    // the file holds the new bytes alone
  Keep_Tail,  // what a longer old file has behind the new bytes stays
};

// Writes the file as a whole or not at all: into a new file beside it, flushed, that takes the old one's
// place in one rename, with its access rights; symbolic links are followed. On failure the old file is as it
// was and no new one stays behind. A new name is created as given, an old one keeps its spelling.
void File_Write(std::string_view path, std::string_view bytes, Old_Content old = Old_Content::Replace);

// Keeps the file's present content beside it as NAME~, older copies as NAME~2 and NAME~3, unless there is no
// file, or it is about to get new_bytes and they are a prefix of it.
void File_Keep_Copy(std::string_view path, std::optional<std::string_view> new_bytes = std::nullopt);

// Puts the bytes beside the file as its newest copy, NAME~; the file itself need not exist.
void File_Put_Copy(std::string_view path, std::string_view bytes);

// 0 if a regular file can be opened for reading there, else the error number.
int File_Probe(std::string_view path);

void File_Delete(std::string_view path);       // 53, 70, 75 for a directory
void Directory_Make(std::string_view path);    // 75 if something of that name is there
void Directory_Remove(std::string_view path);  // 75 if it is not empty or no directory, 76 if it is not there

struct Directory_Entry {
  std::string name;
  bool is_directory = false;
};

// What a directory holds, but for "." and ".." and names that start with a dot, in the order people expect:
// without regard to case. 76 if it is not there, 68 if its drive is gone, 70 if it may not be read.
std::vector<Directory_Entry> Directory_List(std::string_view path);

// Whether the directory holds a regular file (any name). False also if it cannot be read.
bool Directory_Has_Files(std::string_view path);
