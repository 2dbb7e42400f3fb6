// The JACK backend against a real server without hardware, with an independent client at the other end.
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "adapters/jack/jack_backend.h"
#include "adapters/jack/output_slot.h"
#include "adapters/midi/service.h"
#include "support/hand_clock.h"
#include "support/jack_capture/jack_peer.h"
#include "support/midi_contract.h"

namespace {

// From now on this program's clients look for a server of this name, whether one runs or not. It is always
// the same: the library keeps a place for each name of a server that was killed, and has eight of them.
void Choose_Server() {
  setenv("JACK_DEFAULT_SERVER", "melvor-unit", 1);
  setenv("JACK_NO_START_SERVER", "1", 1);
  setenv("JACK_NO_AUDIO_RESERVATION", "1", 1);
}

struct Jack_Server {
  Jack_Server() { Start(); }
  ~Jack_Server() {
    kill(pid, SIGCONT);
    End(SIGTERM);
  }

  void Start() {
    Choose_Server();
    pid = fork();
    if (pid == 0) {
      prctl(PR_SET_PDEATHSIG, SIGKILL);  // not left behind by a test that crashes
      execl("/bin/sh", "sh", "-c",
            "exec jackd -n melvor-unit -r -S -t 5000 -p 64 -d dummy -r 48000 -p 256 >/dev/null 2>&1",
            nullptr);
      _exit(127);
    }
    // A program of its own asks: a client in this one would be in the way of those under test.
    EXPECT_TRUE(Await([] { return std::system("jack_lsp >/dev/null 2>&1") == 0; }))
        << "jackd does not answer";
  }
  void End(int signal) {
    kill(pid, signal);
    waitpid(pid, nullptr, 0);
  }

  pid_t pid = -1;
};

struct Jack_Rig {
  explicit Jack_Rig(Midi::Clock& the_clock = Midi::Steady_Clock()) : clock(the_clock) {
    // A busy machine may take more than one look to connect.
    EXPECT_TRUE(Await([this] {
      service.Refresh();
      return service.Out_Count() > 0;
    }));
  }

  Midi::Clock& clock;
  Jack_Server server;
  std::unique_ptr<Jack_Peer> peer = std::make_unique<Jack_Peer>("peer");
  Posts posts;
  Jack::Jack_Backend backend{clock};
  Midi::Service service{{&backend}, posts.Poster(), clock};

