#include "recording_service.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <utility>

namespace {

constexpr std::size_t Long_Limit = 1024;
constexpr std::size_t Short_Limit = 4096;

std::size_t Short_Length(unsigned status) {
  if (status >= 0xF4 || status == 0xF0) return 1;
  if ((status & 0xE0U) == 0xC0 || status == 0xF1 || status == 0xF3) return 2;
  return 3;
}

template <class Caps>
int Fill_Name(const std::vector<std::string>& names, int device, Caps& caps) {
  if (device < 0 || device >= static_cast<int>(names.size())) return Midi_Bad_Device;
  caps = Caps{};
  names[static_cast<std::size_t>(device)].copy(caps.name.data(), Midi_Name_Size - 1);
  return Midi_Ok;
}

void Check_Names(const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    if (name.size() >= Midi_Name_Size) ADD_FAILURE() << "a device name of more than 31 characters: " << name;
  }
}

}  // namespace

void PrintTo(const Sent_Message& message, std::ostream* out) {
  constexpr const char* Kinds[] = {"short ", "long ", "ignored "};
  *out << Kinds[static_cast<int>(message.kind)] << Hex_Text(message.bytes);
}

std::string Hex_Text(std::string_view bytes) {
  constexpr std::string_view Digits = "0123456789ABCDEF";
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (!text.empty()) text += ' ';
    text += Digits[byte >> 4U];
    text += Digits[byte & 15U];
  }
  return text;
}

Byte_String Bytes_Of(std::string_view hex_text) {
  std::string digits(hex_text);
  std::erase(digits, ' ');
  Byte_String bytes;
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
    bytes += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
  }
  return bytes;
}

Recording_Service::Recording_Service() : outputs_{"JX-8P"}, inputs_{"JX-8P"} { Install_Midi_Service(this); }
Recording_Service::~Recording_Service() { Install_Midi_Service(nullptr); }

void Recording_Service::Outputs(std::vector<std::string> names) {
  Check_Names(names);
  outputs_ = std::move(names);
}

void Recording_Service::Inputs(std::vector<std::string> names) {
  Check_Names(names);
  inputs_ = std::move(names);
}

void Recording_Service::Fail_Next(Midi_Operation operation, int code, int times) {
  failures_[operation] = {code, times};
}

void Recording_Service::Answer_65(int times) { still_playing_ = times; }
void Recording_Service::Stay_Full(bool full) { full_ = full; }
void Recording_Service::Hold_Wire() { held_ = true; }

void Recording_Service::Release_Wire() {
  held_ = false;
  waiting_bytes_ = 0;
}

void Recording_Service::Unplug() {
  waiting_bytes_ = 0;
  outputs_.clear();
  inputs_.clear();
  unplugged_ = true;
}

bool Recording_Service::Deliver(Byte_String bytes) {
  if (!started_ || buffers_.empty()) return false;
  MIDI_Header& header = *buffers_.front();
  if (header.buffer_length < bytes.size()) return false;
  buffers_.erase(buffers_.begin());
  header.bytes_recorded = static_cast<std::uint32_t>(bytes.size());
  header.data = std::move(bytes);
  header.flags |= Header_Done;
  const Midi_Receiver receiver = receiver_;  // it may close the input
  receiver(header);
  return true;
}

std::vector<Sent_Message> Recording_Service::Take_Sent() { return std::exchange(sent_, {}); }

std::vector<std::string> Recording_Service::Take_Hex() {
  std::vector<std::string> texts;
  for (const Sent_Message& message : Take_Sent()) {
    if (message.kind != Sent_Kind::Ignored) texts.push_back(Hex_Text(message.bytes));
  }
  return texts;
}

Byte_String Recording_Service::Wire() const {
  Byte_String bytes;
  for (const Sent_Message& message : sent_) {
    if (message.kind != Sent_Kind::Ignored) bytes += message.bytes;
  }
  return bytes;
}

