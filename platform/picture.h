// Names of pictures and colours, as the windows use them.
#pragma once

#include <cstdint>
#include <string_view>

// A picture by its name in the picture store, the name of its file without ending ("buttons-6"); empty for
// none. The text lives for the whole run.
struct Picture {
  std::string_view name;
  bool operator==(const Picture&) const = default;
};

struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Color&) const = default;
};

constexpr Color Black{0, 0, 0};
constexpr Color White{255, 255, 255};
constexpr Color Cyan{0, 255, 255};
constexpr Color Green{0, 255, 0};
constexpr Color Grey{128, 128, 128};
