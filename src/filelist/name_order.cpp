#include "filelist/name_order.h"

#include "base/text.h"

namespace tarnwick {
namespace {

char FoldAscii(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

int CompareText(std::string_view a, std::string_view b) {
  // Plain ASCII runs are compared here; the rest goes to the full folding.
  const std::size_t common = a.size() < b.size() ? a.size() : b.size();
  for (std::size_t i = 0; i < common; ++i) {
    const unsigned char x = static_cast<unsigned char>(a[i]);
    const unsigned char y = static_cast<unsigned char>(b[i]);
    if (x >= 0x80 || y >= 0x80) return vb::StrComp(a.substr(i), b.substr(i), vb::Compare::kText);
    const char fx = FoldAscii(static_cast<char>(x));
    const char fy = FoldAscii(static_cast<char>(y));
    if (fx != fy) return fx < fy ? -1 : 1;
  }
  if (a.size() == b.size()) return 0;
  return a.size() < b.size() ? -1 : 1;
}

int CompareNames(std::string_view a, std::string_view b) {
  const int text = CompareText(a, b);
  if (text != 0) return text;
  return a.compare(b);
}

}  // namespace tarnwick
