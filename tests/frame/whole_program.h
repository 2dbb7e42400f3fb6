// The whole program from its settings file to its end.
#pragma once

#include "frame/start_up.h"
#include "platform/directories.h"
#include "sequencer/model.h"
#include "support/program.h"
#include "windows/midi_setup_window.h"

constexpr const char* Configured = "[MIDI]\nInput=JX-8P\nOutput=JX-8P\n";

struct Whole_Program : Program {
  Whole_Program() {
    MIDI_Enabled = 0;
    Directories_Set("C:", root.host.string());
    root.Put("MELVOR.FNT", "font");
  }
  void TearDown() override { End_Without_Questions(); }
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
};
