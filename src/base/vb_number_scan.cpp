#include "base/vb_number_scan.h"

#include <cmath>

namespace tarnwick::vb::detail {
namespace {

// Exponents beyond this magnitude are out of every range anyway.
constexpr std::int64_t kExponentLimit = 1'000'000;
constexpr std::uint64_t kRadixLimit = 0xFFFFFFFFull;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsSign(char c) { return c == '+' || c == '-'; }

int DigitValue(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return 99;
}

void SkipBlanks(std::string_view text, std::size_t& at) {
  while (at < text.size() && IsBlank(text[at])) ++at;
}

bool AtEnd(std::string_view text, std::size_t at) { return at >= text.size(); }

// "&H..." or "&O..." from `at`, which stands on the "&".
ScannedNumber ScanRadix(std::string_view text, std::size_t& at) {
  ScannedNumber out;
  if (at + 1 >= text.size()) return out;
  const char kind = static_cast<char>(text[at + 1] | 0x20);
  if (kind != 'h' && kind != 'o') return out;
  at += 2;
  std::size_t count = 0;
  const std::uint64_t digits = ReadRadixDigits(text, at, kind == 'h' ? 16 : 8, count);
  if (count == 0) return out;
  const std::optional<std::int64_t> value = RadixValue(digits);
  out.status = value ? ScanStatus::kNumber : ScanStatus::kOverflow;
  if (value) out.value = DecimalOf(*value);
  return out;
}

ScannedNumber ScanDecimal(std::string_view text, std::size_t& at) {
  ScannedNumber out;
  if (!ReadMantissa(text, at, true, out.value)) return out;
  const std::size_t before_exponent = at;
  if (!ReadExponent(text, at, out.value) && at < text.size() &&
      std::string_view("EeDd").find(text[at]) != std::string_view::npos) {
    at = before_exponent;
    return out;  // an exponent letter without digits
  }
  out.status = std::isinf(ToDouble(out.value)) ? ScanStatus::kOverflow : ScanStatus::kNumber;
  return out;
}

}  // namespace

std::optional<std::int64_t> RadixValue(std::uint64_t digits_value) {
  if (digits_value <= 0xFFFF) return static_cast<std::int16_t>(digits_value);
  if (digits_value <= kRadixLimit) return static_cast<std::int32_t>(digits_value);
  return std::nullopt;
}

std::uint64_t ReadRadixDigits(std::string_view text, std::size_t& at, int radix,
                              std::size_t& count) {
  std::uint64_t value = 0;
  count = 0;
  for (; at < text.size() && DigitValue(text[at]) < radix; ++at, ++count) {
    value = value * static_cast<std::uint64_t>(radix) +
            static_cast<std::uint64_t>(DigitValue(text[at]));
    if (value > kRadixLimit) value = kRadixLimit + 1;
  }
  return value;
}

bool ReadMantissa(std::string_view text, std::size_t& at, bool commas, Decimal& value) {
  bool any = false;
  for (; at < text.size(); ++at) {
    const bool comma =
        commas && any && text[at] == ',' && at + 1 < text.size() && IsDigit(text[at + 1]);
    if (comma) continue;
    if (!IsDigit(text[at])) break;
    value.digits += text[at];
    ++value.point;
    any = true;
  }
  if (at < text.size() && text[at] == '.') {
    for (++at; at < text.size() && IsDigit(text[at]); ++at) {
      value.digits += text[at];
      any = true;
    }
  }
  Normalize(value);
  return any;
}

bool ReadExponent(std::string_view text, std::size_t& at, Decimal& value) {
  std::size_t i = at;
  if (i >= text.size() || std::string_view("EeDd").find(text[i]) == std::string_view::npos) {
    return false;
  }
  ++i;
  const bool negative = i < text.size() && text[i] == '-';
  if (i < text.size() && IsSign(text[i])) ++i;
  if (i >= text.size() || !IsDigit(text[i])) return false;
  std::int64_t exponent = 0;
  for (; i < text.size() && IsDigit(text[i]); ++i) {
    exponent = std::min(exponent * 10 + (text[i] - '0'), kExponentLimit);
  }
  if (!value.IsZero()) value.point += negative ? -exponent : exponent;
  at = i;
  return true;
}

ScannedNumber ScanNumericText(std::string_view text) {
  std::size_t at = 0;
  SkipBlanks(text, at);
  const bool leading_sign = !AtEnd(text, at) && IsSign(text[at]);
  const bool negative = leading_sign && text[at] == '-';
  if (leading_sign) ++at;
  SkipBlanks(text, at);
  ScannedNumber out =
      !AtEnd(text, at) && text[at] == '&' ? ScanRadix(text, at) : ScanDecimal(text, at);
  if (out.status == ScanStatus::kNotNumeric) return out;
  SkipBlanks(text, at);
  bool trailing_negative = false;
  if (!leading_sign && !AtEnd(text, at) && IsSign(text[at])) {
    trailing_negative = text[at++] == '-';
    SkipBlanks(text, at);
  }
  if (!AtEnd(text, at)) return {};
  if (negative || trailing_negative) out.value.negative = !out.value.negative;
  Normalize(out.value);
  return out;
}

}  // namespace tarnwick::vb::detail
