#include "panel/editor_fixture.h"
#include "panel/patch.h"
#include "windows/patch_window.h"

struct Meanings : Editor_Fixture {
  Meanings() {
    Patch_Wire();
    Show(Patch);
    Sent();
  }
};

TEST_F(Meanings, Every_Kind_Of_Value_Is_Told_With_Its_Meaning) {
  using Row = std::tuple<Picture_Box&, std::uint8_t&, int, const char*, int>;
  for (const auto& [element, stored, byte, words, number] : {
           Row{Editor.VCF_CutoffF, Tone[34], 64, "49", 49},
           {Editor.VCF_CutoffF, Tone[34], 200, "99", 99},
           {Editor.DCO1_Range, Tone[11], 40, "8 feet", 1},
           {Editor.DCO2_Crossmod, Tone[18], 32, "sync 1", 1},
           {Editor.DCO_Mode, Tone[27], 127, "envelope 1", 3},
           {Editor.Chorus_Mode, Tone[43], 127, "2", 2},
           {Editor.VCA_Mode, Tone[58], 64, "envelope 2", 1},
           {Editor.DCO1_Tune, Tone[13], Semitone_Value(3), "plus 3 semitones", 3},
           {Editor.DCO2_Tune_Knopf, Tone[19], Semitone_Value(-1), "minus 1 semitone", -1},
           {Editor.DCO2_FTune, Tone[20], 127, "plus 50", 50},
           {Editor.DCO2_FTune, Tone[20], 64, "0", 0},
           {Patch.Pitch_Bend_Range, Patch_Rec[0], 127, "7 semitones", 3},
           {Patch.Portamento_Switch, Patch_Rec[2], 63, "off", 0},
           {Patch.UDTune, Patch_Rec[6], 0, "minus 50", -50},
       }) {
    stored = static_cast<std::uint8_t>(byte);
    EXPECT_EQ(Spoken_Value(element), words) << element.name << " " << byte;
    EXPECT_EQ(element.scale.value(), number) << element.name << " " << byte;
  }
  EXPECT_EQ(Spoken_Value(Patch.Key_Mode[0]) + Spoken_Value(Patch.Key_Mode[1]), "onoff");
}

// From the bytes of a fresh start, by the keys of a user: whole pages first.
TEST_F(Meanings, A_Number_Is_Reached_By_Keys) {
  using Row = std::tuple<Picture_Box&, int, std::string, std::size_t>;
  // The last of the messages as number and value, and how many there are.
  for (const auto& [element, number, last, messages] : {
           Row{Editor.VCF_CutoffF, 50, "22 41", 5},  // 16, 32, 48, 64, 65
           {Editor.VCF_CutoffF, -7, "22 00", 1},
           {Editor.DCO1_Range, 2, "0B 40", 2},
           {Editor.Chorus_Mode, 99, "2B 40", 1},
           {Editor.VCA_Mode, 1, "3A 40", 1},
           {Editor.DCO1_Tune, -8, "0D 14", 3},
           {Editor.DCO2_FTune, 11, "14 4E", 5},
       }) {
    User_Turned(element, number);
    const Texts sent = Sent();
    EXPECT_EQ(sent.size(), messages) << element.name;
    EXPECT_EQ(sent.back(), Head() + last + " F7");
    User_Turned(element, element.scale.value());
    EXPECT_EQ(Sent(), Texts()) << element.name << " stands there already";
  }
  User_Turned(Patch.UDTune_Knopf, 3);
  EXPECT_EQ(Patch.UDTune_Knopf.scale.value(), 3) << "though its arrow keys do nothing";
  // One by one, though several numbers stand for two bytes.
  for (Picture_Box* element : {&Editor.VCF_CutoffF, &Editor.DCO2_FTune}) {
    for (int number = element->scale.lowest; number <= element->scale.highest; ++number) {
      User_Turned(*element, number);
      EXPECT_EQ(element->scale.value(), number) << element->name;
    }
  }
}

TEST_F(Meanings, The_Keys_End_Where_They_Change_Nothing_And_Fail_Out_Of_The_Range) {
  Patch_Rec[0] = 90;
  Patch.Pitch_Bend_Range.top = 28;  // as a drag that left the cap can leave it
  User_Turned(Patch.Pitch_Bend_Range, 3);
  EXPECT_EQ(Sent().size(), 2U);
  Patch_Rec[0] = 0;
  Patch.Pitch_Bend_Range.top = 28;
  desktop.Expect_Box(Answer::Ok, "Error 6: Overflow");
  Key_On(Patch.Pitch_Bend_Range, Key::Down);
  EXPECT_TRUE(Sent().empty());
}

TEST_F(Meanings, A_Locked_Window_Stays_As_It_Is) {
  Editor.enabled = false;
  User_Turned(Editor.VCF_CutoffF, 50);
  User_Stepped(Editor.VCF_CutoffF, true);
  User_Pressed(Editor.VCF_CutoffF, {Left_Button, 0, 8, 8});
  EXPECT_EQ(Sent(), Texts());
}
