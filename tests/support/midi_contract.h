// What tests of MIDI services share: verbs for their outputs and inputs, and what every one of them has to
// keep.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

#include "support/recording_service.h"

// 90 bytes: a message whose first half a second F0 ends. number: of the tone in it.
Byte_String Dump_Message(int number);
// 28 bytes: ends without F7.
Byte_String Name_Message();

// The handle of the output of that name, now open; -1: not listed, or it does not open.
std::int32_t Open_Output(Midi_Service& service, const std::string& name);
// Prepares, sends, unprepares; the code of the sending.
int Send_Long(Midi_Service& service, std::int32_t handle, const Byte_String& bytes);
// Asks until the answer is not 65.
int Close_Output(Midi_Service& service, std::int32_t handle);

// Waits until the condition holds, for up to 20 s. False: it never did.
bool Await(const std::function<bool()>& condition);

// Odd messages arrive byte for byte, all keep their order, and a close delivers them. received: all bytes
// that came to the other end, in order; waits until there are count of them.
void Expect_Contract(Midi_Service& service, const std::string& name,
                     const std::function<Byte_String(std::size_t count)>& received);

// The user-interface thread's end of a service: what other threads posted waits until the test runs it.
struct Posts {
  std::function<void(std::function<void()>)> Poster() {
    return [this](std::function<void()> fn) { Add(std::move(fn)); };
  }
  void Run();
  // Runs posts until the condition holds, for up to 20 s. False: it never did.
  bool Run_Until(const std::function<bool()>& condition) {
    return Await([&] {
      Run();
      return condition();
    });
  }

 private:
  void Add(std::function<void()> fn);

  std::mutex mutex_;
  std::vector<std::function<void()>> posts_;
};

// An open, started input of a service with four buffers, which keeps what it gets.
struct Test_Input {
  Test_Input(Midi_Service& service, const std::string& name);
  ~Test_Input() { EXPECT_EQ(service_.In_Close(handle), Midi_Ok); }
  Test_Input(const Test_Input&) = delete;
  Test_Input& operator=(const Test_Input&) = delete;

  Texts received;
  std::int32_t handle = -1;

 private:
  Midi_Service& service_;
  std::array<MIDI_Header, 4> headers_;
};
