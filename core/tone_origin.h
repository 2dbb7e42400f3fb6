// The sound in the editor as a whole, the file that it belongs to, and the frame's title, which names that
// file and bears the desktop's mark of a change while the sound differs from what the file holds. Called by
// the tone files, the tone commands and Undo, on the user-interface thread.
#pragma once

#include <string>
#include <string_view>

#include "core/records.h"
#include "windows/state.h"

struct Sound {
  Byte_Record<Tone_Size> tone;
  Byte_Record<Patch_Size> patch;
  bool operator==(const Sound&) const = default;
};

Sound Sound_Now();
// Replaces both records; shows and sends nothing.
void Sound_Place(const Sound& sound);

struct Tone_Origin {
  std::string file, title;  // Tone_File, Tone_Title
  std::string caption;      // of the frame
  bool can_save = false;    // whether the menu offers Save
  Sound kept;               // what the file holds; without a file, what New gives
  int saved = Flag_True;    // Tone_Saved
};

Tone_Origin Origin_Now();
void Origin_Place(const Tone_Origin& origin);

// The file holds this sound, by default the one in the editor.
void Origin_Sound_Kept(const Sound& sound = Sound_Now());

// Names the tone in the caption, in upper case, and offers Save.
void Title_Show(std::string_view name);
// Brings the mark up to date. Runs after every event, since a sound changes in many ways.
void Title_Mark();
