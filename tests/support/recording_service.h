// A MIDI service that keeps what it is given, for tests: small verbs to script it and to look at what was
// sent. It installs itself while it lives. Calls that no careful program makes fail the test: a handle above
// 0 that is not open, an output opened twice, a long message whose header was never prepared, a buffer added
// twice. Handles of 0 and below answer 5 without failing, since the program is known to try with a closed
// handle.
#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/midi_service.h"

// Ignored: a short message that does not begin with a status byte, of three bytes, which went nowhere.
enum class Sent_Kind { Short, Long, Ignored };

struct Sent_Message {
  Sent_Kind kind = Sent_Kind::Short;
  Byte_String bytes;

  bool operator==(const Sent_Message&) const = default;
};
void PrintTo(const Sent_Message& message, std::ostream* out);

// "F0 41 36" and back; blanks are free.
std::string Hex_Text(std::string_view bytes);
Byte_String Bytes_Of(std::string_view hex_text);

enum class Midi_Operation {
  Refresh,
  Out_Caps,
  Out_Open,
  Out_Short,
  Out_Prepare,
  Out_Long,
  Out_Unprepare,
  Out_Close,
  In_Caps,
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
  void Fail_Next(Midi_Operation operation, int code, int times = 1);
  void Answer_65(int times) { Fail_Next(Midi_Operation::Out_Close, Midi_Still_Playing, times); }
  void Unplug();                    // every device goes; messages to an open output are answered with 68
  bool Deliver(Byte_String bytes);  // to the started input; false: no input, or no buffer for it

  // --- what was seen
  const std::vector<Sent_Message>& Sent() const { return sent_; }
  std::vector<Sent_Message> Take_Sent();  // and forgets them
  std::vector<std::string> Take_Hex();    // what went over the wire only, one text per message; forgets all
  Byte_String Wire() const;               // all bytes that went over the wire, one after another
  int Calls(Midi_Operation operation) const;
  bool Out_Is_Open() const { return out_.handle != 0; }
  bool In_Is_Open() const { return in_.handle != 0; }
  bool In_Is_Started() const { return started_; }
  int Free_Buffers() const { return static_cast<int>(buffers_.size()); }

  // --- the service
  void Refresh() override { Enter(Midi_Operation::Refresh); }
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
  // "Text of 5" and so on for the codes of the interface, else empty.
  std::string Error_Text(int code) override;

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
  int Take(Sent_Message message);
  bool Holds(const MIDI_Header& header) const;
  void Stop();

  Side out_;
  Side in_;
  std::map<Midi_Operation, Failure> failures_;
  std::map<Midi_Operation, int> calls_;
  std::vector<Sent_Message> sent_;
  std::vector<MIDI_Header*> buffers_;
  Midi_Receiver receiver_;
  std::int32_t last_handle_ = 0;
  bool started_ = false;
  bool unplugged_ = false;
  bool prepare_failed_ = false;
};
