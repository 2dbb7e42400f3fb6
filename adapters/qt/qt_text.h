// Text and places in text between the program (UTF-8, counted in characters) and the toolkit (UTF-16, counted
// in units).
#pragma once

#include <QString>
#include <string>
#include <string_view>

QString To_Qt(std::string_view text);
std::string From_Qt(const QString& text);

// The place in units that stands behind the first characters, at most count of them; and the other way round.
int Units_Of(const QString& text, int characters);
int Characters_Of(const QString& text, int units);

// The text with "\n" at each line end, however they were written ("\r\n", "\r", "\n").
QString With_Line_Feeds(std::string_view text);

// As a tool tip or a box shows it: never read as rich text.
QString As_Plain_Tip(std::string_view text);
