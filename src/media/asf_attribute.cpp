#include "media/asf_attribute.h"

#include "base/utf8.h"
#include "media/asf_guid.h"

namespace tarnwick {
namespace {

// A value of ten-thousandths as the fixed-point number prints it: "1" for
// 10000, "-0.5" for -5000, "1.2345" for 12345.
std::string TenThousandths(std::int64_t raw) {
  const bool negative = raw < 0;
  const std::uint64_t magnitude = negative ? std::uint64_t(0) - static_cast<std::uint64_t>(raw)
                                           : static_cast<std::uint64_t>(raw);
  std::string text = std::to_string(magnitude / 10000);
  std::string fraction = std::to_string(magnitude % 10000);
  fraction.insert(0, 4 - fraction.size(), '0');
  while (!fraction.empty() && fraction.back() == '0') fraction.pop_back();
  if (!fraction.empty()) text += "." + fraction;
  return negative ? "-" + text : text;
}

}  // namespace

std::uint64_t LittleEndianAt(std::string_view bytes, std::size_t at, int size) {
  std::uint64_t value = 0;
  for (int i = size - 1; i >= 0; --i) {
    const std::size_t place = at + static_cast<std::size_t>(i);
    const std::uint8_t byte = place < bytes.size() ? static_cast<std::uint8_t>(bytes[place]) : 0;
    value = (value << 8) | byte;
  }
  return value;
}

std::string Utf16LeText(std::string_view bytes) {
  std::string out;
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    char32_t unit = static_cast<char32_t>(LittleEndianAt(bytes, at, 2));
    if (unit == 0) break;
    if (unit >= 0xD800 && unit <= 0xDBFF && at + 3 < bytes.size()) {
      const auto low = static_cast<char32_t>(LittleEndianAt(bytes, at + 2, 2));
      if (low >= 0xDC00 && low <= 0xDFFF) {
        utf8::AppendCodePoint(out, 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00));
        at += 2;
        continue;
      }
    }
    if (unit >= 0xD800 && unit <= 0xDFFF) unit = 0xFFFD;
    utf8::AppendCodePoint(out, unit);
  }
  return out;
}

std::string AsfValueText(std::uint16_t type, std::string_view bytes) {
  switch (type) {
    case kAsfDword:
      return std::to_string(static_cast<std::int32_t>(LittleEndianAt(bytes, 0, 4)));
    case kAsfString:
      return Utf16LeText(bytes);
    case kAsfBool:
      for (const char c : bytes) {
        if (c != 0) return "True";
      }
      return "False";
    case kAsfQword:
      return TenThousandths(static_cast<std::int64_t>(LittleEndianAt(bytes, 0, 8)));
    case kAsfWord:
      return std::to_string(static_cast<std::int16_t>(LittleEndianAt(bytes, 0, 2)));
    case kAsfGuid: {
      AsfGuid guid{};
      for (std::size_t i = 0; i < guid.size(); ++i) {
        guid[i] = static_cast<std::uint8_t>(LittleEndianAt(bytes, i, 1));
      }
      return GuidToText(guid);
    }
    default:
      return {};
  }
}

}  // namespace tarnwick
