#include "placeholders/text_ops.h"

#include "base/text.h"
#include "base/utf8.h"

namespace tarnwick {
namespace {

using vb::LCase;
using vb::UCase;

bool IsAsciiDigit(char c) { return c >= '0' && c <= '9'; }
bool IsAsciiLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

// A character has case when its upper and lower forms differ.
bool HasCase(std::string_view c) { return UCase(c) != LCase(c); }

// Each character of the text through `map`, in order.
template <typename Map>
std::string MapChars(std::string_view text, Map map) {
  std::string out;
  out.reserve(text.size());
  for (auto it = utf8::Chars(text).begin(); it != utf8::Chars(text).end(); ++it) {
    out += map(it.bytes());
  }
  return out;
}

template <typename Keep>
std::string KeepBytes(std::string_view text, Keep keep) {
  std::string out;
  for (char c : text) {
    if (keep(c)) out += c;
  }
  return out;
}

std::string ChangeFirst(std::string_view text, bool upper) {
  const std::string first = vb::Left(text, 1);
  return (upper ? UCase(first) : LCase(first)) + std::string(text.substr(first.size()));
}

}  // namespace

std::string MakeZeroMask(std::string_view text) {
  return std::string(static_cast<std::size_t>(vb::Len(text)), '0');
}

std::string DynamicZeroMask(std::size_t selected_count) {
  return MakeZeroMask(std::to_string(selected_count));
}

std::string FirstCharUpper(std::string_view text) { return ChangeFirst(text, true); }
std::string FirstCharLower(std::string_view text) { return ChangeFirst(text, false); }

std::string SwapCasing(std::string_view text) {
  return MapChars(text, [](std::string_view c) {
    std::string lower = LCase(c);
    return c == lower ? UCase(c) : lower;
  });
}

// Digits and ASCII letters are single bytes that never occur inside a
// multi-byte character, so byte filters are character filters here.
std::string RemoveNumbers(std::string_view text) {
  return KeepBytes(text, [](char c) { return !IsAsciiDigit(c); });
}

std::string RemoveChars(std::string_view text) {
  return KeepBytes(text, [](char c) { return !IsAsciiLetter(c); });
}

std::string RemoveBrackets(std::string_view text) {
  constexpr std::string_view kBrackets = "()[]{}";
  return KeepBytes(text, [&](char c) { return kBrackets.find(c) == std::string_view::npos; });
}

std::string RemoveRepeatedChars(std::string_view text, bool to_upper,
                                const std::function<void()>& yield) {
  std::string result;
  for (auto it = utf8::Chars(text).begin(); it != utf8::Chars(text).end(); ++it) {
    const std::string c = to_upper ? UCase(it.bytes()) : std::string(it.bytes());
    if (!ContainsText(result, c)) result += c;
    if (yield) yield();
  }
  return result;
}

std::string ConvertUmlauts(std::string_view text) {
  static constexpr std::pair<std::string_view, std::string_view> kUmlauts[] = {
      {"ä", "ae"}, {"ö", "oe"}, {"ü", "ue"}, {"ß", "ss"}, {"Ä", "Ae"}, {"Ö", "Oe"}, {"Ü", "Ue"}};
  std::string out(text);
  for (const auto& [from, to] : kUmlauts) out = vb::Replace(out, from, to);
  return out;
}

std::string ReverseText(std::string_view text) { return vb::StrReverse(text); }

std::string ProperCase(std::string_view text) {
  bool in_word = false;
  return MapChars(text, [&](std::string_view c) {
    const bool letter = HasCase(c);
    const std::string out = letter ? (in_word ? LCase(c) : UCase(c)) : std::string(c);
    in_word = letter || IsAsciiDigit(c[0]) || c == "'";
    return out;
  });
}

std::string RemoveDoubleBlanks(std::string_view text) {
  std::string out;
  for (char c : text) {
    if (c == ' ' && !out.empty() && out.back() == ' ') continue;
    out += c;
  }
  return out;
}

std::string CamelCase(std::string_view text) {
  bool upper = false;
  return MapChars(text, [&](std::string_view c) {
    if (!HasCase(c)) return std::string(c);
    const bool make_upper = upper;
    upper = !upper;
    return make_upper ? UCase(c) : LCase(c);
  });
}

// Digits are single bytes that never occur inside a multi-byte character.
std::string FirstNumber(std::string_view text, std::size_t start) {
  const std::size_t from = utf8::ByteOffsetOf(text, start == 0 ? 0 : start - 1);
  const std::size_t first = text.find_first_of("0123456789", from);
  if (first == std::string_view::npos) return {};
  const std::size_t end = text.find_first_not_of("0123456789", first);
  return std::string(text.substr(first, end == std::string_view::npos ? end : end - first));
}

}  // namespace tarnwick
