// The instrument's parameter lists, and how System Exclusive messages change them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Instrument {

constexpr std::uint8_t Manufacturer = 0x41;
constexpr std::uint8_t All_Parameters = 0x35;
constexpr std::uint8_t Single_Parameters = 0x36;
constexpr std::uint8_t Model_JX8P = 0x21;
constexpr std::uint8_t Model_MKS70 = 0x24;
constexpr std::uint8_t Tone_Kind = 0x20;
constexpr std::uint8_t Patch_Kind = 0x30;
constexpr std::uint8_t Level_1 = 1;  // tone, or tone A
constexpr std::uint8_t Level_2 = 2;  // tone B of an MKS-70
constexpr std::size_t Tone_Size = 59;

// One list of the instrument by what a message's head says.
struct List_Id {
  std::uint8_t model = Model_JX8P;
  std::uint8_t kind = Tone_Kind;
  std::uint8_t level = Level_1;
  bool operator==(const List_Id&) const = default;
};

using Parameter_List = std::vector<std::uint8_t>;

struct Parameter_Memory {
  Parameter_Memory();  // tones named "BUILT-IN", all else 0

  // The values of a list; empty for a list that the instrument does not have. A JX-8P has a tone (59) and a
  // patch (7), an MKS-70 two tones (59) and a patch (65).
  Parameter_List Values(const List_Id& id) const;

  void Message_Begins();
  void Message_Data(std::uint8_t data);

  // Unit number of the last message that had a head of this instrument, 0 to 127; -1 before.
  int Last_Unit() const { return last_unit_; }

  // The JX-8P's tone as the instrument transmits it: 67 bytes, F0 to F7.
  std::string Tone_Dump(std::uint8_t unit) const;

 private:
  static constexpr std::size_t Head_Size = 6;  // behind F0: manufacturer, operation, unit, model, kind, level
  static constexpr std::size_t Largest_List = 65;
  struct List {
    List_Id id;
    Parameter_List values;
  };
  void Head_Complete();
  void Take_Dump_Value(std::uint8_t value);
  void Take_Pair_Byte(std::uint8_t byte);

  std::vector<List> lists_;
  int last_unit_ = -1;

  // of the message that comes in
  std::array<std::uint8_t, Head_Size> head_{};
  std::array<std::uint8_t, Largest_List> dump_{};
  std::size_t taken_ = 0;       // bytes behind F0, at most Head_Size
  std::size_t data_count_ = 0;  // behind the head
  List* target_ = nullptr;      // nullptr: not for this instrument, or complete
  std::uint8_t parameter_ = 0;  // first byte of a pair
};

}  // namespace Instrument
