#include "core/undo.h"

#include <optional>

#include "core/records.h"
#include "core/sysex.h"
#include "core/tone_params.h"
#include "midi/state.h"
#include "platform/files.h"
#include "platform/text.h"
#include "windows/frame_window.h"
#include "windows/state.h"

namespace {

std::optional<Tone_Origin> undo_origin;  // none while the copies are those of the start

bool Unsaved_Copy() { return undo_origin && undo_origin->saved == Flag_False; }

void Copy_Back() { Sound_Place({Tone_Undo, Patch_Undo}); }

}  // namespace

void Undo_Store() { Undo_Keep(Sound_Now(), Origin_Now()); }

void Undo_Keep(const Sound& sound, const Tone_Origin& origin) {
  Tone_Undo = sound.tone;
  Patch_Undo = sound.patch;
  undo_origin = origin;
  MELVOR.Menu_Edit_Undo.enabled = true;
}

void Undo_Restore() {
  Copy_Back();
  if (undo_origin) Origin_Place(*undo_origin);
  Tone_Patch_Show();
  MELVOR.Menu_Edit_Undo.enabled = false;
  SysEx_Dump_Send();
}

void Undo_Restore_Quiet() {
  Copy_Back();
  if (Unsaved_Copy()) Tone_Saved = Flag_False;
  Tone_Loading = Flag_On;
  Tone_Patch_Show();
  Tone_Loading = Flag_Off;
  if (Autosend == 1) SysEx_Dump_Send();
}

void Undo_File_Written() {
  if (undo_origin && Same_Text(undo_origin->file, Tone_File)) undo_origin->kept = Sound_Now();
}

void Undo_Keep_Beside_File() {
  if (!Unsaved_Copy() || !MELVOR.Menu_Edit_Undo.enabled()) return;
  const Sound copy{Tone_Undo, Patch_Undo};
  if (copy != Sound_Now()) File_Put_Copy(Tone_File, SysEx_Image_Of(copy.tone, copy.patch));
  undo_origin->saved = Flag_True;
}

void Tone_Patch_Show() {
  Tone_Show();
  if (Patch_Open == Flag_On) Patch_Show();
}
