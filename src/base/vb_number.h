#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Reading numbers from texts and converting between number types the way the
// program's runtime did. Every reading and writing here is independent of the
// process locale: the decimal sign is always "." and the thousands separator
// always ",", so a name built from a number never changes with the locale.
namespace tarnwick::vb {

// `Val`: the number at the start of a text. Blanks, tabs and line feeds are
// ignored wherever they stand ("1 2 3" is 123); then an optional sign, digits,
// a "." and digits, an exponent with "E" or "D" ("1E5" is 100000); reading
// stops at the first other character, and a text with no number gives 0.
// "&H" and "&O" read hexadecimal and octal digits; a value up to &HFFFF is a
// 16-bit integer and one up to &HFFFFFFFF a 32-bit integer, both signed, so
// "&HFFFF" is -1. Raises VbError 6 "Overflow" for a value beyond those or
// beyond the range of a double.
double Val(std::string_view text);

// `IsNumeric`: whether the whole text reads as a number: blanks around it, a
// sign in front or behind, digits with "," between them, a "." with digits,
// an exponent with "E" or "D", or "&H" / "&O" with digits. "1E5" is numeric,
// "2B5" and the empty text are not; a value too large for a double is not.
bool IsNumeric(std::string_view text);

// `CDbl` of a text: the number IsNumeric accepts. Raises VbError 13
// "Type mismatch" for a text that is not numeric, VbError 6 "Overflow" for
// one beyond the range of a double.
double CDbl(std::string_view text);

// Rounds to the nearest integer, ties to the even one: 2.5 is 2, 3.5 is 4,
// -2.5 is -2. Non-finite values are returned unchanged.
double RoundHalfEven(double value);

// `CInt`: rounds half to even into a 16-bit integer. Raises VbError 6
// "Overflow" outside -32768 to 32767 (and for NaN or infinities).
std::int16_t CInt(double value);
// `CInt` of a text: CDbl first, so VbError 13 for a text that is not numeric.
std::int16_t CInt(std::string_view text);

// `CLng`: rounds half to even into a 32-bit integer; VbError 6 outside its
// range.
std::int32_t CLng(double value);
std::int32_t CLng(std::string_view text);

// `Str`: the shortest form with up to 15 significant digits, a blank in
// front of a number that is not negative, no "0" before the decimal sign
// (" .5"), and exponent form from 1E+15 up and below 1E-04 ("1E-05").
std::string Str(double value);

// `CStr` of a number: as Str without the leading blank and with the "0"
// before the decimal sign ("0.5", "-0.25", "1E+15").
std::string CStr(double value);
std::string CStr(std::int64_t value);

}  // namespace tarnwick::vb
