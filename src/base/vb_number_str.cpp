#include <charconv>
#include <cmath>
#include <string>

#include "base/vb_error.h"
#include "base/vb_number.h"

namespace tarnwick::vb {
namespace {

// Up to 15 significant digits, exponent form from 1E+15 up and below 1E-04,
// exponents with at least two digits: what "%.15G" gives, in any locale.
std::string GeneralText(double value) {
  if (std::isnan(value)) return "NaN";
  if (std::isinf(value)) return value < 0 ? "-Infinity" : "Infinity";
  if (value == 0) return "0";
  char buffer[64];
  const auto result =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
  std::string out(buffer, result.ptr);
  for (char& c : out) {
    if (c == 'e') c = 'E';
  }
  return out;
}

}  // namespace

std::string CStr(double value) { return GeneralText(value); }

std::string CStr(std::int64_t value) { return std::to_string(value); }

std::string Str(double value) {
  std::string out = GeneralText(value);
  const bool negative = !out.empty() && out[0] == '-';
  const std::size_t digits = negative ? 1 : 0;
  if (out.compare(digits, 2, "0.") == 0) out.erase(digits, 1);
  return negative ? out : " " + out;
}

}  // namespace tarnwick::vb
