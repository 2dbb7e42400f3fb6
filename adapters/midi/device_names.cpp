#include "adapters/midi/device_names.h"

#include <algorithm>
#include <cstddef>

#include "platform/midi_service.h"

namespace Midi {
namespace {

constexpr std::size_t Longest_Name = Midi_Name_Size - 1;
constexpr std::size_t Process_Digits = 3;  // a number in round brackets with fewer is a part of the name

bool Is_Digit(char c) { return c >= '0' && c <= '9'; }

std::size_t Count_Digits(std::string_view text, std::size_t at) {
  std::size_t count = 0;
  while (at + count < text.size() && Is_Digit(text[at + count])) ++count;
  return count;
}

// How many characters at the place are a number that changes: "[24]", "(1234)", "(1234:0)", or "128:0" as a
// word.
std::size_t Changing_Number(std::string_view text, std::size_t at) {
  const char open = text[at];
  const char close = open == '[' ? ']' : open == '(' ? ')' : '\0';
  std::size_t end = close == '\0' ? at : at + 1;
  const std::size_t digits = Count_Digits(text, end);
  if (digits == 0) return 0;
  end += digits;
  const std::size_t port_digits = end < text.size() && text[end] == ':' ? Count_Digits(text, end + 1) : 0;
  if (port_digits > 0) end += 1 + port_digits;
  if (close == '\0') {
    const bool word = (at == 0 || text[at - 1] == ' ') && (end == text.size() || text[end] == ' ');
    return word && port_digits > 0 ? end - at : 0;
  }
  if (end == text.size() || text[end] != close) return 0;
  if (close == ')' && port_digits == 0 && digits < Process_Digits) return 0;
  return end + 1 - at;
}

// At most size bytes, cut between characters.
std::string_view Cut(std::string_view text, std::size_t size) {
  if (text.size() <= size) return text;
  while (size > 0 && (static_cast<unsigned char>(text[size]) & 0xC0U) == 0x80U) --size;
  text = text.substr(0, size);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

}  // namespace

std::string Clean_Name(std::string_view name) {
  std::string clean;
  for (std::size_t at = 0; at < name.size();) {
    if (const std::size_t number = Changing_Number(name, at); number > 0) {
      at += number;
      if (!clean.empty() && clean.back() == ' ' && at < name.size() && name[at] != ' ') clean.pop_back();
      continue;
    }
    const auto c = static_cast<unsigned char>(name[at++]);
    const bool blank = c <= ' ' || c == 0x7F;
    if (!blank) {
      clean += static_cast<char>(c);
    } else if (!clean.empty() && clean.back() != ' ') {
      clean += ' ';
    }
  }
  while (!clean.empty() && clean.back() == ' ') clean.pop_back();
  return clean.empty() ? "MIDI" : clean;
}

std::vector<std::string> Unique_Names(const std::vector<std::string>& names) {
  std::vector<std::string> unique;
  for (const std::string& name : names) {
    const std::string clean = Clean_Name(name);
    std::string candidate(Cut(clean, Longest_Name));
    for (int number = 2; std::find(unique.begin(), unique.end(), candidate) != unique.end(); ++number) {
      const std::string mark = " (" + std::to_string(number) + ")";
      candidate = std::string(Cut(clean, Longest_Name - mark.size())) + mark;
    }
    unique.push_back(candidate);
  }
  return unique;
}

}  // namespace Midi
