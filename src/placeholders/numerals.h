#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tarnwick {

// The numbering tokens' number systems: binary, octal and upper-case
// hexadecimal digits of a non-negative value, without leading zeros ("0" for
// zero).
std::string ToBinary(std::uint64_t value);
std::string ToOctal(std::uint64_t value);
std::string ToHexadecimal(std::uint64_t value);

// Roman numerals for 1 to 3999, "15" -> "XV"; 0 gives the empty text. A larger
// value has no Roman form and gives std::nullopt, which the engine treats as a
// fault, so the token stays.
std::optional<std::string> ToRoman(std::uint64_t value);

}  // namespace tarnwick
