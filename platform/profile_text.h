// The text of a profile file: finds and sets values in it, and leaves every other byte as it is.
// Called by profile_file.cpp, which brings the text from disk and back.
//
//   [Section]        blanks and tabs around names and values do not count
//   Key=Value        a pair of quotes around the whole value does not count either
//   ; comment        what is neither of these is noise and stays
// Of sections and of keys that stand there more than once the first counts. Lines end in LF or CRLF.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

struct Profile_Text {
  // Any bytes at all.
  explicit Profile_Text(std::string content);

  // The value without blanks and quotes, nothing if the section or the key is not there.
  // Good until the next Set.
  std::optional<std::string_view> Find(std::string_view section, std::string_view key) const;

  // Sets one value, making section and key as needed. The value counts up to its first line end or zero byte.
  // False if a name is one that could not be found again; then nothing changes.
  bool Set(std::string_view section, std::string_view key, std::string_view value);

  const std::string& Text() const { return text_; }

 private:
  struct Place {
    std::size_t begin, end;  // of a value, its quotes included
  };
  struct Section {
    std::unordered_map<std::string, Place> values;  // by key in upper case
    std::size_t insert_at;                          // behind the last line with a key, or behind the name
  };

  // open is the section that the lines read so far belong to.
  void Read_Line(std::size_t begin, std::size_t end, std::size_t next, Section*& open);
  // Replaces bytes, and moves what is noted of the places behind begin.
  void Splice(std::size_t begin, std::size_t end, std::string_view bytes);
  void End_Last_Line();
  Section& Add_Section(std::string_view name);

  std::string text_;
  std::string line_end_ = "\n";                        // as the first line has it
  std::unordered_map<std::string, Section> sections_;  // by name in upper case
};
