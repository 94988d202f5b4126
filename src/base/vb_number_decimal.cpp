#include "base/vb_number_decimal.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <system_error>

namespace tarnwick::vb::detail {
namespace {

// More digits than this never change the nearest double.
constexpr std::size_t kSignificantForDouble = 800;

void StripLeadingZeros(Decimal& value) {
  const std::size_t first = value.digits.find_first_not_of('0');
  if (first == std::string::npos) {
    value.digits.clear();
    return;
  }
  value.digits.erase(0, first);
  value.point -= static_cast<std::int64_t>(first);
}

void IncrementDigits(Decimal& value) {
  std::size_t i = value.digits.size();
  while (i > 0 && value.digits[i - 1] == '9') value.digits[--i] = '0';
  if (i == 0) {
    value.digits.insert(value.digits.begin(), '1');
    ++value.point;
    return;
  }
  ++value.digits[i - 1];
}

}  // namespace

void Normalize(Decimal& value) {
  StripLeadingZeros(value);
  const std::size_t last = value.digits.find_last_not_of('0');
  value.digits.resize(last == std::string::npos ? 0 : last + 1);
  if (value.digits.empty()) {
    value.negative = false;
    value.point = 0;
  }
}

Decimal DecimalOf(double value) {
  Decimal out;
  if (value == 0 || !std::isfinite(value)) return out;
  out.negative = value < 0;
  char buffer[64];
  // "d.dddddddddddddde+XX": 15 significant digits, whatever the locale.
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value),
                                    std::chars_format::scientific, 14);
  const std::string_view text(buffer, static_cast<std::size_t>(result.ptr - buffer));
  const std::size_t e = text.find('e');
  out.digits = std::string(1, text[0]) + std::string(text.substr(2, e - 2));
  const char* exponent = text.data() + e + 1;
  if (*exponent == '+') ++exponent;
  int power = 0;
  std::from_chars(exponent, text.data() + text.size(), power);
  out.point = power + 1;
  Normalize(out);
  return out;
}

Decimal DecimalOf(std::int64_t value) {
  Decimal out;
  out.negative = value < 0;
  const std::uint64_t magnitude =
      value < 0 ? ~static_cast<std::uint64_t>(value) + 1 : static_cast<std::uint64_t>(value);
  out.digits = std::to_string(magnitude);
  out.point = static_cast<std::int64_t>(out.digits.size());
  Normalize(out);
  return out;
}

double ToDouble(const Decimal& value) {
  if (value.IsZero()) return 0;
  if (value.point > 400) return value.negative ? -HUGE_VAL : HUGE_VAL;
  if (value.point < -400) return 0;
  std::string text = "0." + value.digits.substr(0, kSignificantForDouble);
  text += "e" + std::to_string(value.point);
  double out = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), out);
  if (result.ec == std::errc::result_out_of_range) out = value.point > 0 ? HUGE_VAL : 0;
  return value.negative ? -out : out;
}

void RoundAtDigit(Decimal& value, std::int64_t keep) {
  if (keep >= static_cast<std::int64_t>(value.digits.size())) return;
  if (keep < 0) {
    value = Decimal{};
    return;
  }
  const bool up = value.digits[static_cast<std::size_t>(keep)] >= '5';
  value.digits.resize(static_cast<std::size_t>(keep));
  if (up) IncrementDigits(value);
  Normalize(value);
}

std::string IntegerDigits(const Decimal& value) {
  if (value.point <= 0) return {};
  const auto count = static_cast<std::size_t>(value.point);
  std::string out = value.digits.substr(0, count);
  out.resize(count, '0');
  return out;
}

std::string FractionDigits(const Decimal& value, std::int64_t count) {
  std::string out;
  out.reserve(static_cast<std::size_t>(count > 0 ? count : 0));
  for (std::int64_t i = 0; i < count; ++i) {
    const std::int64_t at = value.point + i;
    const bool inside = at >= 0 && at < static_cast<std::int64_t>(value.digits.size());
    out += inside ? value.digits[static_cast<std::size_t>(at)] : '0';
  }
  return out;
}

}  // namespace tarnwick::vb::detail
