#include "sequencer/seq_commands.h"

#include "core/recent.h"
#include "platform/desktop.h"
#include "platform/runtime_error.h"
#include "sequencer/model.h"
#include "sequencer/seq_files.h"
#include "windows/file_dlg_window.h"
#include "windows/frame_window.h"
#include "windows/sequencer_window.h"
#include "windows/state.h"

namespace {

// Asks about an edited matrix; No marks it as saved. Yes is left to the caller.
Answer Ask_To_Save() {
  const Answer answer = Message_Box("Save actual SEQUENCE first?", Box_Yes_No_Cancel | Box_Question);
  if (answer == Answer::No) Seq_Saved = Flag_On;
  return answer;
}

}  // namespace

void Menu_File_Seq_New() {
  if (Seq_Saved == Flag_Off && Ask_To_Save() == Answer::Yes) {
    Seq_SaveAs();
    if (Seq_Saved != Flag_On) Message_Box("Sequence not saved.", Box_Exclamation);
  }
  if (Seq_Saved == Flag_On) Seq_Clear();
}

void Menu_File_Seq_Open() {
  if (Seq_Saved == Flag_Off && Ask_To_Save() == Answer::Yes) Menu_File_Seq_SaveAs();
  if (Seq_Saved != Flag_On) return;
  Dlg_Kind = "Open_SEQ";
  Show(File_Dlg);
}

void Menu_File_Seq_Save() {
  if (Seq_File.empty() || Seq_File == ".seq") return Seq_SaveAs();
  Seq_Save();
}

void Menu_File_Seq_SaveAs() { Seq_SaveAs(); }

void Menu_File_Seq_Recent(int place) {
  const std::string path = Recent_Seqs.at(static_cast<std::size_t>(place));
  if (!path.empty()) Seq_Load(path, Load_Mode::Open);
}

void Menu_MIDI_Seq() {
  try {
    Show(Sequencer);
  } catch (const Runtime_Error& error) {
    if (error.number == Error_Out_Of_Memory)
      Message_Box("Not enough memory to display the Sequencer Window.");
  }
  MELVOR.pointer = Pointer_Shape::Default;
}

void Menu_MIDI_Seq_Load() { MELVOR.Menu_MIDI_Seq_Load.checked = !MELVOR.Menu_MIDI_Seq_Load.checked(); }
