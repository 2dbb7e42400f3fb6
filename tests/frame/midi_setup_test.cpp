#include "frame/midi_setup.h"

#include "core/settings.h"
#include "core/sysex.h"
#include "frame/whole_program.h"
#include "platform/profile_file.h"

namespace {

struct Setup : Whole_Program {
  Setup() {
    service.Outputs({"One", "Two"});
    service.Inputs({"One", "Two"});
    Start("[MIDI]\nInput=Two\nOutput=Two\nChannel=3\n");
  }
  void OK() {
    desktop.Expect_Box(Answer::Ok);
    User_Clicked(MIDI_Setup.Cmd_OK);
  }
};

TEST_F(Setup, Shows_What_Is_Chosen_Keeps_MIDI_Shut_And_Finds_What_Was_Plugged_In) {
  MIDI_SendNote(60, 1);
  service.Outputs({"New", "One", "Two"});
  Menu_MIDI_Setup();
  EXPECT_FALSE(service.Out_Is_Open());
  EXPECT_EQ(MIDI_Setup.Output_Devices.Count(), 3);
  EXPECT_EQ(MIDI_Setup.Output_Devices.Selected_Text(), "Two");
  EXPECT_EQ(MIDI_Setup.Channel.Selected_Text(), "3");
  EXPECT_EQ(MIDI_Setup.SynthesizerType.Selected_Text(), "JX-8P");
  EXPECT_FALSE(MELVOR.Menu_MIDI.enabled() || Editor.enabled());
  const int nest = Dlg_Nest;
  Menu_MIDI_Setup();
  EXPECT_EQ(Dlg_Nest, nest);
}

TEST_F(Setup, Lists_Take_Effect_On_OK_And_Switches_At_Once) {
  Menu_MIDI_Setup();
  User_Selected(MIDI_Setup.Output_Devices, 0);
  User_Selected(MIDI_Setup.Channel, 15);
  User_Checked(MIDI_Setup.AutoSend, false);
  User_Checked(MIDI_Setup.AutoPlay, false);
  User_Selected(MIDI_Setup.SynthesizerType, 1);
  EXPECT_EQ(MIDI_Out_Device, 1);
  EXPECT_EQ(Autosend + Autoplay, 0);
  EXPECT_EQ(SysEx_IPR_Tone, "F0 41 36 2 24 20 01 ");
  OK();
  EXPECT_EQ(desktop.boxes[0].title, "MIDI System Exclusive enabled?");
  EXPECT_EQ(desktop.boxes[0].style, 640);
  EXPECT_EQ(desktop.boxes[0].text,
            "Please don't forget to enable the MIDI System Exclusive (SysEx)\rsetting on your MKS-70:\r\r"
            "* Press MIDI button\r* Press buttons 1 and 4\r"
            "* Move Alpha Dial until the display shows 'SYSTEM EXCLUSIVE ON'\r"
            "* Unprotect the memory (Set 'Protect' to 'OFF')\r"
            "* Press WRITE button (display shows 'WRITTEN MIDI')\r"
            "* Protect the memory again (Set 'Protect' to 'ON')\r");
  EXPECT_EQ(MIDI_Out_Device, 0);
  EXPECT_EQ(Seq_Status, 0x9F);
  EXPECT_EQ(SysEx_IPR_Tone, "F0 41 36 F 24 20 01 ");
  EXPECT_EQ(INI_Read("MIDI", "Output", "") + INI_Read("MIDI", "Channel", ""), "One16");
  EXPECT_EQ(Active_Dlg, "");
  EXPECT_TRUE(MELVOR.Menu_MIDI.enabled());
}

TEST_F(Setup, Escape_Writes_The_Lists_But_Leaves_The_Running_Program_Alone) {
  Menu_MIDI_Setup();
  User_Selected(MIDI_Setup.Output_Devices, 0);
  User_Selected(MIDI_Setup.Channel, 8);
  desktop.Key(Key::Escape);
  EXPECT_FALSE(MIDI_Setup.Loaded());
  EXPECT_EQ(MIDI_Out_Device, 1);
  EXPECT_EQ(MIDI_Channel, 3);
  EXPECT_EQ(INI_Read("MIDI", "Output", "") + INI_Read("MIDI", "Channel", ""), "One3");
}

TEST_F(Setup, An_Absent_Choice_Stops_OK_With_Its_Number) {
  MIDI_Out_Name = "Gone";
  Menu_MIDI_Setup();
  desktop.Expect_Box(Answer::Ok, "Error 380: Invalid property value");
  User_Clicked(MIDI_Setup.Cmd_OK);
  EXPECT_TRUE(MIDI_Setup.Loaded());
  User_Selected(MIDI_Setup.Output_Devices, 1);
  OK();
  EXPECT_FALSE(MIDI_Setup.Loaded());
}

TEST_F(Setup, Enable_Locks_And_Frees_What_Depends_On_It) {
  Menu_MIDI_Setup();
  const auto usable = [] {
    std::string switches;
    for (const Control* control :
         std::initializer_list<const Control*>{&MIDI_Setup.Input_Devices, &MIDI_Setup.Output_Devices,
                                               &MIDI_Setup.AutoSend, &MIDI_Setup.AutoPlay}) {
      switches += control->enabled() ? '1' : '0';
    }
    return switches + (MELVOR.Menu_Tone_Send.enabled() ? '1' : '0');
  };
  User_Checked(MIDI_Setup.Enable, false);
  EXPECT_EQ(MIDI_Enabled, 0);
  EXPECT_EQ(usable(), "00000");
  service.Outputs({});
  User_Checked(MIDI_Setup.Enable, true);
  EXPECT_EQ(usable(), "10111");
  service.Outputs({"One", "Two"});
}

TEST_F(Setup, Opening_It_Stops_The_Sequencer_And_Closing_It_Brings_The_Element_Back) {
  Play();
  Set_Focus(Editor.VCF_Res);
  Menu_MIDI_Setup();
  EXPECT_EQ(Seq_Running, Flag_Off);
  EXPECT_FALSE(Editor.Timer1.enabled());
  desktop.Key(Key::Escape);
  EXPECT_EQ(Focused_Control(), &Editor.VCF_Res);
  EXPECT_TRUE(Editor.Timer1.enabled());
}

TEST_F(Setup, A_Wait_Ends_With_The_Window_Or_With_The_Program) {
  Dlg_Wait();
  Menu_MIDI_Setup();
  desktop.At_Wait([this] { desktop.Key(Key::Escape); });
  Dlg_Wait();
  EXPECT_EQ(Active_Dlg, "");
  Menu_MIDI_Setup();
  desktop.At_Wait([] { End_Without_Questions(); });
  Dlg_Wait();
  EXPECT_EQ(Open_Windows(), 0);
}

}  // namespace
