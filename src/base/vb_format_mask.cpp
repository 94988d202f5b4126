#include "base/vb_format_mask.h"

namespace tarnwick::vb::detail {
namespace {

bool IsDigitPlace(MaskItemKind kind) {
  return kind == MaskItemKind::kZero || kind == MaskItemKind::kHash;
}

// One step of the reader: appends the item at `at` and moves on.
void ReadItem(std::string_view section, std::size_t& at, NumberMask& mask) {
  const char c = section[at++];
  auto add = [&](MaskItemKind kind, std::string text = {}) {
    mask.items.push_back({kind, std::move(text)});
  };
  if (c == '"') {
    const std::size_t end = section.find('"', at);
    const std::size_t stop = end == std::string_view::npos ? section.size() : end;
    add(MaskItemKind::kLiteral, std::string(section.substr(at, stop - at)));
    at = stop == section.size() ? stop : stop + 1;
  } else if (c == '\\') {
    if (at < section.size()) add(MaskItemKind::kLiteral, std::string(1, section[at++]));
  } else if (c == '0' || c == '#') {
    add(mask.has_exponent ? MaskItemKind::kExponentDigit
                          : (c == '0' ? MaskItemKind::kZero : MaskItemKind::kHash),
        std::string(1, c));
  } else if (c == '.' && !mask.has_point && !mask.has_exponent) {
    mask.has_point = true;
    add(MaskItemKind::kPoint);
  } else if (c == ',' && !mask.has_point && !mask.has_exponent) {
    add(MaskItemKind::kGroup);  // sorted out once the whole section is read
  } else if (c == '%') {
    ++mask.percents;
    add(MaskItemKind::kPercent, "%");
  } else if ((c == 'E' || c == 'e') && !mask.has_exponent && at < section.size() &&
             (section[at] == '+' || section[at] == '-')) {
    mask.has_exponent = true;
    mask.exponent_plus = section[at] == '+';
    add(MaskItemKind::kExponent, std::string(1, c));
    ++at;
  } else {
    add(MaskItemKind::kLiteral, std::string(1, c));
  }
}

// A "," between two digit places of the whole part asks for groups; after the
// last one it divides by 1000; before the first it is a plain character.
void SortOutCommas(NumberMask& mask) {
  std::size_t whole_end = mask.items.size();
  for (std::size_t i = 0; i < mask.items.size(); ++i) {
    const MaskItemKind kind = mask.items[i].kind;
    if (kind == MaskItemKind::kPoint || kind == MaskItemKind::kExponent) {
      whole_end = i;
      break;
    }
  }
  bool place_before = false;
  for (std::size_t i = 0; i < whole_end; ++i) {
    MaskItem& item = mask.items[i];
    if (IsDigitPlace(item.kind)) place_before = true;
    if (item.kind != MaskItemKind::kGroup) continue;
    bool place_after = false;
    for (std::size_t j = i + 1; j < whole_end && !place_after; ++j) {
      place_after = IsDigitPlace(mask.items[j].kind);
    }
    if (!place_before) {
      item = {MaskItemKind::kLiteral, ","};
    } else if (place_after) {
      mask.grouping = true;
    } else {
      item.kind = MaskItemKind::kScale;
      ++mask.scale_thousands;
    }
  }
}

void CountPlaces(NumberMask& mask) {
  bool after_point = false;
  for (const MaskItem& item : mask.items) {
    if (item.kind == MaskItemKind::kPoint) after_point = true;
    if (IsDigitPlace(item.kind)) ++(after_point ? mask.decimal_places : mask.integer_places);
    if (item.kind == MaskItemKind::kExponentDigit && item.text == "0") ++mask.exponent_zeros;
  }
}

}  // namespace

std::vector<std::string_view> SplitSections(std::string_view mask) {
  std::vector<std::string_view> sections;
  std::size_t start = 0;
  bool quoted = false;
  for (std::size_t i = 0; i < mask.size(); ++i) {
    if (mask[i] == '"') quoted = !quoted;
    if (quoted) continue;
    if (mask[i] == '\\') {
      ++i;
    } else if (mask[i] == ';') {
      sections.push_back(mask.substr(start, i - start));
      start = i + 1;
    }
  }
  sections.push_back(mask.substr(std::min(start, mask.size())));
  return sections;
}

NumberMask ParseNumberMask(std::string_view section) {
  NumberMask mask;
  for (std::size_t at = 0; at < section.size();) ReadItem(section, at, mask);
  SortOutCommas(mask);
  CountPlaces(mask);
  return mask;
}

}  // namespace tarnwick::vb::detail
