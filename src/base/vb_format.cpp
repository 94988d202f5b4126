#include "base/vb_format.h"

#include <cmath>
#include <vector>

#include "base/text.h"
#include "base/vb_error.h"
#include "base/vb_format_mask.h"
#include "base/vb_number.h"
#include "base/vb_number_scan.h"

namespace tarnwick::vb {
namespace {

using detail::Decimal;
using detail::MaskItem;
using detail::MaskItemKind;
using detail::NumberMask;

struct NamedMask {
  std::string_view name, mask;
};
constexpr NamedMask kNamedMasks[] = {
    {"Fixed", "0.00"}, {"Standard", "#,##0.00"}, {"Percent", "0.00%"}, {"Scientific", "0.00E+00"}};

struct NamedWords {
  std::string_view name, yes, no;
};
constexpr NamedWords kNamedWords[] = {
    {"Yes/No", "Yes", "No"}, {"True/False", "True", "False"}, {"On/Off", "On", "Off"}};

bool IsPlace(const MaskItem& item) {
  return item.kind == MaskItemKind::kZero || item.kind == MaskItemKind::kHash;
}

// The whole part's digits as cells, right to left, padded with zeros up to
// the leftmost "0" place; with groups, every third cell carries the ",".
std::vector<std::string> WholeCells(const std::string& digits, const std::vector<bool>& zero_places,
                                    bool grouping) {
  std::size_t padded = digits.size();
  for (std::size_t i = 0; i < zero_places.size(); ++i) {
    if (zero_places[i]) padded = std::max(padded, zero_places.size() - i);
  }
  const std::string text = std::string(padded - digits.size(), '0') + digits;
  std::vector<std::string> cells;
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::string cell(1, text[text.size() - 1 - i]);
    if (grouping && i > 0 && i % 3 == 0) cell += ',';
    cells.push_back(std::move(cell));
  }
  return cells;
}

// What each whole-part place shows, left to right; the leftmost place takes
// every digit the mask has no room for.
std::vector<std::string> WholePlaces(const std::vector<std::string>& cells, std::size_t places) {
  std::vector<std::string> out(places);
  for (std::size_t k = 0; k < cells.size() && places > 0; ++k) {
    const std::size_t place = k < places ? places - 1 - k : 0;
    out[place] = cells[k] + out[place];
  }
  return out;
}

std::string JoinCells(const std::vector<std::string>& cells) {
  std::string out;
  for (auto it = cells.rbegin(); it != cells.rend(); ++it) out += *it;
  return out;
}

// What each decimal place shows: "#" places drop trailing zeros.
std::vector<std::string> DecimalPlaces(const std::string& digits,
                                       const std::vector<bool>& zero_places) {
  std::vector<std::string> out(digits.size());
  bool dropping = true;
  for (std::size_t j = digits.size(); j-- > 0;) {
    dropping = dropping && !zero_places[j] && digits[j] == '0';
    if (!dropping) out[j] = std::string(1, digits[j]);
  }
  return out;
}

std::string ExponentText(std::int64_t exponent, const NumberMask& mask, char letter) {
  std::string digits = std::to_string(exponent < 0 ? -exponent : exponent);
  if (static_cast<int>(digits.size()) < mask.exponent_zeros) {
    digits.insert(0, static_cast<std::size_t>(mask.exponent_zeros) - digits.size(), '0');
  }
  const char* sign = exponent < 0 ? "-" : (mask.exponent_plus ? "+" : "");
  return std::string(1, letter) + sign + digits;
}

// Rounds to the significant digits the mask shows and returns the exponent
// that puts the mask's whole places in front of the decimal sign.
std::int64_t ScaleForExponent(Decimal& value, const NumberMask& mask) {
  if (value.IsZero()) return 0;
  detail::RoundAtDigit(value, std::max(mask.integer_places + mask.decimal_places, 1));
  const std::int64_t exponent = value.point - mask.integer_places;
  value.point = mask.integer_places;
  return exponent;
}

// For each digit place of the whole part and of the decimals: whether it is
// a "0" place.
struct ZeroPlaces {
  std::vector<bool> whole, decimals;
};

ZeroPlaces ZeroPlacesOf(const NumberMask& mask) {
  ZeroPlaces out;
  bool after_point = false;
  for (const MaskItem& item : mask.items) {
    if (item.kind == MaskItemKind::kPoint) after_point = true;
    if (!IsPlace(item)) continue;
    (after_point ? out.decimals : out.whole).push_back(item.kind == MaskItemKind::kZero);
  }
  return out;
}

class SectionWriter {
 public:
  SectionWriter(Decimal value, const NumberMask& mask) : mask_(mask) {
    value.point += 2 * mask.percents - 3 * mask.scale_thousands;
    if (mask.has_exponent) {
      exponent_ = ScaleForExponent(value, mask);
    } else {
      detail::RoundAtDigit(value, value.point + mask.decimal_places);
    }
    const ZeroPlaces zeros = ZeroPlacesOf(mask);
    const auto cells = WholeCells(detail::IntegerDigits(value), zeros.whole, mask.grouping);
    whole_ = WholePlaces(cells, zeros.whole.size());
    if (zeros.whole.empty()) unplaced_whole_ = JoinCells(cells);
    decimals_ = DecimalPlaces(detail::FractionDigits(value, mask.decimal_places), zeros.decimals);
  }

