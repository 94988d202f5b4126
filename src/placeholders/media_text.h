#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick {

// `StripAtNull`: the text up to its first NUL; without one, the whole text
// trimmed of blanks at both ends.
std::string StripAtNull(std::string_view text);

// A length in seconds as two-digit minutes, ":" and two-digit seconds: "03:13".
std::string MinutesAndSeconds(std::int64_t seconds);

}  // namespace tarnwick
