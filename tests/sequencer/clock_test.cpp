
#include <algorithm>

#include "platform/chance.h"
#include "sequencer/seq_pictures.h"
#include "sequencer/sequencer_fixture.h"

namespace {

using Steps = std::vector<int>;

bool Is_Dark(const Picture_Box& indicator) { return indicator.picture() == Indicator_Dark; }

TEST_F(Sequencer_Test, A_Note_That_Fails_Ends_The_Step_And_Is_Told_With_The_Silencing) {
  Seq_Saved = Flag_Off;
  desktop.Click(Editor.ED_Seq_Start);
  service.Fail_Next("Out_Short", 5, 99);
  desktop.on_other_box = [this] {
    desktop.Advance_ms(300);  // the next tick is due when the box has gone
    return Answer::Ok;
  };
  desktop.Advance_ms(250);
  EXPECT_EQ(desktop.boxes.size(), 2U);
  EXPECT_EQ(MIDI_Enabled, 0);
  EXPECT_EQ(Seq_Step, 0) << "the clock has stopped";

  MIDI_Enabled = 1;
  desktop.Click(Editor.ED_Seq_Start);
  service.Fail_Next("Out_Short", 67);
  MIDI_SendNote(60, 127);  // not the sequencer's own
  desktop.Advance_ms(1000);
  EXPECT_EQ(Sent().back(), "B0 7B 00");
  EXPECT_EQ(desktop.boxes.size(), 3U);
}

TEST_F(Sequencer_Test, Each_Mode_Walks_Its_Way) {
  MIDI_Enabled = 0;
  // From 8: chosen as the clock has passed the end.
  for (const auto& [mode, start, want] :
       {std::tuple{Play_Mode::Forward, 0, Steps{0, 1, 2, 3, 4, 5, 6, 7, 0, 1}},
        {Play_Mode::Backward, 7, {7, 6, 5, 4, 3, 2, 1, 0, 7, 6}},
        {Play_Mode::Bounce, 0, {0, 1, 2, 3, 4, 5, 6, 7, 6, 5, 4, 3, 2, 1, 0, 1, 2}},
        {Play_Mode::Bounce, 8, {0, 1, 2, 3, 4, 5, 6, 7, 6}}}) {
    Seq_Select_Mode(mode);
    Seq_Step = start;
    for (const int step : want) {
      Seq_Tick();
      EXPECT_EQ(Seq_Prev_Step, step) << static_cast<int>(mode) << " from " << start;
    }
  }
  EXPECT_EQ(Sent(), Texts()) << "without MIDI";
}

TEST_F(Sequencer_Test, Random_Modes_Reach_What_They_May) {
  MIDI_Enabled = 0;
  Randomize(3);
  for (const auto& [mode, reached] : {std::pair{Play_Mode::Random_Step, 7U},
                                      {Play_Mode::Random_Direction, 8U},
                                      {Play_Mode::Random_Direction_At_Ends, 8U}}) {
    Seq_Select_Mode(mode);
    std::set<int> steps;
    for (int tick = 0; tick < 2000; ++tick) {
      Seq_Tick();
      steps.insert(Seq_Prev_Step);
    }
    EXPECT_EQ(steps.size(), reached);
  }
}

TEST_F(Sequencer_Test, Every_Way_To_Stop_Ends_Clock_And_Notes_And_Shows_It) {
  desktop.on_other_box = [] { return Answer::Ok; };
  using Row = std::tuple<const char*, void (*)(), bool>;
  for (const auto& [name, stop, closes] : {Row{"Editor", ED_Seq_Stop_Click, true},
                                           {"window", Seq_Stop_Click, true},
                                           {"file dialog", Seq_Stop_Play, true},
                                           {"tone menu", Seq_Stop_For_Tone_Menu, true},
                                           {"setup", Seq_Stop_For_Setup, false},
                                           {"close output", Menu_MIDI_CloseOutput, true},
                                           {"MIDI lost", [] { MIDI_Out_Error(68, ""); }, true},
                                           {"closing the window", [] { Unload(Sequencer); }, false}}) {
    SCOPED_TRACE(name);
    Seq_Data[0] = 127;
    Open_Window();
    desktop.Click(Sequencer.Seq_Start);
    desktop.Advance_ms(500);
    stop();
    EXPECT_EQ(Sent().back(), "B0 7B 00");
    desktop.Advance_ms(1000);
    EXPECT_EQ(Sent(), Texts());
    EXPECT_TRUE(Seq_Running == Flag_Off && Seq_Step == 0);
    EXPECT_EQ(service.Out_Is_Open(), !closes);
    EXPECT_EQ(Editor.ED_Seq_Start.picture(), Button_Up3D);
    if (Sequencer.Loaded()) {
      EXPECT_EQ(Sequencer.Seq_Start.picture(), Button_Up3D);
      EXPECT_TRUE(std::ranges::all_of(Sequencer.Seq_Clock, Is_Dark));
    }
    MIDI_Enabled = 1;
    Unload(Sequencer);
  }
}

}  // namespace
