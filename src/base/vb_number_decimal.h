#pragma once

#include <cstdint>
#include <string>

// An exact decimal number, the common ground of number reading and number
// formatting. Internal to base.
namespace tarnwick::vb::detail {

// value = 0.digits x 10^point; digits hold no leading or trailing zeros, and
// zero has no digits at all.
struct Decimal {
  bool negative = false;
  std::string digits;
  std::int64_t point = 0;

  bool IsZero() const { return digits.empty(); }
};

// Strips leading and trailing zeros; zero loses its sign.
void Normalize(Decimal& value);

// A double with the 15 significant digits the runtime shows; NaN and
// infinities must be sorted out before.
Decimal DecimalOf(double value);
Decimal DecimalOf(std::int64_t value);

// The nearest double; an infinity when the value is beyond the range.
double ToDouble(const Decimal& value);

// Keeps the first `keep` digits, rounding half away from zero on the next one.
// A negative `keep` leaves zero.
void RoundAtDigit(Decimal& value, std::int64_t keep);

// The digits before the decimal sign ("" below 1), and `count` digits after it.
std::string IntegerDigits(const Decimal& value);
std::string FractionDigits(const Decimal& value, std::int64_t count);

}  // namespace tarnwick::vb::detail
