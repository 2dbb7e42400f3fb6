// Rows of like controls as members of a window.
#pragma once

#include <array>
#include <string_view>
#include <utility>

// count controls of one kind and name on an owner, made in place.
template <class Kind_Of_Control, std::size_t count, class Owner>
std::array<Kind_Of_Control, count> Control_Row(Owner& owner, std::string_view name) {
  return [&]<std::size_t... item>(std::index_sequence<item...>) {
    return std::array<Kind_Of_Control, count>{{(static_cast<void>(item), Kind_Of_Control(owner, name))...}};
  }
  (std::make_index_sequence<count>());
}
