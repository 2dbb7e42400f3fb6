#include "frame/help.h"

#include "platform/text.h"
#include "windows/editor_window.h"
#include "windows/focus_mark.h"
#include "windows/frame_window.h"
#include "windows/help_window.h"
#include "windows/modal.h"

std::string Help_Mode;
std::array<std::string_view, 2 * Help_Keyword_Rows> Help_Topics;

namespace {

constexpr std::string_view Dialog_Name = "Help";
constexpr int Corner_px = 25;
constexpr int Tune_Start = 63;
constexpr std::string_view Howto_Info =
    "Select a control element on the left and read the corresponding description here. With the keyboard, "
    "use TAB/SHIFT+TAB to jump to the next/previous control.";

std::string_view& Topic_Row(int row) {
  return Help_Topics[static_cast<std::size_t>(Checked_Index(row, static_cast<int>(Help_Topics.size())))];
}

void Enter_Howto() {
  Help.Info.Set_Text(Howto_Info);
  MELVOR.Timer_Display.enabled = true;
}

void Enter_Search() {
  if (Active_Dlg == Dialog_Name) Set_Focus(Help.Help_Keyword);
}

struct Page_Row {
  std::string_view mode;
  Frame_Box Help_Window::*frame;
  void (*enter)();
};

constexpr std::array Pages{
    Page_Row{"Howto", &Help_Window::Frame_Howto, Enter_Howto},
    Page_Row{"Search", &Help_Window::Frame_Search, Enter_Search},
    Page_Row{"About", &Help_Window::Frame_Credits, Help_About_Fill},
};

void Show_Page(std::string_view mode) {
  for (const Page_Row& page : Pages) (Help.*page.frame).visible = page.mode == mode;
  for (const Page_Row& page : Pages) {
    if (page.mode == mode) page.enter();
  }
}

void Howto_Click() {
  Show_Page("Howto");
  Ctl_Select(&Help.Pos_Sw);
}

void About_Click() {
  Show_Page("About");
  Set_Focus(Help.About);
}

// Goes to the first topic at or behind the keyword.
void Keyword_Change() {
  const std::string keyword = Upper(Help.Help_Keyword.text());
  const int last = Help.Help_KeyList.Count() - 1;
  int entry = 0;
  while (entry < last && Upper(Help.Help_KeyList.Item(entry)) < keyword) ++entry;
  if (entry <= last) Help.Help_KeyList.Select(entry);
}

void Topic_Click() {
  const std::string topic = Help.Help_KeyList.Selected_Text();
  for (int row = 0; row < Help_Keyword_Rows; ++row) {
    if (Topic_Row(row) != topic) continue;
    Help.Help_Description.Set_Text(Topic_Row(row + Help_Keyword_Rows));
    return;
  }
}

// The list holds the names of the rows that are in use.
void Credit_Click() {
  int entry = Help.Credits.index();
  for (std::size_t row = 0; row < Help_Credit_Names.size(); ++row) {
    if (Help_Credit_Names[row].empty() || entry-- != 0) continue;
    Help.Credits_Why.caption = " " + std::string(Help_Credit_Reasons[row]);
  }
}

// The blink goes on behind this dialog: the examples blink too.
void Hold_Program() {
  Dlg_Enter(Help, Dialog_Name);
  Editor.Timer1.enabled = true;
}

void Open_At(std::string_view mode) {
  Help_Mode = mode;
  Show(Help);
}

}  // namespace

void Help_Topics_Fill() {
  int row = Help_First_Topic;
  for (const Help_Topic& topic : Help_Topic_Rows) {
    Topic_Row(row) = topic.keyword;
    Topic_Row(row + Help_Keyword_Rows) = topic.description;
    ++row;
  }
  Help.Help_KeyList.Clear();
  for (row = 0; row < Help_Keyword_Rows; ++row) {
    if (!Topic_Row(row).empty()) Help.Help_KeyList.Add_Item(std::string(Topic_Row(row)));
  }
}

void Help_About_Fill() {
  Help.Credits.Clear();
  for (const std::string_view name : Help_Credit_Names) {
    if (!name.empty()) Help.Credits.Add_Item(std::string(name));
  }
  Help.About.Set_Text(Help_About_Text());
}

void Help_Load() {
  Ctl_Deselect();
  Help.left = Corner_px * Twips_Per_Pixel();
  Help.top = Corner_px * Twips_Per_Pixel();
  Help.width = Help_Width_px * Twips_Per_Pixel();
  Help.height = Help_Height_px * Twips_Per_Pixel();
  Help_Topics_Fill();
  Help_Layout();
  Help_Demo[Demo_Tune] = Tune_Start;
  Help_Demo[Demo_Slider] = 0;
  Show_Page(Help_Mode);
  if (Active_Dlg != Dialog_Name) Hold_Program();
  Help.Help_Keyword.text = std::string(Topic_Row(Help_Context));
  Keyword_Change();
}

void Menu_Help_Howto_Click() { Open_At("Howto"); }
void Menu_Help_Search_Click() { Open_At("Search"); }

// A window that is open already turns to this page.
void Menu_Help_About_Click() {
  Open_At("About");
  Help_Load();
}

void Help_Wire() {
  Help_Examples_Wire();
  Help.on_load = Help_Load;
  Help.on_unload = Dlg_Leave;
  Close_On_Escape(Help);
  Help.Cmd_Howto.on_click = Howto_Click;
  Help.Cmd_Search.on_click = [] { Show_Page("Search"); };
  Help.Cmd_About.on_click = About_Click;
  Help.Help_Keyword.on_change = Keyword_Change;
  Help.Help_KeyList.on_click = Topic_Click;
  Help.Credits.on_click = Credit_Click;
}
