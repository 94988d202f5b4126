#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "base/vb_number_decimal.h"

// The readers of number texts behind Val, IsNumeric and CDbl. Internal to base.
namespace tarnwick::vb::detail {

enum class ScanStatus { kNumber, kNotNumeric, kOverflow };

struct ScannedNumber {
  ScanStatus status = ScanStatus::kNotNumeric;
  Decimal value;
};

// The whole text as IsNumeric reads it.
ScannedNumber ScanNumericText(std::string_view text);

// The value of &H / &O digits: up to 0xFFFF a signed 16-bit integer, up to
// 0xFFFFFFFF a signed 32-bit one; nothing beyond.
std::optional<std::int64_t> RadixValue(std::uint64_t digits_value);

// Reads digits of `radix` (8 or 16) from `at`; the value saturates above
// 32 bits so that RadixValue can refuse it. Moves `at` past the digits and
// tells how many there were in `count`.
std::uint64_t ReadRadixDigits(std::string_view text, std::size_t& at, int radix,
                              std::size_t& count);

// Reads digits, a "." and digits from `at` into `value` (its sign untouched);
// with `commas`, a "," between two digits of the whole part is skipped. Moves
// `at` on and tells whether any digit was read.
bool ReadMantissa(std::string_view text, std::size_t& at, bool commas, Decimal& value);

// Reads "E" or "D" (any case), an optional sign and at least one digit from
// `at`, and shifts `value` by that power of ten. Leaves `at` where it was and
// returns false when no such exponent stands there.
bool ReadExponent(std::string_view text, std::size_t& at, Decimal& value);

}  // namespace tarnwick::vb::detail
