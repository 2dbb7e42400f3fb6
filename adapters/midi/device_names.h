// Device names: what people know a port by, without what changes from one start of the machine to the next.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Midi {

// The name without client and process numbers ("[24]", "(1234)", "128:0"), control characters and double
// blanks; "MIDI" if nothing is left.
std::string Clean_Name(std::string_view name);

// The names, cleaned, cut to 31 bytes between characters, and each different from those before it: the second
// of a kind has " (2)" behind it, the third " (3)".
std::vector<std::string> Unique_Names(const std::vector<std::string>& names);

}  // namespace Midi
