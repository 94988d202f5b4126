// UCase, LCase, StrComp and EqualsText.
#include <unicode/uchar.h>

#include "base/text.h"
#include "base/text_find.h"
#include "base/utf8.h"

namespace tarnwick {
namespace {

using vb::Compare;
using vb::text_internal::KeyOf;

template <typename MapAscii, typename MapCodePoint>
std::string MapCase(std::string_view text, MapAscii map_ascii, MapCodePoint map) {
  std::string out;
  out.reserve(text.size());
  for (auto it = utf8::Chars(text).begin(); it != utf8::Chars(text).end(); ++it) {
    const utf8::Char& c = *it;
    if (c.code_point < 0x80 && c.valid) {
      out += map_ascii(static_cast<char>(c.code_point));
    } else if (!c.valid) {
      out.append(it.bytes());
    } else {
      utf8::AppendCodePoint(out, static_cast<char32_t>(map(static_cast<UChar32>(c.code_point))));
    }
  }
  return out;
}

char UpperAscii(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }
char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

int Sign(long long value) { return value < 0 ? -1 : (value > 0 ? 1 : 0); }

int CompareKeys(std::string_view a, std::string_view b, Compare compare) {
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < a.size() && j < b.size()) {
    const utf8::Char ca = utf8::DecodeAt(a, i);
    const utf8::Char cb = utf8::DecodeAt(b, j);
    const char32_t ka = KeyOf(ca, compare);
    const char32_t kb = KeyOf(cb, compare);
    if (ka != kb) return ka < kb ? -1 : 1;
    i += ca.size;
    j += cb.size;
  }
  return Sign(static_cast<long long>(a.size() - i) - static_cast<long long>(b.size() - j));
}

}  // namespace

namespace vb {

std::string UCase(std::string_view text) { return MapCase(text, UpperAscii, u_toupper); }
std::string LCase(std::string_view text) { return MapCase(text, LowerAscii, u_tolower); }

int StrComp(std::string_view a, std::string_view b, Compare compare) {
  return CompareKeys(a, b, compare);
}

}  // namespace vb

bool EqualsText(std::string_view a, std::string_view b) {
  if (utf8::IsAscii(a) && utf8::IsAscii(b)) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
      if (LowerAscii(a[i]) != LowerAscii(b[i])) return false;
    }
    return true;
  }
  return CompareKeys(a, b, Compare::kText) == 0;
}

}  // namespace tarnwick
