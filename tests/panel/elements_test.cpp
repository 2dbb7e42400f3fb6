#include "panel/elements.h"

#include "panel/editor_fixture.h"
#include "panel/push_buttons.h"
#include "platform/runtime_error.h"
#include "windows/pictures.h"

namespace {

struct Elements : Editor_Fixture {};

TEST_F(Elements, Slider_Keys) {
  struct Row {
    int before, key, after, top;
    Messages sent;
    std::string shown;  // empty: the name is still there
  };
  for (const Row& row : std::vector<Row>{{120, Key::Page_Up, 127, 32, {Tone_Message("22 7F")}, "99"},
                                         {40, Key::Page_Up, 56, 77, {Tone_Message("22 38")}, "43"},
                                         {10, Key::Page_Down, 0, 112, {Tone_Message("22 00")}, "0"},
                                         {64, Key::End, 0, 112, {Tone_Message("22 00")}, "0"},
                                         {64, Key::Home, 127, 32, {Tone_Message("22 7F")}, "99"},
                                         {63, Key::Up, 64, 72, {Tone_Message("22 40")}, "49"},
                                         {2, Key::Keypad_Minus, 1, 112, {Tone_Message("22 01")}, "0"},
                                         {64, Key::Left, 64, 72, {}, ""},
                                         {64, Key::Digit_0, 64, 72, {}, ""}}) {
    Have(34, row.before);
    Editor.VCF_CutoffF.top = 50;  // a key places the cap in any case
    Key_On(Editor.VCF_CutoffF, row.key);
    EXPECT_EQ(Numbers({Tone[34], Editor.VCF_CutoffF.top()}), Numbers({row.after, row.top})) << row.key;
    EXPECT_EQ(Sent(), row.sent) << row.before << " key " << row.key;
    EXPECT_EQ(Display(), row.shown) << row.before << " key " << row.key;
    EXPECT_EQ(Tone_Saved, row.sent.empty() ? Flag_True : Flag_False);
  }
}

TEST_F(Elements, A_Slider_Sends_Each_Step_Of_A_Drag) {
  Have(47, 10);
  desktop.Move(Editor.ENV1_Attack, 4, -50, 0);
  EXPECT_EQ(Tone[47], 10) << "a move without a button";
  desktop.Press(Editor.ENV1_Attack);
  for (const float y : {-20.5F, -0.5F, 0.0F, 1.0F}) desktop.Move(Editor.ENV1_Attack, 4, y, Right_Button);
  EXPECT_EQ(Sent(), (Messages{Tone_Message("2F 0A"), Tone_Message("2F 1E"), Tone_Message("2F 1E"),
                              Tone_Message("2F 1E"), Tone_Message("2F 1D")}));
  EXPECT_EQ(Editor.ENV1_Attack.top(), 437 - 18);
  desktop.Move(Editor.ENV1_Attack, 4, -300);
  EXPECT_EQ(Editor.ENV1_Attack.top(), 357);
  EXPECT_EQ(Display(), "99");
  desktop.Move(Editor.ENV1_Attack, 4, 300);
  EXPECT_EQ(Tone[47], 0);
}

TEST_F(Elements, Switch_Keys_Walk_Through_The_Positions) {
  struct Row {
    Picture_Box& element;
    int index, key;
    std::vector<int> bytes, tops;
  };
  for (const Row& row :
       std::vector<Row>{{Editor.DCO1_Range, 11, Key::Up, {32, 64, 96, 127, 127}, {52, 42, 32, 32, 32}},
                        {Editor.DCO1_Range, 11, Key::Page_Down, {95, 63, 31, 0, 0}, {42, 52, 62, 62, 62}},
                        {Editor.VCF_Mode, 40, Key::Keypad_Plus, {32, 64}, {298, 288}},
                        {Editor.ENV1_Keyfollow, 51, Key::Home, {127}, {388}},
                        {Editor.Chorus_Mode, 43, Key::Page_Up, {32, 64, 64}, {408, 398, 398}},
                        {Editor.Chorus_Mode, 43, Key::Keypad_Minus, {32, 0, 0}, {408, 418, 418}},
                        {Editor.LFO_Waveform, 44, Key::Home, {64, 64}, {377, 377}}}) {
    for (std::size_t step = 0; step < row.bytes.size(); ++step) {
      Key_On(row.element, row.key);
      EXPECT_EQ(Tone[row.index], row.bytes[step]) << row.element.name << " key " << row.key;
      EXPECT_EQ(row.element.top(), row.tops[step]) << row.element.name << " key " << row.key;
    }
    EXPECT_EQ(Sent().size(), row.bytes.size()) << "sent also where nothing changes";
  }
  EXPECT_EQ(Display(), "") << "switches show no value";
  for (const int key : {Key::Left, Key::Right, Key::Letter_A}) Key_On(Editor.VCF_Mode, key);
  desktop.Press(Editor.VCF_Mode);
  EXPECT_TRUE(Sent().empty());
  EXPECT_EQ(Tone[40], 64);
}

TEST_F(Elements, A_Three_Way_Switch_Lags_In_The_Gaps_Of_A_Drag) {
  struct Row {
    int value, chorus_top, lfo_top;
  };
  int before = 0;
  for (const Row& row : {Row{15, 418, 397},
                         {31, 418, 397},
                         {32, 408, 387},
                         {63, 408, 387},
                         {64, 398, 377},
                         {127, 398, 377},
                         {63, 398, 377},
                         {48, 398, 377},
                         {47, 408, 387},
                         {31, 408, 387},
                         {16, 408, 387},
                         {15, 418, 397},
                         {97, 418, 397},
                         {96, 398, 377}}) {
    for (Picture_Box* element : {&Editor.Chorus_Mode, &Editor.LFO_Waveform}) {
      Set_Focus(*element);
      desktop.Move(*element, 4, static_cast<float>(before - row.value));
    }
    EXPECT_EQ(Numbers({Tone[43], Editor.Chorus_Mode.top()}), Numbers({row.value, row.chorus_top}));
    EXPECT_EQ(Numbers({Tone[44], Editor.LFO_Waveform.top()}), Numbers({row.value, row.lfo_top}));
    before = row.value;
  }
}

TEST_F(Elements, A_Switch_Drag_Sends_Only_Steps_Of_More_Than_4_On_The_Same_Switch) {
  struct Row {
    Picture_Box& element;
    float y;
    int index, after;
    Messages sent;
  };
  Set_Focus(Editor.DCO2_Range);
  desktop.Move(Editor.DCO2_Range, 4, -3);
  Sent();
  for (const Row& row :
       std::vector<Row>{{Editor.DCO1_Waveform, -50, 12, 50, {}},
                        {Editor.DCO1_Waveform, -4, 12, 54, {}},
                        {Editor.DCO1_Waveform, -5, 12, 59, {Tone_Message("0C 3B")}},
                        {Editor.DCO1_Waveform, -0.5F, 12, 60, {}},  // halves go to the even neighbour
                        {Editor.DCO1_Waveform, 9, 12, 51, {Tone_Message("0C 33")}},
                        {Editor.DCO2_Range, -90, 16, 93, {}},
                        {Editor.DCO1_Waveform, 60, 12, 0, {}},
                        {Editor.DCO1_Waveform, -500, 12, 127, {Tone_Message("0C 7F")}}}) {
    Set_Focus(row.element);
    Tone_Saved = Flag_True;
    desktop.Move(row.element, 4, row.y);
    EXPECT_EQ(Tone[row.index], row.after) << row.element.name << " " << row.y;
    EXPECT_EQ(Sent(), row.sent) << row.element.name << " " << row.y;
    EXPECT_EQ(Tone_Saved, Flag_False);
  }
  EXPECT_EQ(Display(), "");
}

TEST_F(Elements, Knob_Keys_Turn_The_Dot_On_Its_Circle) {
  struct Row {
    Picture_Box& element;
    int index, before, key, after;
    std::string shown;
    int left, top;
  };
  Picture_Box& tune = Editor.DCO1_Tune;
  Picture_Box& fine = Editor.DCO2_FTune_Knopf;
  for (const Row& row : std::vector<Row>{
           {tune, 13, 60, Key::Letter_A, 56, "0", 12, 5},  // any key stores the band's lowest byte
           {tune, 13, 56, Key::Page_Up, 92, "6", 17, 8},
           {tune, 13, 127, Key::Page_Up, 120, "12", 15, 14},
           {tune, 13, 20, Key::Page_Down, 0, "-12", 9, 14},
           {tune, 13, 56, Key::Right, 72, "1", 13, 5},
           {tune, 13, 112, Key::Keypad_Plus, 116, "11", 16, 13},
           {tune, 13, 120, Key::Digit_0, 56, "0", 12, 5},
           {fine, 20, 64, Key::Page_Up, 74, "8", 14, 5},
           {fine, 20, 30, Key::Page_Down, 20, "-34", 7, 11},
           {fine, 20, 100, Key::Left, 99, "28", 17, 9},
           {fine, 20, 126, Key::Keypad_0, 63, "0", 12, 5}}) {
    Have(row.index, row.before);
    Key_On(row.element, row.key);
    const Picture_Box& dot = row.index == 13 ? Editor.DCO1_Tune_Knopf : Editor.DCO2_FTune_Knopf;
    EXPECT_EQ(Numbers({Tone[row.index], dot.left(), dot.top()}), Numbers({row.after, row.left, row.top}))
        << row.before << " key " << row.key;
    EXPECT_EQ(Display(), row.shown) << row.before << " key " << row.key;
    EXPECT_EQ(Sent().size(), 1U);
  }
  Key_On(fine, Key::End);
  EXPECT_EQ(Display(), "-50");
  Key_On(fine, Key::Home);
  EXPECT_EQ(Display(), "50");
  EXPECT_EQ(Sent(), (Messages{Tone_Message("14 00"), Tone_Message("14 7F")}));
}

TEST_F(Elements, A_Knob_Follows_The_Mouse_Sideways) {
  desktop.Press(Editor.DCO2_Tune);
  EXPECT_EQ(Sent(), Messages{Tone_Message("13 38")}) << "a press shows and sends the present value";
  EXPECT_EQ(Active_Ctl, &Editor.DCO2_Tune_Knopf);
  struct Row {
    float x;
    int after;
  };
  // The first move counts from the left edge; four pixels are a semitone, halves go to the even neighbour.
  for (const Row& row : {Row{40, 112}, {38, 112}, {34, 104}, {34, 104}, {400, 120}, {396, 116}, {-400, 0}}) {
    desktop.Move(Editor.DCO2_Tune, row.x, -70);
    EXPECT_EQ(Tone[19], row.after) << row.x;
  }
  EXPECT_EQ(Sent().size(), 7U);
  desktop.Press(Editor.DCO2_FTune_Knopf);
  for (const Row& row : {Row{5, 69}, {-2, 62}, {3, 67}, {900, 127}}) {
    desktop.Move(Editor.DCO2_FTune_Knopf, row.x, 0);
    EXPECT_EQ(Tone[20], row.after) << row.x;
  }
  Have(20, 64);
  Set_Focus(Editor.VCF_Res);
  desktop.Press(Editor.DCO2_FTune);
  desktop.Move(Editor.DCO2_FTune, 7, 0);
  EXPECT_EQ(Tone[20], 71) << "a new selection counts from the left edge again";
}

TEST_F(Elements, A_Pushed_Button_Takes_Its_Symbol_Along) {
  Picture_Box& button = Editor.ED_Seq_Start;
  Picture_Box& symbol = Editor.ED_Seq_Start_Pic;
  const auto look = [&] {
    return std::string(button.picture().name) + " " + Numbers({symbol.left(), symbol.top()});
  };
  Push_On_Mouse(button);
  desktop.Press(symbol);
  EXPECT_EQ(look(), "button-dn3d 4 4");
  desktop.Release(symbol);
  EXPECT_EQ(look(), "button-up3d 3 3");
  Push_Down_Wide(button);
  EXPECT_EQ(look(), "dlg2-dn 7 6");
  Push_Up_Wide(button);
  EXPECT_EQ(look(), "dlg2-up 6 5");
  EXPECT_EQ(Editor.ED_Seq_Stop_Pic.left(), 3);
}

struct Lights_Window final : Form {
  Lights_Window() : Form(Form_Role::Child, "Lights") {}
  Picture_Box a{*this, "a"}, b{*this, "b"}, c{*this, "c"};
};

std::string Look_Of(const Picture_Box& light) {
  return std::string(light.picture().name) + " " + light.tag() + (light.enabled() ? "" : " off");
}

TEST_F(Elements, Lights_Serve_As_Check_Boxes_And_Radio_Buttons) {
  Lights_Window window;
  Picture_Box& box = window.a;
  struct Step {
    void (*act)(Picture_Box&);
    std::string look;
  };
  for (const Step& step : {Step{Check_Off, "led-0 0"},
                           {Check_Toggle, "led-3 3"},
                           {Check_Disable, "led-5 3 off"},
                           {Check_Toggle, "led-5 3 off"},
                           {Check_Off, "led-5 3 off"},
                           {Radio_Enable, "led-3 3"},
                           {Check_Toggle, "led-0 0"}}) {
    step.act(box);
    EXPECT_EQ(Look_Of(box), step.look);
  }
  const std::array<Picture_Box*, 3> group{&window.a, &window.b, &window.c};
  Radio_Select(group, 0);
  Radio_Disable(window.c);
  Radio_Select(group, 1);
  EXPECT_EQ(Look_Of(window.a), "led-0 0");
  EXPECT_EQ(Look_Of(window.b), "led-1 1");
  Radio_Select(group, 2);
  EXPECT_EQ(Look_Of(window.b), "led-1 1") << "a disabled light cannot be chosen";
  EXPECT_EQ(Look_Of(window.c), "led-5 0 off");
  Radio_Disable_All(group);
  EXPECT_EQ(Look_Of(window.b), "led-5 1 off");
  for (const int item : {-1, 3}) EXPECT_THROW(Radio_Select(group, item), Runtime_Error);
}

}  // namespace
