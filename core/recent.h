// The lists of recent files and their menu items: four tones, four sequences, the newest first.
#pragma once

#include <array>
#include <string>
#include <string_view>

using Recent_List = std::array<std::string, 4>;

// Program paths; empty ones are holes that stay in their place.
extern Recent_List Recent_Tones;
extern Recent_List Recent_Seqs;

// Empties the entries whose file has vanished, puts path in front (not at all if it is empty), and builds the
// menu items anew.
void Recent_Tone_Add(std::string_view path);
void Recent_Seq_Add(std::string_view path);
