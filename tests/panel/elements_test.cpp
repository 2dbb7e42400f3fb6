#include "panel/elements.h"

#include "panel/editor_fixture.h"
#include "panel/push_buttons.h"
#include "windows/patch_window.h"

using Elements = Editor_Fixture;

TEST_F(Elements, Keys_Move_Each_Kind_By_Its_Own_Rule) {
  Picture_Box& cutoff = Editor.VCF_CutoffF;
  Picture_Box& range = Editor.DCO1_Range;
  Picture_Box& chorus = Editor.Chorus_Mode;
  Picture_Box& gate = Editor.VCA_Mode;
  Picture_Box& tune = Editor.DCO1_Tune;
  Picture_Box& fine = Editor.DCO2_FTune_Knopf;
  Expect_Keys({{cutoff, 34, 40, Key::Page_Up, 56, "399 77", "43"},
               {cutoff, 34, 10, Key::Page_Down, 0, "399 112", "0"},
               {cutoff, 34, 63, Key::Up, 64, "399 72", "49"},
               {range, 11, 127, Key::Page_Down, 95, "19 42", ""},
               {range, 11, 64, Key::End, 0, "19 62", ""},
               {chorus, 43, 64, Key::Keypad_Minus, 32, "488 408", ""},
               {Editor.LFO_Waveform, 44, 0, Key::Home, 64, "18 377", ""},
               {gate, 58, 64, Key::Keypad_Minus, 0, "489 162", ""},
               {tune, 13, 60, Key::Letter_A, 56, "12 5", "0"},  // any key stores the band's lowest byte
               {tune, 13, 56, Key::Page_Up, 92, "17 8", "6"},
               {tune, 13, 56, Key::Right, 72, "13 5", "1"},
               {tune, 13, 120, Key::Digit_0, 56, "12 5", "0"},
               {fine, 20, 64, Key::Page_Up, 74, "14 5", "8"},
               {fine, 20, 126, Key::Keypad_0, 63, "12 5", "0"}});
  Have(34, 64);
  cutoff.top = 50;
  Key_On(cutoff, Key::Digit_0);
  EXPECT_EQ(cutoff.top(), 72) << "a key that is none of a slider places the cap";
  Key_On(range, Key::Letter_A);
  EXPECT_TRUE(Sent().empty());
  EXPECT_EQ(Tone_Saved, Flag_True);
  Tone[11] = 200;  // of a damaged file
  range.top = 42;
  Key_On(range, Key::Letter_A);
  EXPECT_EQ(range.top(), 42) << "no position, and none beside the slot";
}

TEST_F(Elements, What_Has_The_Focus_Moves_Though_Nothing_Or_Something_Closed_Is_Selected) {
  Picture_Box& cutoff = Editor.VCF_CutoffF;
  Picture_Box& wave = Editor.DCO1_Waveform;
  for (Picture_Box* selected : {static_cast<Picture_Box*>(nullptr), &Patch.Portamento_Time}) {
    Have(34, 64);
    Have(12, 0);
    Set_Focus(wave);
    Active_Ctl = selected;
    desktop.Key(Key::Home);
    EXPECT_EQ(wave.top(), 32);
    desktop.Move(wave, 4, 90);
    EXPECT_EQ(wave.top(), 52);
    Set_Focus(cutoff);
    Active_Ctl = selected;
    desktop.Move(cutoff, 4, -10);
    EXPECT_EQ(cutoff.top(), 66);
    Saved_Ctl = selected;
    Dlg_Leave();
    EXPECT_EQ(Active_Ctl, &cutoff) << "where the focus has stayed";
  }
}

TEST_F(Elements, A_Held_Space_Bar_Presses_Once) {
  Work_By_Space(Editor.VCA_Mode);
  for (const bool repeated : {false, true, true, false})
    EXPECT_TRUE(Key_Down(Editor, &Editor.VCA_Mode, {Key::Space, 0, repeated}, 0)) << "used up";
  EXPECT_EQ(Sent(), (Texts{Message(58, 64), Message(58, 0)}));
}

TEST_F(Elements, A_Press_Sends_The_Present_Value_But_Not_That_Of_A_Switch) {
  desktop.Press(Editor.VCF_Mode);
  desktop.Press(Editor.ENV1_Attack);
  desktop.Press(Editor.DCO2_Tune);
  desktop.Press(Editor.VCA_Mode);  // turns over
  desktop.Move(Editor.VCA_Mode, 4, -60);
  EXPECT_EQ(Sent(), (Texts{Message(47, 0), Message(19, 56), Message(58, 64)}));
}

TEST_F(Elements, A_Drag_Sends_Each_Step_Of_A_Slider_Or_Knob) {
  Picture_Box& attack = Editor.ENV1_Attack;
  Picture_Box& tune = Editor.DCO2_Tune;
  Picture_Box& fine = Editor.DCO2_FTune_Knopf;
  Have(47, 10);
  Expect_Drags({{attack, 47, 4, -20.5F, 30, true, "135 419"},
                {attack, 47, 4, 1, 29, true, "135 419"},
                {attack, 47, 4, -300, 127, true, "135 357"},
                {attack, 47, 4, 300, 0, true, "135 437"},
                // Sideways: four pixels are a semitone, halves go to the even neighbour.
                {tune, 19, 40, -70, 112, true, "16 13"},
                {tune, 19, -400, 0, 0, true, "9 14"},
                {fine, 20, -2, 0, 62, true, "12 5"},
                {fine, 20, 900, 0, 127, true, "15 14"},
                {attack, 47, 4, 0, 0, true, "135 437"},
                {fine, 20, -7, 0, 120, true, "16 13"}});  // counts from the left edge again
}

TEST_F(Elements, A_Switch_Drag_Sends_Only_Steps_Of_More_Than_4_On_The_Same_Switch) {
  Picture_Box& wave = Editor.DCO1_Waveform;
  Picture_Box& chorus = Editor.Chorus_Mode;
  desktop.Move(Editor.DCO2_Range, 4, -3);
  Expect_Drags({{wave, 12, 4, -50, 50, false, "59 52"},
                {wave, 12, 4, -4, 54, false, "59 52"},
                {wave, 12, 4, -5, 59, true, "59 52"},
                {wave, 12, 4, -0.5F, 60, false, "59 52"},  // halves go to the even neighbour
                {Editor.DCO2_Range, 16, 4, -90, 93, false, "119 42"},
                {wave, 12, 4, 60, 0, false, "59 62"},
                {wave, 12, 4, -500, 127, true, "59 32"},
                // A switch of three positions lags in the gaps.
                {chorus, 43, 4, -32, 32, false, "488 408"},
                {chorus, 43, 4, -31, 63, true, "488 408"},
                {chorus, 43, 4, -1, 64, false, "488 398"},
                {chorus, 43, 4, 16, 48, true, "488 398"},
                {chorus, 43, 4, 1, 47, false, "488 408"}});
}
