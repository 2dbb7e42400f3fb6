// Text as the program treats it. Upper and lower case touch A to Z only; everything else in a text (UTF-8)
// stays as it is. Lengths and positions that are told in characters count UTF-8 characters.
#pragma once

#include <string>
#include <string_view>

std::string Upper(std::string_view text);
std::string Lower(std::string_view text);

// Without the blanks at both ends, or at the right end.
std::string Trim(std::string_view text);
std::string Trim_Right(std::string_view text);

int Character_Count(std::string_view text);
// The first characters of the text, at most count of them.
std::string_view First_Characters(std::string_view text, int count);

// Upper-case hexadecimal without padding: 0 gives "0", 31 gives "1F". value not negative.
std::string Hex(int value);
// Upper-case hexadecimal of a byte in two digits.
std::string Hex_2(int value);
// The number in a text of hexadecimal digits, blanks being ignored; -1 if anything else stands in it, or
// nothing.
int Hex_Value(std::string_view text);

// The leading digits of a text with an optional sign before them, blanks skipped, as a number; 0 where there
// are none. A number beyond 32 bits stops at the limit.
int Leading_Number(std::string_view text);

// Whether the text has the form of the pattern, in which "?" stands for any one character and "*" for any run
// of them. Case counts.
bool Has_Form(std::string_view text, std::string_view pattern);

// The access key in a caption, the letter behind its first single "&", in upper case; 0 for none.
int Access_Key(std::string_view caption);
// The caption without the marks.
std::string Plain_Caption(std::string_view caption);
// The caption that shows the text as it is: an "&" in it marks nothing.
std::string Literal_Caption(std::string_view text);

bool Same_Text(std::string_view one, std::string_view other);  // without regard to case
