#include "raw_midi.h"

namespace {
// The default of 4,096 bytes loses what comes in a burst, which would look like the sender's fault.
constexpr std::size_t Buffer_Size = 65536;
}  // namespace

Raw_Midi::Raw_Midi(const std::string& device) {
  if (snd_rawmidi_open(&in_, &out_, device.c_str(), 0) < 0) return;
  snd_rawmidi_params_t* params = nullptr;
  snd_rawmidi_params_alloca(&params);
  snd_rawmidi_params_current(in_, params);
  snd_rawmidi_params_set_buffer_size(in_, params, Buffer_Size);
  snd_rawmidi_params(in_, params);
  snd_rawmidi_nonblock(in_, 1);
  // Else the close sends a byte, and waits ten seconds for a cable that is out.
  snd_rawmidi_params_current(out_, params);
  snd_rawmidi_params_set_no_active_sensing(out_, params, 1);
  snd_rawmidi_params(out_, params);
  char byte = 0;
  snd_rawmidi_read(in_, &byte, 0);  // starts the input
}

Raw_Midi::~Raw_Midi() {
  if (in_ != nullptr) snd_rawmidi_close(in_);
  if (out_ != nullptr) snd_rawmidi_close(out_);
}

std::string Raw_Midi::Read() {
  std::string bytes;
  char buffer[1024];
  for (ssize_t count = 0; (count = snd_rawmidi_read(in_, buffer, sizeof buffer)) > 0;) {
    bytes.append(buffer, static_cast<std::size_t>(count));
  }
  return bytes;
}

void Raw_Midi::Write(const std::string& bytes) {
  snd_rawmidi_write(out_, bytes.data(), bytes.size());
  snd_rawmidi_drain(out_);
}
