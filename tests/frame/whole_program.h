// The whole program from its settings file to its end.
#pragma once

#include "core/records.h"
#include "frame/start_up.h"
#include "midi/devices.h"
#include "midi/state.h"
#include "platform/directories.h"
#include "sequencer/model.h"
#include "support/recording_service.h"
#include "support/scripted_desktop.h"
#include "support/temporary_root.h"
#include "windows/editor_window.h"
#include "windows/frame_window.h"
#include "windows/midi_setup_window.h"
#include "windows/modal.h"
#include "windows/state.h"

constexpr const char* Configured = "[MIDI]\nInput=JX-8P\nOutput=JX-8P\n";

struct Whole_Program : testing::Test {
  Whole_Program() {
    MIDI_Enabled = 0;
    Directories_Set("C:", root.host.string());
    root.Put("MELVOR.FNT", "font");
  }
  ~Whole_Program() override { End_Without_Questions(); }
  bool Start(const std::string& settings = Configured) {
    root.Put("MELVOR.INI", settings);
    return Start_Up();
  }
  // A sequence that nobody saved begins to play.
  void Play() {
    Seq_Data[0] = 127;
    Seq_Saved = Flag_Off;
    desktop.Click(Editor.ED_Seq_Start);
    EXPECT_EQ(Seq_Running, Flag_On);
  }

  Temporary_Root root;
  Scripted_Desktop desktop;
  Recording_Service service;
};
