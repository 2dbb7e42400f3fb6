#include "core/undo.h"

#include <optional>

#include "core/records.h"
#include "core/sysex.h"
#include "core/tone_params.h"
#include "midi/state.h"
#include "windows/frame_window.h"
#include "windows/state.h"

namespace {

struct Sound {
  Byte_Record<Tone_Size> tone;
  Byte_Record<Patch_Size> patch;
  int saved;
};

std::optional<Sound> pushed_out;  // of the editor, by the undo copies that a Save As brings back

void Copy_Back() {
  Tone = Tone_Undo;
  Patch_Rec = Patch_Undo;
}

}  // namespace

void Undo_Store() {
  Tone_Undo = Tone;
  Patch_Undo = Patch_Rec;
  MELVOR.Menu_Edit_Undo.enabled = true;
}

void Undo_Restore() {
  Copy_Back();
  Tone_Patch_Show();
  MELVOR.Menu_Edit_Undo.enabled = false;
  SysEx_Dump_Send();
}

void Undo_Restore_Quiet() {
  Undo_Take_Back();
  Tone_Loading = Flag_On;
  Tone_Patch_Show();
  Tone_Loading = Flag_Off;
  if (Autosend == 1) SysEx_Dump_Send();
}

void Undo_Take_Back() {
  if (!pushed_out) pushed_out = Sound{Tone, Patch_Rec, Tone_Saved};
  Copy_Back();
}

void Undo_Keep_Pushed_Out() {
  if (pushed_out && !(pushed_out->tone == Tone && pushed_out->patch == Patch_Rec)) {
    Tone_Undo = pushed_out->tone;
    Patch_Undo = pushed_out->patch;
    MELVOR.Menu_Edit_Undo.enabled = true;
    if (pushed_out->saved == Flag_False) Tone_Saved = Flag_False;  // what a later try wrote was the undo copy
  }
  pushed_out.reset();
}

void Tone_Patch_Show() {
  Tone_Show();
  if (Patch_Open == Flag_On) Patch_Show();
}
