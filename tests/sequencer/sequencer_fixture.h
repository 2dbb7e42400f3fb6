// The program with its Editor shown, an empty sequence at base note 48, and a drive C: of its own.
#pragma once

#include "core/file_places.h"
#include "panel/editor.h"
#include "sequencer/model.h"
#include "sequencer/seq_clock.h"
#include "sequencer/seq_commands.h"
#include "sequencer/seq_editor.h"
#include "sequencer/seq_files.h"
#include "sequencer/seq_transport.h"
#include "sequencer/seq_window.h"
#include "support/program.h"
#include "windows/sequencer_window.h"

struct Sequencer_Test : Program {
  Sequencer_Test() {
    Editor_Wire();
    Seq_Editor_Wire();
    Seq_Clock_Wire();
    Seq_Window_Wire();
    Dir_Sequences = "c:\\";
    Seq_Clear();
    Seq_File.clear();
    Seq_Base_Note = 48;
    Seq_Prev_Step = 0;
    Seq_Select_Mode(Play_Mode::Forward);
    MELVOR.Seq_Tmr.interval_ms = 250;
    Show(Editor);
  }

  void Open_Window() {
    Menu_MIDI_Seq();
    Sent();
  }
};
