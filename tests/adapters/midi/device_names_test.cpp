#include "adapters/midi/device_names.h"

#include <gtest/gtest.h>

namespace {

TEST(Device_Names, Numbers_That_Change_From_Boot_To_Boot_Are_Left_Out) {
  constexpr struct {
    const char* name;
    const char* want;
  } Rows[] = {
      {"Test Synth MIDI 1", "Test Synth MIDI 1"},
      {"a2j:Test Synth [24] (playback): MIDI 1", "a2j:Test Synth (playback): MIDI 1"},
      {"FLUID Synth (12345):Synth input port (12345:0)", "FLUID Synth:Synth input port"},
      {"Midi Through:Midi Through Port-0 14:0", "Midi Through:Midi Through Port-0"},
      {"Virtual Raw MIDI 0-1", "Virtual Raw MIDI 0-1"},
      {"Module (2)", "Module (2)"},
      {"Clock 4:33rpm", "Clock 4:33rpm"},
      {" Two\tblanks  here ", "Two blanks here"},
      {"[17]", "MIDI"},
      {"", "MIDI"},
  };
  for (const auto& row : Rows) EXPECT_EQ(Midi::Clean_Name(row.name), row.want);
}

TEST(Device_Names, Each_Is_Different_Within_31_Bytes) {
  const std::string longest(40, 'x');
  const std::vector<std::string> names = Midi::Unique_Names(
      {longest, longest, "Synth", "Synth [20]", "Synth", "Synth (2)", "Gerät mit einem langen Namen üü"});
  EXPECT_EQ(names, (std::vector<std::string>{std::string(31, 'x'), std::string(27, 'x') + " (2)", "Synth",
                                             "Synth (2)", "Synth (3)", "Synth (2) (2)",
                                             "Gerät mit einem langen Namen"}));
}

}  // namespace
