#include "sequencer/seq_files.h"

#include <algorithm>
#include <cstdlib>

#include "core/file_places.h"
#include "core/recent.h"
#include "platform/convert.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "sequencer/model.h"
#include "sequencer/seq_clock.h"
#include "sequencer/seq_display.h"
#include "sequencer/seq_pictures.h"
#include "sequencer/seq_transport.h"
#include "windows/file_dlg_window.h"
#include "windows/frame_window.h"
#include "windows/modal.h"
#include "windows/sequencer_window.h"
#include "windows/state.h"

namespace {

// The file, byte by byte.
constexpr std::string_view File_Head = "SEQ1";
constexpr std::size_t Version_Place = 3;  // the reader takes any version
constexpr std::size_t Speed_Place = 4;
constexpr std::size_t Base_Note_Place = 5;
constexpr std::size_t Cells_Place = 6;
constexpr std::size_t File_Size = Cells_Place + static_cast<std::size_t>(Seq_Cell_Count);

constexpr int Preview_Pitch_px = 8;
constexpr int Preview_Margin_px = 1;

struct Kept_Sequence {
  std::array<std::int16_t, Seq_Cell_Count> cells{};
  int speed = Seq_Default_Speed;
  int base_note = 0;
  int range_index = Seq_Default_Range;
  int interval_ms = 0;
  std::uint8_t loaded = Flag_Off;
};

Kept_Sequence Before_Previews;

// A file that is refused leaves the Sequencer as it was. The dialog's previews go with it, since Save would
// write cells that nobody sees.
void Give_Up_Previews() {
  Seq_Data = Before_Previews.cells;
  Seq_Speed = Before_Previews.speed;
  Seq_Base_Note = Before_Previews.base_note;
  Seq_Range_Index = Before_Previews.range_index;
  MELVOR.Seq_Tmr.interval_ms = Before_Previews.interval_ms;
  Seq_Loaded = Before_Previews.loaded;
}

void Name_From(const std::string& path) { Seq_Name = Path_Behind(path, Dir_Sequences.size()); }

bool Acceptable(const Byte_String& bytes) {
  return bytes.size() == File_Size &&
         Same_Text(bytes.substr(0, Version_Place), File_Head.substr(0, Version_Place));
}

int Byte_At(const Byte_String& bytes, std::size_t place) { return static_cast<std::uint8_t>(bytes[place]); }

void Show_In_Lists() {
  Sequencer.Seq_Tempo.Set_Value(Seq_Speed);
  Sequencer.Seq_Range.Select(Seq_Range_Index);
  Sequencer.caption = Seq_Caption();
}

void Draw_Preview() {
  Canvas& preview = File_Dlg.FD_SEQ_Preview;
  preview.Clear();
  for (int index = 0; index < Seq_Cell_Count; ++index) {
    preview.Paint(Look_Of(Seq_Data[static_cast<std::size_t>(index)]).preview,
                  index / Seq_Row_Count * Preview_Pitch_px + Preview_Margin_px,
                  index % Seq_Row_Count * Preview_Pitch_px + Preview_Margin_px);
  }
}

// What a file asks for that cannot be is met before anything has changed.
void Take(const Byte_String& bytes, bool into_window) {
  const int speed = std::min(Byte_At(bytes, Speed_Place), Seq_Fastest);
  const int base_note = Byte_At(bytes, Base_Note_Place);
  const int range =
      std::abs(Round_16((base_note - Seq_Lowest_Note) / static_cast<double>(Semitones_In_Octave)));
  const int interval_ms = Seq_Interval_ms(speed);
  if (into_window && range >= Sequencer.Seq_Range.Count()) throw Runtime_Error(Error_Bad_Property_Value);
  Seq_Speed = speed;
  Seq_Base_Note = base_note;
  Seq_Range_Index = range;
  MELVOR.Seq_Tmr.interval_ms = interval_ms;
  if (into_window) Show_In_Lists();
  for (std::size_t index = 0; index < Seq_Data.size(); ++index) {
    Seq_Data[index] = To_Int16(Byte_At(bytes, Cells_Place + index));
  }
  if (FD_Open == Flag_True) Draw_Preview();
  if (into_window) Seq_Redraw();
  Seq_Loaded = Flag_On;
}

void Mark_Opened(const std::string& path) {
  MELVOR.Menu_File_Seq_Save.enabled = true;
  Recent_Seq_Add(path);
  Seq_File = path;
  FD_Done = Flag_On;
  Seq_Saved = Flag_On;
  Seq_Buttons_On();
}

void Load_File(const std::string& path, Load_Mode mode) {
  if (File_Exists(path) == Flag_False) {
    Message_Box("File not found: " + path);
    return;
  }
  const Byte_String bytes = File_Read(path, File_Size);
  if (Acceptable(bytes)) Take(bytes, mode == Load_Mode::Open && Seq_Open == Flag_On);
  if (mode != Load_Mode::Open) return;
  if (Seq_Loaded == Flag_On) {
    Mark_Opened(path);
  } else {
    Message_Box("Wrong SEQUENCE format!", Box_Stop);
  }
}

Byte_String File_Image() {
  Byte_String image(File_Head);
  image += static_cast<char>(Seq_Speed);
  image += static_cast<char>(Seq_Base_Note);
  for (const std::int16_t cell : Seq_Data) image += static_cast<char>(cell);
  return image;
}

}  // namespace

void Seq_Load(const std::string& path, Load_Mode mode) {
  Name_From(path);
  try {
    Load_File(path, mode);
  } catch (const Runtime_Error& error) {
    if (mode == Load_Mode::Open && FD_Open == Flag_True && Seq_Open == Flag_On) Give_Up_Previews();
    Report_File_Error(error);
  }
  MELVOR.pointer = Pointer_Shape::Default;
}

void Seq_Previews_Begin() {
  Before_Previews = {Seq_Data,  Seq_Speed, Seq_Base_Note, Seq_Range_Index, MELVOR.Seq_Tmr.interval_ms(),
                     Seq_Loaded};
}

void Seq_Clear() {
  Seq_Step = 0;
  Seq_Data.fill(0);
  if (Seq_Open == Flag_On) Seq_Redraw();
  MELVOR.Menu_File_Seq_Save.enabled = false;
  Seq_Saved = Flag_On;
  Seq_Name.clear();
  Seq_Range_Index = Seq_Default_Range;
  Seq_Speed = Seq_Default_Speed;
  Seq_Loaded = Flag_Off;
  Seq_Running = Flag_Off;
  Seq_Buttons_Off();
}

void Seq_Save() {
  const Byte_String image = File_Image();
  File_Keep_Copy(Seq_File, image);
  File_Write(Seq_File, image, Old_Content::Keep_Tail);
  Recent_Seq_Add(Seq_File);
  Name_From(Seq_File);
  if (Seq_Open == Flag_On) Sequencer.caption = Seq_Caption();
  MELVOR.Menu_File_Seq_Save.enabled = true;
  Seq_Saved = Flag_On;
}

void Seq_SaveAs() {
  Dlg_Kind = "SaveAs_SEQ";
  Show(File_Dlg);
  Dlg_Wait();
  FD_Done = Flag_Off;
}

std::string Seq_Caption() {
  if (Seq_Name.empty()) return "Sequencer";
  return "Sequencer - " + Upper(Seq_Name.starts_with('\\') ? Seq_Name.substr(1) : Seq_Name);
}
