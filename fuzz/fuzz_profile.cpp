// The text of a profile file: any bytes are read, a value that was set is found again, and nothing else
// changes. An input is a section, a key and a value, each ended by a zero byte, and the text of the file.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "platform/profile_text.h"
#include "platform/text.h"

namespace {

using Value = std::optional<std::string>;

void Require(bool holds) {
  if (!holds) std::abort();
}

Value Found(const Profile_Text& profile, std::string_view section, std::string_view key) {
  const auto value = profile.Find(section, key);
  return value ? Value(*value) : std::nullopt;
}

// What is noted of the places agrees with what a fresh reading of the text finds.
void Require_Found(const Profile_Text& profile, std::string_view section, std::string_view key,
                   const Value& value) {
  Require(Found(profile, section, key) == value);
  Require(Found(Profile_Text(profile.Text()), section, key) == value);
}

bool Same_Name(std::string_view one, std::string_view other) {
  const std::size_t first = one.find_first_not_of(" \t\r");
  const std::size_t last = one.find_last_not_of(" \t\r");
  return first != std::string_view::npos && Same_Text(one.substr(first, last + 1 - first), other);
}

std::string_view Next_Field(std::string_view& input) {
  const std::string_view field = input.substr(0, input.find('\0'));
  input.remove_prefix(std::min(field.size() + 1, input.size()));
  return field;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::string_view Other_Section = "MIDI", Other_Key = "Channel";
  std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::string_view section = Next_Field(input);
  const std::string_view key = Next_Field(input);
  const std::string_view value = Next_Field(input);
  Profile_Text profile{std::string(input)};
  const Value other = Found(profile, Other_Section, Other_Key);

  if (!profile.Set(section, key, value)) {
    Require(profile.Text() == input);
    return 0;
  }
  const Value set(value.substr(0, value.find_first_of("\r\n")));
  Require_Found(profile, section, key, set);
  const bool same_place = Same_Name(section, Other_Section) && Same_Name(key, Other_Key);
  if (!same_place) Require_Found(profile, Other_Section, Other_Key, other);
  const std::string once = profile.Text();
  Require(profile.Set(section, key, value) && profile.Text() == once);

  Require(profile.Set(Other_Section, Other_Key, "16"));
  Require_Found(profile, Other_Section, Other_Key, "16");
  if (!same_place) Require_Found(profile, section, key, set);
  return 0;
}