int Recording_Service::Calls(Midi_Operation operation) const {
  const auto found = calls_.find(operation);
  return found == calls_.end() ? 0 : found->second;
}

int Recording_Service::Enter(Midi_Operation operation) {
  ++calls_[operation];
  Failure& failure = failures_[operation];
  if (failure.times <= 0) return Midi_Ok;
  --failure.times;
  return failure.code;
}

int Recording_Service::Enter(Midi_Operation operation, std::int32_t handle, std::int32_t open_handle) {
  const int scripted = Enter(operation);
  if (handle > 0 && handle != open_handle) ADD_FAILURE() << "handle " << handle << " is not open";
  if (handle <= 0 || handle != open_handle) return Midi_Invalid_Handle;
  return scripted;
}

int Recording_Service::Take(Sent_Message message, std::size_t limit) {
  if (unplugged_) return Midi_No_Device;
  if (full_ || (held_ && waiting_bytes_ >= limit)) return Midi_Not_Ready;
  if (held_) waiting_bytes_ += message.bytes.size();
  sent_.push_back(std::move(message));
  return Midi_Ok;
}

void Recording_Service::Refresh() { Enter(Midi_Operation::Refresh); }
int Recording_Service::Out_Count() { return static_cast<int>(outputs_.size()); }
int Recording_Service::In_Count() { return static_cast<int>(inputs_.size()); }

int Recording_Service::Out_Caps(int device, MIDI_Out_Caps& caps) {
  const int scripted = Enter(Midi_Operation::Out_Caps);
  return scripted != Midi_Ok ? scripted : Fill_Name(outputs_, device, caps);
}

int Recording_Service::In_Caps(int device, MIDI_In_Caps& caps) {
  const int scripted = Enter(Midi_Operation::In_Caps);
  return scripted != Midi_Ok ? scripted : Fill_Name(inputs_, device, caps);
}

int Recording_Service::Out_Open(std::int32_t& handle, int device) {
  if (const int scripted = Enter(Midi_Operation::Out_Open)) return scripted;
  if (device < 0 || device >= Out_Count()) return Midi_Bad_Device;
  if (Out_Is_Open()) {
    ADD_FAILURE() << "an output is opened while one is open";
    return Midi_Allocated;
  }
  handle = out_handle_ = ++last_handle_;
  out_device_ = device;
  unplugged_ = false;
  return Midi_Ok;
}

int Recording_Service::Out_Short(std::int32_t handle, std::uint32_t message) {
  if (const int code = Enter(Midi_Operation::Out_Short, handle, out_handle_)) return code;
  Byte_String bytes;
  for (unsigned shift = 0; shift < 24; shift += 8) bytes += static_cast<char>(message >> shift & 0xFFU);
  const unsigned status = message & 0xFFU;
  if (status < 0x80) {
    sent_.push_back({Sent_Kind::Ignored, bytes});
    return Midi_Ok;
  }
  return Take({Sent_Kind::Short, bytes.substr(0, Short_Length(status))}, Short_Limit);
}

int Recording_Service::Out_Prepare(std::int32_t handle, MIDI_Header& header) {
  const int code = Enter(Midi_Operation::Out_Prepare, handle, out_handle_);
  prepare_failed_ = code != Midi_Ok;
  if (code == Midi_Ok) header.flags |= Header_Prepared;
  return code;
}

int Recording_Service::Out_Long(std::int32_t handle, MIDI_Header& header) {
  if (const int code = Enter(Midi_Operation::Out_Long, handle, out_handle_)) return code;
  if ((header.flags & Header_Prepared) == 0) {
    if (!prepare_failed_) ADD_FAILURE() << "a long message whose header was not prepared";
    return Midi_Unprepared;
  }
  if (header.buffer_length > header.data.size()) {
    ADD_FAILURE() << "a header that is longer than its data";
    return Midi_Invalid_Parameter;
  }
  const int code = Take({Sent_Kind::Long, header.data.substr(0, header.buffer_length)}, Long_Limit);
  if (code == Midi_Ok) header.flags |= Header_Done;
  return code;
}

