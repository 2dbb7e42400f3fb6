// The program with its Editor shown, and a directory "songs" of tones and sequences on a drive C: of its own.
#pragma once

#include <algorithm>

#include "core/file_places.h"
#include "filebrowser/dialog.h"
#include "filebrowser/state.h"
#include "panel/editor.h"
#include "panel/input_box.h"
#include "sequencer/model.h"
#include "sequencer/seq_clock.h"
#include "sequencer/seq_files.h"
#include "support/program.h"
#include "windows/input_dlg_window.h"

// A tone file whose name is ten times the letter and whose other bytes are 1.
inline std::string Tone_Bytes(char letter) {
  return Bytes_Of("F0 41 35 00 21 20 01") + std::string(10, letter) + std::string(49, '\1') +
         Bytes_Of("F7 F0 41 36 00 21 30 01 00 01 01 01 02 01 03 01 04 01 05 01 06 01 F7");
}

struct Filebrowser_Test : Program {
  Filebrowser_Test() {
    Editor_Wire();
    Input_Box_Wire();
    Seq_Clock_Wire();
    FD_Wire();
    MELVOR.Timer_Display.on_tick = [] {
      MELVOR.Timer_Display.enabled = false;
      Display_Blink = Display_Blink == Flag_True ? Flag_False : Flag_True;
    };
    root.Make("songs/sub");
    root.Put("songs/a.syx", Tone_Bytes('A'));
    root.Put("songs/B.SYX", Tone_Bytes('B'));
    root.Put("songs/bad.syx", "no tone");
    root.Put("songs/p.seq", "SEQ1" + Bytes_Of("3C 30") + std::string(104, '\x7F'));
    root.Put("songs/x.osc", "curve");
    Fresh_Memory();
    Show(Editor);
  }

  void Fresh_Memory() {
    Dir_Tones = Dir_Sequences = Dir_Oscillators = "c:\\songs\\";
    Recent_Tones = Recent_Seqs = {};
    Autoplay = Autosend = MIDI_Enabled = 1;
    Soundcheck = 0;
    Soundcheck_Note = 48;
    Soundcheck_Velocity = 80;
    Tone.bytes.fill('M');
    Tone_Undo.bytes.fill('U');
    Tone_File = "old tone";
    Tone_Saved = Flag_True;
    Seq_Clear();
    Seq_Data.fill(5);
    Seq_File = "old sequence";
    MIDI_Out_Close_Wholly();
    service.sent.clear();
  }

  void Open(const std::string& kind) {
    Dlg_Kind = kind;
    Show(File_Dlg);
  }
  bool Is_Open() const { return File_Dlg.Loaded(); }

  // A mouse press on the file, as it reaches the list: the row is selected already.
  void Press_File(const std::string& name) {
    const std::vector<std::string>& names = File_Dlg.FD_List_Files.items();
    const auto entry = std::find(names.begin(), names.end(), name);
    User_Selected(File_Dlg.FD_List_Files, static_cast<int>(entry - names.begin()));
    desktop.Click(File_Dlg.FD_List_Files);
  }
  // The second press of a double click comes while the first one's preview waits, if it does.
  void Double_Click_File(const std::string& name) {
    const auto second = [] { Mouse_Double(File_Dlg.FD_List_Files, {Left_Button, 0, 4, 4}); };
    const bool waits = Dlg_Kind == "Open_SYX" && Autoplay == 1 && Soundcheck == 0 && name != "bad.syx";
    if (waits) desktop.At_Wait(second);
    Press_File(name);
    if (!waits) second();
  }
  void Enter(const std::string& text) {
    desktop.Type(File_Dlg.FD_FileName, text);
    desktop.Key(Key::Enter);
  }

  // What went over the wire: a tone dump as "dump" and the first letter of its name.
  std::string Heard() {
    std::string heard;
    for (const Byte_String& message : std::exchange(service.sent, {})) {
      const bool dump = message.size() == 90;
      heard += (heard.empty() ? "" : ", ") + (dump ? "dump " + message.substr(7, 1) : Hex_Text(message));
    }
    return heard;
  }
};
