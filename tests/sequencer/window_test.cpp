#include "core/tone_commands.h"
#include "midi/state.h"
#include "sequencer/sequencer_fixture.h"

namespace {

using Texts = std::vector<std::string>;

TEST_F(Sequencer_Test, Opening_Sends_All_Notes_Off_And_Resets_Transposition_And_Direction) {
  Seq_Base_Note = 53;
  Seq_Speed = 120;
  Seq_Name = "My.seq";
  Menu_MIDI_Seq();
  EXPECT_EQ(Sent(), Texts{"B0 7B 00"});
  EXPECT_EQ(Seq_Status, 144);
  EXPECT_EQ(Seq_Base_Note, 48);
  EXPECT_EQ(MELVOR.Seq_Tmr.interval_ms(), 62);
  EXPECT_EQ(Sequencer.caption(), "Sequencer - MY.SEQ");

  desktop.Click(Sequencer.Seq_Directions[1]);
  User_Selected(Sequencer.Seq_Range, 4);
  User_Selected(Sequencer.Seq_Trans, 12);
  EXPECT_EQ(Seq_Base_Note, 84);
  MELVOR.Menu_Windows_SavePos.checked = true;
  User_Placed(Sequencer, 300, 45, 0, 0);
  User_Closes(Sequencer);
  EXPECT_EQ(Seq_Mode, Play_Mode::Forward);

  Open_Window();
  EXPECT_EQ(Sequencer.left() + Sequencer.top(), 345);
  EXPECT_EQ(Seq_Base_Note, 72);
  EXPECT_EQ(Sequencer.Seq_Directions[0].picture(), LED(LED_Red));
}

TEST_F(Sequencer_Test, A_Press_Writes_The_Button_s_Note_Or_Empties_The_Cell) {
  const struct {
    int before, button, after;
    const char* picture;
  } rows[] = {{0, Left_Button, 127, "seq-pics-2"},    {127, Left_Button, 0, "seq-pics-0"},
              {63, Left_Button, 127, "seq-pics-2"},   {0, Right_Button, 63, "seq-pics-3"},
              {63, Right_Button, 0, "seq-pics-0"},    {127, Right_Button, 63, "seq-pics-3"},
              {100, Left_Button, 127, "seq-pics-2"},  {0, Middle_Button, 0, "seq-pics-0"},
              {127, Middle_Button, 127, "seq-pics-2"}};
  Open_Window();
  for (const auto& row : rows) {
    Seq_Data[2 * 13 + 5] = static_cast<std::int16_t>(row.before);
    Seq_Saved = Flag_On;
    Seq_Buttons_Off();
    desktop.Press(Sequencer.Seq_Matrix, row.button, 35.4F, 60.0F);
    EXPECT_EQ(Seq_Data[2 * 13 + 5], row.after);
    EXPECT_EQ(Sequencer.Seq_Matrix.painted()[2 * 13 + 5], (Painted_Picture{{row.picture}, 24, 60}));
    EXPECT_EQ(Seq_Saved, Flag_Off);
    EXPECT_EQ(Editor.ED_Seq_Start_Pic.picture(), Start_Enabled);
  }
  desktop.Press(Sequencer.Seq_Matrix, Left_Button, 94, 154);
  EXPECT_EQ(Seq_Data[103], 127);
  EXPECT_EQ(Sent(), Texts());
}

TEST_F(Sequencer_Test, Keys_Stand_At_Their_Rows_And_Play_Until_The_Right_Button) {
  Open_Window();
  EXPECT_EQ(Sequencer.Seq_Keys[12].top(), Sequencer.Seq_Matrix.top());
  EXPECT_EQ(Sequencer.Seq_Keys[0].top(), 163);
  desktop.Press(Sequencer.Seq_Keys[1]);
  EXPECT_EQ(Sequencer.Seq_Keys[1].picture(), Seq_Keys_Pics(3));
  desktop.Release(Sequencer.Seq_Keys[1]);
  EXPECT_EQ(Sequencer.Seq_Keys[1].picture(), Seq_Keys_Pics(1));
  desktop.Click(Sequencer.Seq_Keys[12]);
  desktop.Click(Sequencer.Seq_Keys[0], Right_Button);
  EXPECT_EQ(Sent(), (Texts{"90 31 7F", "90 3C 7F", "B0 7B 00"}));
  MIDI_Enabled = 0;
  desktop.Press(Sequencer.Seq_Keys[0]);
  EXPECT_EQ(Sequencer.Seq_Keys[0].picture(), Seq_Keys_Pics(2));
  EXPECT_EQ(Sent(), Texts());
}

TEST_F(Sequencer_Test, Letters_Choose_The_Transposition) {
  const struct {
    int key, shift;
    const char* want;
  } rows[] = {{'C', 0, "C"},  {'C', 1, "C#"}, {'C', 4, "C+"}, {'D', 1, "D#"}, {'D', 4, "D"},
              {'E', 1, "E"},  {'F', 1, "F#"}, {'C', 3, "F#"}, {'G', 0, "G"},  {'G', 1, "G#"},
              {'A', 1, "A#"}, {'B', 1, "B"},  {'A', 2, "A"},  {'H', 0, "B"},  {'X', 0, "B"}};
  Open_Window();
  for (const auto& row : rows) {
    desktop.Key(row.key, row.shift);
    EXPECT_EQ(Sequencer.Seq_Trans.Selected_Text(), row.want) << row.key << " with " << row.shift;
    EXPECT_EQ(Seq_Base_Note, 48 + Sequencer.Seq_Trans.index());
  }
  EXPECT_EQ(Sent(), Texts());  // old notes go on
  User_Selected(Sequencer.Seq_Range, 2);
  EXPECT_EQ(Sent(), Texts{"B0 7B 00"});
}

TEST_F(Sequencer_Test, New_Stops_The_Clock_And_Empties_The_Matrix) {
  Open_Window();
  desktop.Press(Sequencer.Seq_Matrix);
  desktop.Click(Sequencer.Seq_Start);
  desktop.Expect_Box(Answer::No, "Save actual SEQUENCE first?");
  desktop.Press(Sequencer.Seq_New);
  EXPECT_FALSE(Ticking());
  EXPECT_EQ(Seq_Data[0], 0);
  EXPECT_EQ(Sequencer.Seq_Matrix.painted()[0].picture, Picture{"seq-pics-0"});
}

TEST_F(Sequencer_Test, The_Little_Keyboard_Plays_A_Chord_Or_The_First_Step) {
  Seq_Data[13] = 127;  // of the second step
  desktop.Click(Editor.Keys_Pic);
  EXPECT_EQ(Sent(), (Texts{"90 3C 5A", "90 40 5A", "90 43 5A", "90 48 5A"}));
  EXPECT_EQ(Editor.Keys_Pic.picture(), Buttons(Keyboard_Down));
  Seq_SendAllNotesOff();
  Seq_Data[12] = 63;
  Sent();
  desktop.Key(Key::Space);
  const Texts step = Sent();
  ASSERT_EQ(step.size(), 13U);
  EXPECT_EQ(step.front() + ", " + step.back(), "90 3C 00, 90 30 3F");
  desktop.Click(Editor.Keys_Pic, Right_Button);
  EXPECT_EQ(Sent(), Texts{"B0 7B 00"});
  MIDI_Enabled = 0;
  desktop.Click(Editor.Keys_Pic);
  EXPECT_EQ(Editor.Keys_Pic.picture(), Buttons(Keyboard_Up));
}

TEST_F(Sequencer_Test, While_A_Tone_Is_Awaited_Start_Records_And_Stop_Ends_The_Wait) {
  Seq_Loaded = Flag_On;
  Tone_Receive_Toggle();
  EXPECT_FALSE(Editor.ED_Seq_Start.enabled());
  EXPECT_TRUE(Start_Is_Down());
  EXPECT_EQ(Editor.ED_Seq_Start_Pic.picture(), Record);
  EXPECT_EQ(Editor.ED_Seq_Stop_Pic.picture(), Stop_Enabled);
  desktop.Click(Editor.ED_Seq_Start);
  EXPECT_FALSE(Ticking());
  desktop.Click(Editor.ED_Seq_Stop);
  EXPECT_EQ(Receive_On, 0);
  EXPECT_TRUE(Editor.ED_Seq_Start.enabled());
  EXPECT_FALSE(Start_Is_Down());
  EXPECT_EQ(Editor.ED_Seq_Start_Pic.picture(), Start_Enabled);
  EXPECT_EQ(Sent(), Texts());
}

}  // namespace
