// A save in a process of its own that is killed at its n-th system call, for every n until the save is
// through.
#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <functional>
#include <map>

#include "platform/files.h"
#include "support/temporary_root.h"

namespace {

enum class Outcome { Through, Killed, Not_Traced, Raised };  // the numbers are the child's exit codes

// What a stopped process is about to do: 'w' write, 'f' flush, 'r' rename, nothing for other calls and
// returns.
std::string Call_Of(pid_t child) {
  static const std::map<std::uint64_t, const char*> letters{
      {SYS_write, "w"},  {SYS_fsync, "f"}, {SYS_renameat, "r"}, {SYS_renameat2, "r"},
#ifdef SYS_rename
      {SYS_rename, "r"},
#endif
  };
  __ptrace_syscall_info info{};
  ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof info, &info);
  const auto letter = letters.find(info.entry.nr);
  return info.op == PTRACE_SYSCALL_INFO_ENTRY && letter != letters.end() ? letter->second : "";
}

// Kills the work at its n-th stop; a system call stops at its entry and at its return. story takes its calls.
Outcome Run_Killed_At(int n, const std::function<void()>& work, std::string& story) {
  const pid_t child = fork();
  if (child == 0) {
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(static_cast<int>(Outcome::Not_Traced));
    raise(SIGSTOP);
    _exit(static_cast<int>(Raised(work) == 0 ? Outcome::Through : Outcome::Raised));
  }
  int status = 0;
  waitpid(child, &status, 0);
  ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
  for (int stop = 0; WIFSTOPPED(status) && stop < n; ++stop) {
    ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
    waitpid(child, &status, 0);
    if (WIFSTOPPED(status)) story += Call_Of(child);
  }
  if (WIFEXITED(status)) return static_cast<Outcome>(WEXITSTATUS(status));
  kill(child, SIGKILL);
  waitpid(child, &status, 0);
  return Outcome::Killed;
}

struct Row {
  const char* what;
  std::string old_content, new_content;
  Old_Content tail;
  std::string story;  // a file is flushed before it takes its place, and its directory behind that
};

TEST(Killed_Save, Leaves_The_Old_Or_The_New_File_And_Every_Copy) {
  const Row rows[] = {
      {"replaced", std::string(3000, 'o'), std::string(2000, 'n'), Old_Content::Replace, "wfrrrfwfrf"},
      {"tail kept", "ooooo", "nnn", Old_Content::Keep_Tail, "wfrrrfwwfrf"},
  };
  for (const Row& row : rows) {
    Temporary_Root root;
    const std::string after = row.tail == Old_Content::Keep_Tail ? "nnnoo" : row.new_content;
    Outcome run = Outcome::Killed;
    std::string story;
    int n = 0;
    for (; run == Outcome::Killed && n < 1000; ++n) {
      root.Put("file", row.old_content);
      root.Put("file~", "newer copy");
      root.Put("file~2", "older copy");
      std::filesystem::remove(root.host / "file~3");
      story.clear();
      const auto save = [&] {
        File_Keep_Copy("C:\\file", row.new_content);
        File_Write("C:\\file", row.new_content, row.tail);
      };
      run = Run_Killed_At(n, save, story);
      if (run == Outcome::Not_Traced) GTEST_SKIP() << "this machine lets no process trace another";
      std::set<std::string> contents;
      for (const char* name : {"file~", "file~2", "file~3"}) contents.insert(root.Get(name));
      EXPECT_TRUE(contents.contains("newer copy") && contents.contains("older copy")) << row.what << " " << n;
      const std::string now = root.Get("file");
      EXPECT_TRUE(now == row.old_content || (now == after && contents.contains(row.old_content)))
          << row.what << n;
    }
    EXPECT_EQ(run, Outcome::Through);
    EXPECT_EQ(story, row.story);
    EXPECT_EQ(root.Get("file"), after);
    EXPECT_EQ(root.Names(), (std::set<std::string>{"file", "file~", "file~2", "file~3"}));
  }
}

}  // namespace
