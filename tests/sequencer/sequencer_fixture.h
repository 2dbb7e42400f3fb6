// The program with its Editor shown, an empty sequence at base note 48, and a drive C: of its own.
#pragma once

#include <string>
#include <vector>

#include "core/recent.h"
#include "core/settings.h"
#include "panel/editor.h"
#include "sequencer/model.h"
#include "sequencer/seq_clock.h"
#include "sequencer/seq_commands.h"
#include "sequencer/seq_editor.h"
#include "sequencer/seq_files.h"
#include "sequencer/seq_transport.h"
#include "sequencer/seq_window.h"
#include "support/program.h"
#include "support/temporary_root.h"
#include "windows/editor_window.h"
#include "windows/file_dlg_window.h"
#include "windows/pictures.h"
#include "windows/sequencer_window.h"

struct Sequencer_Test : Program {
  Sequencer_Test() {
    Editor_Wire();
    Seq_Editor_Wire();
    Seq_Clock_Wire();
    Seq_Window_Wire();
    Dir_Sequences = "c:\\";
    Recent_Seqs = {};
    Seq_Clear();
    Seq_File.clear();
    Seq_Base_Note = 48;
    Seq_Prev_Step = 0;
    Seq_Select_Mode(Play_Mode::Forward);
    MELVOR.Seq_Tmr.interval_ms = 250;
    FD_Done = Flag_Off;
    Show(Editor);
  }
  ~Sequencer_Test() override {
    MELVOR.Seq_Tmr.enabled = false;
    FD_Open = Flag_False;
    Receive_On = 0;
    Unload(Sequencer);
    Unload(Editor);
  }

  void Open_Window() {
    Menu_MIDI_Seq();
    Sent();
  }
  bool Ticking() const { return MELVOR.Seq_Tmr.enabled(); }
  bool Start_Is_Down() const { return Editor.ED_Seq_Start.picture() == Button_Dn3D; }

  // Step s sounds with velocity s + 1 in its bottom row, so that what is played can be told from the bytes.
  void Mark_Steps() {
    for (int step = 0; step < 8; ++step)
      Seq_Data[static_cast<std::size_t>(step * 13 + 12)] = static_cast<std::int16_t>(step + 1);
    Seq_Saved = Flag_Off;
  }
  // The steps that the next ticks play.
  std::vector<int> Play(int ticks) {
    std::vector<int> steps;
    for (int tick = 0; tick < ticks; ++tick) {
      service.Take_Sent();
      Seq_Tick();
      EXPECT_EQ(service.Sent().size(), 13U);
      steps.push_back(service.Sent().back().bytes.back() - 1);
    }
    return steps;
  }

  Temporary_Root root;
};
