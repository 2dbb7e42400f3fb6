#include "core/tone_commands.h"

#include <algorithm>

#include "core/records.h"
#include "core/save_as.h"
#include "core/sysex.h"
#include "core/tone_params.h"
#include "core/undo.h"
#include "midi/input.h"
#include "midi/state.h"
#include "platform/chance.h"
#include "windows/focus_mark.h"
#include "windows/frame_window.h"
#include "windows/modal.h"
#include "windows/state.h"

std::function<void()> Receive_Changed;

namespace {

constexpr double Random_Span = 127.0;
constexpr std::uint8_t Detune_Centre = 64;
constexpr std::size_t Dump_Size = 67;
constexpr std::size_t Dump_First_Byte = 7;  // 0-based

std::uint8_t autosend_kept = 0;  // the value of Autosend while the program waits for a tone

void Receive_Start() {
  MIDI_In_Open();
  if (MIDI_In_Handle <= 0) return;
  Receive_On = 1;
  if (Receive_Changed) Receive_Changed();
  Menus_Disable();
  autosend_kept = Autosend;
  Autosend = 0;
}

void Receive_End() {
  Receive_On = 0;
  MIDI_In_Close();
  if (Receive_Changed) Receive_Changed();
  Menus_Enable();
  Autosend = autosend_kept;
}

}  // namespace

bool Tone_May_Go(int buttons) {
  if (Tone_Saved == Flag_False) {
    switch (Message_Box("Save actual TONE first?", buttons + Box_Question)) {
      case Answer::Yes:
        Tone_SaveAs();
        break;
      case Answer::No:
        Tone_Saved = Flag_True;
        break;
      default:
        return false;
    }
  }
  return Tone_Saved == Flag_True;
}

void Tone_New() {
  if (!Tone_May_Go(Box_Yes_No)) return;
  Tone_Saved = Flag_True;
  Tone_Loading = Flag_On;
  Tone_Clear();
  Tone_Patch_Show();
  Tone_Loading = Flag_Off;
  SysEx_Dump_Send();
}

void Tone_Random() {
  Randomize();
  if (Tone_Saved == Flag_False) Undo_Store();
  for (int index = Tone_First_Parameter; index < Tone_Size; ++index) {
    Tone[index] = static_cast<std::uint8_t>(Rnd() * Random_Span);
  }
  Patch_Rec.bytes.fill(0);
  Patch_Rec[Patch_Index_UDTune] = Detune_Centre;
  Tone_Name_Str = "RANDOM";
  Tone_Name_Store();
  Tone_Patch_Show();
  SysEx_Dump_Send();
  Tone_Saved = Flag_False;
  MELVOR.Menu_Edit_Undo.enabled = true;
  Do_Events();
}

void Tone_Send() {
  SysEx_Heads_Build();
  SysEx_Dump_Send();
}

void Tone_Receive() {
  Ctl_Deselect();
  if (Tone_May_Go(Box_Yes_No)) Tone_Receive_Toggle();
}

void Tone_Receive_Toggle() {
  if (Receive_On != 0) {
    Receive_End();
  } else {
    Receive_Start();
  }
}

std::uint8_t Autosend_Chosen() { return Receive_On != 0 ? autosend_kept : Autosend; }

void Tone_From_SysEx(const Byte_String& message) {
  const std::size_t end = std::min(message.size(), Dump_First_Byte + Tone_Size);
  for (std::size_t place = Dump_First_Byte; place < end; ++place) {
    Tone[static_cast<int>(place - Dump_First_Byte)] = static_cast<std::uint8_t>(message[place]);
  }
  if (message.size() != Dump_Size) return;
  Tone_Show();
  Tone_Receive_Toggle();
}

void MIDI_In_Poll() {
  const auto take = [](Byte_String (*slot)()) {
    const Byte_String message = slot();
    if (!message.empty()) Tone_From_SysEx(message);
  };
  take(MIDI_In_Take1);
  take(MIDI_In_Take2);
}
