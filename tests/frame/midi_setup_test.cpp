#include "frame/midi_setup.h"

#include "frame/whole_program.h"
#include "oscillator/targets.h"
#include "sequencer/seq_files.h"
#include "sequencer/seq_transport.h"
#include "windows/oscillator_window.h"

struct Setup : Whole_Program {
  Setup() {
    service.outputs = service.inputs = {"One", "Two"};
    Start("[MIDI]\nInput=Two\nOutput=Two\nChannel=3\n");
  }
  void OK() {
    desktop.Expect_Box(Answer::Ok);
    User_Clicked(MIDI_Setup.Cmd_OK);
  }
  // What is chosen in the running program and in its file.
  static std::string Chosen() {
    return std::to_string(MIDI_Out_Device) + " " + std::to_string(MIDI_Channel) + " " +
           INI_Read("MIDI", "Output", "") + " " + INI_Read("MIDI", "Channel", "");
  }
};

TEST_F(Setup, Stops_The_Sequencer_Keeps_MIDI_Shut_And_Finds_What_Was_Plugged_In) {
  Play();
  service.outputs = {"New", "One", "Two"};
  Menu_MIDI_Setup();
  EXPECT_EQ(Seq_Running, Flag_Off);
  EXPECT_FALSE(service.Out_Is_Open() || MELVOR.Menu_MIDI.enabled() || Editor.enabled());
  EXPECT_EQ(MIDI_Setup.Output_Devices.Count(), 3);
  EXPECT_EQ(MIDI_Setup.Output_Devices.Selected_Text() + MIDI_Setup.Channel.Selected_Text(), "Two3");
}

// It may run with MIDI off, or on the empty matrix of a new sequence.
TEST_F(Setup, No_Clock_Sends_Behind_A_Closed_Output) {
  Play();
  service.Fail_Next("Out_Short", 68);
  desktop.Expect_Box(Answer::Ok);
  desktop.Advance_ms(1000);
  EXPECT_EQ(MIDI_Enabled + Seq_Running, 0);
  Play();
  Choose(MELVOR.Menu_MIDI_Setup);
  User_Checked(MIDI_Setup.Enable, true);
  desktop.Advance_ms(1000);
  desktop.Key(Key::Escape);
  EXPECT_EQ(MIDI_Enabled, 1);

  Play();
  Seq_Clear();
  Menu_MIDI_CloseOutput();
  Choose(MELVOR.Menu_MIDI_Osc);
  Oscillator.Combo1.Select(static_cast<int>(Osc_Targets().size()) - 1);
  desktop.Click(Oscillator.Osc_Start);
  EXPECT_TRUE(service.Out_Is_Open());
  Choose(MELVOR.Menu_MIDI_Setup);
  desktop.Advance_ms(2000);
  EXPECT_FALSE(service.Out_Is_Open());
}

TEST_F(Setup, Lists_Take_Effect_On_OK_And_Switches_At_Once) {
  Menu_MIDI_Setup();
  User_Selected(MIDI_Setup.Output_Devices, 0);
  User_Selected(MIDI_Setup.Channel, 15);
  User_Checked(MIDI_Setup.AutoSend, false);
  User_Selected(MIDI_Setup.SynthesizerType, 1);
  EXPECT_EQ(MIDI_Out_Device - Autosend, 1);
  EXPECT_EQ(SysEx_IPR_Tone, "F0 41 36 2 24 20 01 ");
  OK();
  EXPECT_TRUE(desktop.Last_Box().find("setting on your MKS-70:") != std::string::npos);
  EXPECT_EQ(Chosen(), "0 16 One 16");
  EXPECT_EQ(Seq_Status, 0x9F);
  EXPECT_EQ(SysEx_IPR_Tone, "F0 41 36 F 24 20 01 ");
}

TEST_F(Setup, Escape_Writes_The_Lists_But_Leaves_The_Running_Program_Alone) {
  Menu_MIDI_Setup();
  User_Selected(MIDI_Setup.Output_Devices, 0);
  User_Selected(MIDI_Setup.Channel, 8);
  desktop.Key(Key::Escape);
  EXPECT_EQ(Chosen(), "1 3 One 3");
}
