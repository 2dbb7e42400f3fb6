// The help window: how to use the elements, a keyword search, about the program.
// Wired by the frame at start; from then on driven by its menu items and the user's events.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "frame/help_examples.h"
#include "frame/help_texts.h"

extern std::string Help_Mode;  // the page to show at opening: "Howto", "Search" or "About"
// Row k + 101 describes the keyword of row k.
extern std::array<std::string_view, 2 * Help_Keyword_Rows> Help_Topics;

void Help_Wire();

// The menu commands: each opens the window, which then holds the program modal, at its page.
void Menu_Help_Howto_Click();
void Menu_Help_Search_Click();
void Menu_Help_About_Click();

// Lays the window out and shows the page of Help_Mode. Runs at the window's load.
void Help_Load();
void Help_Topics_Fill();
void Help_About_Fill();
