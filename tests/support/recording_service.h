// A MIDI service that keeps what it is given, for tests: small verbs to script it and to look at what was
// sent. It installs itself while it lives. A call that no careful program makes is answered by its code,
// which the program tells in a box that no test expects.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/midi_service.h"

// "F0 41 36" and back; blanks are free.
std::string Hex_Text(std::string_view bytes);
Byte_String Bytes_Of(std::string_view hex_text);

enum class Midi_Operation {
  Out_Open,
  Out_Short,
  Out_Prepare,
  Out_Long,
  Out_Unprepare,
  Out_Close,
  In_Open,
  In_Prepare,
  In_Add_Buffer,
  In_Unprepare,
  In_Start,
  In_Reset,
  In_Close,
};

struct Recording_Service final : Midi_Service {
  // Starts with one output "JX-8P" and one input "JX-8P".
  Recording_Service();
  ~Recording_Service() override;
  Recording_Service(const Recording_Service&) = delete;
  Recording_Service& operator=(const Recording_Service&) = delete;

  // --- the script
  // Names of up to 31 characters; seen at once, also without Refresh.
  void Outputs(std::vector<std::string> names) { out_.names = std::move(names); }
  void Inputs(std::vector<std::string> names) { in_.names = std::move(names); }
  void Fail_Next(Midi_Operation operation, int code, int times = 1) { failures_[operation] = {code, times}; }
  void Answer_65(int times) { Fail_Next(Midi_Operation::Out_Close, Midi_Still_Playing, times); }
  void Unplug();                    // every device goes; messages to an open output are answered with 68
  bool Deliver(Byte_String bytes);  // to the started input; false: no input, or no buffer for it

  // --- what was seen
  const std::vector<Byte_String>& Sent() const { return sent_; }
  std::vector<Byte_String> Take_Sent() { return std::exchange(sent_, {}); }
  std::vector<std::string> Take_Hex();  // as texts; forgets them too
  Byte_String Wire() const;             // all bytes that went over the wire, one after another
  int Calls(Midi_Operation operation) { return calls_[operation]; }
  bool Out_Is_Open() const { return out_.handle != 0; }
  bool In_Is_Open() const { return in_.handle != 0; }
  int Free_Buffers() const { return static_cast<int>(buffers_.size()); }

  // --- the service
  void Refresh() override {}
  int Out_Count() override { return static_cast<int>(out_.names.size()); }
  int Out_Caps(int device, MIDI_Out_Caps& caps) override;
  int Out_Open(std::int32_t& handle, int device) override;
  int Out_Short(std::int32_t handle, std::uint32_t message) override;
  int Out_Prepare(std::int32_t handle, MIDI_Header& header) override;
  int Out_Long(std::int32_t handle, MIDI_Header& header) override;
  int Out_Unprepare(std::int32_t handle, MIDI_Header& header) override;
  int Out_Close(std::int32_t handle) override;
  int In_Count() override { return static_cast<int>(in_.names.size()); }
  int In_Caps(int device, MIDI_In_Caps& caps) override;
  int In_Open(std::int32_t& handle, int device, Midi_Receiver receiver) override;
  int In_Prepare(std::int32_t handle, MIDI_Header& header) override;
  int In_Add_Buffer(std::int32_t handle, MIDI_Header& header) override;
  int In_Unprepare(std::int32_t handle, MIDI_Header& header) override;
  int In_Start(std::int32_t handle) override;
  int In_Reset(std::int32_t handle) override;
  int In_Close(std::int32_t handle) override;
  std::string Error_Text(int code) override {
    return code <= Midi_No_Device ? "Text of " + std::to_string(code) : std::string();
  }

 private:
  // The outputs, or the inputs: their names, and the one that is open.
  struct Side {
    std::vector<std::string> names{"JX-8P"};
    std::int32_t handle = 0;
  };
  struct Failure {
    int code = 0;
    int times = 0;
  };

  int Enter(Midi_Operation operation);
  int Enter(Midi_Operation operation, std::int32_t handle, const Side& side);
  int Open(Midi_Operation operation, Side& side, std::int32_t& handle, int device);
  int Prepare(Midi_Operation operation, std::int32_t handle, const Side& side, MIDI_Header& header);
  int Unprepare(Midi_Operation operation, std::int32_t handle, const Side& side, MIDI_Header& header);
  int Take(Byte_String message);
  void Stop();

  Side out_;
  Side in_;
  std::map<Midi_Operation, Failure> failures_;
  std::map<Midi_Operation, int> calls_;
  std::vector<Byte_String> sent_;
  std::vector<MIDI_Header*> buffers_;
  Midi_Receiver receiver_;
  std::int32_t last_handle_ = 0;
  bool started_ = false;
  bool unplugged_ = false;
};
