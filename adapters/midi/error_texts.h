// Texts of the service's result codes.
#pragma once

#include <string_view>

namespace Midi {

// Empty for a code that the service does not know.
std::string_view Text_Of_Code(int code);

}  // namespace Midi
