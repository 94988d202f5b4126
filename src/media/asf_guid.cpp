#include "media/asf_guid.h"

#include <cstdio>

namespace tarnwick {
namespace {

// Positions of the bytes in the order the text shows them.
constexpr std::array<int, 16> kTextOrder = {3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15};
// Where a dash stands after that many bytes.
constexpr bool DashAfter(int shown) {
  return shown == 4 || shown == 6 || shown == 8 || shown == 10;
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

std::string GuidToText(const AsfGuid& guid) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text = "{";
  for (int shown = 0; shown < 16; ++shown) {
    if (DashAfter(shown)) text += '-';
    const std::uint8_t byte = guid[kTextOrder[shown]];
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15];
  }
  return text + "}";
}

std::optional<AsfGuid> TextToGuid(std::string_view text) {
  if (text.size() != 38 || text.front() != '{' || text.back() != '}') return std::nullopt;
  AsfGuid guid{};
  std::size_t at = 1;
  for (int shown = 0; shown < 16; ++shown) {
    if (DashAfter(shown) && text[at++] != '-') return std::nullopt;
    const int high = HexDigit(text[at]), low = HexDigit(text[at + 1]);
    if (high < 0 || low < 0) return std::nullopt;
    guid[kTextOrder[shown]] = static_cast<std::uint8_t>(high * 16 + low);
    at += 2;
  }
  return guid;
}

AsfGuid GuidAt(std::string_view bytes, std::size_t at) {
  AsfGuid guid{};
  for (std::size_t i = 0; i < guid.size(); ++i) guid[i] = static_cast<std::uint8_t>(bytes[at + i]);
  return guid;
}

}  // namespace tarnwick
