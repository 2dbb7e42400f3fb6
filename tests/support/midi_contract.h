// What every MIDI service has to keep, as tests that run over any of them. A test program instantiates the
// suites that its service and the other end of its wire can stand for, with a maker of a rig.
#pragma once

#include <gtest/gtest.h>

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

#include "platform/desktop.h"
#include "platform/midi_service.h"

// A service, and what stands at the other end of one of its outputs.
struct Midi_Rig {
  virtual ~Midi_Rig() = default;
  virtual Midi_Service& Service() = 0;
  virtual std::string Device_Name() = 0;
  // All bytes that came since the last call, in order. Waits until there are count of them, for up to 20 s.
  virtual Byte_String Received(std::size_t count) = 0;
  // The wire stands still, and goes on.
  virtual void Hold() { FAIL() << "this rig cannot hold its wire"; }
  virtual void Release() {}
  // The device goes away. Returns once the system knows.
  virtual void Unplug() { FAIL() << "this rig cannot be unplugged"; }
};

struct Rig_Maker {
  std::string name;
  std::function<std::unique_ptr<Midi_Rig>()> make;
};
inline void PrintTo(const Rig_Maker& maker, std::ostream* out) { *out << maker.name; }

// An output of the service under test, opened by name, with small verbs.
struct Midi_Rig_Test : testing::TestWithParam<Rig_Maker> {
  void SetUp() override;
  void TearDown() override;

  int Long(const Byte_String& bytes);  // prepare, send, unprepare; the code of the send
  int Short(std::uint32_t message);
  // Hands the message over again until it is not answered with 67.
  void Send(const Byte_String& bytes);
  int Close();  // until it is not answered with 65

  std::unique_ptr<Midi_Rig> rig;
  std::int32_t handle = -1;
};

struct Midi_Contract : Midi_Rig_Test {};         // every service
struct Midi_Hold_Contract : Midi_Rig_Test {};    // where the wire can be made to stand still
struct Midi_Unplug_Contract : Midi_Rig_Test {};  // where the device can be taken away

#define MIDI_RIGS(suite, ...)                                         \
  INSTANTIATE_TEST_SUITE_P(Over, suite, testing::Values(__VA_ARGS__), \
                           [](const testing::TestParamInfo<Rig_Maker>& info) { return info.param.name; })

// The output's or input's number by its name; -1: not listed.
int Find_Output(Midi_Service& service, const std::string& name);
int Find_Input(Midi_Service& service, const std::string& name);

// Waits until the condition holds, for up to 20 s. False: it never did.
bool Await(const std::function<bool()>& condition);

// A desktop that can do nothing but take posts from other threads. Installs itself while it lives.
struct Post_Desktop final : Desktop {
  Post_Desktop() { Install_Desktop(this); }
  ~Post_Desktop() override { Install_Desktop(nullptr); }
  // Runs posts until the condition holds, for up to 20 s. False: it never did.
  bool Run_Until(const std::function<bool()>& condition);

  void Post(std::function<void()> fn) override;
  Answer Message_Box(std::string_view, int, std::string_view) override { return Answer::Ok; }
  void Run_Events(Event_Set) override {}
  void Wait_Events() override {}
  void Quit() override {}
  void Beep() override {}
  bool Play_System_Sound(std::string_view) override { return false; }
  Size_px Screen_Size() override { return {}; }
  int Pixels_Per_Inch() override { return 96; }
  bool Add_Font(std::string_view) override { return false; }
  int Remove_Font(std::string_view) override { return 0; }
  void Form_Loaded(Form&) override {}
  void Form_Unloaded(Form&) override {}
  void Bring_To_Front(Form&) override {}
  void Show_Focus(Form&, Control*) override {}
  void Changed(Component&) override {}
  void Forget(Component&) override {}
  std::int64_t Now_us() override { return 0; }
  void Wake_At_us(std::int64_t) override {}

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<std::function<void()>> posts_;
};

// An open, started input of a service with four buffers, which keeps what it gets.
struct Test_Input {
  Test_Input(Midi_Service& service, int device);
  ~Test_Input();
  Test_Input(const Test_Input&) = delete;
  Test_Input& operator=(const Test_Input&) = delete;

  std::vector<Byte_String> received;
  std::int32_t handle = -1;

 private:
  Midi_Service& service_;
  std::array<MIDI_Header, 4> headers_;
};
