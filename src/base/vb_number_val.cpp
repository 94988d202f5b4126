#include <cmath>
#include <string>

#include "base/vb_error.h"
#include "base/vb_number.h"
#include "base/vb_number_scan.h"

namespace tarnwick::vb {
namespace {

// Val ignores blanks, tabs and line feeds wherever they stand.
std::string WithoutBlanks(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (char c : text) {
    if (c != ' ' && c != '\t' && c != '\n') out += c;
  }
  return out;
}

double RadixVal(std::string_view text) {
  if (text.size() < 2) return 0;
  const char kind = static_cast<char>(text[1] | 0x20);
  if (kind != 'h' && kind != 'o') return 0;
  std::size_t at = 2, count = 0;
  const std::uint64_t digits = detail::ReadRadixDigits(text, at, kind == 'h' ? 16 : 8, count);
  if (count == 0) return 0;
  const std::optional<std::int64_t> value = detail::RadixValue(digits);
  if (!value) throw VbError(vb_error::kOverflow, "Overflow");
  return static_cast<double>(*value);
}

}  // namespace

double Val(std::string_view text) {
  const std::string compact = WithoutBlanks(text);
  if (!compact.empty() && compact[0] == '&') return RadixVal(compact);
  std::size_t at = 0;
  detail::Decimal value;
  if (at < compact.size() && (compact[at] == '+' || compact[at] == '-')) {
    value.negative = compact[at++] == '-';
  }
  const bool negative = value.negative;
  if (!detail::ReadMantissa(compact, at, false, value)) return 0;
  value.negative = negative;
  detail::ReadExponent(compact, at, value);
  detail::Normalize(value);
  const double out = detail::ToDouble(value);
  if (std::isinf(out)) throw VbError(vb_error::kOverflow, "Overflow");
  return out;
}

}  // namespace tarnwick::vb
