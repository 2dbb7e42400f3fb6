// A tone file with any one of its bytes changed, or cut short at any place: the place alone tells what comes
// of it.
#include "support/program.h"

constexpr std::string_view No_Tone = "Wrong MIDI system exclusive data!";
constexpr std::string_view Past_End = "Error 62: Input past end of file";
// The places of the two heads, but for the channels, which the reader passes over.
const std::set<std::size_t> Tone_Head{0, 1, 2, 4, 5, 6}, Patch_Head{67, 68, 69, 71, 72, 73};

struct Broken_Tone : Program {
  // Loads the bytes over a tone of 99s, with the box as told, and finds in memory what is to be taken and
  // nothing else.
  void Load(const std::string& bytes, std::string_view box, bool tone, bool patch, const std::string& what) {
    Tone.bytes.fill(99);
    Patch_Rec.bytes.fill(98);
    Tone_File = "old";
    Tone_Saved = Flag_True;
    auto want = std::pair(Tone, Patch_Rec);
    if (tone) std::copy_n(bytes.begin() + 7, 59, want.first.bytes.begin());
    for (std::size_t index = 0; patch && index < 7; ++index)
      want.second[static_cast<int>(index)] = static_cast<std::uint8_t>(bytes[75 + 2 * index]);
    root.Put("a.syx", bytes);
    desktop.boxes.clear();
    if (!box.empty()) desktop.Expect_Box(Answer::Ok);
    Tone_Load("C:\\a.syx", Load_Mode::Open);
    EXPECT_TRUE(std::pair(Tone, Patch_Rec) == want) << what;
    EXPECT_EQ(desktop.Last_Box(), box) << what;
    EXPECT_EQ(Tone_File, box.empty() ? "C:\\a.syx" : "old") << what;
    EXPECT_EQ(Tone_Saved == Flag_False, tone && !box.empty()) << what << ": a tone in part is a change";
    EXPECT_TRUE(Tone_Loading == Flag_Off && root.Get("a.syx") == bytes) << what;
  }

  const std::string whole = Bytes_Of("F0 41 35 04 21 20 01") + std::string(59, 'v') +
                            Bytes_Of("F7 F0 41 36 04 21 30 01 00 01 01 02 02 03 03 04 04 05 05 06 06 07 F7");
};

TEST_F(Broken_Tone, A_Changed_Byte_Is_A_Value_Or_Hides_What_Its_Head_Announces) {
  for (std::size_t place = 0; place < whole.size(); ++place) {
    const bool tone = !Tone_Head.contains(place);
    const bool patch = tone && !Patch_Head.contains(place);
    std::string changed = whole;
    while (++changed[place] != whole[place])
      Load(changed, tone ? "" : No_Tone, tone, patch, std::to_string(place));
  }
  EXPECT_EQ(root.Names(), std::set<std::string>{"a.syx"});
}

TEST_F(Broken_Tone, A_File_Cut_Short_Gives_What_Is_Whole_In_It_And_Tells_Of_A_Part) {
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    std::string_view box;
    if (size < 7) box = No_Tone;
    if ((size >= 7 && size < 66) || (size >= 74 && size < 88)) box = Past_End;
    Load(whole.substr(0, size), box, size >= 66, size >= 88, std::to_string(size));
  }
}
