// A sequence file with any one of its bytes changed, or cut short at any place: the place alone tells what
// comes of it.
#include "sequencer/sequencer_fixture.h"

struct Broken_Sequence : Sequencer_Test {
  // Loads the bytes over a sequence of 9s and finds the file in memory, or the box told and all as it was.
  void Load(const std::string& bytes, const std::string& box, const std::string& what) {
    Seq_Loaded = Flag_Off;
    Seq_Data.fill(9);
    Seq_Speed = 60;
    Seq_Base_Note = 36;
    Seq_Interval_Set();
    root.Put("a.seq", bytes);
    desktop.boxes.clear();
    if (!box.empty()) desktop.Expect_Box(Answer::Ok);
    Seq_Load("C:\\a.seq", Load_Mode::Open);
    std::string want = box.empty() ? bytes : "SEQ1\x3C\x24" + std::string(104, '\x09');
    want[4] = static_cast<char>(std::min(static_cast<std::uint8_t>(want[4]), std::uint8_t{120}));
    std::string got = want.substr(0, 4) + static_cast<char>(Seq_Speed) + static_cast<char>(Seq_Base_Note);
    for (const std::int16_t cell : Seq_Data) got += static_cast<char>(cell);
    EXPECT_EQ(got, want) << what;
    EXPECT_EQ(MELVOR.Seq_Tmr.interval_ms(), Seq_Interval_ms(want[4])) << what;
    EXPECT_EQ(desktop.Last_Box(), box) << what;
    EXPECT_EQ(Seq_Loaded == Flag_On, box.empty()) << what;
  }

  const std::string whole = "SEQ1\x78\x30" + std::string(104, '\x7F');
};

TEST_F(Broken_Sequence, A_Changed_Byte_Is_Taken_As_It_Stands_Or_The_File_Is_Refused) {
  for (std::size_t place = 0; place < whole.size(); ++place) {
    std::string changed = whole;
    while (++changed[place] != whole[place]) {
      const bool other_head = place < 3 && (changed[place] ^ whole[place]) != 0x20;
      const char* box = other_head        ? "Wrong SEQUENCE format!"
                        : changed[4] == 0 ? "Error 11: Division by zero"
                                          : "";
      Load(changed, box, std::to_string(place));
    }
  }
  EXPECT_EQ(root.Names(), std::set<std::string>{"a.seq"});
}

TEST_F(Broken_Sequence, A_File_Cut_Short_Or_Beyond_The_Windows_Lists_Leaves_All_As_It_Was) {
  for (std::size_t size = 0; size < whole.size(); ++size)
    Load(whole.substr(0, size), "Wrong SEQUENCE format!", std::to_string(size));
  Open_Window();
  for (int base_note = 79; base_note < 256; ++base_note)
    Load("SEQ1\x78" + std::string(1, static_cast<char>(base_note)) + std::string(104, '\x7F'),
         "Error 380: Invalid property value", std::to_string(base_note));
}