  Byte_String Received(std::size_t count) { return Received(*peer, count); }
  static Byte_String Received(Jack_Peer& from, std::size_t count) {
    Byte_String bytes;
    Await([&] {
      for (const Jack_Event& event : from.Take_Events()) bytes += event.bytes;
      return bytes.size() >= count;
    });
    return bytes;
  }
  // A close that gives up by a clock without real time would be quicker than the thread that sends.
  void Give_Up(std::int32_t handle) {
    EXPECT_TRUE(Await([&] { return service.Counts(handle).delivered == service.Counts(handle).taken; }));
    EXPECT_EQ(service.Out_Close(handle), Midi_Still_Playing);
    EXPECT_EQ(Close_Output(service, handle), Midi_Ok);
  }
};

TEST(Jack, Keeps_The_Contract) {
  Jack_Rig rig;
  Expect_Contract(rig.service, "peer:in", [&](std::size_t count) { return rig.Received(count); });
}

TEST(Jack, Without_A_Server_The_List_Is_Empty_And_Nothing_Is_Printed_Or_Started) {
  Choose_Server();
  testing::internal::CaptureStderr();
  {
    Jack::Jack_Backend backend;
    backend.Refresh();
    EXPECT_TRUE(backend.Ports(Midi::Direction::Output).empty());
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_FALSE(Jack_Peer("probe").Is_Open());
}

// A call that waited for the server would wait for ever. Long messages are taken while fewer than 1,024 bytes
// wait, short ones while fewer than 4,096 do, and the end of all notes beyond that. Who closes gives up after
// a while; what was taken goes out all the same.
TEST(Jack, While_The_Server_Stands_Still_No_Call_Waits_And_Nothing_Is_Lost) {
  Hand_Clock clock;
  Jack_Rig rig(clock);
  kill(rig.server.pid, SIGSTOP);
  waitpid(rig.server.pid, nullptr, WUNTRACED);
  rig.service.Refresh();
  const std::int32_t handle = Open_Output(rig.service, "peer:in");
  Byte_String want;
  for (int i = 0; i < 99 && Send_Long(rig.service, handle, Dump_Message(i)) == Midi_Ok; ++i)
    want += Dump_Message(i);
  EXPECT_EQ(want.size(), 12 * 90U);
  while (want.size() < 9999 && rig.service.Out_Short(handle, 0x403C90) == Midi_Ok)
    want += Bytes_Of("90 3C 40");
  EXPECT_EQ(want.size(), 4098U);
  EXPECT_EQ(rig.service.Out_Short(handle, 0x403C90), Midi_Not_Ready);
  EXPECT_EQ(rig.service.Out_Short(handle, 0x007BB0), Midi_Ok);
  want += Bytes_Of("B0 7B 00");
  rig.Give_Up(handle);
  kill(rig.server.pid, SIGCONT);
  EXPECT_EQ(Hex_Text(rig.Received(want.size())), Hex_Text(want));
}

// A client that is not done with its period stops all others, while the server itself still answers.
TEST(Jack, An_Output_That_Still_Drains_Delays_The_Opening_Of_No_Other) {
  Hand_Clock clock;
  Jack_Rig rig(clock);
  Jack_Peer other("other");
  rig.service.Refresh();
  const std::int32_t first = Open_Output(rig.service, "peer:in");
  ASSERT_EQ(rig.service.Out_Short(first, 0x403C90), Midi_Ok);
  EXPECT_EQ(Hex_Text(rig.Received(3)), "90 3C 40");
  std::unique_lock period = rig.peer->Hold();
  ASSERT_EQ(rig.service.Out_Short(first, 0x007BB0), Midi_Ok);
  rig.Give_Up(first);
  const std::int32_t second = Open_Output(rig.service, "other:in");
  ASSERT_EQ(rig.service.Out_Short(second, 0x403D90), Midi_Ok);
  EXPECT_TRUE(Await([&] { return rig.peer->Sees("MELVOR:out 2"); }));
  EXPECT_TRUE(rig.peer->Sees("MELVOR:out"));
  period.unlock();
  EXPECT_EQ(Hex_Text(rig.Received(3)), "B0 7B 00");
  EXPECT_EQ(Hex_Text(Jack_Rig::Received(other, 3)), "90 3D 40");
}

TEST(Jack, A_Port_That_Goes_Is_Told_By_Code) {
  Jack_Rig rig;
  const std::int32_t handle = Open_Output(rig.service, "peer:in");
  rig.peer.reset();
  // The server tells its clients in its own time: a message of no bytes finds out.
  EXPECT_TRUE(Await([&] { return Send_Long(rig.service, handle, {}) == Midi_No_Device; }));
  EXPECT_EQ(rig.service.Out_Short(handle, 0x403C90), Midi_No_Device);
  EXPECT_EQ(Close_Output(rig.service, handle), Midi_Ok);
  rig.service.Refresh();
  EXPECT_EQ(Open_Output(rig.service, "peer:in"), -1);
}

// The receiver is a program of its own, which ends with the server: two clients in one process do not survive
// it.
TEST(Jack, A_Server_That_Dies_Is_Told_And_Found_Again) {
  Jack_Server server;
  Jack::Jack_Backend backend;
  Posts posts;
  Midi::Service service({&backend}, posts.Poster());
  for (int life = 0; life < 2; ++life) {
    std::FILE* capture = popen("exec " JACK_CAPTURE " /dev/stdout peer", "r");
    std::int32_t handle = -1;
    ASSERT_TRUE(Await([&] {
      service.Refresh();
      return (handle = Open_Output(service, "peer:in")) > 0;
    }));
    ASSERT_EQ(service.Out_Short(handle, 0x403C90), Midi_Ok);
    unsigned velocity = 0;
    EXPECT_EQ(std::fscanf(capture, "ready %*u 90 3C %x", &velocity), 1);
    EXPECT_EQ(velocity, 0x40U);
    server.End(SIGKILL);
    EXPECT_TRUE(Await([&] { return service.Out_Short(handle, 0x403C90) == Midi_No_Device; }));
    service.Refresh();  // with the output still open
    EXPECT_EQ(service.Out_Count(), 0);
    EXPECT_EQ(service.Out_Close(handle), Midi_Ok);
    pclose(capture);
    server.Start();
  }
}

TEST(Jack, Hardware_Ports_Are_Known_By_Their_Alias_And_Paced) {
  Jack_Rig rig;
  const Jack_Peer hardware("system", JackPortIsPhysical, "Test Synth");
  rig.backend.Refresh();
  std::string list;
  for (const Midi::Port& port : rig.backend.Ports(Midi::Direction::Output))
    list += port.name + (port.wire ? " (wire) " : " ");
  EXPECT_EQ(list, "peer:in Test Synth (wire) ");
}

TEST(Jack, An_Input_Hears_Its_Port) {
  Jack_Rig rig;
  Test_Input input(rig.service, "peer:out");
  // The connection is made in the background: send until the first has come.
  EXPECT_TRUE(rig.posts.Run_Until([&] {
    rig.peer->Send("\xF0\x41\xF7");
    return !input.received.empty() && input.received[0] == "\xF0\x41\xF7";
  }));
}

TEST(Jack, A_Message_Stands_One_Period_Behind_Its_Stamp) {
  constexpr jack_nframes_t Wrap = 0xFFFFFFF0;  // the frame time runs over after a day
  const auto offset = [](jack_nframes_t stamp, jack_nframes_t start) {
    return Jack::Offset_In_Period(stamp, start, 256);
  };
  EXPECT_EQ(offset(1255, 1256), 255);
  EXPECT_EQ(offset(1300, 1256), std::nullopt) << "stamped in the period that runs";
  EXPECT_EQ(offset(900, 1256), 0) << "late";
  EXPECT_EQ(offset(1000 + 8 * 48000, 1256), 0) << "stamped while the server stood still";
  EXPECT_EQ(offset(Wrap + 100, Wrap + 256), 100);
}

}  // namespace
