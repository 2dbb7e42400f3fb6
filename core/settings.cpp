#include "core/settings.h"

#include <array>
#include <string_view>

#include "core/file_places.h"
#include "core/recent.h"
#include "midi/state.h"
#include "platform/desktop.h"
#include "platform/drives.h"
#include "platform/files.h"
#include "platform/profile_file.h"
#include "platform/text.h"
#include "windows/frame_window.h"
#include "windows/state.h"

std::uint8_t Autoplay = 1;
std::uint8_t Soundcheck = 0;
std::uint8_t Soundcheck_Note = 24;
std::uint8_t Soundcheck_Velocity = 80;

namespace {

constexpr std::string_view Main_Window = "Main Window";
constexpr std::string_view MIDI = "MIDI";
constexpr std::string_view Windows = "Windows";
constexpr std::string_view Recent_Files = "Recent Files";

// The number that the platform gives for itself: low byte before the point, the next behind it.
constexpr unsigned Version_Number = 0x0A04;

struct Number_Range {
  int low;
  int high;
};

constexpr Number_Range Frame_Size_px{100, 32767};
constexpr Number_Range Frame_Place_px{-32767, 32767};
constexpr int Largest_Corner_twips = 32767;  // of the windows inside the frame

// The number under a key, or the default if it lies outside the range.
int Read_Number(std::string_view section, std::string_view key, int default_value,
                const Number_Range& range) {
  const int value = Leading_Number(INI_Read(section, key, std::to_string(default_value)));
  return value < range.low || value > range.high ? default_value : value;
}

int Read_Frame(std::string_view key, int default_px, const Number_Range& range_px) {
  return Read_Number(Main_Window, key, default_px, range_px) * Twips_Per_Pixel();
}

int Read_Corner(std::string_view key) {
  const int largest_px = Largest_Corner_twips / Twips_Per_Pixel();
  return Read_Number(Windows, key, 0, {-largest_px, largest_px}) * Twips_Per_Pixel();
}

bool Read_Switch(std::string_view key, std::string_view default_value, std::string_view section = MIDI) {
  return INI_Read(section, key, default_value) == "1";
}

void Write_Number(std::string_view section, std::string_view key, int value) {
  INI_Write(section, key, std::to_string(value));
}

void Write_Switch(std::string_view section, std::string_view key, bool on) {
  INI_Write(section, key, on ? "1" : "0");
}

// Window corners in the order in which they are read.
struct Corner_Row {
  std::string_view left_key;
  std::string_view top_key;
  int* left;
  int* top;
};

constexpr std::array Corner_Rows{
    Corner_Row{"File Dialog Left", "File Dialog Top", &FileDlg_Left, &FileDlg_Top},
    Corner_Row{"Patch Left", "Patch Top", &Patch_Left, &Patch_Top},
    Corner_Row{"Sequencer Left", "Sequencer Top", &Seq_Left, &Seq_Top},
};

struct Directory_Row {
  std::string_view key;
  std::string* directory;
};

constexpr std::array Directory_Rows{
    Directory_Row{"Tones", &Dir_Tones},
    Directory_Row{"Sequences", &Dir_Sequences},
    Directory_Row{"Oscillators", &Dir_Oscillators},
};

void Load_Frame() {
  const bool new_frames = Windows_Version() >= Version_Of_New_Frames;
  MELVOR.left = Read_Frame("Left", 0, Frame_Place_px);
  MELVOR.top = Read_Frame("Top", 0, Frame_Place_px);
  MELVOR.width = Read_Frame("Width", new_frames ? 541 : 536, Frame_Size_px);
  MELVOR.height = Read_Frame("Height", new_frames ? 508 : 502, Frame_Size_px);
  MELVOR.state = static_cast<Window_State>(Read_Number(Main_Window, "State", 0, {0, 2}));
}

void Load_Corners() {
  MELVOR.Menu_Windows_SavePos.checked = Read_Switch("Save Positions", "0", Windows);
  if (!MELVOR.Menu_Windows_SavePos.checked()) return;
  for (const Corner_Row& row : Corner_Rows) {
    *row.left = Read_Corner(row.left_key);
    *row.top = Read_Corner(row.top_key);
  }
}

void Load_Switches() {
  Synthesizer = INI_Read(MIDI, "Synthesizer", "JX-8P");
  Autoplay = Read_Switch("Autoplay", "1") ? 1 : 0;
  Autosend = Read_Switch("Autosend", "1") ? 1 : 0;
  MELVOR.Menu_MIDI_Seq_Load.checked = Read_Switch("Sequence Preload", "0");
  Soundcheck = INI_Read(MIDI, "Soundcheck", "0") == "0" ? 0 : 1;
  Soundcheck_Note = static_cast<std::uint8_t>(Read_Number(MIDI, "Soundcheck Note", 24, {24, 72}));
  Soundcheck_Velocity = static_cast<std::uint8_t>(Read_Number(MIDI, "Soundcheck Velocity", 80, {0, 127}));
}

void Load_Recent(Recent_List& list, std::string_view key) {
  for (std::size_t place = 0; place < list.size(); ++place) {
    list[place] = Upper(INI_Read(Recent_Files, std::string(key) + std::to_string(place + 1), ""));
  }
}

void Save_Recent(const Recent_List& list, std::string_view key) {
  for (std::size_t place = 0; place < list.size(); ++place) {
    INI_Write(Recent_Files, std::string(key) + std::to_string(place + 1), list[place]);
  }
}

void Load_Directories() {
  const std::string current = Current_Directory();
  for (const Directory_Row& row : Directory_Rows) {
    *row.directory = Path_Slash(Lower(INI_Read(Recent_Files, row.key, current)));
    if (!Directory_Has_Files(*row.directory)) *row.directory = Path_Slash(Lower(current));
  }
}

void Save_Frame() {
  Write_Number(Main_Window, "Left", MELVOR.left / Twips_Per_Pixel());
  Write_Number(Main_Window, "Top", MELVOR.top / Twips_Per_Pixel());
  if (MELVOR.state() == Window_State::Normal) {
    Write_Number(Main_Window, "Width", MELVOR.width / Twips_Per_Pixel());
    Write_Number(Main_Window, "Height", MELVOR.height / Twips_Per_Pixel());
  }
  Write_Number(Main_Window, "State", static_cast<int>(MELVOR.state()));
}

void Save_Switches() {
  Write_Number(MIDI, "Autoplay", Autoplay);
  Write_Number(MIDI, "Autosend", Autosend);
  Write_Switch(MIDI, "Sequence Preload", MELVOR.Menu_MIDI_Seq_Load.checked());
  Write_Number(MIDI, "Soundcheck", Soundcheck);
  Write_Number(MIDI, "Soundcheck Note", Soundcheck_Note);
  Write_Number(MIDI, "Soundcheck Velocity", Soundcheck_Velocity);
  Write_Number(MIDI, "Channel", MIDI_Channel);
  INI_Write(MIDI, "Control Channel", "[Not used]");
  INI_Write(MIDI, "Synthesizer", Synthesizer);
}

void Save_Corner(const Corner_Row& row) {
  Write_Number(Windows, row.left_key, *row.left / Twips_Per_Pixel());
  Write_Number(Windows, row.top_key, *row.top / Twips_Per_Pixel());
}

void Save_Corners() {
  Save_Corner(Corner_Rows[0]);
  Save_Corner(Corner_Rows[1]);
  Write_Switch(Windows, "Save Positions", MELVOR.Menu_Windows_SavePos.checked());
  Save_Corner(Corner_Rows[2]);
}

}  // namespace

double Windows_Version() {
  return static_cast<double>(Version_Number & 0xFF) + static_cast<double>(Version_Number / 256) / 100.0;
}

void Settings_Load() {
  Load_Frame();
  Load_Corners();
  Load_Switches();
  Load_Recent(Recent_Tones, "Tone");
  Load_Recent(Recent_Seqs, "Sequence");
  Load_Directories();
  Recent_Tone_Add("");
  Recent_Seq_Add("");
}

void Settings_Save() {
  INI_Hold();
  Save_Frame();
  Save_Switches();
  Save_Corners();
  for (const Directory_Row& row : Directory_Rows)
    INI_Write(Recent_Files, row.key, Path_Slash(*row.directory));
  Save_Recent(Recent_Tones, "Tone");
  Save_Recent(Recent_Seqs, "Sequence");
  INI_Release();
}
