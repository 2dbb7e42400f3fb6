#include "recording_service.h"

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

bool Recording_Service::Deliver(Byte_String bytes) {
  if (calls["In_Start"] == 0 || buffers.empty()) return false;
  MIDI_Header& header = *buffers.front();
  if (header.buffer_length < bytes.size()) return false;
  buffers.erase(buffers.begin());
  header.bytes_recorded = static_cast<std::uint32_t>(bytes.size());
  header.data = std::move(bytes);
  const Midi_Receiver receiver = receiver_;  // it may close the input
  receiver(header);
  return true;
}

Texts Recording_Service::Take_Hex() {
  Texts texts;
  for (const Byte_String& message : std::exchange(sent, {})) texts.push_back(Hex_Text(message));
  return texts;
}

int Recording_Service::Do(const std::string& operation, std::int32_t handle, std::int32_t opened) {
  ++calls[operation];
  if (auto& [code, times] = failures_[operation]; times-- > 0) return code;
  return handle == opened && handle != 0 ? Midi_Ok : Midi_Invalid_Handle;
}

int Recording_Service::Open(const std::string& operation, std::int32_t& handle, std::int32_t& opened,
                            const Texts& names, int device) {
  if (opened != 0) return Midi_Allocated;
  if (device < 0 || device >= static_cast<int>(names.size())) return Midi_Bad_Device;
  const int code = Do(operation, 1, 1);  // no handle yet that could be wrong
  if (code == Midi_Ok) handle = opened = ++last_handle_;
  return code;
}

int Recording_Service::Out_Short(std::int32_t handle, std::uint32_t message) {
  const int code = Do("Out_Short", handle, out_);
  Byte_String bytes;
  for (unsigned shift = 0; shift < 24; shift += 8) bytes += static_cast<char>(message >> shift & 0xFFU);
  if ((message & 0xE0U) == 0xC0) bytes.pop_back();
  if (code == Midi_Ok && (message & 0x80U) != 0) sent.push_back(bytes);
  return code;
}

int Recording_Service::Out_Long(std::int32_t handle, MIDI_Header& header) {
  const int code = Do("Out_Long", handle, out_);
  if (code == Midi_Ok) sent.push_back(header.data.substr(0, header.buffer_length));
  return code;
}

int Recording_Service::Out_Close(std::int32_t handle) {
  const int code = Do("Out_Close", handle, out_);
  if (code == Midi_Ok) out_ = 0;
  return code;
}

int Recording_Service::In_Open(std::int32_t& handle, int device, Midi_Receiver receiver) {
  receiver_ = std::move(receiver);
  return Open("In_Open", handle, in_, inputs, device);
}

int Recording_Service::In_Prepare(std::int32_t handle, MIDI_Header& header) {
  const int code = Do("In_Prepare", handle, in_);
  if (code == Midi_Ok) header.flags |= Header_Prepared;
  return code;
}

int Recording_Service::In_Add_Buffer(std::int32_t handle, MIDI_Header& header) {
  const int code = Do("In_Add_Buffer", handle, in_);
  if (code == Midi_Ok) buffers.push_back(&header);
  return code;
}

int Recording_Service::In_Reset(std::int32_t handle) {
  buffers.clear();
  return Do("In_Reset", handle, in_);
}

int Recording_Service::In_Close(std::int32_t handle) {
  const int code = Do("In_Close", handle, in_);
  if (code == Midi_Ok) in_ = 0;
  return code;
}
