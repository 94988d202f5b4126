#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// `Format` of numbers with a number mask, as the program's runtime does it.
//
// A mask has up to four sections split by ";": positive, negative, zero and
// (unused here) null. An empty negative section, or none, formats a negative
// number with the first section and a "-" in front. In a section:
//   "0"  a digit, or 0 where the number has none ("000" makes 7 "007")
//   "#"  a digit, or nothing
//   "."  the decimal sign; the digits after it fix the decimals, rounded
//        half away from zero ("0.0" makes 2.25 "2.3")
//   ","  between digit places: thousands groups ("#,##0" makes "1,234,567");
//        right before the decimal sign or the end: divides by 1000
//   "%"  multiplies by 100 and shows "%"
//   "E+0", "E-0" (or "e"): exponent form, "+" shows the exponent's sign always
//   "\x" and "..." are literal; any other character stands for itself.
// A number wider than its mask keeps all its digits. The decimal sign is
// always "." and the thousands separator always ",", whatever the locale, so
// names and logs read the same on every machine. An empty mask, or
// "General Number", gives CStr. "Fixed", "Standard", "Percent" and
// "Scientific" are "0.00", "#,##0.00", "0.00%" and "0.00E+00".
namespace tarnwick::vb {

// Raises VbError 6 "Overflow" for NaN and infinities.
std::string Format(double value, std::string_view mask);
std::string Format(std::int64_t value, std::string_view mask);
inline std::string Format(int value, std::string_view mask) {
  return Format(static_cast<std::int64_t>(value), mask);
}

// `Format` of a text: a text that reads as a number (IsNumeric) is formatted
// as that number, digit for digit, so a long run of digits loses none; "1E5"
// reads as 100000. Any other text, such as hexadecimal digits with letters
// ("2B5"), comes back as it is.
std::string FormatText(std::string_view text, std::string_view mask);

}  // namespace tarnwick::vb
