#include "adapters/instrument/parameter_memory.h"

#include <algorithm>
#include <string_view>

namespace Instrument {
namespace {

struct List_Row {
  List_Id id;
  std::size_t size;
};
constexpr List_Row Lists[] = {
    {{Model_JX8P, Tone_Kind, Level_1}, Tone_Size},  {{Model_JX8P, Patch_Kind, Level_1}, 7},
    {{Model_MKS70, Tone_Kind, Level_1}, Tone_Size}, {{Model_MKS70, Tone_Kind, Level_2}, Tone_Size},
    {{Model_MKS70, Patch_Kind, Level_1}, 65},
};

// A tone begins with its name; the other values of a new instrument are 0.
constexpr std::string_view First_Name = "BUILT-IN  ";

// Places in the head.
constexpr std::size_t At_Manufacturer = 0;
constexpr std::size_t At_Operation = 1;
constexpr std::size_t At_Unit = 2;
constexpr std::size_t At_Model = 3;
constexpr std::size_t At_Kind = 4;
constexpr std::size_t At_Level = 5;

}  // namespace

Parameter_Memory::Parameter_Memory() {
  for (const List_Row& row : Lists) {
    lists_.push_back({row.id, Parameter_List(row.size)});
    if (row.id.kind == Tone_Kind) std::ranges::copy(First_Name, lists_.back().values.begin());
  }
}

Parameter_List Parameter_Memory::Values(const List_Id& id) const {
  const auto found =
      std::find_if(lists_.begin(), lists_.end(), [&id](const List& list) { return list.id == id; });
  return found == lists_.end() ? Parameter_List() : found->values;
}

void Parameter_Memory::Message_Begins() {
  taken_ = 0;
  data_count_ = 0;
  target_ = nullptr;
}

void Parameter_Memory::Message_Data(std::uint8_t data) {
  if (taken_ < Head_Size) {
    head_[taken_++] = data;
    if (taken_ == Head_Size) Head_Complete();
    return;
  }
  if (target_ == nullptr) return;
  if (head_[At_Operation] == All_Parameters) {
    Take_Dump_Value(data);
  } else {
    Take_Pair_Byte(data);
  }
}

void Parameter_Memory::Head_Complete() {
  const std::uint8_t operation = head_[At_Operation];
  if (head_[At_Manufacturer] != Manufacturer) return;
  if (operation != All_Parameters && operation != Single_Parameters) return;
  const List_Id id{head_[At_Model], head_[At_Kind], head_[At_Level]};
  for (List& list : lists_) {
    if (list.id == id) target_ = &list;
  }
  if (target_ != nullptr) last_unit_ = head_[At_Unit];
}

// A dump counts once all its values are there; a shorter one changes nothing, and what follows is not looked
// at.
void Parameter_Memory::Take_Dump_Value(std::uint8_t value) {
  dump_[data_count_++] = value;
  if (data_count_ < target_->values.size()) return;
  std::copy_n(dump_.begin(), data_count_, target_->values.begin());
  target_ = nullptr;
}

// A pair counts as soon as it is there; a lone byte at the end is no pair.
void Parameter_Memory::Take_Pair_Byte(std::uint8_t byte) {
  if (data_count_++ % 2 == 0) {
    parameter_ = byte;
  } else if (parameter_ < target_->values.size()) {
    target_->values[parameter_] = byte;
  }
}

std::string Parameter_Memory::Tone_Dump(std::uint8_t unit) const {
  std::string dump;
  for (const std::uint8_t byte :
       {std::uint8_t{0xF0}, Manufacturer, All_Parameters, unit, Model_JX8P, Tone_Kind, Level_1}) {
    dump += static_cast<char>(byte);
  }
  for (const std::uint8_t value : Values({Model_JX8P, Tone_Kind, Level_1})) dump += static_cast<char>(value);
  return dump + '\xF7';
}

}  // namespace Instrument
