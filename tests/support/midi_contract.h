// What every MIDI service has to keep, as tests that run over any of them. A test program instantiates the
// suites that its service and the other end of its wire can stand for, with a maker of a rig.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "platform/midi_service.h"
#include "support/still_desktop.h"

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

  int Long(const Byte_String& bytes);
  int Short(std::uint32_t message) { return rig->Service().Out_Short(handle, message); }
  // Hands the message over again until it is not answered with 67.
  void Send(const Byte_String& bytes);
  void Close();
  void Expect(const Byte_String& bytes);  // at the other end

  std::unique_ptr<Midi_Rig> rig;
  std::int32_t handle = -1;
};

struct Midi_Contract : Midi_Rig_Test {};         // every service
struct Midi_Hold_Contract : Midi_Rig_Test {};    // where the wire can be made to stand still
struct Midi_Unplug_Contract : Midi_Rig_Test {};  // where the device can be taken away

#define MIDI_RIGS(suite, ...)                                         \
  INSTANTIATE_TEST_SUITE_P(Over, suite, testing::Values(__VA_ARGS__), \
                           [](const testing::TestParamInfo<Rig_Maker>& info) { return info.param.name; })

// 90 bytes: a message whose first half a second F0 ends. number: of the tone in it.
Byte_String Dump_Message(int number);
// 28 bytes: ends without F7.
Byte_String Name_Message();

// The output's or input's number by its name; -1: not listed.
int Find_Output(Midi_Service& service, const std::string& name);
int Find_Input(Midi_Service& service, const std::string& name);

// Prepares, sends, unprepares; the code of the sending.
int Send_Long(Midi_Service& service, std::int32_t handle, const Byte_String& bytes);
// Asks until the answer is not 65.
int Close_Output(Midi_Service& service, std::int32_t handle);

// Waits until the condition holds, for up to 20 s. False: it never did.
bool Await(const std::function<bool()>& condition);

// A desktop that can do nothing but take posts from other threads.
struct Post_Desktop final : Still_Desktop {
  void Post(std::function<void()> fn) override;
  // Runs posts until the condition holds, for up to 20 s. False: it never did.
  bool Run_Until(const std::function<bool()>& condition);
  void Run_Posts();  // all that were made up to now

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<std::function<void()>> posts_;
};

// An open, started input of a service with four buffers, which keeps what it gets.
struct Test_Input {
  Test_Input(Midi_Service& service, int device);
  ~Test_Input() { EXPECT_EQ(service_.In_Close(handle), Midi_Ok); }
  Test_Input(const Test_Input&) = delete;
  Test_Input& operator=(const Test_Input&) = delete;

  std::vector<Byte_String> received;
  std::int32_t handle = -1;

 private:
  Midi_Service& service_;
  std::array<MIDI_Header, 4> headers_;
};
