#include "core/records.h"

#include <algorithm>

#include "support/program.h"
#include "support/temporary_root.h"
#include "windows/editor_window.h"

namespace {

using Records = Program;

TEST_F(Records, A_Semitone_Is_Four_Bytes_Wide_But_At_Fifths_Octaves_And_The_Centre) {
  int byte = 0;
  for (int semitones = -12; semitones <= 12; ++semitones) {
    const int distance = std::abs(semitones);
    const int width = distance == 0 ? 16 : distance == 7 || distance == 12 ? 8 : 4;
    EXPECT_EQ(Semitone_Value(semitones), byte);
    for (const int end = byte + width; byte < end; ++byte) EXPECT_EQ(Semitone_12(byte), semitones) << byte;
  }
  for (const int outside : {-1, byte, 255}) EXPECT_EQ(Semitone_12(outside), 0);
  EXPECT_EQ(Raised([] { Semitone_Value(13); }), Error_Subscript);
}

TEST_F(Records, The_Fine_Tune_Rises_By_One_But_For_Its_27_Pairs) {
  constexpr std::array Pairs{4,  8,  13, 18, 23, 27, 32, 37, 41,  45,  50,  55,  59, 63,
                             67, 71, 76, 81, 85, 89, 94, 99, 103, 108, 113, 118, 122};
  int value = -50;
  for (int byte = 0; byte < 128; ++byte) {
    EXPECT_EQ(Bipolar_50(byte), value) << byte;
    if (std::ranges::find(Pairs, byte) == Pairs.end()) ++value;
  }
  for (const int outside : {-1, 128}) EXPECT_EQ(Bipolar_50(outside), 0);
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
}

TEST_F(Records, A_Set_Parameter_Is_Stored_Shown_Sent_And_Unsaved) {
  struct Row {
    int index;
    int value;
    const char* shown;
  };
  for (const Row& row : {Row{34, 127, "99"}, Row{34, 1, "0"}, Row{13, 71, "0"}, Row{19, 72, "1"},
                         Row{20, 0, "-50"}, Row{11, 96, "kept"}, Row{58, 64, "kept"}}) {
    Editor.Tone_Name.Set_Text("kept");
    Tone_Saved = Flag_True;
    Tone_Param_Set(row.index, row.value);
    EXPECT_EQ(Tone[row.index], row.value);
    EXPECT_EQ(Editor.Tone_Name.text(), row.shown) << row.index;
    EXPECT_EQ(Sent().size(), 1U);
    EXPECT_EQ(Tone_Saved, Flag_False);
  }
  const auto before = Tone;
  for (const int index : {-1, 59}) {
    EXPECT_EQ(Raised([&] { Tone_Param_Set(index, 1); }), Error_Subscript);
    EXPECT_EQ(Raised([&] { Tone_Param_Send(index); }), Error_Subscript);
  }
  EXPECT_EQ(Raised([] { Tone_Param_Set(34, 256); }), Error_Overflow);
  EXPECT_EQ(Tone, before);
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
  EXPECT_EQ(Editor.Tone_Name.text() + std::to_string(returns), "name0");
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

TEST_F(Records, The_Name_Fills_Ten_Bytes_And_Blanks_The_Eleventh) {
  Tone[10] = 77;
  Tone_Name_Str = "AB\xC3\xA9\x1F~\x7F";
  Tone_Name_Store();
  EXPECT_EQ(std::string(Tone.bytes.begin(), Tone.bytes.begin() + 11), "AB  ~\x7F     ");
  Tone[0] = 'a';
  Tone_Show();
  EXPECT_EQ(Tone_Name_Str, "AB  ~\x7F");
  Tone_Name_Str = std::string(60, 'X');
  EXPECT_EQ(Raised(Tone_Name_Store), Error_Subscript);
}

}  // namespace
