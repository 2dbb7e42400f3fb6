#include "panel/meanings.h"

#include <cstdlib>
#include <string>
#include <utility>

#include "core/records.h"
#include "panel/element_rules.h"
#include "platform/convert.h"

namespace {

constexpr int Slider_Highest = 99;
constexpr int Bipolar_Limit = 50;

std::string Signed(int value) {
  if (value == 0) return "0";
  return (value < 0 ? "minus " : "plus ") + std::to_string(std::abs(value));
}

std::string Semitones(int value) {
  return Signed(value) + (std::abs(value) == 1 ? " semitone" : " semitones");
}

void Tell(Picture_Box& element, Scale scale, std::string (*words)(int value)) {
  element.spoken_value = [words, value = scale.value] { return words(value()); };
  element.scale = std::move(scale);
}

}  // namespace

void Tell_99(Picture_Box& element, int page, std::function<int()> byte) {
  auto value = [byte = std::move(byte)] { return Shown_99(Clamp(byte(), 0, Value_Limit)); };
  Tell(element, {0, Slider_Highest, Shown_99(page) + 1, std::move(value)},
       [](int shown) { return std::to_string(shown); });
}

void Tell_Semitones(Picture_Box& element, std::function<int()> byte) {
  auto value = [byte = std::move(byte)] { return Semitone_12(Clamp(byte(), 0, Value_Limit)); };
  Tell(element, {-Tune_Knob_Limit, Tune_Knob_Limit, Page_Of_Tune_Knob, std::move(value)}, Semitones);
}

void Tell_Bipolar(Picture_Box& element, std::function<int()> byte) {
  auto value = [byte = std::move(byte)] { return Bipolar_50(Clamp(byte(), 0, Value_Limit)); };
  Tell(element, {-Bipolar_Limit, Bipolar_Limit, Page_Of_Fine_Knob, std::move(value)}, Signed);
}

void Tell_Position(Picture_Box& element, std::vector<std::string_view> names, std::function<int()> position) {
  while (names.back().empty()) names.pop_back();
  const int highest = static_cast<int>(names.size()) - 1;
  auto value = [highest, position = std::move(position)] { return Clamp(position(), 0, highest); };
  element.scale = {0, highest, 1, value};
  element.spoken_value = [names = std::move(names), value = std::move(value)] {
    return std::string(names[static_cast<std::size_t>(value())]);
  };
}
