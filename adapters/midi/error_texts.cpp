#include "adapters/midi/error_texts.h"

#include "platform/midi_service.h"

namespace Midi {
namespace {

struct Code_Text {
  int code;
  std::string_view text;
};

// The published codes, also those that this service never answers: a code may come from elsewhere.
constexpr Code_Text Texts[] = {
    {Midi_Ok, "The MIDI operation was successful."},
    {Midi_Error, "An external MIDI error occurred for which there is no further description."},
    {Midi_Bad_Device, "There is no MIDI device of this number. Choose another one in the MIDI setup."},
    {3, "The MIDI driver was not started."},
    {Midi_Allocated, "The MIDI device is already in use. Wait until it is free, then try again."},
    {Midi_Invalid_Handle, "The MIDI device is not open."},
    {Midi_No_Driver, "There is no MIDI driver installed on this system."},
    {Midi_No_Memory, "There is not enough memory for this task. Close other programs, then try again."},
    {Midi_Not_Supported, "The MIDI device does not support this function."},
    {9, "The MIDI driver gave an error number that is not known."},
    {10, "A flag that was handed to the MIDI driver is not valid."},
    {Midi_Invalid_Parameter, "A parameter that was handed to the MIDI driver is not valid."},
    {Midi_Unprepared, "The MIDI header was not prepared."},
    {Midi_Still_Playing, "MIDI data is still being played. Wait until it has ended, then try again."},
    {66, "There is no MIDI map."},
    {Midi_Not_Ready, "The MIDI device is busy sending other data. Wait a moment, then try again."},
    {Midi_No_Device,
     "The MIDI device is no longer connected. Check the cable, then choose it in the MIDI setup."},
    {69, "The MIDI setup of the system is damaged."},
    {70, "The MIDI device cannot do this while it is open in another mode."},
};

}  // namespace

std::string_view Text_Of_Code(int code) {
  for (const Code_Text& row : Texts) {
    if (row.code == code) return row.text;
  }
  return {};
}

}  // namespace Midi
