// Desktop, MIDI service, drive C: and module state of one test: as the program is after its start, output
// closed.
#pragma once

#include "core/recent.h"
#include "core/records.h"
#include "core/settings.h"
#include "core/sysex.h"
#include "core/tone_commands.h"
#include "core/tone_files.h"
#include "core/tone_params.h"
#include "midi/devices.h"
#include "midi/input.h"
#include "midi/output.h"
#include "midi/state.h"
#include "platform/profile_file.h"
#include "support/recording_service.h"
#include "support/scripted_desktop.h"
#include "support/temporary_root.h"
#include "windows/editor_window.h"
#include "windows/file_dlg_window.h"
#include "windows/focus_mark.h"
#include "windows/frame_window.h"
#include "windows/modal.h"
#include "windows/pictures.h"
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
    Receive_On = 0;
    FD_Open = Flag_False;
    Recent_Tones = Recent_Seqs = {};
    INI_File.clear();
    MELVOR.state = Window_State::Normal;
    MELVOR.Seq_Tmr.enabled = false;
    SysEx_Heads_Build();
    Tone_Loading = Flag_Off;
    Tone_Clear();
  }
  // The next test finds no window open.
  void TearDown() override {
    const std::vector<Form*> windows(Loaded_Children().rbegin(), Loaded_Children().rend());
    for (Form* window : windows) Unload(*window);
    if (Frame_Form() != nullptr) Unload(*Frame_Form());
    Active_Ctl = nullptr;
  }

  // What went over the wire since the last call, a text of hexadecimal numbers a message.
  Texts Sent() { return service.Take_Hex(); }

  Temporary_Root root;
  Scripted_Desktop desktop;
  Recording_Service service;
};
