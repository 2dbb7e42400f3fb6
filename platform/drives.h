// Paths: inside the program a path is text with a drive letter and backslashes; on disk it is whatever the
// host has. One table, made at start, maps the one to the other.
//   C:  the user's home directory          D:, M:  documents and music, where the desktop names them
//   E: to L:  mounted media                Z:      the root of the host's file system
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct Drive {
  char letter;            // 'A' to 'Z'
  std::string host_root;  // absolute, without a slash at its end but for the root itself
};

// Makes the table from the host: home directory, the desktop's user directories, what is mounted below
// /media, /run/media and /mnt.
void Drives_Find();
// Makes the table by hand.
void Drives_Set(std::vector<Drive> table);
const std::vector<Drive>& Drives();

// The host's path. Names are matched without regard to the case of A to Z, component by component: an exact
// match wins, else the first in sorted order; a name that is not there is kept as given. A path without a
// drive is taken from the current directory; "/" separates as well. Runtime_Error 52: it holds one of * ? " <
// > |; 68: its drive is not in the table or its root is gone.
std::string Host_Path(std::string_view path);

// The program's path of a host path, with the drive whose root is its longest prefix; the first in the table
// where two are alike. Runtime_Error 68: no drive holds it.
std::string Program_Path(std::string_view host_path);

// What a user typed for a path: "/..." and "~/..." are the host's ways of writing one and become the
// program's; any other text is left as it is. Errors as Program_Path.
std::string Typed_Path(std::string_view text);

// The path with its drive, its names spelled as on disk, and no backslash at the end but for the root of a
// drive. Errors as Host_Path.
std::string Spelled_Path(std::string_view path);

// The program's path of the process's current directory, with a drive; the root of the first drive if the
// directory is gone or no drive holds it.
std::string Current_Directory();
