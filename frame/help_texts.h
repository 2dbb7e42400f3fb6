// The texts of the help window: topics, credits, the about text.
#pragma once

#include <array>
#include <string>
#include <string_view>

// Keywords in rows 0 to 100, their descriptions 101 rows further on. The first rows belong to the help
// contexts of the panel elements, which have no text of their own.
constexpr int Help_Keyword_Rows = 101;
constexpr int Help_First_Topic = 78;

struct Help_Topic {
  std::string_view keyword;
  std::string_view description;
};

// In the order of the list.
extern const std::array<Help_Topic, 23> Help_Topic_Rows;

// Who or what is thanked, and for what. An empty name is a row that is not in use.
constexpr int Help_Credit_Rows = 16;
extern const std::array<std::string_view, Help_Credit_Rows> Help_Credit_Names;
extern const std::array<std::string_view, Help_Credit_Rows> Help_Credit_Reasons;

// The program description, each paragraph ended by carriage return and line feed.
std::string Help_About_Text();
