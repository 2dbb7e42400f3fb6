// The far end of a kernel port, as raw MIDI.
#pragma once

#include <alsa/asoundlib.h>

#include <string>

struct Raw_Midi {
  explicit Raw_Midi(const std::string& device);  // "hw:CARD,DEVICE"
  ~Raw_Midi();
  Raw_Midi(const Raw_Midi&) = delete;
  Raw_Midi& operator=(const Raw_Midi&) = delete;

  bool Is_Open() const { return in_ != nullptr && out_ != nullptr; }
  std::string Read();  // what has come, without waiting
  void Write(const std::string& bytes);

 private:
  snd_rawmidi_t* in_ = nullptr;
  snd_rawmidi_t* out_ = nullptr;
};
