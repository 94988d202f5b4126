#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

// Number words for the {{numberToString_german}} and {{numberToString_english}}
// tokens. The argument is a digit string as found in a name, with an optional
// leading "-": leading zeros are read away ("007" is seven).
//
// - An empty text yields the empty text: the words of no number are empty.
// - A text that is not a number (other characters, a lone "-") and a number of
//   more than 21 significant digits (beyond the largest scale word, 10^21 - 1)
//   yield std::nullopt. The caller treats that as an overflow fault, so the
//   token stays in the name.
//
// German follows the standard written form: "einundzwanzig", "einhunderteins",
// "eintausend", "eine Million zweihunderttausend", "zwei Millionen".
// English words are separated by blanks: "fifty four", "one hundred twenty
// three", "two million three hundred thousand". Negative numbers get "minus".
std::optional<std::string> NumberToGermanWords(std::string_view number);
std::optional<std::string> NumberToEnglishWords(std::string_view number);

// The same for every value a 64-bit signed integer can hold.
std::string NumberToGermanWords(std::int64_t number);
std::string NumberToEnglishWords(std::int64_t number);

}  // namespace tarnwick
