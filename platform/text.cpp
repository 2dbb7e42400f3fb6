#include "platform/text.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

constexpr std::string_view Hex_Digits = "0123456789ABCDEF";

char Upper_Letter(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

char Lower_Letter(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

template <class Change>
std::string Changed_Letters(std::string_view text, Change change) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), change);
  return result;
}

bool Is_Continuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// Bytes that a character with this first byte has; 1 for a byte that begins none.
std::size_t Announced_Length(char first) {
  const auto byte = static_cast<unsigned char>(first);
  if (byte >= 0xF0 && byte < 0xF8) return 4;
  if (byte >= 0xE0 && byte < 0xF0) return 3;
  if (byte >= 0xC0 && byte < 0xE0) return 2;
  return 1;
}

// Length in bytes of the character that begins the text, which is not empty. A byte that belongs to no whole
// character counts as a character of its own, so that any bytes can be walked.
std::size_t Character_Length(std::string_view text) {
  const std::size_t length = Announced_Length(text.front());
  if (length > text.size()) return 1;
  const std::string_view rest = text.substr(1, length - 1);
  return std::all_of(rest.begin(), rest.end(), Is_Continuation) ? length : 1;
}

int Hex_Digit_Value(char digit) {
  const std::size_t value = Hex_Digits.find(Upper_Letter(digit));
  return value == std::string_view::npos ? -1 : static_cast<int>(value);
}

}  // namespace

std::string Upper(std::string_view text) { return Changed_Letters(text, Upper_Letter); }

std::string Lower(std::string_view text) { return Changed_Letters(text, Lower_Letter); }

std::string Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string() : Trim_Right(text.substr(first));
}

std::string Trim_Right(std::string_view text) {
  return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

int Character_Count(std::string_view text) {
  int count = 0;
  for (; !text.empty(); text.remove_prefix(Character_Length(text))) ++count;
  return count;
}

std::string_view First_Characters(std::string_view text, int count) {
  std::size_t length = 0;
  for (int taken = 0; taken < count && length < text.size(); ++taken) {
    length += Character_Length(text.substr(length));
  }
  return text.substr(0, length);
}

std::string Hex(int value) {
  std::string digits;
  do {
    digits.insert(digits.begin(), Hex_Digits[static_cast<std::size_t>(value % 16)]);
    value /= 16;
  } while (value > 0);
  return digits;
}

std::string Hex_2(int value) {
  const std::string digits = Hex(value & 0xFF);
  return digits.size() < 2 ? "0" + digits : digits;
}

int Hex_Value(std::string_view text) {
  std::int64_t value = -1;
  for (const char letter : text) {
    if (letter == ' ') continue;
    const int digit = Hex_Digit_Value(letter);
    if (digit < 0) return -1;
    value = std::max<std::int64_t>(value, 0) * 16 + digit;
    if (value > std::numeric_limits<int>::max()) return -1;
  }
  return static_cast<int>(value);
}

int Leading_Number(std::string_view text) {
  constexpr std::int64_t Limit = std::numeric_limits<int>::max();
  std::int64_t value = 0;
  bool negative = false;
  bool signs_allowed = true;
  for (const char letter : text) {
    if (letter == ' ' || letter == '\t') continue;
    if (signs_allowed && (letter == '-' || letter == '+')) {
      negative = letter == '-';
    } else if (letter >= '0' && letter <= '9') {
      value = std::min(value * 10 + (letter - '0'), Limit + 1);
    } else {
      break;
    }
    signs_allowed = false;
  }
  return static_cast<int>(negative ? -value : std::min(value, Limit));
}

bool Has_Form(std::string_view text, std::string_view pattern) {
  std::string_view star_text,
      star_pattern;  // where to go on when the last "*" has to take one character more
  bool star = false;
  while (!text.empty()) {
    const std::size_t length = Character_Length(text);
    if (!pattern.empty() && pattern.front() == '*') {
      star = true;
      pattern.remove_prefix(1);
      star_text = text;
      star_pattern = pattern;
    } else if (!pattern.empty() && pattern.front() == '?') {
      text.remove_prefix(length);
      pattern.remove_prefix(1);
    } else if (pattern.substr(0, length) == text.substr(0, length)) {
      text.remove_prefix(length);
      pattern.remove_prefix(length);
    } else if (star) {
      star_text.remove_prefix(Character_Length(star_text));
      text = star_text;
      pattern = star_pattern;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*') == std::string_view::npos;
}

int Access_Key(std::string_view caption) {
  for (std::size_t place = 0; place + 1 < caption.size(); ++place) {
    if (caption[place] != '&') continue;
    ++place;
    if (caption[place] != '&') return static_cast<unsigned char>(Upper_Letter(caption[place]));
  }
  return 0;
}

std::string Plain_Caption(std::string_view caption) {
  std::string plain;
  for (std::size_t place = 0; place < caption.size(); ++place) {
    if (caption[place] == '&' && ++place == caption.size()) break;
    plain += caption[place];
  }
  return plain;
}

std::string Literal_Caption(std::string_view text) {
  std::string caption;
  for (const char sign : text) caption.append(sign == '&' ? 2 : 1, sign);
  return caption;
}

bool Same_Text(std::string_view one, std::string_view other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](char left, char right) { return Upper_Letter(left) == Upper_Letter(right); });
}
