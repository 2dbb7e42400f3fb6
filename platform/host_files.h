// The host's file calls: what the mapping of paths, and reading and writing of files share.
// Called by drives.cpp, files.cpp and file_write.cpp alone. All paths here are host paths.
#pragma once

#include <dirent.h>
#include <sys/stat.h>

#include <cstddef>
#include <string>
#include <string_view>

// An open file; closes itself.
struct Descriptor {
  explicit Descriptor(int number) : fd(number) {}
  ~Descriptor();
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  const int fd;  // below 0: not open
};

// The number for a host error met at host_path; a missing file in a missing directory is 76, else 53.
int Host_Error_Number(int error, const std::string& host_path);
// The same for a call on a directory: a missing one is 76.
int Host_Directory_Error_Number(int error);

// Opens a regular file for reading, without waiting for anything. Raises 75 for what is no regular file.
int Open_Regular(const std::string& host_path);

// The content of a regular file, at most limit bytes of it.
std::string Host_Content(const std::string& host_path, std::size_t limit);

enum class Entry_Kind {
  File,
  Directory,
  Other,  // a pipe, a device, a link to nothing, an entry that is gone again
};

// The entries of a directory one after another, in no order.
struct Host_Directory {
  explicit Host_Directory(const std::string& host_path);
  ~Host_Directory();
  Host_Directory(const Host_Directory&) = delete;
  Host_Directory& operator=(const Host_Directory&) = delete;

  // Goes to the next entry, "." and ".." left out. False at the end, and after a failure.
  bool Next();
  std::string_view Name() const;  // good until the next Next
  Entry_Kind What() const;        // what a link leads to

  int error = 0;  // the host's number of the failure, 0 for none

 private:
  DIR* const directory_;
  const dirent* entry_ = nullptr;
};

std::string Parent_Directory(const std::string& host_path);
