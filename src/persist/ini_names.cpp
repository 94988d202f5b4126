#include "persist/ini_names.h"

#include <unicode/uchar.h>

#include <cstdint>

#include "persist/ini_utf8.h"

namespace tarnwick {
namespace {

// Units above every code point stand for bytes that are not valid UTF-8.
constexpr char32_t kRawByteBase = 0x110000;

// The folded unit at `pos`; moves `pos` past it.
char32_t NextFolded(std::string_view name, std::size_t& pos) {
  const auto byte = static_cast<unsigned char>(name[pos]);
  if (byte < 0x80) {
    ++pos;
    return byte >= 'A' && byte <= 'Z' ? byte + ('a' - 'A') : byte;
  }
  char32_t code_point;
  const int length = Utf8SequenceAt(name, pos, &code_point);
  if (length == 0) {
    ++pos;
    return kRawByteBase + byte;
  }
  pos += length;
  return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(code_point), U_FOLD_CASE_DEFAULT));
}

}  // namespace

bool IniNamesEqual(std::string_view a, std::string_view b) {
  std::size_t pos_a = 0;
  std::size_t pos_b = 0;
  while (pos_a < a.size() && pos_b < b.size()) {
    if (NextFolded(a, pos_a) != NextFolded(b, pos_b)) return false;
  }
  return pos_a == a.size() && pos_b == b.size();
}

std::size_t IniNameHashOf(std::string_view name) {
  // FNV-1a over the folded units.
  std::uint64_t hash = 14695981039346656037ull;
  std::size_t pos = 0;
  while (pos < name.size()) {
    hash ^= NextFolded(name, pos);
    hash *= 1099511628211ull;
  }
  return static_cast<std::size_t>(hash);
}

}  // namespace tarnwick
