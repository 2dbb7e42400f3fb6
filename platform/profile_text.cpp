#include "platform/profile_text.h"

#include <algorithm>

#include "platform/text.h"

namespace {

constexpr std::string_view Blanks = " \t\r";
constexpr std::string_view Quotes = "\"'";
constexpr std::string_view Byte_Order_Mark = "\xEF\xBB\xBF";

std::string_view Without_Blanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(Blanks);
  if (first == std::string_view::npos) return text.substr(text.size());
  return text.substr(first, text.find_last_not_of(Blanks) + 1 - first);
}

bool Is_Quoted(std::string_view text) {
  return text.size() >= 2 && text.front() == text.back() &&
         Quotes.find(text.front()) != std::string_view::npos;
}

std::string_view Without_Quotes(std::string_view text) {
  return Is_Quoted(text) ? text.substr(1, text.size() - 2) : text;
}

// A name in the form in which it is looked up.
std::string Folded(std::string_view name) { return Upper(Without_Blanks(name)); }

// Names that a line can hold so that they are read back as the same.
bool Is_Name(std::string_view name, std::string_view forbidden) {
  return !Without_Blanks(name).empty() && name.find_first_of(forbidden) == std::string_view::npos;
}

bool Is_Key(std::string_view key) {
  return Is_Name(key, "\r\n=") &&
         std::string_view(";[").find(Without_Blanks(key).front()) == std::string_view::npos;
}

// A value as its line has it: one with blanks or quotes at its ends is read back whole only in quotes of its
// own.
std::string Written(std::string_view value) {
  const bool bare = Without_Quotes(Without_Blanks(value)) == value;
  return bare ? std::string(value) : '"' + std::string(value) + '"';
}

}  // namespace

Profile_Text::Profile_Text(std::string content) : text_(std::move(content)) {
  std::size_t begin = text_.starts_with(Byte_Order_Mark) ? Byte_Order_Mark.size() : 0;
  const std::size_t first_end = text_.find('\n');
  if (first_end != std::string::npos && first_end > 0 && text_[first_end - 1] == '\r') line_end_ = "\r\n";
  Section* open = nullptr;
  while (begin < text_.size()) {
    const std::size_t end = std::min(text_.find('\n', begin), text_.size());
    const std::size_t next = std::min(end + 1, text_.size());
    Read_Line(begin, end, next, open);
    begin = next;
  }
}

void Profile_Text::Read_Line(std::size_t begin, std::size_t end, std::size_t next, Section*& open) {
  const std::string_view line = Without_Blanks(std::string_view(text_).substr(begin, end - begin));
  if (line.empty() || line.front() == ';') return;
  if (line.front() == '[') {
    const std::size_t close = line.find(']');
    if (close == std::string_view::npos) return;
    const auto [section, is_new] =
        sections_.try_emplace(Folded(line.substr(1, close - 1)), Section{{}, next});
    open = is_new ? &section->second : nullptr;
    return;
  }
  const std::size_t equals = line.find('=');
  if (open == nullptr || equals == std::string_view::npos) return;
  const std::string_view value = Without_Blanks(line.substr(equals + 1));
  const auto value_begin = static_cast<std::size_t>(value.data() - text_.data());
  open->values.try_emplace(Folded(line.substr(0, equals)), Place{value_begin, value_begin + value.size()});
  open->insert_at = next;
}

std::optional<std::string_view> Profile_Text::Find(std::string_view section, std::string_view key) const {
  const auto found = sections_.find(Folded(section));
  if (found == sections_.end()) return std::nullopt;
  const auto value = found->second.values.find(Folded(key));
  if (value == found->second.values.end()) return std::nullopt;
  const auto [begin, end] = value->second;
  return Without_Quotes(std::string_view(text_).substr(begin, end - begin));
}

bool Profile_Text::Set(std::string_view section, std::string_view key, std::string_view value) {
  constexpr std::string_view Line_Ends("\r\n\0", 3);
  if (!Is_Name(section, "\r\n]") || !Is_Key(key)) return false;
  value = value.substr(0, value.find_first_of(Line_Ends));
  if (Find(section, key) == value) return true;
  const std::string written = Written(value);

  const auto found = sections_.find(Folded(section));
  Section& home = found != sections_.end() ? found->second : Add_Section(Without_Blanks(section));
  if (const auto old = home.values.find(Folded(key)); old != home.values.end()) {
    Place& place = old->second;
    Splice(place.begin, place.end, written);
    place.end = place.begin + written.size();
    home.insert_at = std::max(home.insert_at, place.end);
    return true;
  }
  if (home.insert_at == text_.size()) End_Last_Line();
  const std::size_t at = home.insert_at;
  const std::string start = std::string(Without_Blanks(key)) + "=";
  const std::string line = start + written + line_end_;
  Splice(at, at, line);
  home.values.emplace(Folded(key), Place{at + start.size(), at + start.size() + written.size()});
  home.insert_at = at + line.size();
  return true;
}

void Profile_Text::Splice(std::size_t begin, std::size_t end, std::string_view bytes) {
  const std::size_t growth =
      bytes.size() - (end - begin);  // wraps around for a shorter text, and back in the sums
  text_.replace(begin, end - begin, bytes);
  for (auto& [name, section] : sections_) {
    if (section.insert_at > begin) section.insert_at += growth;
    for (auto& [key, place] : section.values) {
      if (place.begin <= begin) continue;
      place.begin += growth;
      place.end += growth;
    }
  }
}

void Profile_Text::End_Last_Line() {
  if (text_.empty() || text_ == Byte_Order_Mark || text_.back() == '\n') return;
  const std::size_t old_end = text_.size();
  text_ += line_end_;
  for (auto& [name, section] : sections_) {
    if (section.insert_at == old_end) section.insert_at = text_.size();
  }
}

Profile_Text::Section& Profile_Text::Add_Section(std::string_view name) {
  End_Last_Line();
  const bool first_line = text_.empty() || text_ == Byte_Order_Mark;
  const bool blank_before = text_.ends_with("\n\n") || text_.ends_with("\n\r\n");
  if (!first_line && !blank_before) text_ += line_end_;
  text_ += "[" + std::string(name) + "]" + line_end_;
  return sections_.emplace(Folded(name), Section{{}, text_.size()}).first->second;
}