  std::string Write() {
    std::string out;
    bool after_point = false;
    std::size_t whole_at = 0, decimal_at = 0;
    for (const MaskItem& item : mask_.items) {
      switch (item.kind) {
        case MaskItemKind::kZero:
        case MaskItemKind::kHash:
          out += after_point ? decimals_[decimal_at++] : whole_[whole_at++];
          break;
        case MaskItemKind::kPoint:
          out += unplaced_whole_ + ".";
          after_point = true;
          break;
        case MaskItemKind::kExponent:
          out += ExponentText(exponent_, mask_, item.text[0]);
          break;
        case MaskItemKind::kPercent:
        case MaskItemKind::kLiteral:
          out += item.text;
          break;
        default:  // groups, scales and exponent places show nothing of their own
          break;
      }
    }
    return out;
  }

 private:
  const NumberMask& mask_;
  std::int64_t exponent_ = 0;
  std::vector<std::string> whole_, decimals_;
  std::string unplaced_whole_;
};

// A mask of "0" alone, the counters' mask: the digits padded to its width.
bool IsZeroMask(std::string_view mask) {
  return !mask.empty() && mask.find_first_not_of('0') == std::string_view::npos;
}

std::string PaddedInteger(std::int64_t value, std::size_t width) {
  const std::uint64_t magnitude =
      value < 0 ? ~static_cast<std::uint64_t>(value) + 1 : static_cast<std::uint64_t>(value);
  std::string digits = std::to_string(magnitude);
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return value < 0 ? "-" + digits : digits;
}

// The masks known by name all begin with a letter, a number mask seldom does.
bool MayBeNamed(std::string_view mask) {
  const char c = mask.empty() ? '\0' : static_cast<char>(mask[0] | 0x20);
  return c >= 'a' && c <= 'z';
}

template <typename General>
std::string FormatDecimal(const Decimal& value, std::string_view mask, General general) {
  if (mask.empty()) return general();
  if (MayBeNamed(mask)) {
    if (EqualsText(mask, "General Number")) return general();
    for (const NamedMask& named : kNamedMasks) {
      if (EqualsText(mask, named.name)) return FormatDecimal(value, named.mask, general);
    }
    for (const NamedWords& named : kNamedWords) {
      if (EqualsText(mask, named.name)) return std::string(value.IsZero() ? named.no : named.yes);
    }
  }
  const std::vector<std::string_view> sections = detail::SplitSections(mask);
  std::string_view section = sections[0];
  bool sign = value.negative;
  if (value.negative && sections.size() >= 2 && !sections[1].empty()) {
    section = sections[1];
    sign = false;
  } else if (value.IsZero() && sections.size() >= 3 && !sections[2].empty()) {
    section = sections[2];
  }
  if (section.empty()) return general();
  Decimal magnitude = value;
  magnitude.negative = false;
  const NumberMask parsed = detail::ParseNumberMask(section);
  // Kept: a negative number that rounds to zero still shows its "-".
  return (sign ? "-" : "") + SectionWriter(magnitude, parsed).Write();
}

}  // namespace

std::string Format(double value, std::string_view mask) {
  if (!std::isfinite(value)) throw VbError(vb_error::kOverflow, "Overflow");
  return FormatDecimal(detail::DecimalOf(value), mask, [value] { return CStr(value); });
}

std::string Format(std::int64_t value, std::string_view mask) {
  if (IsZeroMask(mask)) return PaddedInteger(value, mask.size());
  return FormatDecimal(detail::DecimalOf(value), mask, [value] { return CStr(value); });
}

std::string FormatText(std::string_view text, std::string_view mask) {
  const detail::ScannedNumber scanned = detail::ScanNumericText(text);
  if (scanned.status != detail::ScanStatus::kNumber) return std::string(text);
  return FormatDecimal(scanned.value, mask, [&] { return CStr(detail::ToDouble(scanned.value)); });
}

}  // namespace tarnwick::vb
