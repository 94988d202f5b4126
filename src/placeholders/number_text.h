#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick {

// Number formatting of the counter and random tokens: a zero mask such as
// "000" pads a number with leading zeros to its width; wider numbers keep all
// their digits, a negative number keeps its sign in front.
std::string FormatWithZeroMask(std::int64_t value, std::string_view mask);

// The same for a number held as text: a text that reads as a number (digits,
// or digits with an exponent, so "1E5" is 100000) is formatted; any other
// text, such as hexadecimal digits with letters, stays as it is.
std::string FormatTextWithZeroMask(std::string_view text, std::string_view mask);

// The number at the start of a field text, as the program reads its numeric
// fields: blanks skipped, an optional sign, digits up to the first other
// character; 0 when there are none.
std::int64_t FieldValue(std::string_view text);

}  // namespace tarnwick