int Recording_Service::Out_Unprepare(std::int32_t handle, MIDI_Header& header) {
  if (const int code = Enter(Midi_Operation::Out_Unprepare, handle, out_handle_)) return code;
  header.flags &= ~Header_Prepared;
  return Midi_Ok;
}

int Recording_Service::Out_Close(std::int32_t handle) {
  if (const int code = Enter(Midi_Operation::Out_Close, handle, out_handle_)) return code;
  if (still_playing_ > 0 || waiting_bytes_ > 0) {
    still_playing_ = std::max(0, still_playing_ - 1);
    return Midi_Still_Playing;
  }
  out_handle_ = 0;
  return Midi_Ok;
}

int Recording_Service::In_Open(std::int32_t& handle, int device, Midi_Receiver receiver) {
  if (const int scripted = Enter(Midi_Operation::In_Open)) return scripted;
  if (device < 0 || device >= In_Count()) return Midi_Bad_Device;
  if (In_Is_Open()) {
    ADD_FAILURE() << "an input is opened while one is open";
    return Midi_Allocated;
  }
  handle = in_handle_ = ++last_handle_;
  in_device_ = device;
  receiver_ = std::move(receiver);
  started_ = false;
  return Midi_Ok;
}

int Recording_Service::In_Prepare(std::int32_t handle, MIDI_Header& header) {
  if (const int code = Enter(Midi_Operation::In_Prepare, handle, in_handle_)) return code;
  header.flags |= Header_Prepared;
  return Midi_Ok;
}

int Recording_Service::In_Add_Buffer(std::int32_t handle, MIDI_Header& header) {
  if (const int code = Enter(Midi_Operation::In_Add_Buffer, handle, in_handle_)) return code;
  if ((header.flags & Header_Prepared) == 0) {
    ADD_FAILURE() << "a buffer that was not prepared is added";
    return Midi_Unprepared;
  }
  if (std::find(buffers_.begin(), buffers_.end(), &header) != buffers_.end()) {
    ADD_FAILURE() << "a buffer is added twice";
    return Midi_Still_Playing;
  }
  header.flags &= ~Header_Done;
  buffers_.push_back(&header);
  return Midi_Ok;
}

int Recording_Service::In_Unprepare(std::int32_t handle, MIDI_Header& header) {
  if (const int code = Enter(Midi_Operation::In_Unprepare, handle, in_handle_)) return code;
  if (std::find(buffers_.begin(), buffers_.end(), &header) != buffers_.end()) {
    ADD_FAILURE() << "a buffer is unprepared while the input has it";
    return Midi_Still_Playing;
  }
  header.flags &= ~Header_Prepared;
  return Midi_Ok;
}

int Recording_Service::In_Start(std::int32_t handle) {
  if (const int code = Enter(Midi_Operation::In_Start, handle, in_handle_)) return code;
  started_ = true;
  return Midi_Ok;
}

int Recording_Service::In_Reset(std::int32_t handle) {
  if (const int code = Enter(Midi_Operation::In_Reset, handle, in_handle_)) return code;
  started_ = false;
  buffers_.clear();
  return Midi_Ok;
}

int Recording_Service::In_Close(std::int32_t handle) {
  if (const int code = Enter(Midi_Operation::In_Close, handle, in_handle_)) return code;
  started_ = false;
  buffers_.clear();
  receiver_ = nullptr;
  in_handle_ = 0;
  return Midi_Ok;
}

std::string Recording_Service::Error_Text(int code) {
  const bool known =
      (code > 0 && code <= Midi_Invalid_Parameter) || (code >= Midi_Unprepared && code <= Midi_No_Device);
  return known ? "Text of " + std::to_string(code) : std::string();
}
