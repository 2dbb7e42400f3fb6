// Desktop, MIDI service and module state of one test: as the program stands after its start, output closed.
#pragma once

#include "core/records.h"
#include "core/sysex.h"
#include "core/tone_params.h"
#include "midi/devices.h"
#include "midi/input.h"
#include "midi/output.h"
#include "midi/state.h"
#include "support/recording_service.h"
#include "support/scripted_desktop.h"
#include "windows/frame_window.h"
#include "windows/state.h"

struct Program : testing::Test {
  Program() {
    MIDI_Enabled = 1;
    Autosend = 1;
    MIDI_Channel = 1;
    Synthesizer = "JX-8P";
    MIDI_Out_Device = 0;
    MIDI_In_Device = 0;
    MIDI_Out_Handle = -1;
    MIDI_In_Handle = -1;
    Seq_Status = 0;
    SysEx_Heads_Build();
    Tone_Loading = Flag_Off;
    Tone_Clear();
  }

  // What went over the wire since the last call, a text of hexadecimal numbers a message.
  Texts Sent() { return service.Take_Hex(); }

  Scripted_Desktop desktop;
  Recording_Service service;
};
