#include <algorithm>
#include <random>

#include "adapters/instrument/instrument.h"
#include "panel/editor_fixture.h"
#include "windows/pictures.h"

namespace {

struct Editor_Test : Editor_Fixture {
  Picture_Box& Element(std::string_view name) {
    for (Control* control : Editor.controls) {
      if (control->name == name) return static_cast<Picture_Box&>(*control);
    }
    ADD_FAILURE() << "no element " << name;
    return Editor.Back_Pic;
  }
};

struct Element_Place {
  std::string_view name;
  int index;
  std::string tag;
  int left, highest_top, lowest_top, tab, help;
};

// clang-format off
const std::vector<Element_Place> Element_Places{
    {"DCO1_LFO", 14, "bm", 19, 152, 232, 3, 4}, {"DCO1_ENV", 15, "bm", 58, 152, 232, 4, 0},
    {"DCO2_LFO", 21, "bm", 119, 152, 232, 12, 4}, {"DCO2_ENV", 22, "bm", 158, 152, 232, 13, 0},
    {"Mixer_DCO1", 28, "bm", 259, 32, 112, 16, 0}, {"Mixer_DCO2", 29, "bm", 298, 32, 112, 17, 0},
    {"Mixer_ENV", 30, "bm", 299, 152, 232, 18, 0}, {"VCF_CutoffF", 34, "bm", 399, 32, 112, 22, 0},
    {"VCF_Res", 35, "bm", 438, 32, 112, 23, 0}, {"VCF_LFO", 36, "bm", 360, 152, 232, 24, 4},
    {"VCF_ENV", 37, "bm", 399, 152, 232, 25, 0}, {"VCF_Keyfollow", 38, "bm", 438, 152, 232, 26, 0},
    {"VCA_Level", 41, "bm", 489, 32, 112, 29, 0}, {"LFO_DelayT", 45, "bm", 45, 357, 437, 33, 0},
    {"LFO_Rate", 46, "bm", 84, 357, 437, 34, 0}, {"ENV1_Attack", 47, "bm", 135, 357, 437, 35, 0},
    {"ENV1_Decay", 48, "bm", 165, 357, 437, 36, 0}, {"ENV1_Sustain", 49, "bm", 195, 357, 437, 37, 0},
    {"ENV1_Release", 50, "bm", 225, 357, 437, 38, 0}, {"ENV2_Attack", 52, "bm", 315, 357, 437, 40, 0},
    {"ENV2_Decay", 53, "bm", 345, 357, 437, 41, 0}, {"ENV2_Sustain", 54, "bm", 375, 357, 437, 42, 0},
    {"ENV2_Release", 55, "bm", 405, 357, 437, 43, 0}, {"DCO1_Range", 11, "bl", 19, 32, 62, 0, 1},
    {"DCO1_Waveform", 12, "bl", 59, 32, 62, 1, 2}, {"DCO2_Range", 16, "bl", 119, 32, 62, 5, 1},
    {"DCO2_Waveform", 17, "bl", 159, 32, 62, 6, 2}, {"DCO2_Crossmod", 18, "br", 189, 32, 62, 7, 0},
    {"DCO_Dynamics", 26, "bl", 19, 278, 308, 14, 0}, {"DCO_Mode", 27, "bl", 59, 278, 308, 15, 0},
    {"Mixer_Dynamics", 31, "bl", 259, 278, 308, 19, 0}, {"Mixer_Mode", 32, "bl", 299, 278, 308, 20, 0},
    {"VCF_HPF", 33, "bl", 359, 32, 62, 21, 0}, {"VCF_Dynamics", 39, "bl", 359, 278, 308, 27, 0},
    {"VCF_Mode", 40, "bl", 399, 278, 308, 28, 0}, {"VCA_Dynamics", 42, "bl", 489, 278, 308, 31, 0},
    {"Chorus_Mode", 43, "br", 488, 398, 418, 45, 0}, {"LFO_Waveform", 44, "bl", 18, 377, 397, 32, 0},
    {"ENV1_Keyfollow", 51, "br", 265, 388, 418, 39, 0}, {"ENV2_Keyfollow", 56, "br", 445, 388, 418, 44, 0},
    {"VCA_Mode", 58, "br", 489, 152, 162, 30, 0},
};
// clang-format on

// Left, top, width, height, tab, help, tag.
std::string Place_Of(const Control& control) {
  return Numbers({control.left(), control.top(), control.width(), control.height(), control.tab_index,
                  control.help_context}) +
         " " + control.tag();
}

TEST_F(Editor_Test, Every_Element_Stands_In_Its_Place) {
  for (const Element_Place& row : Element_Places) {
    Picture_Box& element = Element(row.name);
    EXPECT_EQ(Place_Of(element),
              Numbers({row.left, row.lowest_top, 16, 16, row.tab, row.help}) + " " + row.tag)
        << row.name;
    EXPECT_EQ(element.picture(), Buttons(row.tag == "bm" ? 6 : row.tag == "bl" ? 0 : 2)) << row.name;
    Have(row.index, 127);
    EXPECT_EQ(element.top(), row.highest_top) << row.name;
    Have(row.index, 0);
    EXPECT_EQ(element.top(), row.lowest_top) << row.name;
  }
  struct Row {
    Control& control;
    std::string place;
  };
  Unload(Editor);
  Show(Editor);
  for (const Row& row : std::vector<Row>{{Editor.DCO1_Tune, "32 102 28 26 2 3 kn1"},
                                         {Editor.DCO1_Tune_Knopf, "12 6 4 4 53 3 kn1"},
                                         {Editor.DCO2_Tune, "122 102 28 26 8 3 kn2"},
                                         {Editor.DCO2_Tune_Knopf, "12 6 4 4 9 3 kn2"},
                                         {Editor.DCO2_FTune, "182 102 28 26 10 0 kn2f"},
                                         {Editor.DCO2_FTune_Knopf, "12 6 4 4 11 0 kn2f"},
                                         {Editor.Tone_Name, "105 291 121 18 54 0 "},
                                         {Editor.Keys_Pic, "214 223 43 22 50 0 "},
                                         {Editor.ED_Seq_Start, "188 223 22 22 46 0 "},
                                         {Editor.ED_Seq_Start_Pic, "3 3 14 14 -1 0 "},
                                         {Editor.ED_Seq_Stop, "261 223 22 22 47 0 "},
                                         {Editor.ED_Seq_Stop_Pic, "3 3 14 14 -1 0 "},
                                         {Editor.Pic_MELVOR, "181 150 110 50 -1 0 "},
                                         {Editor.Pic_Badge, "196 200 79 14 -1 0 "}}) {
    EXPECT_EQ(Place_Of(row.control), row.place) << row.control.name;
  }
}

TEST_F(Editor_Test, A_Shown_Tone_Stands_In_Plain_Bands) {
  struct Row {
    int byte;
    std::string tops;  // slider, upper and lower switch row, key follow, chorus, LFO waveform, VCA mode
  };
  for (const Row& row :
       std::vector<Row>{{31, "213 62 308 418 418 397 162"},
                        {32, "212 52 298 408 408 387 162"},
                        {63, "193 52 298 408 408 387 162"},
                        {64, "192 42 288 398 398 377 152"},
                        {95, "173 42 288 398 398 377 152"},
                        {96, "172 32 278 388 398 377 152"},
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
  EXPECT_EQ(Numbers({Editor.DCO2_Tune_Knopf.top(), Editor.DCO2_FTune_Knopf.left()}), "14 17");
  EXPECT_TRUE(Sent().empty());
}

TEST_F(Editor_Test, VCA_Mode_Toggles_And_Sends_In_Any_Case) {
  struct Row {
    int before, key, after, top;  // key 0: a press
    std::string message;
  };
  for (const Row& row : std::vector<Row>{{0, Key::Page_Up, 64, 152, "3A 40"},
                                         {63, Key::End, 127, 152, "3A 7F"},
                                         {127, Key::Home, 63, 162, "3A 3F"},
                                         {10, Key::Up, 74, 152, "3A 4A"},
                                         {100, Key::Keypad_Minus, 36, 162, "3A 24"},
                                         {100, 0, 36, 162, "3A 24"},
                                         {10, Key::Left, 10, 162, "3A 0A"},
                                         {200, Key::Up, 200, 162, "3A C8"}}) {
    Have(58, row.before);
    if (row.key == 0) {
      desktop.Press(Editor.VCA_Mode);
    } else {
      Key_On(Editor.VCA_Mode, row.key);
    }
    desktop.Move(Editor.VCA_Mode, 4, -60);
    EXPECT_EQ(Numbers({Tone[58], Editor.VCA_Mode.top()}), Numbers({row.after, row.top})) << row.before;
    EXPECT_EQ(Sent(), Messages{Tone_Message(row.message)}) << row.before << " key " << row.key;
    EXPECT_EQ(Display(), "");
    EXPECT_EQ(Tone_Saved, Flag_False);
  }
}

TEST_F(Editor_Test, The_Selected_Element_Blinks_And_Rests_When_It_Is_Left) {
  struct Row {
    Picture_Box& element;
    Picture_Box& mark;
    int rest;
    int help;
  };
  for (const Row& row : std::vector<Row>{{Editor.DCO2_LFO, Editor.DCO2_LFO, 6, 4},
                                         {Editor.DCO1_Waveform, Editor.DCO1_Waveform, 0, 2},
                                         {Editor.Chorus_Mode, Editor.Chorus_Mode, 2, 0},
                                         {Editor.DCO1_Tune, Editor.DCO1_Tune_Knopf, 4, 3},
                                         {Editor.DCO2_FTune, Editor.DCO2_FTune_Knopf, 4, 0}}) {
    Set_Focus(Editor.VCF_Res);
    Blink_Phase = 0;
    Set_Focus(row.element);
    EXPECT_EQ(Active_Ctl, &row.mark);
    EXPECT_EQ(row.mark.picture(), Buttons(row.rest)) << "the picture waits for the next tick";
    for (const int phase : {1, 0, 1}) {
      desktop.Advance_ms(250);
      EXPECT_EQ(row.mark.picture(), Buttons(row.rest + phase)) << row.element.name;
    }
    EXPECT_EQ(Help_Context, row.help) << row.element.name;
    Tone_Show();
    EXPECT_EQ(Active_Ctl, &row.mark) << "a shown tone leaves the selection alone";
    Set_Focus(Editor.VCF_Res);
    EXPECT_EQ(row.mark.picture(), Buttons(row.rest)) << row.element.name;
  }
}

TEST_F(Editor_Test, Activation_Starts_At_The_First_Element) {
  Set_Focus(Editor.Keys_Pic);
  Blink_Phase = 1;
  Form other(Form_Role::Child, "Other");
  Show(other);
  Active_Ctl = &Editor.VCF_Res;
  Activate(Editor);
  EXPECT_EQ(Active_Ctl, &Editor.DCO1_Range);
  EXPECT_EQ(Blink_Phase, 0);
  Set_Focus(Editor.Keys_Pic);
  Active_Ctl = &Editor.VCF_Res;
  desktop.Advance_ms(250);
  EXPECT_EQ(Editor.VCF_Res.picture(), Buttons(7));
  Activate(other);
  EXPECT_EQ(Editor.VCF_Res.picture(), Buttons(6));
  EXPECT_EQ(Active_Ctl, &Editor.VCF_Res);
  Unload(other);
}

// One step of a hand that plays with everything.
struct Hand {
  explicit Hand(Scripted_Desktop& the_desktop) : desktop(the_desktop) {
    for (const Element_Place& row : Element_Places) names.push_back(row.name);
    for (const char* knob :
         {"DCO1_Tune", "DCO1_Tune_Knopf", "DCO2_Tune", "DCO2_Tune_Knopf", "DCO2_FTune", "DCO2_FTune_Knopf"}) {
      names.emplace_back(knob);
    }
  }

  int Pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(chance); }
  std::string_view Any_Name() {
    return names[static_cast<std::size_t>(Pick(0, static_cast<int>(names.size()) - 1))];
  }

  void Work(Picture_Box& element) {
    constexpr std::array keys{Key::Page_Up,  Key::Page_Down,   Key::End,          Key::Home,
                              Key::Left,     Key::Up,          Key::Right,        Key::Down,
                              Key::Tab,      Key::Keypad_Plus, Key::Keypad_Minus, Key::Digit_0,
                              Key::Keypad_0, Key::Letter_A,    Key::Space};
    if (Pick(0, 1) == 0) {
      Set_Focus(element);
      for (int times = Pick(1, 4); times > 0; --times) {
        desktop.Key(keys[static_cast<std::size_t>(Pick(0, static_cast<int>(keys.size()) - 1))]);
      }
      return;
    }
    const int button = Pick(0, 1) == 0 ? Left_Button : Right_Button;
    desktop.Press(element, button);
    for (int times = Pick(0, 6); times > 0; --times) {
      desktop.Move(element, static_cast<float>(Pick(-300, 300)) / 8, static_cast<float>(Pick(-300, 300)) / 8,
                   button);
    }
    desktop.Release(element, button);
  }

  Scripted_Desktop& desktop;
  std::vector<std::string_view> names;
  std::mt19937 chance{20817};
};

TEST_F(Editor_Test, After_A_Random_Walk_The_Instrument_Has_The_Same_Tone) {
  Instrument::Receiver instrument;
  const auto values = [&] { return instrument.memory.Values({}); };
  const auto tone = [] { return Instrument::Parameter_List(Tone.bytes.begin(), Tone.bytes.end()); };
  Hand hand(desktop);
  SysEx_Dump_Send();
  const auto first = tone();
  for (int step = 0; step < 2000; ++step) {
    hand.Work(Element(hand.Any_Name()));
    if (step % 7 == 0) desktop.Advance_ms(hand.Pick(1, 1200));
  }
  instrument.Take(service.Wire());
  ASSERT_NE(tone(), first);

  // A slow drag of a switch is not heard; everything else is.
  for (const Element_Place& row : Element_Places) {
    if (row.tag != "bm" && row.name != "VCA_Mode") continue;
    EXPECT_EQ(values()[static_cast<std::size_t>(row.index)], Tone[row.index]) << row.name;
  }
  for (const int knob : {13, 19, 20}) EXPECT_EQ(values()[static_cast<std::size_t>(knob)], Tone[knob]);
  for (const std::uint8_t byte : tone()) ASSERT_LE(byte, 127);

  service.Take_Sent();
  SysEx_Dump_Send();
  instrument.Take(service.Wire());
  EXPECT_EQ(values(), tone());
}

}  // namespace
