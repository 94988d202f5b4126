#include "playlist/playlist_length.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

#include "base/vb_error.h"
#include "base/vb_format.h"
#include "base/vb_number.h"
#include "media/mpeg_info.h"

namespace tarnwick {
namespace {

constexpr std::int64_t kMaxLengthSeconds = std::numeric_limits<std::int32_t>::max();

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsBlank(char c) { return c == ' ' || c == '\t'; }

// A number at the start of a length value: blanks, an optional sign, digits,
// and optionally "." or "," with digits.
struct LeadingNumber {
  bool found = false;
  bool negative = false;
  std::string whole;     // digits before the decimal sign, leading zeros dropped
  std::string fraction;  // digits after it; empty without a decimal part
  bool has_fraction = false;
};

LeadingNumber ReadLeadingNumber(std::string_view text) {
  LeadingNumber number;
  std::size_t at = 0;
  while (at < text.size() && IsBlank(text[at])) ++at;
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
    number.negative = text[at] == '-';
    ++at;
  }
  for (; at < text.size() && IsDigit(text[at]); ++at) {
    number.found = true;
    if (!(number.whole.empty() && text[at] == '0')) number.whole.push_back(text[at]);
  }
  if (at + 1 < text.size() && (text[at] == '.' || text[at] == ',') && IsDigit(text[at + 1])) {
    number.has_fraction = true;
    number.found = true;
    for (++at; at < text.size() && IsDigit(text[at]); ++at) number.fraction.push_back(text[at]);
  }
  return number;
}

// The value of a run of digits, or -1 beyond kMaxLengthSeconds.
std::int64_t DigitsValue(const std::string& digits) {
  if (digits.size() > 10) return -1;
  std::int64_t value = 0;
  for (char c : digits) value = value * 10 + (c - '0');
  return value > kMaxLengthSeconds ? -1 : value;
}

}  // namespace

std::string LengthText(std::int64_t seconds) {
  if (seconds <= 0) return std::string(kUnknownLength);
  if (seconds < 3600) return FormatSeconds(seconds);
  return std::to_string(seconds / 3600) + ":" + vb::Format(seconds / 60 % 60, "00") + ":" +
         vb::Format(seconds % 60, "00");
}

std::string LengthFromFile(std::string_view value) {
  const LeadingNumber number = ReadLeadingNumber(value);
  if (!number.found || number.negative) return std::string(kUnknownLength);
  const std::int64_t whole = DigitsValue(number.whole);
  if (whole < 0) return std::string(kUnknownLength);
  if (!number.has_fraction) return LengthText(whole);
  // Kept: a value with a decimal part is read as minutes and hundredths.
  const double exact = std::stod(std::to_string(whole) + "." + number.fraction.substr(0, 17));
  const std::string formatted = vb::Format(exact, "00.00");
  const std::size_t sign = formatted.find('.');
  if (sign == std::string::npos) return formatted;
  const double behind = vb::Val(formatted.substr(sign + 1));
  return formatted.substr(0, sign) + ":" + vb::Format(behind, "00");
}

std::int64_t LengthSeconds(std::string_view column) {
  if (column.empty()) column = kUnknownLength;
  if (column.front() == '-') return 0;
  std::vector<std::string_view> parts;
  std::size_t start = 0;
  for (;;) {
    const std::size_t colon = column.find(':', start);
    parts.push_back(column.substr(start, colon - start));
    if (colon == std::string_view::npos) break;
    start = colon + 1;
  }
  if (parts.size() != 2 && parts.size() != 3) return 0;
  double total = 0;
  double factor = 1;
  for (std::size_t i = parts.size(); i-- > 0;) {
    double part = 0;
    try {
      part = vb::Val(parts[i]);
    } catch (const VbError&) {
      return 0;  // a number too large for any length
    }
    total += part * factor;
    factor *= 60;
  }
  if (!(total > 0)) return 0;
  if (total >= static_cast<double>(kMaxLengthSeconds)) return kMaxLengthSeconds;
  return static_cast<std::int64_t>(std::nearbyint(total));
}

}  // namespace tarnwick
