// A musician who presses whatever comes: no edited sound is lost, and the title is honest.
#include <algorithm>
#include <random>

#include "core/save_as.h"
#include "core/undo.h"
#include "frame/whole_program.h"
#include "platform/dispatch.h"
#include "platform/text.h"

namespace {

constexpr int Runs = 500, Commands = 16;
constexpr std::array Names{"one", "two", "three"};

std::string Message(char value) { return Bytes_Of("F0 41 35 00 21 20 01") + std::string(59, value) + "\xF7"; }

// What the first 89 bytes of a file say, over the patch if they hold none. Nothing for a file of another
// kind.
std::optional<Sound> Sound_In(const std::string& bytes, const Byte_Record<Patch_Size>& patch) {
  if (bytes.size() < 67 || !bytes.starts_with("\xF0\x41\x35")) return std::nullopt;
  Sound sound{{}, patch};
  for (int index = 0; index < Tone_Size; ++index)
    sound.tone[index] = static_cast<std::uint8_t>(bytes[static_cast<std::size_t>(index) + 7]);
  if (bytes.size() < 89 || bytes.substr(67, 3) != "\xF0\x41\x36") return sound;
  for (int index = 0; index < Patch_Sent; ++index)
    sound.patch[index] = static_cast<std::uint8_t>(bytes[static_cast<std::size_t>(index) * 2 + 75]);
  return sound;
}

struct Musician : Whole_Program {
  unsigned Chance(std::size_t count) { return static_cast<unsigned>(chance() % count); }
  template <class... Choices>
  auto One_Of(Choices... choices) {
    const std::array all{choices...};
    return all[Chance(all.size())];
  }

  void Begin(unsigned seed) {
    chance.seed(seed);
    story = "seed " + std::to_string(seed);
    edited.clear();
    for (const std::string& name : root.Names())
      if (name != "MELVOR.FNT") std::filesystem::remove_all(root.host / name);
    root.Put("bank.syx", Message(1) + Message(2) + Message(3));
    root.Put("half.syx", Message(4) + Bytes_Of("F0 41 36 00 21 30 01 00 05"));
    desktop.quit = false;
    desktop.on_other_box = [this] { return Answer_Box(); };
    desktop.on_other_wait = [this] { Work_Dialog(); };
    Dispatch([this] { Start(std::string(Configured) + "Autoplay=0\n[Recent Files]\nTones=c:\\\n"); });
    Undo_Keep({}, Origin_Now());  // as if nothing had ever been undone
    MELVOR.Menu_Edit_Undo.enabled = false;
    MELVOR.Menu_Tone_Receive.enabled = true;  // as after the setup
  }

  // --- what the hand does

  void Edit() {
    const Sound before = Sound_Now();
    Dispatch([this] { Tone_Param_Set(One_Of(28, 34, 47), static_cast<int>(Chance(128))); });
    Forget(before);
    edited.push_back(Sound_Now());
  }

  void Random() {
    if (Tone_Saved == Flag_False) Forget({Tone_Undo, Patch_Undo});
    Choose(MELVOR.Menu_Tone_Random);
  }

  void Undo() {
    if (MELVOR.Menu_Edit_Undo.enabled()) Forget(Sound_Now());
    Choose(MELVOR.Menu_Edit_Undo);
  }

  void Receive() {
    Choose(MELVOR.Menu_Tone_Receive);
    if (Receive_On == 0) return;
    for (const std::size_t size : {30U, 67U}) {
      const Byte_String message = "\xF0" + Byte_String(size - 2, static_cast<char>(Chance(128))) + "\xF7";
      if (Chance(2) == 0) Dispatch([&] { service.Deliver(message); });
    }
    if (Receive_On == 1) desktop.Click(Editor.ED_Seq_Stop);
  }

  void Open() {
    Choose(MELVOR.Menu_File_SYX_Open);
    while (File_Dlg.Loaded()) Work_Dialog();
  }

  void Open_Recent() {
    if (Tone_Saved == Flag_False) Forget({Tone_Undo, Patch_Undo});
    Choose(*One_Of(&MELVOR.Menu_File_SYX_1, &MELVOR.Menu_File_SYX_2));
  }

