#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <optional>

#include "platform/drives.h"
#include "platform/files.h"
#include "platform/host_files.h"
#include "platform/runtime_error.h"

namespace {

constexpr int New_File_Slots = 100;
constexpr int Link_Limit = 40;
constexpr std::array<std::string_view, 3> Copy_Endings{"~", "~2", "~3"};  // newest first

[[noreturn]] void Raise(const std::string& host_path) {
  throw Runtime_Error(Host_Error_Number(errno, host_path));
}

// The file that a path leads to in the end; it may not exist.
std::string Link_Target(std::string host_path) {
  std::array<char, PATH_MAX> link;
  for (int followed = 0; followed < Link_Limit; ++followed) {
    const ssize_t length = readlink(host_path.c_str(), link.data(), link.size());
    if (length < 0 && errno != EINVAL && errno != ENOENT) Raise(host_path);
    if (length < 0) return host_path;  // no link
    const std::string leads_to(link.data(), static_cast<std::size_t>(length));
    host_path = leads_to.starts_with('/') ? leads_to : Parent_Directory(host_path) + "/" + leads_to;
  }
  throw Runtime_Error(Error_Path_Access);
}

// What stands at the target now, if anything. It must be a regular file that may be written.
std::optional<struct stat> Old_File(const std::string& target) {
  struct stat status;
  if (stat(target.c_str(), &status) != 0) {
    if (errno == ENOENT) return std::nullopt;
    Raise(target);
  }
  if (!S_ISREG(status.st_mode)) throw Runtime_Error(Error_Path_Access);
  if (faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) Raise(target);
  return status;
}

bool Is_File_At(int fd, const std::string& host_path) {
  struct stat open_file, named_file;
  return fstat(fd, &open_file) == 0 && lstat(host_path.c_str(), &named_file) == 0 &&
         open_file.st_ino == named_file.st_ino && open_file.st_dev == named_file.st_dev;
}

// Removes what a run that was killed left behind. A running save holds its file's lock, so it is never taken
// away.
void Remove_Leftover(const std::string& host_path) {
  const Descriptor file(open(host_path.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
  if (file.fd < 0 || flock(file.fd, LOCK_EX | LOCK_NB) != 0 || !Is_File_At(file.fd, host_path)) return;
  unlink(host_path.c_str());
}

// A new file under a name of its own, which is taken away again unless it takes its place.
struct New_File {
  New_File(const std::string& directory, mode_t mode) : path(), file(Open_Slot(directory, mode)) {}
  ~New_File() {
    if (!path.empty()) unlink(path.c_str());
  }

  void Write(std::string_view bytes);
  // Owner, group and mode of the old file, as far as this user may set them.
  void Take_Rights(const struct stat& old_file);
  void Flush();
  void Take_Place(const std::string& target);

  std::string path;
  const Descriptor file;

 private:
  int Open_Slot(const std::string& directory, mode_t mode);
};

// The names are few, so that leftovers are met again and removed. They start with a dot, so that no list
// shows them.
int New_File::Open_Slot(const std::string& directory, mode_t mode) {
  for (int slot = 1; slot <= New_File_Slots; ++slot) {
    const std::string name = directory + "/.melvor-" + std::to_string(slot);
    const auto create = [&] {
      return open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
    };
    int fd = create();
    if (fd < 0 && errno == EEXIST) {
      Remove_Leftover(name);
      fd = create();
    }
    if (fd < 0 && errno == EEXIST) continue;  // another save is under way
    if (fd < 0) Raise(name);
    // Between creation and lock another run may have taken the file for a leftover.
    const bool taken = flock(fd, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (!taken && Is_File_At(fd, name)) {
      path = name;
      return fd;
    }
    close(fd);
  }
  throw Runtime_Error(Error_Permission_Denied);
}

void New_File::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t put = write(file.fd, bytes.data(), bytes.size());
    if (put >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(put));
    } else if (errno != EINTR) {
      Raise(path);
    }
  }
}

void New_File::Take_Rights(const struct stat& old_file) {
  const bool owner_kept = fchown(file.fd, old_file.st_uid, old_file.st_gid) == 0;
  const bool group_kept = owner_kept || fchown(file.fd, static_cast<uid_t>(-1), old_file.st_gid) == 0;
  // Without its group the rights of the old group would go to another one.
  const mode_t rights = group_kept ? 0777 : 0707;
  if (fchmod(file.fd, old_file.st_mode & rights) == 0) return;
  // Some media keep no rights at all; then there are none to lose.
  if (errno != EPERM && errno != ENOTSUP && errno != ENOSYS) Raise(path);
}

void New_File::Flush() {
  if (fsync(file.fd) != 0 && errno != EINVAL) Raise(path);  // EINVAL: the medium has nothing to flush
}

void New_File::Take_Place(const std::string& target) {
  if (rename(path.c_str(), target.c_str()) != 0) Raise(target);
  path.clear();
  // The new file stands whatever becomes of this; it only makes sure that a power cut does not bring the old
  // one back.
  const Descriptor directory(open(Parent_Directory(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (directory.fd >= 0) fsync(directory.fd);
}

bool Is_There(const std::string& host_path) {
  struct stat status;
  if (lstat(host_path.c_str(), &status) == 0) return true;
  if (errno != ENOENT) Raise(host_path);
  return false;
}

// Makes room for a new copy of target: shifts the copies up as far as the first free place, so that none is
// dropped while there is one.
void Shift_Copies(const std::string& target) {
  const auto copy = [&](std::size_t place) { return target + std::string(Copy_Endings[place]); };
  std::size_t place = 0;
  while (place + 1 < Copy_Endings.size() && Is_There(copy(place))) ++place;
  for (; place > 0; --place) {
    if (rename(copy(place - 1).c_str(), copy(place).c_str()) != 0) Raise(copy(place));
  }
}

bool Holds(const std::string& host_path, std::string_view content) {
  struct stat status;
  return stat(host_path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
         static_cast<std::size_t>(status.st_size) == content.size() &&
         Host_Content(host_path, SIZE_MAX) == content;
}

// Puts the content beside target as its newest copy, unless it is that already.
void Put_Newest_Copy(const std::string& target, const std::optional<struct stat>& old_file,
                     std::string_view content) {
  const std::string newest = target + std::string(Copy_Endings.front());
  if (Holds(newest, content)) return;
  New_File copy(Parent_Directory(target), old_file ? old_file->st_mode & 0777 : 0666);
  copy.Write(content);
  if (old_file) copy.Take_Rights(*old_file);
  copy.Flush();
  Shift_Copies(target);
  copy.Take_Place(newest);
}

}  // namespace

void File_Write(std::string_view path, std::string_view bytes, Old_Content old) {
  const std::string target = Link_Target(Host_Path(path));
  const std::optional<struct stat> old_file = Old_File(target);
  New_File file(Parent_Directory(target), old_file ? old_file->st_mode & 0777 : 0666);
  file.Write(bytes);
  if (old == Old_Content::Keep_Tail && old_file) {
    const std::string before = Host_Content(target, SIZE_MAX);
    if (before.size() > bytes.size()) file.Write(std::string_view(before).substr(bytes.size()));
  }
  if (old_file) file.Take_Rights(*old_file);
  file.Flush();
  file.Take_Place(target);
}

void File_Keep_Copy(std::string_view path, std::optional<std::string_view> new_bytes) {
  const std::string target = Link_Target(Host_Path(path));
  const std::optional<struct stat> old_file = Old_File(target);
  if (!old_file) return;
  const std::string content = Host_Content(target, SIZE_MAX);
  if (new_bytes && content.starts_with(*new_bytes)) return;
  Put_Newest_Copy(target, old_file, content);
}

void File_Put_Copy(std::string_view path, std::string_view bytes) {
  const std::string target = Link_Target(Host_Path(path));
  Put_Newest_Copy(target, Old_File(target), bytes);
}
