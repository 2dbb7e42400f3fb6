#include <algorithm>

#include "panel/editor_fixture.h"

using Editor_Test = Editor_Fixture;

TEST_F(Editor_Test, Tab_Walks_The_Elements_Each_With_Its_Parameter) {
  for (const int parameter :
       {11, 12, 13, 14, 15, 16, 17, 18, 19, 19, 20, 20, 21, 22, 26, 27, 28, 29, 30, 31, 32, 33, 34,
        35, 36, 37, 38, 39, 40, 41, 58, 42, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54, 55, 56, 43}) {
    ASSERT_NE(Focused_Control(), nullptr);
    for (const int key : {Key::Home, Key::Shift, Key::Ctrl, Key::Alt, Key::Super}) desktop.Key(key);
    EXPECT_EQ(Sent(), Texts{Message(parameter, Tone[parameter])}) << Focused_Control()->name;
    desktop.Key(Key::Tab);
    EXPECT_EQ(Sent(), Texts()) << "it only moves the focus";
  }
  EXPECT_EQ(Focused_Control(), &Editor.ED_Seq_Start);
}

TEST_F(Editor_Test, A_Shown_Tone_Stands_In_Plain_Bands) {
  // Tops of slider, upper and lower switch row, key follow, chorus, LFO waveform, VCA mode.
  for (const auto& [byte, tops] :
       {std::pair{31, "213 62 308 418 418 397 162"},
        {127, "152 32 278 388 398 377 152"},
        // Beyond the range the rows of switches go to the top edge, the others stay.
        {128, "152 0 0 388 398 377 152"},
        {255, "72 0 0 388 398 377 152"}}) {
    std::fill(Tone.bytes.begin() + Tone_First_Parameter, Tone.bytes.end(), static_cast<std::uint8_t>(byte));
    Tone_Show();
    EXPECT_EQ(Numbers({Editor.VCF_Keyfollow.top(), Editor.VCF_HPF.top(), Editor.VCA_Dynamics.top(),
                       Editor.ENV2_Keyfollow.top(), Editor.Chorus_Mode.top(), Editor.LFO_Waveform.top(),
                       Editor.VCA_Mode.top()}),
              tops)
        << byte;
  }
  EXPECT_EQ(Editor.DCO1_Tune_Knopf.top(), 5) << "a byte beyond the range is no detune";
  Have(19, 120);
  Have(20, 99);
  EXPECT_EQ(Place_Of(Editor.DCO2_Tune_Knopf) + ", " + Place_Of(Editor.DCO2_FTune_Knopf), "15 14, 17 9");
  EXPECT_EQ(Editor.DCO2_Tune.spoken_value() + ", " + Editor.DCO2_FTune.spoken_value() + ", " +
                Editor.VCA_Mode.spoken_value(),
            "plus 12 semitones, plus 28, envelope 2");
  EXPECT_TRUE(Sent().empty());
}
