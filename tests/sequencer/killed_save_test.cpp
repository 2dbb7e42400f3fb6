// Every save of the program in a process of its own that is killed at each of its system calls, or has that
// call refused by the host. To refuse a call one has to know the processor's registers by name.
#if defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__)  // which make this take minutes
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>

#include "core/tone_save.h"
#include "platform/files.h"
#include "sequencer/sequencer_fixture.h"

namespace {

enum Ending { Saved, Told, Not_Traced, Gone };  // all but the last are exit codes

constexpr int Kill = 0;  // in place of an error number
constexpr int Never = -1;

// Not the work of a save: memory, locks between threads, and the end of the process.
const std::set<std::uint64_t> Passed_Over{SYS_brk,     SYS_mmap,  SYS_munmap,    SYS_mprotect,
                                          SYS_madvise, SYS_futex, SYS_exit_group};
const std::map<std::uint64_t, char> Letters{{SYS_write, 'w'}, {SYS_fsync, 'f'}, {SYS_rename, 'r'}};

// Work in a process of its own, which stops at each system call.
struct Traced {
  // When the work is about to make its call of that number (from 0), it is killed or the call refused.
  int Run(bool (*work)(), int struck_call, int fault) {
    child = fork();
    if (child == 0) {
      if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(Not_Traced);
      kill(getpid(), SIGSTOP);
      _exit(work() ? Saved : Told);
    }
    story.clear();
    calls = 0;
    waitpid(child, &status, 0);
    ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    while (WIFSTOPPED(status)) {
      Go_On(PTRACE_SYSCALL);
      if (WIFSTOPPED(status) && At_Entry() && calls++ == struck_call) Strike(fault);
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : static_cast<int>(Gone);
  }

  int calls = 0;
  std::string story;  // the calls whose order matters

 private:
  void Go_On(__ptrace_request how) {
    const bool no_signal = WSTOPSIG(status) == (SIGTRAP | 0x80) || WSTOPSIG(status) == SIGSTOP;
    ptrace(how, child, nullptr, no_signal ? 0 : WSTOPSIG(status));
    waitpid(child, &status, 0);
  }
  bool At_Entry() {
    __ptrace_syscall_info info{};
    ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof info, &info);
    if (info.op != PTRACE_SYSCALL_INFO_ENTRY || Passed_Over.contains(info.entry.nr)) return false;
    if (const auto letter = Letters.find(info.entry.nr); letter != Letters.end()) story += letter->second;
    return true;
  }
  void Strike(int fault) {
    if (fault == Kill) kill(child, SIGKILL);
    ptrace(PTRACE_POKEUSER, child, offsetof(user, regs.orig_rax), -1L);
    Go_On(PTRACE_SYSCALL);
    ptrace(PTRACE_POKEUSER, child, offsetof(user, regs.rax), static_cast<long>(-fault));
    if (WIFSTOPPED(status)) Go_On(PTRACE_CONT);
  }

  pid_t child = 0;
  int status = 0;
};

struct Save_Row {
  std::string what;
  bool (*run)();      // tells whether it has saved
  const char* story;  // over an old file: flushed before it takes its place, and the directory behind that
};

const Save_Row Saves[] = {
    {"tone", Tone_Save, "wfrfwwfrf"},
    {"sequence", [] { return Raised(Seq_Save) == 0; }, "wfrfwwfrf"},
    {"settings", [] { return Write_Profile_String("MIDI", "Channel", "5", INI_File); }, "wfrf"}};

using Files = std::map<std::string, std::string>;

struct Killed_Save : Sequencer_Test {
  Killed_Save() {
    desktop.on_other_box = [this] { return desktop.Last_Box().ends_with("?") ? Answer::Yes : Answer::Ok; };
    Tone_File = Seq_File = INI_File = "C:\\FILE";  // what is there keeps its own spelling
  }

  Files On_Disk() const {
    Files files;
    for (const std::string& name : root.Names()) files[name] = root.Get(name);
    return files;
  }
  void Lay_Out(const Files& files) {
    Tone_Saved = Flag_False;
    for (const std::string& name : root.Names()) std::filesystem::remove(root.host / name);
    if (files.contains("target")) std::filesystem::create_symlink("target", root.host / "file");
    for (const auto& [name, content] : files) root.Put(name, content);
  }

  // What is there after a strike, and that the next save makes all of it good.
  void Check(const Save_Row& save, const Files& before, const Files& after, int ending) {
    const std::string name = before.empty() ? "FILE" : "file";
    const std::string now = root.Get(name);
    const bool changed = now == after.at(name);
    EXPECT_TRUE(changed || (before.empty() ? now == "(none)" : now == Old)) << now;
    EXPECT_TRUE(ending == Gone || changed == (ending == Saved));  // what is told is true
    EXPECT_EQ(std::filesystem::is_symlink(root.host / name), before.contains("target"));
    const std::string contents = testing::PrintToString(On_Disk());
    for (const auto& [_, content] : before) {
      const bool replaced = changed && content == Old && save.what == "settings";
      EXPECT_TRUE(replaced || contents.find(content) != std::string::npos) << content;
    }
    EXPECT_TRUE(save.run());
    File_Write("C:\\FILE", after.at(name));  // takes away what a strike left behind
    EXPECT_EQ(On_Disk(), after);
  }

  const std::string Old = std::string(120, 'o');
};

TEST_F(Killed_Save, Leaves_The_Old_Or_The_New_File_And_Loses_Nothing) {
  const Files places[] = {{},
                          {{"file", Old}},
                          {{"file", Old}, {"file~", "newer"}, {"file~2", "older"}},
                          {{"target", Old}, {"target~", "newer"}}};
  Traced traced;
  for (const Save_Row& save : Saves) {
    for (const Files& before : places) {
      Lay_Out(before);
      const int ending = traced.Run(save.run, Never, Kill);
      if (ending == Not_Traced) GTEST_SKIP() << "this machine lets no process trace another";
      ASSERT_EQ(ending, Saved);
      EXPECT_TRUE(before.size() != 1 || traced.story == save.story) << traced.story;
      const Files after = On_Disk();
      for (int call = 0, calls = traced.calls; call < calls; ++call) {
        for (const int fault : {Kill, ENOSPC, EIO}) {
          SCOPED_TRACE(save.what + " over " + testing::PrintToString(before) + ", call " +
                       std::to_string(call) + ", fault " + std::to_string(fault));
          Lay_Out(before);
          Check(save, before, after, traced.Run(save.run, call, fault));
        }
      }
    }
  }
}

}  // namespace
#endif
