#include "core/sysex.h"

#include <numeric>

#include "support/program.h"

using SysEx = Program;

TEST_F(SysEx, Hex_Text_Is_Read_Pair_By_Pair) {
  using Row = std::pair<const char*, const char*>;
  for (const auto& [text, bytes] :
       {Row{"F0 41 36 0 21 ", "F0 41 36 00 21"}, Row{"A 1F F7", "0A 1F F7"}, Row{"247 F0", "24 07 F0"},
        Row{"20  F7", "20 0F"}, Row{"ZZ 7F", "7F"}, Row{"7", ""}}) {
    EXPECT_EQ(Hex_Text(Hex_To_Bytes(text)), bytes) << text;
  }
}

TEST_F(SysEx, Messages_Follow_Channel_And_Instrument_And_Keep_What_Is_Unknown) {
  Tone[58] = 127;
  Tone_Param_Send(58);
  MIDI_Channel = 16;
  for (const char* synthesizer : {"JX-8P", "MKS-70", "another"}) {
    Synthesizer = synthesizer;
    SysEx_Heads_Build();
    Tone_Param_Send(58);
  }
  Patch_Param_Send(6);
  EXPECT_EQ(Sent(), (Texts{"F0 41 36 00 21 20 01 3A 7F F7", "F0 41 36 0F 21 20 01 3A 7F F7",
                           "F0 41 36 0F 24 20 01 3A 7F F7", "F0 41 36 0F 24 20 01 3A 7F F7",
                           "F0 41 36 0F 21 30 01 06 40 F7"}));
  Autosend = 0;
  Tone_Param_Send(58);
  Patch_Param_Send(6);
  Tone_Name_Send();
  EXPECT_TRUE(Sent().empty());
}

TEST_F(SysEx, The_Dump_Has_24_07_Where_An_F7_Would_Stand_And_The_Name_Ends_In_0F) {
  std::iota(Tone.bytes.begin(), Tone.bytes.end(), std::uint8_t{0x20});
  std::iota(Patch_Rec.bytes.begin(), Patch_Rec.bytes.end(), std::uint8_t{0x70});
  SysEx_Dump_Send();
  Tone_Name_Send();
  EXPECT_EQ(
      Sent(),
      (Texts{"F0 41 35 00 21 20 01 20 21 22 23 24 25 26 27 28 29 2A 2B 2C 2D 2E 2F 30 31 32 33 34 35 36 37 "
             "38 39 3A 3B 3C 3D 3E 3F 40 41 42 43 44 45 46 47 48 49 4A 4B 4C 4D 4E 4F 50 51 52 53 54 55 56 "
             "57 58 59 5A 24 07 F0 41 36 00 21 30 01 00 70 01 71 02 72 03 73 04 74 05 75 06 76 F7",
             "F0 41 36 00 21 20 01 00 20 01 21 02 22 03 23 04 24 05 25 06 26 07 27 08 28 09 29 0F"}));
}
