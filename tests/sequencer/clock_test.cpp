#include <set>

#include "adapters/instrument/instrument.h"
#include "platform/chance.h"
#include "sequencer/sequencer_fixture.h"

namespace {

using Steps = std::vector<int>;
using Texts = std::vector<std::string>;

TEST_F(Sequencer_Test, A_Step_Lasts_The_Eighth_Of_A_Pass) {
  for (const auto& [speed, interval_ms] : {std::pair{1, 7500}, {30, 250}, {90, 83}, {120, 62}})
    EXPECT_EQ(Seq_Interval_ms(speed), interval_ms) << speed;
}

TEST_F(Sequencer_Test, A_Tick_Sends_All_Rows_From_The_Top_Whatever_They_Hold) {
  MIDI_Channel = 16;
  Seq_Data[0] = 127;
  Seq_Data[1] = 63;
  Seq_Data[12] = 100;
  Seq_Saved = Flag_Off;
  desktop.Click(Editor.ED_Seq_Start);
  desktop.Advance_ms(249);
  EXPECT_EQ(Sent(), Texts());
  desktop.Advance_ms(1);
  EXPECT_EQ(Sent(), (Texts{"9F 3C 7F", "9F 3B 3F", "9F 3A 00", "9F 39 00", "9F 38 00", "9F 37 00", "9F 36 00",
                           "9F 35 00", "9F 34 00", "9F 33 00", "9F 32 00", "9F 31 00", "9F 30 64"}));
  MIDI_Enabled = 0;
  desktop.Advance_ms(250);
  EXPECT_EQ(Sent(), Texts());
  EXPECT_EQ(Seq_Step, 2);
}

TEST_F(Sequencer_Test, A_Note_That_Fails_Ends_The_Step_And_Is_Told_With_The_Silencing) {
  Seq_Saved = Flag_Off;
  desktop.Click(Editor.ED_Seq_Start);
  service.Fail_Next(Midi_Operation::Out_Short, 5, 99);
  desktop.on_other_box = [](const Shown_Box&) { return Answer::Ok; };
  desktop.Advance_ms(250);
  EXPECT_EQ(desktop.boxes.size(), 2U);
  EXPECT_EQ(MIDI_Enabled, 0);
}

TEST_F(Sequencer_Test, Each_Mode_Walks_Its_Way) {
  const struct {
    Play_Mode mode;
    int step;  // -1 and 8: chosen as the clock has passed an end
    Steps want;
  } rows[] = {{Play_Mode::Forward, 0, {0, 1, 2, 3, 4, 5, 6, 7, 0, 1}},
              {Play_Mode::Forward, -1, {0, 1}},
              {Play_Mode::Backward, 7, {7, 6, 5, 4, 3, 2, 1, 0, 7, 6}},
              {Play_Mode::Backward, 8, {7, 6}},
              {Play_Mode::Bounce, 0, {0, 1, 2, 3, 4, 5, 6, 7, 6, 5, 4, 3, 2, 1, 0, 1, 2}},
              {Play_Mode::Bounce, 8, {0, 1, 2, 3, 4, 5, 6, 7, 6}}};
  MIDI_Enabled = 0;
  for (const auto& row : rows) {
    Seq_Select_Mode(row.mode);
    Seq_Step = row.step;
    for (const int step : row.want) {
      Seq_Tick();
      EXPECT_EQ(Seq_Prev_Step, step) << static_cast<int>(row.mode) << " from " << row.step;
    }
  }
}

TEST_F(Sequencer_Test, Random_Modes_Reach_What_They_May) {
  MIDI_Enabled = 0;
  Randomize(3);
  using Set = std::set<int>;
  const struct {
    Play_Mode mode;
    Set steps, turns;  // what plays, and where the direction changes
  } rows[] = {{Play_Mode::Random_Step, Set{0, 1, 2, 3, 4, 5, 6}, Set{0, 1, 2, 3, 4, 5, 6}},
              {Play_Mode::Random_Direction, Set{0, 1, 2, 3, 4, 5, 6, 7}, Set{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8}},
              {Play_Mode::Random_Direction_At_Ends, Set{0, 1, 2, 3, 4, 5, 6, 7}, Set{0, 7}}};
  for (const auto& row : rows) {
    Seq_Select_Mode(row.mode);
    Seq_Step = 3;
    Set steps, turns;
    for (int tick = 0; tick < 2000; ++tick) {
      const int step = Seq_Step, direction = Seq_Direction;
      Seq_Tick();
      steps.insert(Seq_Prev_Step);
      if (Seq_Direction != direction) turns.insert(step);
    }
    EXPECT_EQ(steps, row.steps);
    EXPECT_EQ(turns, row.turns);
  }
}

TEST_F(Sequencer_Test, Every_Way_To_Stop_Ends_Clock_And_Notes) {
  const struct {
    const char* name;
    void (*stop)();
    bool closes;
  } rows[] = {{"Editor", ED_Seq_Stop_Click, true},
              {"window", Seq_Stop_Click, true},
              {"file dialog", Seq_Stop_Play, true},
              {"tone menu", Seq_Stop_For_Tone_Menu, true},
              {"setup", Seq_Stop_For_Setup, false},
              {"close output", Menu_MIDI_CloseOutput, true},
              {"closing the window", [] { Unload(Sequencer); }, false}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    Seq_Data[0] = 127;
    Open_Window();
    desktop.Click(Sequencer.Seq_Start);
    EXPECT_TRUE(Start_Is_Down());
    desktop.Advance_ms(500);
    row.stop();
    EXPECT_EQ(Sent().back(), "B0 7B 00");
    desktop.Advance_ms(1000);
    EXPECT_EQ(Sent(), Texts());
    EXPECT_EQ(Seq_Running, Flag_Off);
    EXPECT_EQ(Seq_Step, 0);
    EXPECT_FALSE(Start_Is_Down());
    EXPECT_EQ(service.Out_Is_Open(), !row.closes);
    Unload(Sequencer);
  }
  Sent();
  Seq_Stop_For_Tone_Menu();
  Seq_Stop_For_Setup();
  EXPECT_EQ(Sent(), Texts()) << "what does not run is not stopped";
  Menu_MIDI_CloseOutput();
  EXPECT_EQ(Sent().back(), "B0 7B 00");
}

TEST_F(Sequencer_Test, A_Start_That_Is_Refused_Springs_Back) {
  desktop.Press(Editor.ED_Seq_Start);
  EXPECT_TRUE(Start_Is_Down());
  desktop.Release(Editor.ED_Seq_Start);
  EXPECT_FALSE(Start_Is_Down()) << "there is nothing to play";
  MIDI_Enabled = 0;
  Open_Window();
  desktop.Click(Sequencer.Seq_Start);
  Seq_Start_Play();
  EXPECT_FALSE(MELVOR.Seq_Tmr.enabled());
  EXPECT_FALSE(Start_Is_Down() || Sequencer.Seq_Start.picture() == Button_Dn3D);
}

// What a musician may do in between, drawn at random; the instrument counts what sounds.
TEST_F(Sequencer_Test, After_A_Long_Run_Stop_Leaves_No_Note_Sounding) {
  std::string file = std::string("SEQ1") + '\x1E' + '\x3A' + std::string(104, '\0');
  for (std::size_t place = 6; place < file.size(); place += 5) file[place] = 127;
  root.Put("a.seq", file);
  Randomize(11);
  const auto draw = [](int count) { return static_cast<int>(Rnd() * count); };
  Instrument::Receiver instrument;
  int most_notes = 0;
  Open_Window();
  for (int step = 0; step < 20'000; ++step) {
    if (!MELVOR.Seq_Tmr.enabled()) desktop.Click(Sequencer.Seq_Start);
    Seq_Tick();
    const int chosen = draw(200);
    const float x = static_cast<float>(draw(95));
    const float y = static_cast<float>(draw(155));
    if (chosen < 20) desktop.Press(Sequencer.Seq_Matrix, chosen < 10 ? Left_Button : Right_Button, x, y);
    if (chosen == 20) desktop.Click(Sequencer.Seq_Directions[static_cast<std::size_t>(draw(6))]);
    if (chosen == 21) User_Selected(Sequencer.Seq_Range, draw(5));
    if (chosen >= 22 && chosen < 25) User_Selected(Sequencer.Seq_Trans, draw(13));
    if (chosen == 25) Seq_Load("c:\\a.seq", draw(2) == 0 ? Load_Mode::Open : Load_Mode::Soundcheck);
    if (chosen == 26) Seq_Clear();
    const bool stops = step % 500 == 499;
    if (stops) desktop.Click(step % 1000 == 999 ? Sequencer.Seq_Stop : Editor.ED_Seq_Stop);
    instrument.Take(service.Wire());
    service.Take_Sent();
    most_notes = std::max(most_notes, instrument.Sounding_Notes());
    ASSERT_TRUE(!stops || instrument.Sounding_Notes() == 0) << "after step " << step;
  }
  EXPECT_GT(most_notes, 8);
}

}  // namespace
