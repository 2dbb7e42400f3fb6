#include "core/tone_origin.h"

#include "platform/text.h"
#include "windows/frame_window.h"

namespace {

Sound kept;

}  // namespace

Sound Sound_Now() { return {Tone, Patch_Rec}; }

void Sound_Place(const Sound& sound) {
  Tone = sound.tone;
  Patch_Rec = sound.patch;
}

Tone_Origin Origin_Now() {
  return {Tone_File, Tone_Title, MELVOR.caption(), MELVOR.Menu_File_SYX_Save.enabled(), kept, Tone_Saved};
}

void Origin_Place(const Tone_Origin& origin) {
  Tone_File = origin.file;
  Tone_Title = origin.title;
  MELVOR.caption = origin.caption;
  MELVOR.Menu_File_SYX_Save.enabled = origin.can_save;
  kept = origin.kept;
  Tone_Saved = origin.saved;
}

void Origin_Sound_Kept(const Sound& sound) { kept = sound; }

void Title_Show(std::string_view name) {
  MELVOR.caption = "MELVOR - " + Upper(name);
  MELVOR.Menu_File_SYX_Save.enabled = true;
}

void Title_Mark() { MELVOR.modified = Sound_Now() != kept; }
