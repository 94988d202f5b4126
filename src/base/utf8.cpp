#include "base/utf8.h"

#include <cstring>

namespace tarnwick::utf8 {
namespace {

bool IsContinuation(unsigned char b) { return (b & 0xC0) == 0x80; }

// The allowed range of the second byte after a lead byte; the bytes after it
// are plain continuation bytes. Overlong forms, surrogates and values beyond
// U+10FFFF are excluded here.
struct Lead {
  std::uint8_t size;
  unsigned char low;
  unsigned char high;
};

Lead LeadOf(unsigned char b) {
  if (b < 0xC2) return {0, 0, 0};
  if (b <= 0xDF) return {2, 0x80, 0xBF};
  if (b == 0xE0) return {3, 0xA0, 0xBF};
  if (b == 0xED) return {3, 0x80, 0x9F};
  if (b <= 0xEF) return {3, 0x80, 0xBF};
  if (b == 0xF0) return {4, 0x90, 0xBF};
  if (b <= 0xF3) return {4, 0x80, 0xBF};
  if (b == 0xF4) return {4, 0x80, 0x8F};
  return {0, 0, 0};
}

unsigned char ByteAt(std::string_view text, std::size_t at) {
  return static_cast<unsigned char>(text[at]);
}

// Eight bytes at once: true when none has its high bit set.
bool AsciiWord(const char* p) {
  std::uint64_t word;
  std::memcpy(&word, p, sizeof word);
  return (word & 0x8080808080808080ULL) == 0;
}

}  // namespace

std::size_t ValidSequenceAt(std::string_view text, std::size_t at) {
  if (at >= text.size()) return 0;
  const Lead lead = LeadOf(ByteAt(text, at));
  if (lead.size == 0 || text.size() - at < lead.size) return 0;
  const unsigned char second = ByteAt(text, at + 1);
  if (second < lead.low || second > lead.high) return 0;
  for (std::size_t k = 2; k < lead.size; ++k) {
    if (!IsContinuation(ByteAt(text, at + k))) return 0;
  }
  return lead.size;
}

Char DecodeAt(std::string_view text, std::size_t at) {
  const unsigned char first = ByteAt(text, at);
  if (first < 0x80) return {first, 1, true};
  const std::size_t size = ValidSequenceAt(text, at);
  if (size == 0) return {first, 1, false};
  char32_t value = first & (0x7F >> size);
  for (std::size_t k = 1; k < size; ++k) value = (value << 6) | (ByteAt(text, at + k) & 0x3F);
  return {value, static_cast<std::uint8_t>(size), true};
}

std::size_t CountChars(std::string_view text) {
  std::size_t count = 0;
  std::size_t at = 0;
  while (at < text.size()) {
    if (text.size() - at >= 8 && AsciiWord(text.data() + at)) {
      at += 8;
      count += 8;
      continue;
    }
    const unsigned char b = ByteAt(text, at);
    at += b < 0x80 ? 1 : DecodeAt(text, at).size;
    ++count;
  }
  return count;
}

std::size_t Advance(std::string_view text, std::size_t from, std::size_t count) {
  std::size_t at = from;
  while (count > 0 && at < text.size()) {
    if (count >= 8 && text.size() - at >= 8 && AsciiWord(text.data() + at)) {
      at += 8;
      count -= 8;
      continue;
    }
    const unsigned char b = ByteAt(text, at);
    at += b < 0x80 ? 1 : DecodeAt(text, at).size;
    --count;
  }
  return at;
}

std::size_t ByteOffsetOf(std::string_view text, std::size_t index) {
  return Advance(text, 0, index);
}

bool IsAscii(std::string_view text) {
  std::size_t at = 0;
  for (; text.size() - at >= 8; at += 8) {
    if (!AsciiWord(text.data() + at)) return false;
  }
  for (; at < text.size(); ++at) {
    if (ByteAt(text, at) >= 0x80) return false;
  }
  return true;
}

std::vector<std::string_view> SplitChars(std::string_view text) {
  std::vector<std::string_view> chars;
  chars.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t size = DecodeAt(text, at).size;
    chars.push_back(text.substr(at, size));
    at += size;
  }
  return chars;
}

void AppendCodePoint(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    if (c >= 0xD800 && c <= 0xDFFF) return;
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c <= 0x10FFFF) {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

}  // namespace tarnwick::utf8
