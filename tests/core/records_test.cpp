#include "core/records.h"

#include <algorithm>
#include <array>

#include "platform/runtime_error.h"
#include "support/program.h"
#include "windows/editor_window.h"

namespace {

struct Records : Program {};

TEST_F(Records, Every_Semitone_Band_Begins_And_Ends_Where_The_Instrument_Has_It) {
  struct Row {
    int first;
    int last;
    int semitones;
  };
  constexpr std::array<Row, 25> Bands{
      {{0, 7, -12},   {8, 11, -11},  {12, 15, -10},  {16, 19, -9},   {20, 23, -8},
       {24, 31, -7},  {32, 35, -6},  {36, 39, -5},   {40, 43, -4},   {44, 47, -3},
       {48, 51, -2},  {52, 55, -1},  {56, 71, 0},    {72, 75, 1},    {76, 79, 2},
       {80, 83, 3},   {84, 87, 4},   {88, 91, 5},    {92, 95, 6},    {96, 103, 7},
       {104, 107, 8}, {108, 111, 9}, {112, 115, 10}, {116, 119, 11}, {120, 127, 12}}};
  for (const Row& row : Bands) {
    for (int byte = row.first; byte <= row.last; ++byte) EXPECT_EQ(Semitone_12(byte), row.semitones) << byte;
    EXPECT_EQ(Semitone_Value(row.semitones), row.first);
  }
  EXPECT_EQ(Semitone_12(128), 0);
  EXPECT_EQ(Semitone_12(255), 0);
  EXPECT_THROW(Semitone_Value(13), Runtime_Error);
}

TEST_F(Records, The_Fine_Tune_Rises_By_One_But_For_Its_27_Pairs) {
  constexpr std::array Pairs{4,  8,  13, 18, 23, 27, 32, 37, 41,  45,  50,  55,  59, 63,
                             67, 71, 76, 81, 85, 89, 94, 99, 103, 108, 113, 118, 122};
  int pairs = 0;
  for (int byte = 0; byte < 127; ++byte) {
    const bool pair = std::ranges::find(Pairs, byte) != Pairs.end();
    EXPECT_EQ(Bipolar_50(byte + 1) - Bipolar_50(byte), pair ? 0 : 1) << byte;
    pairs += pair ? 1 : 0;
  }
  EXPECT_EQ(pairs, 27);
  EXPECT_EQ(Bipolar_50(0), -50);
  EXPECT_EQ(Bipolar_50(63), 0);
  EXPECT_EQ(Bipolar_50(127), 50);
  EXPECT_EQ(Bipolar_50(128), 0);
}

TEST_F(Records, The_First_Tone_Is_Blank_And_Centred) {
  Tone.bytes.fill(99);
  Patch_Rec.bytes.fill(99);
  Tone_File = "c:\\a.syx";
  Tone_Saved = Flag_False;
  Tone_Clear();
  for (int index = 0; index < Tone_Size; ++index) {
    const int want = index < 10 ? 32 : index == 13 || index == 19 ? 56 : index == 20 ? 64 : 0;
    EXPECT_EQ(Tone[index], want) << index;
  }
  for (int index = 0; index < Patch_Size; ++index) EXPECT_EQ(Patch_Rec[index], index == 6 ? 64 : 0) << index;
  EXPECT_EQ(Tone_File, "");
  EXPECT_EQ(Tone_Saved, Flag_True);
  EXPECT_FALSE(MELVOR.Menu_File_SYX_Save.enabled());
}

TEST_F(Records, A_Set_Parameter_Is_Stored_Shown_Sent_And_Unsaved) {
  struct Row {
    int index;
    int value;
    const char* shown;
  };
  for (const Row& row : {Row{34, 127, "99"}, Row{34, 1, "0"}, Row{14, 64, "49"}, Row{13, 71, "0"},
                         Row{19, 72, "1"}, Row{20, 0, "-50"}, Row{11, 96, "kept"}, Row{58, 64, "kept"}}) {
    Editor.Tone_Name.Set_Text("kept");
    Tone_Saved = Flag_True;
    Tone_Param_Set(row.index, row.value);
    EXPECT_EQ(Tone[row.index], row.value);
    EXPECT_EQ(Editor.Tone_Name.text(), row.shown) << row.index;
    EXPECT_EQ(Sent().size(), 1U);
    EXPECT_EQ(Tone_Saved, Flag_False);
  }
}

TEST_F(Records, While_Loading_Nothing_Is_Shown_And_The_Display_Keeps_Its_Second) {
  int returns = 0;
  MELVOR.Timer_Display.on_tick = [&] {
    MELVOR.Timer_Display.enabled = false;
    ++returns;
  };
  Editor.Tone_Name.Set_Text("name");
  Tone_Loading = Flag_On;
  Tone_Param_Set(34, 10);
  desktop.Advance_ms(5000);
  EXPECT_EQ(returns, 0);
  EXPECT_EQ(Editor.Tone_Name.text(), "name");
  Tone_Loading = Flag_Off;
  Tone_Param_Set(34, 10);
  desktop.Advance_ms(900);
  Tone_Param_Set(11, 10);
  desktop.Advance_ms(999);
  EXPECT_EQ(returns, 0) << "a switch shows nothing, but starts the second anew";
  desktop.Advance_ms(1);
  EXPECT_EQ(returns, 1);
  MELVOR.Timer_Display.on_tick = nullptr;
}

TEST_F(Records, Faults_Of_Index_And_Value_Change_Nothing) {
  const auto before = Tone;
  EXPECT_THROW(Tone_Param_Set(59, 1), Runtime_Error);
  EXPECT_THROW(Tone_Param_Set(-1, 1), Runtime_Error);
  EXPECT_THROW(Tone_Param_Set(34, 256), Runtime_Error);
  EXPECT_EQ(Tone, before);
  EXPECT_EQ(Tone_Saved, Flag_True);
}

TEST_F(Records, The_Name_Fills_Ten_Bytes_And_Blanks_The_Eleventh) {
  Tone[10] = 77;
  Tone_Name_Str = "AB\xC3\xA9~\x7F";
  Tone_Name_Store();
  const std::vector<int> want{'A', 'B', 32, '~', 127, 32, 32, 32, 32, 32, 32};
  EXPECT_EQ(std::vector<int>(Tone.bytes.begin(), Tone.bytes.begin() + 11), want);
  int shown = 0;
  Tone_Shown = [&] { ++shown; };
  Tone[0] = 'a';
  Tone_Show();
  Tone_Shown = nullptr;
  EXPECT_EQ(Tone_Name_Str, "AB ~\x7F");
  EXPECT_EQ(shown, 1);
  Tone_Name_Str = std::string(60, 'X');
  EXPECT_THROW(Tone_Name_Store(), Runtime_Error);
}

}  // namespace
