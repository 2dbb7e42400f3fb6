#include "frame/menus.h"

#include "frame/start_up.h"
#include "midi/state.h"
#include "platform/directories.h"
#include "sequencer/model.h"
#include "support/program.h"
#include "support/temporary_root.h"
#include "windows/editor_window.h"
#include "windows/file_dlg_window.h"
#include "windows/help_window.h"
#include "windows/midi_setup_window.h"
#include "windows/modal.h"
#include "windows/oscillator_window.h"
#include "windows/patch_window.h"
#include "windows/sequencer_window.h"
#include "windows/tname_window.h"

namespace {

struct Whole_Program : testing::Test {
  Whole_Program() {
    Install_Midi_Service(&service);
    MIDI_Enabled = 0;
    Directories_Set("C:", root.host.string());
    root.Put("MELVOR.FNT", "font");
  }
  ~Whole_Program() override {
    End_Without_Questions();
    Install_Midi_Service(nullptr);
  }
  void Start_Configured() {
    root.Put("MELVOR.INI", "[MIDI]\nInput=JX-8P\nOutput=JX-8P\n");
    ASSERT_TRUE(Start_Up());
  }

  Temporary_Root root;
  Scripted_Desktop desktop;
  Recording_Service service;
};

struct Menus : Whole_Program {};

// One line an item: depth as blanks, caption, shortcut; what cannot be seen or chosen at the start in
// brackets.
std::string Written(const std::vector<Menu_Item*>& items, const std::string& indent) {
  std::string text;
  for (const Menu_Item* item : items) {
    text += indent + item->caption();
    if (!item->shortcut.empty()) text += " <" + std::string(item->shortcut) + ">";
    if (!item->visible()) text += " (hidden)";
    if (!item->enabled()) text += " (disabled)";
    if (item->checkable) text += " (check)";
    text += "\n" + Written(item->items, indent + " ");
  }
  return text;
}

TEST_F(Menus, The_Whole_Tree_Stands_As_The_Program_Tells_It) {
  Start_Configured();
  EXPECT_EQ(
      Written(MELVOR.menus, ""),
      "&File\n"
      " &Tone\n  &New <Ctrl+N>\n  &Open... <Ctrl+O>\n  &Save <Ctrl+S> (disabled)\n  Save &as...\n  - "
      "(hidden)\n"
      "   (hidden)\n   (hidden)\n   (hidden)\n   (hidden)\n"
      " Se&quence\n  &New\n  &Open...\n  &Save (disabled)\n  Save &as...\n  - (hidden)\n"
      "   (hidden)\n   (hidden)\n   (hidden)\n   (hidden)\n"
      " Os&cillator (hidden)\n  &New\n  &Open...\n  &Save\n  Save &as...\n  - (hidden)\n"
      "   (hidden)\n   (hidden)\n   (hidden)\n   (hidden)\n"
      " -\n E&xit <Ctrl+X>\n"
      "&Edit\n &Undo <Ctrl+Z> (disabled)\n"
      "&MIDI\n &Close MIDI Output <Ctrl+C>\n &Setup...\n -\n Osc&illator... <Ctrl+I>\n Seq&uencer... "
      "<Ctrl+U>\n"
      " Preload Sequence (check)\n"
      "&Tone\n &Name...\n &Patch... <Ctrl+P>\n -\n &Random <Ctrl+R>\n -\n Recei&ve  <Ctrl+V> (disabled)\n"
      " Sen&d <Ctrl+T>\n"
      "&Windows\n &Save Positions (check)\n &Reset Settings...\n"
      "&Help\n &How to use MELVOR...\n &Search... <F1>\n -\n &About...\n"
      " (hidden)\n \n \n \n \n \n");
}

TEST_F(Menus, Windows_Open_From_Their_Items_And_Only_One_Holds_The_Program) {
  Start_Configured();
  struct Row {
    Menu_Item& item;
    Form& window;
  };
  for (const Row& row : {Row{MELVOR.Menu_MIDI_Osc, Oscillator}, Row{MELVOR.Menu_MIDI_Seq, Sequencer},
                         Row{MELVOR.Menu_Tone_Patch, Patch}, Row{MELVOR.Menu_Tone_Name, TName},
                         Row{MELVOR.Menu_Help_Search, Help}, Row{MELVOR.Menu_MIDI_Setup, MIDI_Setup},
                         Row{MELVOR.Menu_File_SYX_Open, File_Dlg}}) {
    desktop.Choose_Menu(row.item);
    EXPECT_TRUE(row.window.visible()) << row.item.name;
    Unload(row.window);
    EXPECT_EQ(Active_Dlg, "") << row.item.name;
  }
  Synthesizer = "MKS-70";
  desktop.Expect_Box(Answer::Ok, "Sorry, patch settings not available yet.");
  desktop.Choose_Menu(MELVOR.Menu_Tone_Patch);
  EXPECT_FALSE(Patch.Loaded());
  Synthesizer = "JX-8P";
}

TEST_F(Menus, Reset_Puts_Frame_And_Corners_Back_By_Screen) {
  Start_Configured();
  struct Row {
    int density;
    int screen_height;
    int width;
    int height;
  };
  desktop.Expect_Box(Answer::No, "Do you really want to RESET the window settings?");
  desktop.Choose_Menu(MELVOR.Menu_Windows_Reset);
  for (const Row& row : {Row{96, 1024, 540, 506}, Row{120, 1024, 540, 516}, Row{120, 480, 556, 440}}) {
    System_PPI = row.density;
    desktop.pixels_per_inch = row.density;
    desktop.screen.height = row.screen_height;
    MELVOR.state = Window_State::Maximized;
    Seq_Left = 500;
    desktop.Expect_Box(Answer::Yes);
    desktop.Choose_Menu(MELVOR.Menu_Windows_Reset);
    EXPECT_EQ(MELVOR.width() / Twips_Per_Pixel(), row.width);
    EXPECT_EQ(MELVOR.height() / Twips_Per_Pixel(), row.height);
    EXPECT_EQ(MELVOR.state(), Window_State::Normal);
    EXPECT_EQ(Seq_Left, 1);
  }
  desktop.pixels_per_inch = 96;
}

struct Evening : Whole_Program {};

// From the first start to the next day's.
TEST_F(Evening, Everything_That_A_Musician_Does_Ends_Where_It_Was_Left) {
  desktop.Expect_Box(Answer::Ok, "MIDI output device not configured - starting MIDI setup.");
  desktop.Expect_Box(Answer::Ok, "MIDI input device not configured - starting MIDI setup.");
  ASSERT_TRUE(Start_Up());
  User_Selected(MIDI_Setup.Output_Devices, 0);
  User_Selected(MIDI_Setup.Input_Devices, 0);
  desktop.Expect_Box(Answer::Ok);
  User_Clicked(MIDI_Setup.Cmd_OK);

  desktop.Drag(Editor.VCF_CutoffF, {-50, -50});
  EXPECT_EQ(Tone[34], 100);
  desktop.Click(Editor.Tone_Name);
  desktop.Type(TName.Tone_Name, "evening");
  User_Clicked(TName.Cmd_OK);
  EXPECT_EQ(Editor.Tone_Name.text(), "EVENING");
  desktop.Choose_Menu(MELVOR.Menu_Tone_Patch);
  desktop.Press(Patch.After_Touch[3]);
  desktop.Release(Patch.After_Touch[3]);
  EXPECT_EQ(Patch_Rec[4], 4);
  const auto tone = Tone;
  desktop.Choose_Menu(MELVOR.Menu_Tone_Random);
  desktop.Choose_Menu(MELVOR.Menu_Edit_Undo);
  EXPECT_EQ(Tone, tone);

  Tone_File = "C:\\evening.syx";
  Menu_File_SYX_Save();
  desktop.Drag(Editor.VCF_CutoffF, {100});
  desktop.Expect_Box(Answer::No, "Save actual TONE first?");
  desktop.Choose_Menu(MELVOR.Menu_File_SYX_Open);
  desktop.Type(File_Dlg.FD_FileName, "evening");
  desktop.Key(Key::Enter, 0, '\r');
  EXPECT_FALSE(File_Dlg.Loaded());
  EXPECT_EQ(Tone, tone);

  desktop.Choose_Menu(MELVOR.Menu_MIDI_Seq);
  desktop.Press(Sequencer.Seq_Matrix, Left_Button, 6, 6);
  desktop.Click(Sequencer.Seq_Start);
  service.Take_Hex();
  desktop.Advance_ms(250);
  EXPECT_EQ(service.Take_Hex().front(), "90 3C 7F");
  desktop.Choose_Menu(MELVOR.Menu_MIDI_Osc);
  desktop.Click(Oscillator.Osc_Start);
  desktop.Advance_ms(1000);
  EXPECT_EQ(Tone, tone) << "a sweep leaves the tone alone";
  desktop.Click(Sequencer.Seq_Stop);
  desktop.Choose_Menu(MELVOR.Menu_Tone_Receive);
  EXPECT_TRUE(service.Deliver("\xF0" + Byte_String(65, 'R') + "\xF7"));
  EXPECT_EQ(Editor.Tone_Name.text(), "RRRRRRRRRR");
  desktop.Choose_Menu(MELVOR.Menu_Help_Search);
  desktop.Type(Help.Help_Keyword, "mi");
  EXPECT_EQ(Help.Help_KeyList.Selected_Text(), "MIDI Autoplay");
  desktop.Key(Key::Escape);

  desktop.Drag(Editor.VCF_Res, {-9});
  desktop.Expect_Box(Answer::No, "Save actual TONE first?");
  desktop.Expect_Box(Answer::No, "Save actual SEQUENCE first?");
  desktop.Choose_Menu(MELVOR.Menu_File_Exit);
  EXPECT_FALSE(MELVOR.Loaded());
  EXPECT_FALSE(service.Out_Is_Open());

  ASSERT_TRUE(Start_Up());
  EXPECT_EQ(MIDI_Out_Device, 0);
  EXPECT_EQ(MELVOR.Menu_File_SYX_1.caption(), "&1 C:\\EVENING.SYX");
  desktop.Choose_Menu(MELVOR.Menu_File_SYX_1);
  EXPECT_EQ(Tone, tone);
  EXPECT_EQ(Patch_Rec[4], 4);
}

}  // namespace
