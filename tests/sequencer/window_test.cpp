#include "core/tone_commands.h"
#include "sequencer/sequencer_fixture.h"

namespace {

using Texts = std::vector<std::string>;

TEST_F(Sequencer_Test, Opening_Sends_All_Notes_Off_And_Resets_Transposition_And_Direction) {
  Seq_Base_Note = 53;
  Seq_Speed = 120;
  Seq_Name = "My.seq";
  Menu_MIDI_Seq();
  EXPECT_EQ(Sent(), Texts{"B0 7B 00"});
  EXPECT_EQ(Seq_Base_Note, 48);
  EXPECT_EQ(MELVOR.Seq_Tmr.interval_ms(), 62);
  EXPECT_EQ(Sequencer.caption(), "Sequencer - MY.SEQ");

  desktop.Click(Sequencer.Seq_Directions[1]);
  User_Selected(Sequencer.Seq_Range, 4);
  User_Selected(Sequencer.Seq_Trans, 12);
  EXPECT_EQ(Seq_Base_Note, 84);
  EXPECT_EQ(Sent(), Texts{"B0 7B 00"}) << "only another range ends the old notes";
  MELVOR.Menu_Windows_SavePos.checked = true;
  User_Placed(Sequencer, 300, 45, 0, 0);
  User_Closes(Sequencer);
  EXPECT_EQ(Seq_Mode, Play_Mode::Forward);

  Open_Window();
  EXPECT_EQ(Sequencer.left() + Sequencer.top(), 345);
  EXPECT_EQ(Seq_Base_Note, 72);
  EXPECT_EQ(Sequencer.Seq_Directions[0].picture(), LED(LED_Red));
}

TEST_F(Sequencer_Test, A_Window_For_Which_Memory_Is_Short_Is_Told) {
  Sequencer.on_load = [] { throw Runtime_Error(Error_Out_Of_Memory); };
  desktop.Expect_Box(Answer::Ok, "Not enough memory to display the Sequencer Window.");
  Menu_MIDI_Seq();
}

TEST_F(Sequencer_Test, A_Press_Writes_The_Button_s_Note_Or_Empties_The_Cell) {
  Open_Window();
  std::int16_t& cell = Seq_Data[2 * 13 + 5];
  for (const auto& [before, button, after, picture] : {std::tuple{0, Left_Button, 127, "seq-pics-2"},
                                                       {127, Left_Button, 0, "seq-pics-0"},
                                                       {63, Left_Button, 127, "seq-pics-2"},
                                                       {127, Right_Button, 63, "seq-pics-3"},
                                                       {63, Right_Button, 0, "seq-pics-0"},
                                                       {127, Middle_Button, 127, "seq-pics-2"}}) {
    cell = static_cast<std::int16_t>(before);
    Seq_Saved = Flag_On;
    desktop.Press(Sequencer.Seq_Matrix, button, 35.4F, 60.0F);
    EXPECT_EQ(cell, after);
    EXPECT_EQ(Sequencer.Seq_Matrix.painted()[2 * 13 + 5], (Painted_Picture{{picture}, 24, 60}));
    EXPECT_EQ(Seq_Saved, Flag_Off);
  }
  EXPECT_EQ(Editor.ED_Seq_Start_Pic.picture(), Start_Enabled);
  desktop.Press(Sequencer.Seq_Matrix, Left_Button, 94, 154);
  EXPECT_EQ(Seq_Data[103], 127);
  EXPECT_EQ(Sent(), Texts());
}

TEST_F(Sequencer_Test, Keys_Play_Until_The_Right_Button) {
  Open_Window();
  desktop.Press(Sequencer.Seq_Keys[1]);
  EXPECT_EQ(Sequencer.Seq_Keys[1].picture(), Seq_Keys_Pics(3));
  desktop.Release(Sequencer.Seq_Keys[1]);
  EXPECT_EQ(Sequencer.Seq_Keys[1].picture(), Seq_Keys_Pics(1));
  desktop.Click(Sequencer.Seq_Keys[12], Right_Button);
  MIDI_Enabled = 0;
  for (Picture_Box* key : {&Sequencer.Seq_Keys[0], &Editor.Keys_Pic}) desktop.Click(*key);
  desktop.Press(Sequencer.Seq_Matrix);
  EXPECT_EQ(Editor.ED_Seq_Start_Pic.picture(), Start_Disabled);
  EXPECT_EQ(Sent(), (Texts{"90 31 7F", "B0 7B 00"}));
}

TEST_F(Sequencer_Test, Letters_Choose_The_Transposition) {
  const std::vector<std::tuple<int, int, std::string>> rows{
      {'C', 0, "C"},  {'C', 1, "C#"}, {'C', 4, "C+"}, {'D', 1, "D#"}, {'D', 4, "D"}, {'F', 1, "F#"},
      {'C', 3, "F#"}, {'B', 1, "B"},  {'A', 2, "A"},  {'H', 0, "B"},  {'X', 0, "B"}};
  Open_Window();
  for (const auto& [key, shift, want] : rows) {
    desktop.Key(key, shift);
    EXPECT_EQ(Sequencer.Seq_Trans.Selected_Text(), want) << key << " with " << shift;
    EXPECT_EQ(Seq_Base_Note, 48 + Sequencer.Seq_Trans.index());
  }
  EXPECT_EQ(Sent(), Texts());  // old notes go on
}

TEST_F(Sequencer_Test, Indicators_Follow_The_Clock_And_New_Stops_It_And_Empties_The_Matrix) {
  Open_Window();
  const auto lit = [] {
    std::string steps;
    for (std::size_t step = 0; step < 8; ++step) {
      if (Sequencer.Seq_Clock[step].picture() == Picture{"seq-clock-1"}) steps += std::to_string(step);
    }
    return steps;
  };
  desktop.Press(Sequencer.Seq_Matrix);
  desktop.Click(Sequencer.Seq_Start);
  desktop.Advance_ms(500);
  EXPECT_EQ(lit(), "1");
  desktop.Click(Sequencer.Seq_Directions[1]);
  desktop.Click(Sequencer.Seq_Start);
  EXPECT_EQ(lit(), "");
  desktop.Advance_ms(250);
  EXPECT_EQ(lit(), "7");
  desktop.Expect_Box(Answer::No, "Save actual SEQUENCE first?");
  desktop.Press(Sequencer.Seq_New);
  EXPECT_EQ(lit(), "");
  EXPECT_FALSE(MELVOR.Seq_Tmr.enabled());
  EXPECT_EQ(Seq_Data[0], 0);
  EXPECT_EQ(Sequencer.Seq_Matrix.painted()[0].picture, Picture{"seq-pics-0"});
}

TEST_F(Sequencer_Test, The_Little_Keyboard_Plays_A_Chord_Or_The_First_Step) {
  Seq_Data[13] = 127;  // of the second step
  desktop.Click(Editor.Keys_Pic);
  EXPECT_EQ(Sent(), (Texts{"90 3C 5A", "90 40 5A", "90 43 5A", "90 48 5A"}));
  EXPECT_EQ(Editor.Keys_Pic.picture(), Buttons(Keyboard_Down));
  desktop.Click(Editor.Keys_Pic, Right_Button);
  EXPECT_EQ(Sent(), Texts{"B0 7B 00"});
  EXPECT_EQ(Editor.Keys_Pic.picture(), Buttons(Keyboard_Up));
  Seq_SendAllNotesOff();
  Seq_Data[12] = 63;
  desktop.Key(Key::Space);
  const Texts step = Sent();
  ASSERT_EQ(step.size(), 14U);
  EXPECT_EQ(step[1] + ", " + step.back(), "90 3C 00, 90 30 3F");
}

TEST_F(Sequencer_Test, While_A_Tone_Is_Awaited_Start_Records_And_Stop_Ends_The_Wait) {
  Seq_Loaded = Flag_On;
  Tone_Receive_Toggle();
  EXPECT_FALSE(Editor.ED_Seq_Start.enabled());
  EXPECT_TRUE(Start_Is_Down());
  EXPECT_EQ(Editor.ED_Seq_Start_Pic.picture(), Record);
  desktop.Click(Editor.ED_Seq_Stop);
  EXPECT_EQ(Receive_On, 0);
  EXPECT_TRUE(Editor.ED_Seq_Start.enabled());
  EXPECT_FALSE(Start_Is_Down());
  EXPECT_EQ(Editor.ED_Seq_Start_Pic.picture(), Start_Enabled);
  EXPECT_EQ(Sent(), Texts());
}

}  // namespace
