#include "platform/files.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "platform/drives.h"
#include "platform/host_files.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

namespace {

struct Host_Error_Row {
  int error;
  int number;
};

// What stands in no row is a device error.
constexpr std::array Host_Error_Rows{
    Host_Error_Row{ENOENT, Error_File_Not_Found},     Host_Error_Row{ENOTDIR, Error_Path_Not_Found},
    Host_Error_Row{EACCES, Error_Permission_Denied},  Host_Error_Row{EPERM, Error_Permission_Denied},
    Host_Error_Row{EROFS, Error_Permission_Denied},   Host_Error_Row{EBUSY, Error_Permission_Denied},
    Host_Error_Row{ETXTBSY, Error_Permission_Denied}, Host_Error_Row{EISDIR, Error_Path_Access},
    Host_Error_Row{EEXIST, Error_Path_Access},        Host_Error_Row{ENOTEMPTY, Error_Path_Access},
    Host_Error_Row{ELOOP, Error_Path_Access},         Host_Error_Row{ENXIO, Error_Path_Access},
    Host_Error_Row{ENOSPC, Error_Disk_Full},          Host_Error_Row{EDQUOT, Error_Disk_Full},
    Host_Error_Row{EFBIG, Error_Disk_Full},           Host_Error_Row{ENAMETOOLONG, Error_Bad_File_Name},
    Host_Error_Row{EINVAL, Error_Bad_File_Name},      Host_Error_Row{EILSEQ, Error_Bad_File_Name},
    Host_Error_Row{ENODEV, Error_Device_Unavailable}, Host_Error_Row{ENOMEDIUM, Error_Device_Unavailable},
    Host_Error_Row{ESTALE, Error_Device_Unavailable}, Host_Error_Row{ENOTCONN, Error_Device_Unavailable},
    Host_Error_Row{ENOMEM, Error_Out_Of_Memory},
};

constexpr std::size_t Read_Step = 64 * 1024;

int Number_Of(int error) {
  const auto row =
      std::find_if(Host_Error_Rows.begin(), Host_Error_Rows.end(),
                   [error](const Host_Error_Row& candidate) { return candidate.error == error; });
  return row == Host_Error_Rows.end() ? Error_Device_IO : row->number;
}

bool Is_Directory(const std::string& host_path) {
  struct stat status;
  return stat(host_path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

struct Sorted_Entry {
  std::string key;
  Directory_Entry entry;

  bool operator<(const Sorted_Entry& other) const {
    return key != other.key ? key < other.key : entry.name < other.entry.name;
  }
};

}  // namespace

Descriptor::~Descriptor() {
  if (fd >= 0) close(fd);
}

int Host_Error_Number(int error, const std::string& host_path) {
  if (error == ENOENT && !Is_Directory(Parent_Directory(host_path))) return Error_Path_Not_Found;
  return Number_Of(error);
}

int Host_Directory_Error_Number(int error) {
  return error == ENOENT ? Error_Path_Not_Found : Number_Of(error);
}

int Open_Regular(const std::string& host_path) {
  struct stat status;
  if (stat(host_path.c_str(), &status) != 0) throw Runtime_Error(Host_Error_Number(errno, host_path));
  if (!S_ISREG(status.st_mode)) throw Runtime_Error(Error_Path_Access);
  const int fd = open(host_path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (fd < 0) throw Runtime_Error(Host_Error_Number(errno, host_path));
  return fd;
}

std::string Host_Content(const std::string& host_path, std::size_t limit) {
  const Descriptor file(Open_Regular(host_path));
  std::string content;
  while (content.size() < limit) {
    const std::size_t before = content.size();
    const std::size_t step = std::min(Read_Step, limit - before);
    content.resize(before + step);
    const ssize_t got = read(file.fd, content.data() + before, step);
    if (got < 0 && errno != EINTR) throw Runtime_Error(Host_Error_Number(errno, host_path));
    content.resize(before + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
    if (got == 0) break;
  }
  return content;
}

Host_Directory::Host_Directory(const std::string& host_path) : directory_(opendir(host_path.c_str())) {
  if (directory_ == nullptr) error = errno;
}

Host_Directory::~Host_Directory() {
  if (directory_ != nullptr) closedir(directory_);
}

bool Host_Directory::Next() {
  if (directory_ == nullptr) return false;
  do {
    errno = 0;
    entry_ = readdir(directory_);
  } while (entry_ != nullptr && (Name() == "." || Name() == ".."));
  if (entry_ == nullptr) error = errno;
  return entry_ != nullptr;
}

std::string_view Host_Directory::Name() const { return entry_->d_name; }

Entry_Kind Host_Directory::What() const {
  if (entry_->d_type == DT_REG) return Entry_Kind::File;
  if (entry_->d_type == DT_DIR) return Entry_Kind::Directory;
  struct stat status;
  const bool needs_look = entry_->d_type == DT_LNK || entry_->d_type == DT_UNKNOWN;
  if (!needs_look || fstatat(dirfd(directory_), entry_->d_name, &status, 0) != 0) return Entry_Kind::Other;
  if (S_ISDIR(status.st_mode)) return Entry_Kind::Directory;
  return S_ISREG(status.st_mode) ? Entry_Kind::File : Entry_Kind::Other;
}

std::string Parent_Directory(const std::string& host_path) {
  const std::size_t slash = host_path.rfind('/');
  return slash == 0 || slash == std::string::npos ? "/" : host_path.substr(0, slash);
}

Byte_String File_Read(std::string_view path, std::size_t limit) {
  return Host_Content(Host_Path(path), limit);
}

int File_Probe(std::string_view path) {
  try {
    const Descriptor file(Open_Regular(Host_Path(path)));
    return 0;
  } catch (const Runtime_Error& error) {
    return error.number;
  }
}

void File_Delete(std::string_view path) {
  const std::string host_path = Host_Path(path);
  struct stat status;
  if (stat(host_path.c_str(), &status) != 0) throw Runtime_Error(Host_Error_Number(errno, host_path));
  if (!S_ISREG(status.st_mode)) throw Runtime_Error(Error_Path_Access);
  if (unlink(host_path.c_str()) != 0) throw Runtime_Error(Host_Error_Number(errno, host_path));
}

void Directory_Make(std::string_view path) {
  if (mkdir(Host_Path(path).c_str(), 0777) != 0) throw Runtime_Error(Host_Directory_Error_Number(errno));
}

void Directory_Remove(std::string_view path) {
  if (rmdir(Host_Path(path).c_str()) == 0) return;
  throw Runtime_Error(errno == ENOTDIR ? Error_Path_Access : Host_Directory_Error_Number(errno));
}

std::vector<Directory_Entry> Directory_List(std::string_view path) {
  Host_Directory item(Host_Path(path));
  std::vector<Sorted_Entry> found;
  while (item.Next()) {
    if (item.Name().front() == '.') continue;
    const Entry_Kind what = item.What();
    if (what == Entry_Kind::Other) continue;
    found.push_back({Upper(item.Name()), {std::string(item.Name()), what == Entry_Kind::Directory}});
  }
  if (item.error != 0) throw Runtime_Error(Host_Directory_Error_Number(item.error));
  std::sort(found.begin(), found.end());
  std::vector<Directory_Entry> entries;
  entries.reserve(found.size());
  for (Sorted_Entry& one : found) entries.push_back(std::move(one.entry));
  return entries;
}

bool Directory_Has_Files(std::string_view path) {
  try {
    Host_Directory item(Host_Path(path));
    while (item.Next()) {
      if (item.What() == Entry_Kind::File) return true;
    }
  } catch (const Runtime_Error&) {
    // A path that names nothing holds no file.
  }
  return false;
}
