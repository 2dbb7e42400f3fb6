// A MIDI service that keeps what it is given, for tests: small verbs to script it and to look at what was
// sent. It installs itself while it lives. A call that no careful program makes is answered by its code,
// which the program tells in a box that no test expects. Operations go by their names here: "Out_Open".
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/midi_service.h"

using Texts = std::vector<std::string>;

// "F0 41 36" and back; blanks are free.
std::string Hex_Text(std::string_view bytes);
Byte_String Bytes_Of(std::string_view hex_text);

struct Recording_Service final : Midi_Service {
  Recording_Service() { Install_Midi_Service(this); }
  ~Recording_Service() override { Install_Midi_Service(nullptr); }
  Recording_Service(const Recording_Service&) = delete;
  Recording_Service& operator=(const Recording_Service&) = delete;

  // --- the script
  Texts outputs{"JX-8P"}, inputs{"JX-8P"};
  void Fail_Next(const std::string& operation, int code, int times = 1) {
    failures_[operation] = {code, times};
  }
  bool Deliver(Byte_String bytes);  // to the started input; false: no input, or no buffer for it

  // --- what was seen
  std::vector<Byte_String> sent;
  Texts Take_Hex();  // what was sent, as texts; forgets it too
  std::map<std::string, int> calls;
  bool Out_Is_Open() const { return out_ != 0; }
  bool In_Is_Open() const { return in_ != 0; }
  std::vector<MIDI_Header*> buffers;  // that wait to be filled

  // --- the service
  void Refresh() override {}
  int Out_Count() override { return static_cast<int>(outputs.size()); }
  int Out_Caps(int device, MIDI_Out_Caps& caps) override { return Name_Of(outputs, device, caps); }
  int Out_Open(std::int32_t& handle, int device) override {
    return Open("Out_Open", handle, out_, outputs, device);
  }
  int Out_Short(std::int32_t handle, std::uint32_t message) override;
  int Out_Prepare(std::int32_t handle, MIDI_Header&) override { return Do("Out_Prepare", handle, out_); }
  int Out_Long(std::int32_t handle, MIDI_Header& header) override;
  int Out_Unprepare(std::int32_t handle, MIDI_Header&) override { return Do("Out_Unprepare", handle, out_); }
  int Out_Close(std::int32_t handle) override;
  int In_Count() override { return static_cast<int>(inputs.size()); }
  int In_Caps(int device, MIDI_In_Caps& caps) override { return Name_Of(inputs, device, caps); }
  int In_Open(std::int32_t& handle, int device, Midi_Receiver receiver) override;
  int In_Prepare(std::int32_t handle, MIDI_Header& header) override;
  int In_Add_Buffer(std::int32_t handle, MIDI_Header& header) override;
  int In_Unprepare(std::int32_t handle, MIDI_Header&) override { return Do("In_Unprepare", handle, in_); }
  int In_Start(std::int32_t handle) override { return Do("In_Start", handle, in_); }
  int In_Reset(std::int32_t handle) override;
  int In_Close(std::int32_t handle) override;
  std::string Error_Text(int code) override {
    return code <= Midi_No_Device ? "Text of " + std::to_string(code) : std::string();
  }

 private:
  template <class Caps>
  static int Name_Of(const Texts& names, int device, Caps& caps) {
    caps = {};
    names.at(static_cast<std::size_t>(device)).copy(caps.name.data(), Midi_Name_Size - 1);
    return Midi_Ok;
  }
  int Do(const std::string& operation, std::int32_t handle, std::int32_t opened);
  int Open(const std::string& operation, std::int32_t& handle, std::int32_t& opened, const Texts& names,
           int device);

  std::int32_t out_ = 0, in_ = 0;  // their handles; 0: closed
  std::int32_t last_handle_ = 0;
  std::map<std::string, std::pair<int, int>> failures_;  // code, and how many times
  Midi_Receiver receiver_;
};
