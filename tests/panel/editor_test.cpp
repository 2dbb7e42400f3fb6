#include <algorithm>
#include <random>
#include <set>

#include "adapters/instrument/instrument.h"
#include "panel/editor_fixture.h"
#include "panel/editor_tables.h"
#include "windows/pictures.h"

namespace {

using Editor_Test = Editor_Fixture;

TEST_F(Editor_Test, Tab_Walks_The_Elements_Each_In_Its_Place_With_Its_Parameter) {
  struct Row {
    int parameter, left, top, top_at_home;
  };
  // The body of a knob stays where it is, and its dot has turned when Tab reaches it.
  const std::vector<Row> rows{
      {11, 19, 62, 32},    {12, 59, 62, 32},    {13, 32, 102, 102},  {14, 19, 232, 152},  {15, 58, 232, 152},
      {16, 119, 62, 32},   {17, 159, 62, 32},   {18, 189, 62, 32},   {19, 122, 102, 102}, {19, 15, 14, 14},
      {20, 182, 102, 102}, {20, 15, 14, 14},    {21, 119, 232, 152}, {22, 158, 232, 152}, {26, 19, 308, 278},
      {27, 59, 308, 278},  {28, 259, 112, 32},  {29, 298, 112, 32},  {30, 299, 232, 152}, {31, 259, 308, 278},
      {32, 299, 308, 278}, {33, 359, 62, 32},   {34, 399, 112, 32},  {35, 438, 112, 32},  {36, 360, 232, 152},
      {37, 399, 232, 152}, {38, 438, 232, 152}, {39, 359, 308, 278}, {40, 399, 308, 278}, {41, 489, 112, 32},
      {58, 489, 162, 152}, {42, 489, 308, 278}, {44, 18, 397, 377},  {45, 45, 437, 357},  {46, 84, 437, 357},
      {47, 135, 437, 357}, {48, 165, 437, 357}, {49, 195, 437, 357}, {50, 225, 437, 357}, {51, 265, 418, 388},
      {52, 315, 437, 357}, {53, 345, 437, 357}, {54, 375, 437, 357}, {55, 405, 437, 357}, {56, 445, 418, 388},
      {43, 488, 418, 398}};
  for (const Row& row : rows) {
    ASSERT_NE(Focused_Control(), nullptr);
    const Control& element = *Focused_Control();
    EXPECT_EQ(Place_Of(element), Numbers({row.left, row.top})) << element.name;
    Sent();
    desktop.Key(Key::Home);
    EXPECT_EQ(element.top(), row.top_at_home) << element.name;
    EXPECT_EQ(Sent(), Messages{Message(row.parameter, Tone[row.parameter])}) << element.name;
    desktop.Key(Key::Tab);
  }
  EXPECT_EQ(Focused_Control(), &Editor.ED_Seq_Start);
}

TEST_F(Editor_Test, A_Shown_Tone_Stands_In_Plain_Bands) {
  struct Row {
    int byte;
    std::string tops;  // slider, upper and lower switch row, key follow, chorus, LFO waveform, VCA mode
  };
  for (const Row& row :
       std::vector<Row>{{31, "213 62 308 418 418 397 162"},
                        {32, "212 52 298 408 408 387 162"},
                        {64, "192 42 288 398 398 377 152"},
                        {127, "152 32 278 388 398 377 152"},
                        // Beyond the range the rows of switches go to the top edge, the others stay.
                        {128, "152 0 0 388 398 377 152"},
                        {255, "72 0 0 388 398 377 152"}}) {
    std::fill(Tone.bytes.begin() + Tone_First_Parameter, Tone.bytes.end(),
              static_cast<std::uint8_t>(row.byte));
    Tone_Show();
    EXPECT_EQ(Numbers({Editor.VCF_Keyfollow.top(), Editor.VCF_HPF.top(), Editor.VCA_Dynamics.top(),
                       Editor.ENV2_Keyfollow.top(), Editor.Chorus_Mode.top(), Editor.LFO_Waveform.top(),
                       Editor.VCA_Mode.top()}),
              row.tops)
        << row.byte;
  }
  EXPECT_EQ(Editor.DCO1_Tune_Knopf.top(), 5) << "a byte beyond the range is no detune";
  EXPECT_EQ(Slider_Top(11), -160) << "an index without a slider has base line 0";
  Have(19, 120);
  Have(20, 99);
  EXPECT_EQ(Place_Of(Editor.DCO2_Tune_Knopf) + ", " + Place_Of(Editor.DCO2_FTune_Knopf), "15 14, 17 9");
  EXPECT_TRUE(Sent().empty());
}

TEST_F(Editor_Test, Elements_Say_Their_Values_With_Their_Meanings) {
  std::string said;
  for (const auto& [element, index, value] : {std::tuple{&Editor.VCF_CutoffF, 34, 127},
                                              {&Editor.DCO1_Range, 11, 64},
                                              {&Editor.DCO2_Crossmod, 18, 255},
                                              {&Editor.LFO_Waveform, 44, 127},
                                              {&Editor.VCA_Mode, 58, 63},
                                              {&Editor.DCO1_Tune, 13, 0},
                                              {&Editor.DCO2_FTune_Knopf, 20, 127}}) {
    Have(index, value);
    said += element->spoken_value() + ", ";
  }
  EXPECT_EQ(said, "99, 4 feet, cross modulation, triangle, gate, -12 semitones, 50, ");
}

TEST_F(Editor_Test, The_Selected_Element_Blinks_And_Rests_When_It_Is_Left) {
  struct Row {
    Picture_Box& element;
    Picture_Box& mark;
    int rest, help;
  };
  for (const Row& row : {Row{Editor.DCO2_LFO, Editor.DCO2_LFO, Slider_Cap, 4},
                         Row{Editor.DCO1_Waveform, Editor.DCO1_Waveform, Cap_Left_Lamp, 2},
                         Row{Editor.Chorus_Mode, Editor.Chorus_Mode, Cap_Right_Lamp, 0},
                         Row{Editor.DCO1_Tune, Editor.DCO1_Tune_Knopf, Knob_Dot, 3}}) {
    Blink_Phase = 0;
    Set_Focus(row.element);
    for (const int phase : {0, 1, 0, 1}) {
      EXPECT_EQ(row.mark.picture(), Buttons(row.rest + phase)) << row.element.name;
      desktop.Advance_ms(250);
    }
    EXPECT_EQ(Help_Context, row.help) << row.element.name;
    Set_Focus(Editor.VCF_Res);
    EXPECT_EQ(row.mark.picture(), Buttons(row.rest)) << row.element.name;
  }
}

TEST_F(Editor_Test, Activation_Starts_At_The_First_Element) {
  Set_Focus(Editor.Keys_Pic);
  Active_Ctl = &Editor.VCF_Res;
  desktop.Advance_ms(250);
  Form other(Form_Role::Child, "Other");
  Show(other);
  EXPECT_EQ(Editor.VCF_Res.picture(), Buttons(6)) << "it rests while another window is active";
  Activate(Editor);
  EXPECT_EQ(Active_Ctl, &Editor.DCO1_Range);
  EXPECT_EQ(Blink_Phase, 0);
  Unload(other);
}

TEST_F(Editor_Test, After_A_Random_Walk_The_Instrument_Has_The_Same_Tone) {
  std::mt19937 chance{20817};
  const auto pick = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(chance); };
  const auto place = [&] { return static_cast<float>(pick(-300, 300)) / 8; };
  Instrument::Receiver instrument;
  SysEx_Dump_Send();
  for (int step = 0; step < 2000; ++step) {
    for (int times = pick(1, 20); times > 0; --times) desktop.Key(Key::Tab);
    for (int times = pick(0, 4); times > 0; --times) desktop.Key(pick(Key::Space, Key::Digit_0));
    desktop.Press(*Active_Ctl);
    for (int times = pick(0, 6); times > 0; --times) desktop.Move(*Active_Ctl, place(), place());
    desktop.Release(*Active_Ctl);
    if (step % 7 == 0) desktop.Advance_ms(pick(1, 1200));
  }
  instrument.Take(service.Wire());
  const auto values = instrument.memory.Values({});
  // A slow drag of a switch is not heard; everything else is.
  std::vector<int> heard{13, 19, 20, 58};
  for (const Slider_Row& row : Editor_Sliders()) heard.push_back(row.range.index);
  for (const int index : heard) EXPECT_EQ(values[static_cast<std::size_t>(index)], Tone[index]) << index;
  for (const std::uint8_t byte : Tone.bytes) ASSERT_LE(byte, 127);
  EXPECT_GT(std::set<int>(values.begin(), values.end()).size(), 20U) << "the walk moves things";
}

}  // namespace