  void Work_Dialog() {
    const auto& files = File_Dlg.FD_List_Files.items();
    switch (Chance(4)) {
      case 0:
        return Type(Names[Chance(Names.size())]);
      case 1:
        return Type(One_Of("none\\here", "bank", "half", "*.syx"));
      case 2:
        desktop.Key(Key::Escape);
        return;
      default:
        if (files.empty()) return;
        User_Selected(File_Dlg.FD_List_Files, static_cast<int>(Chance(files.size())));
        Chance(2) == 0 ? desktop.Click(File_Dlg.FD_List_Files) : desktop.Double_Click(File_Dlg.FD_List_Files);
    }
  }

  void Type(const std::string& name) {
    desktop.Type(File_Dlg.FD_FileName, name);
    desktop.Key(Key::Enter);
  }

  Answer Answer_Box() {
    const std::string& text = desktop.boxes.back();
    if (!text.ends_with("?")) return Answer::Ok;
    const Answer answer = One_Of(Answer::Yes, Answer::No, Answer::Cancel);
    story += ", " + text + (answer == Answer::Yes ? " Yes" : answer == Answer::No ? " No" : " Cancel");
    if (text == "Save actual TONE first?" && answer == Answer::No) {
      Forget(Sound_Now());
      Forget({Tone_Undo, Patch_Undo});
    }
    return answer;
  }

  // --- what must hold

  void Forget(const Sound& sound) { std::erase(edited, sound); }

  void Look_For_Edited_Sounds(bool closed) {
    std::vector<Sound> still_in_hand;
    for (const Sound& sound : edited) {
      const bool by_undo = MELVOR.Menu_Edit_Undo.enabled() && sound == Sound{Tone_Undo, Patch_Undo};
      bool in_hand = !closed && (sound == Sound_Now() || by_undo);
      bool in_copy = false;
      for (const std::string& name : root.Names()) {
        if (Sound_In(root.Get(name), {}) != sound) continue;
        (name.find('~') == std::string::npos ? in_hand : in_copy) = true;
      }
      EXPECT_TRUE(in_hand || in_copy) << "an edited sound is nowhere: " << story;
      if (in_hand) still_in_hand.push_back(sound);  // what was saved over has its copies, for a while
    }
    edited = still_in_hand;
  }

  void Look_At_Title() {
    const std::string name = Lower(Tone_File).substr(std::min<std::size_t>(Tone_File.size(), 3));
    EXPECT_EQ(MELVOR.caption().ends_with(Upper(name)) && (MELVOR.caption() == "MELVOR") == name.empty(), true)
        << MELVOR.caption() << " for " << Tone_File << ": " << story;
    Sound blank{{}, {}};
    std::fill_n(blank.tone.bytes.begin(), 10, std::uint8_t{32});
    blank.tone[13] = blank.tone[19] = 56;
    blank.tone[20] = blank.patch[6] = 64;
    const auto on_disk = name.empty() ? blank : Sound_In(root.Get(name), Sound_Now().patch);
    EXPECT_EQ(MELVOR.modified(), on_disk != Sound_Now()) << story;
  }

  std::minstd_rand chance;
  std::string story;
  std::vector<Sound> edited;  // and not given up knowingly since
};

TEST_F(Musician, Whatever_Is_Pressed_No_Edited_Sound_Is_Lost_And_The_Title_Is_Honest) {
  using Act = std::pair<const char*, std::function<void()>>;
  const auto menu = [](Menu_Item& item) { return [&item] { Choose(item); }; };
  const std::array<Act, 11> acts{
      Act{"edit", [this] { Edit(); }},           {"edit", [this] { Edit(); }},
      {"random", [this] { Random(); }},          {"undo", [this] { Undo(); }},
      {"receive", [this] { Receive(); }},        {"open", [this] { Open(); }},
      {"recent", [this] { Open_Recent(); }},     {"new", menu(MELVOR.Menu_File_SYX_New)},
      {"save", menu(MELVOR.Menu_File_SYX_Save)}, {"save as", menu(MELVOR.Menu_File_SYX_SaveAs)},
      {"close", menu(MELVOR.Menu_File_Exit)},
  };
  for (unsigned seed = 1; seed <= Runs && !HasFailure(); ++seed) {
    Begin(seed);
    for (int command = 0; command < Commands && MELVOR.Loaded() && !HasFailure(); ++command) {
      const Act& act = acts[Chance(acts.size())];
      story += "; " + std::string(act.first);
      act.second();
      Look_For_Edited_Sounds(!MELVOR.Loaded());
      if (MELVOR.Loaded()) Look_At_Title();
    }
    End_Without_Questions();
  }
}

}  // namespace
