#include "filebrowser/modes.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "filebrowser/state.h"
#include "windows/file_dlg_window.h"
#include "windows/state.h"

namespace {

using W = File_Dlg_Window;

constexpr std::string_view All_Files = "All Files (*.*)";
constexpr std::string_view Tones = "Sysex (*.SYX)";
constexpr std::string_view Sequences = "Sequence (*.SEQ)";
constexpr std::string_view Oscillators = "Oscillator (*.OSC)";

struct Mode_Row {
  std::string_view kind;
  std::string_view caption;
  std::string_view filter;  // empty: only "All Files"
  Frame_Box W::*panel;      // nullptr: none
  std::string_view extension;
};

constexpr std::array Mode_Rows{
    Mode_Row{"Open_SYX", "Open Tone File", Tones, &W::FD_SYX, ".syx"},
    Mode_Row{"Open_SEQ", "Open Sequencer File", Sequences, &W::FD_SEQ, ".seq"},
    Mode_Row{"Open_OSC", "Open Oscillator File", Oscillators, &W::FD_OSC, ".osc"},
    Mode_Row{"Open_ALL", "Open File", {}, nullptr, ".*"},
    Mode_Row{"SaveAs_SYX", "Save Tone File", Tones, &W::FD_SYX, ".syx"},
    Mode_Row{"SaveAs_SEQ", "Save Sequencer File", Sequences, &W::FD_SEQ, ".seq"},
    Mode_Row{"SaveAs_OSC", "Save Oscillator File", Oscillators, &W::FD_OSC, ".osc"},
};

struct Filter_Row {
  std::string_view text;
  std::string_view extension;
};

constexpr std::array Filter_Rows{
    Filter_Row{Tones, ".SYX"},
    Filter_Row{Sequences, ".SEQ"},
    Filter_Row{Oscillators, ".OSC"},
};

void Show_Panel(Frame_Box W::*shown) {
  for (Frame_Box W::*panel : {&W::FD_SYX, &W::FD_SEQ, &W::FD_OSC}) (File_Dlg.*panel).visible = panel == shown;
}

}  // namespace

void FD_Setup_Mode() {
  Combo_Box& filters = File_Dlg.FD_List_Filter;
  filters.Clear();
  const auto mode = std::ranges::find(Mode_Rows, std::string_view(Dlg_Kind), &Mode_Row::kind);
  if (mode == Mode_Rows.end()) return filters.Add_Item(std::string(All_Files));
  File_Dlg.caption = std::string(mode->caption);
  if (!mode->filter.empty()) filters.Add_Item(std::string(mode->filter));
  filters.Add_Item(std::string(All_Files));
  Show_Panel(mode->panel);
  if (!mode->filter.empty()) filters.Select(0);
  FD_Ext = mode->extension;
}

void FD_Filter_Click() {
  const std::string chosen = File_Dlg.FD_List_Filter.Selected_Text();
  const auto filter = std::ranges::find(Filter_Rows, std::string_view(chosen), &Filter_Row::text);
  if (filter != Filter_Rows.end()) FD_Ext = filter->extension;
  if (chosen == All_Files) Dlg_Kind = "Open_ALL";
  File_Dlg.FD_List_Files.Set_Pattern("*" + FD_Ext);
}
