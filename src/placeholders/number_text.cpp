#include "placeholders/number_text.h"

#include <cmath>
#include <cstdlib>
#include <string>

namespace tarnwick {
namespace {

bool AllDigits(std::string_view text) {
  if (text.empty()) return false;
  for (char c : text) {
    if (c < '0' || c > '9') return false;
  }
  return true;
}

std::string PadDigits(std::string_view digits, std::size_t width) {
  // Leading zeros of the text go; the mask decides the width.
  const std::size_t first = digits.find_first_not_of('0');
  std::string out(first == std::string_view::npos ? "0" : digits.substr(first));
  if (out.size() < width) out.insert(0, width - out.size(), '0');
  return out;
}

// Digits, an exponent letter (E or D, either case), an optional sign, digits.
bool IsExponentForm(std::string_view text) {
  const std::size_t e = text.find_first_of("EeDd");
  if (e == std::string_view::npos || e == 0 || !AllDigits(text.substr(0, e))) return false;
  std::string_view exponent = text.substr(e + 1);
  if (!exponent.empty() && (exponent[0] == '+' || exponent[0] == '-')) exponent.remove_prefix(1);
  return AllDigits(exponent);
}

}  // namespace

std::string FormatWithZeroMask(std::int64_t value, std::string_view mask) {
  const std::string digits = std::to_string(value < 0 ? -(value + 1) + 1ull : value + 0ull);
  return (value < 0 ? "-" : "") + PadDigits(digits, mask.size());
}

std::string FormatTextWithZeroMask(std::string_view text, std::string_view mask) {
  if (AllDigits(text)) return PadDigits(text, mask.size());
  if (!IsExponentForm(text)) return std::string(text);
  std::string normal(text);
  for (char& c : normal) {
    if (c == 'D' || c == 'd') c = 'E';
  }
  const long double value = std::strtold(normal.c_str(), nullptr);
  if (!std::isfinite(value) || value >= 1e18L) return std::string(text);
  return FormatWithZeroMask(std::llroundl(value), mask);
}

std::int64_t FieldValue(std::string_view text) {
  std::size_t at = text.find_first_not_of(' ');
  if (at == std::string_view::npos) return 0;
  bool negative = false;
  if (text[at] == '-' || text[at] == '+') negative = text[at++] == '-';
  std::int64_t value = 0;
  for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) {
    if (value > (INT64_MAX - 9) / 10) break;
    value = value * 10 + (text[at] - '0');
  }
  return negative ? -value : value;
}

}  // namespace tarnwick
