#include "media/id3_text.h"

#include "base/utf8.h"
#include "base/vb_error.h"

namespace tarnwick {
namespace {

std::string CleanLineBreaks(const std::string& text) {
  std::string out;
  out.reserve(text.size());
  for (char c : text) {
    if (c == '\r') continue;
    if (c == '\n') out += '\r';
    out += c;
  }
  return out;
}

std::string Latin1(std::span<const std::uint8_t> data, std::size_t& consumed, bool stop_at_null) {
  std::string out;
  for (std::uint8_t b : data) {
    ++consumed;
    if (b == 0 && stop_at_null) break;
    utf8::AppendCodePoint(out, b);
  }
  return out;
}

// UTF-16 units from `at` on; surrogate units take two units and give nothing.
std::string Utf16(std::span<const std::uint8_t> data, std::size_t at, bool big_endian,
                  std::size_t& consumed, bool stop_at_null) {
  std::string out;
  while (at < data.size()) {
    if (data.size() - at < 2) {
      consumed += data.size() - at;
      break;
    }
    const unsigned hi = big_endian ? data[at] : data[at + 1];
    const unsigned lo = big_endian ? data[at + 1] : data[at];
    const char32_t unit = static_cast<char32_t>(hi << 8 | lo);
    if (unit >= 0xD800 && unit <= 0xDFFF) {
      if (data.size() - at < 4) {
        consumed += data.size() - at;
        break;
      }
      consumed += 4;
      at += 4;
      continue;
    }
    consumed += 2;
    at += 2;
    if (unit == 0 && stop_at_null) break;
    utf8::AppendCodePoint(out, unit);
  }
  return out;
}

std::string Utf16WithMark(std::span<const std::uint8_t> data, std::size_t& consumed,
                          bool stop_at_null) {
  if (data.size() < 2) {
    consumed += data.size();
    return {};
  }
  consumed += 2;
  if (data[0] == 0 && data[1] == 0) return {};
  const bool little = data[0] == 0xFF && data[1] == 0xFE;
  // Any pair but FF FE reads big-endian; a pair that is no mark is lost.
  return Utf16(data, 2, !little, consumed, stop_at_null);
}

std::string Utf8(std::span<const std::uint8_t> data, std::size_t& consumed, bool stop_at_null) {
  std::string out;
  std::size_t at = 0;
  while (at < data.size()) {
    const std::uint8_t lead = data[at];
    std::size_t length = 0;
    char32_t value = 0;
    if (lead < 0x80) {
      length = 1;
      value = lead;
    } else if ((lead & 0xE0) == 0xC0) {
      length = 2;
      value = lead & 0x1F;
    } else if ((lead & 0xF0) == 0xE0) {
      length = 3;
      value = lead & 0x0F;
    } else if ((lead & 0xF8) == 0xF0) {
      length = 4;
      value = lead & 0x07;
    } else {
      ++consumed;  // no valid start: no character
      ++at;
      continue;
    }
    if (data.size() - at < length) {
      consumed += data.size() - at;
      break;
    }
    for (std::size_t i = 1; i < length; ++i) value = value << 6 | (data[at + i] & 0x3F);
    consumed += length;
    at += length;
    if (value == 0 && stop_at_null) break;
    utf8::AppendCodePoint(out, value);
  }
  return out;
}

void PutUnit(std::vector<std::uint8_t>& out, char32_t unit) {
  out.push_back(static_cast<std::uint8_t>(unit >> 8));
  out.push_back(static_cast<std::uint8_t>(unit & 0xFF));
}

}  // namespace

std::string BytesToText(std::span<const std::uint8_t> data, int encoding, std::size_t& consumed,
                        bool stop_at_null) {
  std::string text;
  switch (encoding) {
    case 0:
      text = Latin1(data, consumed, stop_at_null);
      break;
    case 1:
      text = Utf16WithMark(data, consumed, stop_at_null);
      break;
    case 2:
      text = Utf16(data, 0, true, consumed, stop_at_null);
      break;
    case 3:
      text = Utf8(data, consumed, stop_at_null);
      break;
    default:
      text = Utf16(data, 0, false, consumed, stop_at_null);
      break;
  }
  return CleanLineBreaks(text);
}

std::size_t TagTextLength(std::string_view text) {
  std::size_t length = 0;
  for (utf8::Char c : utf8::Chars(text)) length += c.valid && c.code_point > 0xFFFF ? 2 : 1;
  return length;
}

std::vector<std::uint8_t> TextToBytes(std::string_view text, std::size_t max_length, bool unicode,
                                      bool terminate) {
  std::vector<std::uint8_t> out;
  std::size_t limit = TagTextLength(text);
  if (max_length > 0 && max_length <= limit) limit = max_length;
  if (unicode) {
    out.push_back(0xFE);
    out.push_back(0xFF);
  }
  std::size_t units = 0;
  for (utf8::Char c : utf8::Chars(text)) {
    if (units >= limit) break;
    const char32_t cp = c.code_point;
    if (!unicode) {
      if (c.valid && cp > 255) throw VbError(vb_error::kOverflow, "Overflow");
      out.push_back(static_cast<std::uint8_t>(cp));
      ++units;
      continue;
    }
    if (c.valid && cp > 0xFFFF) {
      if (units + 2 > limit) break;
      const char32_t v = cp - 0x10000;
      PutUnit(out, 0xD800 + (v >> 10));
      PutUnit(out, 0xDC00 + (v & 0x3FF));
      units += 2;
      continue;
    }
    PutUnit(out, cp);
    ++units;
  }
  if (terminate) {
    out.push_back(0);
    if (unicode) out.push_back(0);
  }
  return out;
}

std::size_t RemoveUnsynchronisation(std::vector<std::uint8_t>& bytes) {
  std::size_t write = 0;
  for (std::size_t read = 0; read < bytes.size(); ++read) {
    bytes[write++] = bytes[read];
    if (bytes[read] == 0xFF && read + 1 < bytes.size() && bytes[read + 1] == 0) ++read;
  }
  const std::size_t removed = bytes.size() - write;
  bytes.resize(write);
  return removed;
}

}  // namespace tarnwick
