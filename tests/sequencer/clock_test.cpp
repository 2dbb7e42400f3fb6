#include <set>

#include "adapters/instrument/instrument.h"
#include "platform/chance.h"
#include "sequencer/sequencer_fixture.h"

namespace {

using Steps = std::vector<int>;

TEST_F(Sequencer_Test, A_Step_Lasts_The_Eighth_Of_A_Pass) {
  const struct {
    int speed, interval_ms;
  } rows[] = {{1, 7500}, {30, 250}, {60, 125}, {90, 83}, {100, 75}, {120, 62}};
  for (const auto& row : rows) EXPECT_EQ(Seq_Interval_ms(row.speed), row.interval_ms) << row.speed;
  EXPECT_EQ(Raised([] { Seq_Interval_ms(0); }), 11);
}

TEST_F(Sequencer_Test, A_Tick_Sends_All_Rows_From_The_Top_Whatever_They_Hold) {
  MIDI_Channel = 16;
  Seq_Data[0] = 127;
  Seq_Data[1] = 63;
  Seq_Data[12] = 100;
  Seq_Saved = Flag_Off;
  desktop.Click(Editor.ED_Seq_Start);
  desktop.Advance_ms(249);
  EXPECT_EQ(Sent(), std::vector<std::string>());
  desktop.Advance_ms(1);
  EXPECT_EQ(Sent(), (std::vector<std::string>{"9F 3C 7F", "9F 3B 3F", "9F 3A 00", "9F 39 00", "9F 38 00",
                                              "9F 37 00", "9F 36 00", "9F 35 00", "9F 34 00", "9F 33 00",
                                              "9F 32 00", "9F 31 00", "9F 30 64"}));
  MIDI_Enabled = 0;
  desktop.Advance_ms(250);
  EXPECT_EQ(Sent(), std::vector<std::string>());
  EXPECT_EQ(Seq_Step, 2);
}

TEST_F(Sequencer_Test, Each_Mode_Walks_Its_Way) {
  const struct {
    const char* name;
    Play_Mode mode;
    int step;
    Steps want;
  } rows[] = {
      {"forward", Play_Mode::Forward, 0, {0, 1, 2, 3, 4, 5, 6, 7, 0, 1}},
      {"backward", Play_Mode::Backward, 7, {7, 6, 5, 4, 3, 2, 1, 0, 7, 6}},
      {"backward from step 0", Play_Mode::Backward, 0, {0, 7, 6}},
      {"backward chosen behind the last step", Play_Mode::Backward, 8, {7, 6}},
      {"forward chosen before the first step", Play_Mode::Forward, -1, {0, 1}},
      {"bounce", Play_Mode::Bounce, 0, {0, 1, 2, 3, 4, 5, 6, 7, 6, 5, 4, 3, 2, 1, 0, 1, 2}},
      {"bounce chosen behind the last step", Play_Mode::Bounce, 8, {0, 1, 2, 3, 4, 5, 6, 7, 6}},
  };
  Mark_Steps();
  MIDI_Out_Open();
  Seq_SendAllNotesOff();
  for (const auto& row : rows) {
    Seq_Select_Mode(row.mode);
    Seq_Step = row.step;
    EXPECT_EQ(Play(static_cast<int>(row.want.size())), row.want) << row.name;
  }
}

TEST_F(Sequencer_Test, Chance_Is_Drawn_Only_Where_A_Mode_Wants_It) {
  const struct {
    Play_Mode mode;
    int step, ticks, draws;
  } rows[] = {{Play_Mode::Forward, 0, 9, 0},
              {Play_Mode::Bounce, 0, 9, 0},
              {Play_Mode::Random_Step, 0, 9, 18},
              {Play_Mode::Random_Direction, 3, 9, 9},
              {Play_Mode::Random_Direction_At_Ends, 1, 6, 0},
              {Play_Mode::Random_Direction_At_Ends, 1, 7, 1},
              {Play_Mode::Random_Direction_At_Ends, 8, 1, 0},
              {Play_Mode::Random_Direction_At_Ends, -1, 1, 0}};
  MIDI_Enabled = 0;
  for (const auto& row : rows) {
    Seq_Select_Mode(row.mode);
    Seq_Step = row.step;
    Randomize(7);
    for (int tick = 0; tick < row.ticks; ++tick) Seq_Tick();
    const double next = Rnd();
    Randomize(7);
    for (int draw = 0; draw < row.draws; ++draw) Rnd();
    EXPECT_EQ(next, Rnd()) << static_cast<int>(row.mode) << " from " << row.step;
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

TEST_F(Sequencer_Test, The_Indicators_Follow_The_Clock_And_Stop_Puts_Them_Out) {
  Open_Window();
  const auto lit = [] {
    Steps steps;
    for (std::size_t step = 0; step < 8; ++step) {
      if (Sequencer.Seq_Clock[step].picture() == Picture{"seq-clock-1"})
        steps.push_back(static_cast<int>(step));
    }
    return steps;
  };
  desktop.Click(Sequencer.Seq_Start);
  desktop.Advance_ms(500);
  EXPECT_EQ(lit(), Steps{1});
  desktop.Click(Sequencer.Seq_Directions[1]);
  desktop.Click(Sequencer.Seq_Start);
  EXPECT_EQ(lit(), Steps());
  desktop.Advance_ms(250);
  EXPECT_EQ(lit(), Steps{7});
  desktop.Click(Sequencer.Seq_Stop);
  EXPECT_EQ(lit(), Steps());
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
    Mark_Steps();
    Open_Window();
    desktop.Click(Sequencer.Seq_Start);
    EXPECT_TRUE(Start_Is_Down());
    desktop.Advance_ms(500);
    row.stop();
    EXPECT_EQ(Sent().back(), "B0 7B 00") << row.name;
    desktop.Advance_ms(1000);
    EXPECT_EQ(Sent(), std::vector<std::string>()) << row.name;
    EXPECT_EQ(Seq_Running, Flag_Off) << row.name;
    EXPECT_EQ(Seq_Step, 0) << row.name;
    EXPECT_FALSE(Start_Is_Down()) << row.name;
    EXPECT_EQ(service.Out_Is_Open(), !row.closes) << row.name;
    Unload(Sequencer);
  }
}

TEST_F(Sequencer_Test, A_Start_That_Is_Refused_Springs_Back) {
  desktop.Press(Editor.ED_Seq_Start);
  EXPECT_TRUE(Start_Is_Down());
  desktop.Release(Editor.ED_Seq_Start);
  EXPECT_FALSE(Start_Is_Down());
  MIDI_Enabled = 0;
  Open_Window();
  desktop.Click(Sequencer.Seq_Start);
  EXPECT_FALSE(Start_Is_Down());
  EXPECT_EQ(Sequencer.Seq_Start.picture(), Button_Up3D);
  MIDI_Enabled = 1;
  Seq_Start_Play();
  EXPECT_FALSE(Ticking());
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
  for (int step = 0; step < 100'000; ++step) {
    if (!Ticking()) desktop.Click(Sequencer.Seq_Start);
    Seq_Tick();
    const int chosen = draw(200);
    const float x = static_cast<float>(draw(95));
    const float y = static_cast<float>(draw(155));
    if (chosen < 10) desktop.Press(Sequencer.Seq_Matrix, chosen < 5 ? Left_Button : Right_Button, x, y);
    if (chosen >= 10 && chosen < 15)
      desktop.Click(Sequencer.Seq_Directions[static_cast<std::size_t>(draw(6))]);
    if (chosen == 16) User_Selected(Sequencer.Seq_Range, draw(5));
    if (chosen >= 17 && chosen < 20) User_Selected(Sequencer.Seq_Trans, draw(13));
    if (chosen == 20) Seq_Load("c:\\a.seq", draw(2) == 0 ? Load_Mode::Open : Load_Mode::Soundcheck);
    if (chosen == 21) Seq_Clear();
    instrument.Take(service.Wire());
    service.Take_Sent();
    most_notes = std::max(most_notes, instrument.Sounding_Notes());
    if (step % 500 != 499) continue;
    desktop.Click(step % 1000 == 999 ? Sequencer.Seq_Stop : Editor.ED_Seq_Stop);
    instrument.Take(service.Wire());
    service.Take_Sent();
    ASSERT_EQ(instrument.Sounding_Notes(), 0) << "after step " << step;
  }
  EXPECT_GT(most_notes, 13);
}

}  // namespace
