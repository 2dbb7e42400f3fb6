#include "recording_service.h"

#include <gtest/gtest.h>

namespace {

std::size_t Short_Length(unsigned status) {
  if (status >= 0xF4 || status == 0xF0) return 1;
  if ((status & 0xE0U) == 0xC0 || status == 0xF1 || status == 0xF3) return 2;
  return 3;
}

template <class Caps>
int Fill_Name(const std::vector<std::string>& names, int device, Caps& caps) {
  if (device < 0 || device >= static_cast<int>(names.size())) return Midi_Bad_Device;
  const std::string& name = names[static_cast<std::size_t>(device)];
  EXPECT_LT(name.size(), std::size_t{Midi_Name_Size}) << name;
  caps = Caps{};
  name.copy(caps.name.data(), Midi_Name_Size - 1);
  return Midi_Ok;
}

}  // namespace

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

Recording_Service::Recording_Service() { Install_Midi_Service(this); }
Recording_Service::~Recording_Service() { Install_Midi_Service(nullptr); }

void Recording_Service::Unplug() {
  out_.names.clear();
  in_.names.clear();
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

std::vector<std::string> Recording_Service::Take_Hex() {
  std::vector<std::string> texts;
  for (const Byte_String& message : Take_Sent()) texts.push_back(Hex_Text(message));
  return texts;
}

Byte_String Recording_Service::Wire() const {
  Byte_String bytes;
  for (const Byte_String& message : sent_) bytes += message;
  return bytes;
}

int Recording_Service::Enter(Midi_Operation operation) {
  ++calls_[operation];
  Failure& failure = failures_[operation];
  return failure.times-- > 0 ? failure.code : Midi_Ok;
}

int Recording_Service::Enter(Midi_Operation operation, std::int32_t handle, const Side& side) {
  const int scripted = Enter(operation);
  return handle == side.handle && handle > 0 ? scripted : Midi_Invalid_Handle;
}

int Recording_Service::Open(Midi_Operation operation, Side& side, std::int32_t& handle, int device) {
  if (const int scripted = Enter(operation)) return scripted;
  if (device < 0 || device >= static_cast<int>(side.names.size())) return Midi_Bad_Device;
  if (side.handle != 0) return Midi_Allocated;
  handle = side.handle = ++last_handle_;
  return Midi_Ok;
}

int Recording_Service::Prepare(Midi_Operation operation, std::int32_t handle, const Side& side,
                               MIDI_Header& header) {
  const int code = Enter(operation, handle, side);
  if (code == Midi_Ok) header.flags |= Header_Prepared;
  return code;
}

int Recording_Service::Unprepare(Midi_Operation operation, std::int32_t handle, const Side& side,
                                 MIDI_Header& header) {
  const int code = Enter(operation, handle, side);
  if (code == Midi_Ok) header.flags &= ~Header_Prepared;
  return code;
}

int Recording_Service::Take(Byte_String message) {
  if (unplugged_) return Midi_No_Device;
  sent_.push_back(std::move(message));
  return Midi_Ok;
}

void Recording_Service::Stop() {
  started_ = false;
  buffers_.clear();
}

int Recording_Service::Out_Caps(int device, MIDI_Out_Caps& caps) {
  return Fill_Name(out_.names, device, caps);
}

int Recording_Service::In_Caps(int device, MIDI_In_Caps& caps) { return Fill_Name(in_.names, device, caps); }

int Recording_Service::Out_Open(std::int32_t& handle, int device) {
  const int code = Open(Midi_Operation::Out_Open, out_, handle, device);
  if (code == Midi_Ok) unplugged_ = false;
  return code;
}

int Recording_Service::Out_Short(std::int32_t handle, std::uint32_t message) {
  if (const int code = Enter(Midi_Operation::Out_Short, handle, out_)) return code;
  Byte_String bytes;
  for (unsigned shift = 0; shift < 24; shift += 8) bytes += static_cast<char>(message >> shift & 0xFFU);
  const unsigned status = message & 0xFFU;
  return status < 0x80 ? Midi_Ok : Take(bytes.substr(0, Short_Length(status)));
}

int Recording_Service::Out_Prepare(std::int32_t handle, MIDI_Header& header) {
  return Prepare(Midi_Operation::Out_Prepare, handle, out_, header);
}

int Recording_Service::Out_Long(std::int32_t handle, MIDI_Header& header) {
  if (const int code = Enter(Midi_Operation::Out_Long, handle, out_)) return code;
  if ((header.flags & Header_Prepared) == 0) return Midi_Unprepared;
  const int code = Take(header.data.substr(0, header.buffer_length));
  if (code == Midi_Ok) header.flags |= Header_Done;
  return code;
}

int Recording_Service::Out_Unprepare(std::int32_t handle, MIDI_Header& header) {
  return Unprepare(Midi_Operation::Out_Unprepare, handle, out_, header);
}

int Recording_Service::Out_Close(std::int32_t handle) {
  if (const int code = Enter(Midi_Operation::Out_Close, handle, out_)) return code;
  out_.handle = 0;
  return Midi_Ok;
}

int Recording_Service::In_Open(std::int32_t& handle, int device, Midi_Receiver receiver) {
  const int code = Open(Midi_Operation::In_Open, in_, handle, device);
  if (code == Midi_Ok) receiver_ = std::move(receiver);
  return code;
}

int Recording_Service::In_Prepare(std::int32_t handle, MIDI_Header& header) {
  return Prepare(Midi_Operation::In_Prepare, handle, in_, header);
}

int Recording_Service::In_Add_Buffer(std::int32_t handle, MIDI_Header& header) {
  if (const int code = Enter(Midi_Operation::In_Add_Buffer, handle, in_)) return code;
  if ((header.flags & Header_Prepared) == 0) return Midi_Unprepared;
  header.flags &= ~Header_Done;
  buffers_.push_back(&header);
  return Midi_Ok;
}

int Recording_Service::In_Unprepare(std::int32_t handle, MIDI_Header& header) {
  return Unprepare(Midi_Operation::In_Unprepare, handle, in_, header);
}

int Recording_Service::In_Start(std::int32_t handle) {
  const int code = Enter(Midi_Operation::In_Start, handle, in_);
  if (code == Midi_Ok) started_ = true;
  return code;
}

int Recording_Service::In_Reset(std::int32_t handle) {
  const int code = Enter(Midi_Operation::In_Reset, handle, in_);
  if (code == Midi_Ok) Stop();
  return code;
}

int Recording_Service::In_Close(std::int32_t handle) {
  if (const int code = Enter(Midi_Operation::In_Close, handle, in_)) return code;
  Stop();
  receiver_ = nullptr;
  in_.handle = 0;
  return Midi_Ok;
}
