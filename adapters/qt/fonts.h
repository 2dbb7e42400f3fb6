// Font files that the program adds for itself.
#pragma once

#include <map>
#include <string>
#include <string_view>

struct Fonts {
  // False if the file cannot be read as a font.
  bool Add(std::string_view host_path);
  // 0, or the system's error number: ENOENT if it was not added, EBUSY if the toolkit keeps it.
  int Remove(std::string_view host_path);

 private:
  std::map<std::string, int, std::less<>> added_;  // the toolkit's numbers
};
