#include "core/sysex.h"

#include "platform/runtime_error.h"
#include "support/program.h"

namespace {

using Messages = std::vector<std::string>;

struct SysEx : Program {};

TEST_F(SysEx, Hex_Text_Is_Read_Pair_By_Pair) {
  struct Row {
    const char* text;
    const char* bytes;
  };
  for (const Row& row : {Row{"F0 41 36 0 21 20 01 ", "F0 41 36 00 21 20 01"}, Row{"A 1F F7", "0A 1F F7"},
                         Row{"247 F0", "24 07 F0"}, Row{"20  F7", "20 0F"}, Row{"5  F7", "05 F7"},
                         Row{"ZZ 7F", "7F"}, Row{"7", ""}, Row{"", ""}, Row{"    ", ""}}) {
    EXPECT_EQ(Hex_Text(Hex_To_Bytes(row.text)), row.bytes) << row.text;
  }
}

TEST_F(SysEx, Heads_Follow_Instrument_And_Channel_And_Keep_What_Is_Unknown) {
  MIDI_Channel = 16;
  SysEx_Heads_Build();
  EXPECT_EQ(SysEx_APR_Tone, "F0 41 35 F 21 20 01 ");
  EXPECT_EQ(SysEx_IPR_Patch, "F0 41 36 F 21 30 01 ");
  EXPECT_EQ(SysEx_IPR_ToneB, "");
  Synthesizer = "MKS-70";
  SysEx_Heads_Build();
  EXPECT_EQ(SysEx_APR_Tone, "F0 41 35 F 24 20 01 ");
  EXPECT_EQ(SysEx_IPR_ToneB, "F0 41 36 F 24 20 02 ");
  EXPECT_EQ(SysEx_APR_Patch, "F0 41 35 F 24 30 01 ");
  Synthesizer = "another";
  MIDI_Channel = 1;
  SysEx_Heads_Build();
  EXPECT_EQ(SysEx_APR_Tone, "F0 41 35 F 24 20 01 ");
}

TEST_F(SysEx, Single_Parameters_Carry_Number_And_Value) {
  Tone_Param_Send(11);
  MIDI_Channel = 10;
  SysEx_Heads_Build();
  Tone[58] = 127;
  Tone_Param_Send(58);
  Synthesizer = "MKS-70";
  SysEx_Heads_Build();
  Tone_Param_Send(58);
  Patch_Param_Send(6);
  EXPECT_EQ(Sent(), (Messages{"F0 41 36 00 21 20 01 0B 00 F7", "F0 41 36 09 21 20 01 3A 7F F7",
                              "F0 41 36 09 24 20 01 3A 7F F7", "F0 41 36 09 21 30 01 06 40 F7"}));
  EXPECT_THROW(Tone_Param_Send(59), Runtime_Error);
  EXPECT_THROW(Patch_Param_Send(9), Runtime_Error);
}

TEST_F(SysEx, Both_Switches_Gate_Changes_But_A_Dump_Looks_At_One) {
  struct Row {
    std::uint8_t autosend;
    std::uint8_t enabled;
    std::size_t changes;
    std::size_t dumps;
  };
  for (const Row& row : {Row{1, 1, 3, 1}, Row{0, 1, 0, 1}, Row{1, 0, 0, 0}}) {
    Autosend = row.autosend;
    MIDI_Enabled = row.enabled;
    Tone_Param_Send(34);
    Patch_Param_Send(0);
    Tone_Name_Send();
    EXPECT_EQ(Sent().size(), row.changes);
    SysEx_Dump_Send();
    EXPECT_EQ(Sent().size(), row.dumps);
  }
}

TEST_F(SysEx, The_Name_Message_Ends_In_0F_Without_F7) {
  Tone_Name_Str = "SYNTH";
  Tone_Name_Store();
  Tone_Name_Send();
  EXPECT_EQ(Sent(),
            Messages{"F0 41 36 00 21 20 01 00 53 01 59 02 4E 03 54 04 48 05 20 06 20 07 20 08 20 09 20 0F"});
}

TEST_F(SysEx, The_Dump_Has_24_07_Where_An_F7_Would_Stand) {
  for (int index = 0; index < Tone_Size; ++index) Tone[index] = static_cast<std::uint8_t>(index);
  for (int index = 0; index < Patch_Size; ++index) Patch_Rec[index] = static_cast<std::uint8_t>(0x70 + index);
  SysEx_Dump_Send();
  EXPECT_EQ(
      Sent(),
      Messages{"F0 41 35 00 21 20 01 00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10 11 12 13 14 15 16 17 "
               "18 19 1A 1B 1C 1D 1E 1F 20 21 22 23 24 25 26 27 28 29 2A 2B 2C 2D 2E 2F 30 31 32 33 34 35 36 "
               "37 38 39 3A 24 07 F0 41 36 00 21 30 01 00 70 01 71 02 72 03 73 04 74 05 75 06 76 F7"});
}

TEST_F(SysEx, A_File_Image_Is_Independent_Of_The_Instrument) {
  Synthesizer = "MKS-70";
  MIDI_Channel = 3;
  SysEx_Image_Build();
  const std::string image = Hex_Text({reinterpret_cast<const char*>(SysEx_Image.data()), SysEx_Image.size()});
  EXPECT_EQ(image.substr(0, 27), "F0 41 35 02 21 20 01 20 20 ");
  EXPECT_EQ(image.substr(66 * 3), "F7 F0 41 36 02 21 30 01 00 00 01 00 02 00 03 00 04 00 05 00 06 40 F7");
  EXPECT_EQ(SysEx_APR_Tone, "F0 41 35 2 24 20 01 ");
}

}  // namespace
