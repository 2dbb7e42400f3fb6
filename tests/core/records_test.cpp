#include "core/records.h"

#include "support/program.h"

using Records = Program;

TEST_F(Records, A_Semitone_Is_Four_Bytes_Wide_But_At_Fifths_Octaves_And_The_Centre) {
  int byte = 0;
  for (int semitones = -12; semitones <= 12; ++semitones) {
    const int distance = std::abs(semitones);
    const int width = distance == 0 ? 16 : distance == 7 || distance == 12 ? 8 : 4;
    EXPECT_EQ(Semitone_Value(semitones), byte);
    for (const int end = byte + width; byte < end; ++byte) EXPECT_EQ(Semitone_12(byte), semitones) << byte;
  }
  EXPECT_EQ(Semitone_12(-1) + Semitone_12(byte), 0);
  EXPECT_EQ(Raised([] { Semitone_Value(13); }), Error_Subscript);
}

TEST_F(Records, What_Is_No_Parameter_Changes_Nothing_And_A_Load_Shows_Nothing) {
  EXPECT_EQ(Raised([] { Tone_Param_Set(59, 1); }), Error_Subscript);
  EXPECT_EQ(Raised([] { Tone_Param_Set(34, 256); }), Error_Overflow);
  EXPECT_TRUE(Tone[34] == 0 && Sent().empty());
  Editor.Tone_Name.Set_Text("kept");
  Tone_Loading = Flag_On;
  Tone_Param_Set(34, 10);
  EXPECT_EQ(Editor.Tone_Name.text(), "kept");
}

TEST_F(Records, The_Name_Fills_Ten_Bytes_And_Blanks_The_Eleventh) {
  Tone[10] = 77;
  Tone_Name_Str = "AB\xC3\xA9\x1F~\x7F";
  Tone_Name_Store();
  EXPECT_EQ(std::string(Tone.bytes.begin(), Tone.bytes.begin() + 11), "AB  ~\x7F     ");
  EXPECT_EQ(Tone_Name_Str, "AB  ~\x7F");
  Tone[2] = 0xC3;  // of a file
  Tone[3] = 0xA9;
  Tone_Show();
  EXPECT_EQ(Tone_Name_Str, "AB\xC3\x83\xC2\xA9~\x7F") << "two characters";
}
