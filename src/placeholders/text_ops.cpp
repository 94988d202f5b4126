#include "placeholders/text_ops.h"

#include <algorithm>
#include <vector>

#include "placeholders/text_ops_chars.h"

namespace tarnwick {
namespace {

using text_ops_detail::Join;
using text_ops_detail::LowerOf;
using text_ops_detail::SplitCharacters;
using text_ops_detail::UpperOf;

bool IsAsciiDigit(char c) { return c >= '0' && c <= '9'; }
bool IsAsciiLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

// A character has case when its upper and lower forms differ.
bool HasCase(const std::string& c) { return UpperOf(c) != LowerOf(c); }

template <typename Keep>
std::string KeepBytes(std::string_view text, Keep keep) {
  std::string out;
  for (char c : text) {
    if (keep(c)) out += c;
  }
  return out;
}

std::string ChangeFirst(std::string_view text, bool upper) {
  std::vector<std::string> chars = SplitCharacters(text);
  if (chars.empty()) return {};
  chars[0] = upper ? UpperOf(chars[0]) : LowerOf(chars[0]);
  return Join(chars);
}

}  // namespace

std::string MakeZeroMask(std::string_view text) {
  return std::string(SplitCharacters(text).size(), '0');
}

std::string DynamicZeroMask(std::size_t selected_count) {
  return MakeZeroMask(std::to_string(selected_count));
}

std::string FirstCharUpper(std::string_view text) { return ChangeFirst(text, true); }
std::string FirstCharLower(std::string_view text) { return ChangeFirst(text, false); }

std::string SwapCasing(std::string_view text) {
  std::string out;
  for (const std::string& c : SplitCharacters(text)) {
    const std::string lower = LowerOf(c);
    out += c == lower ? UpperOf(c) : lower;
  }
  return out;
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
  for (std::string c : SplitCharacters(text)) {
    if (to_upper) c = UpperOf(c);
    if (!text_ops_detail::ContainsIgnoringCase(result, c)) result += c;
    if (yield) yield();
  }
  return result;
}

std::string ConvertUmlauts(std::string_view text) {
  static constexpr std::pair<std::string_view, std::string_view> kUmlauts[] = {
      {"ä", "ae"}, {"ö", "oe"}, {"ü", "ue"}, {"ß", "ss"}, {"Ä", "Ae"}, {"Ö", "Oe"}, {"Ü", "Ue"}};
  std::string out(text);
  for (const auto& [from, to] : kUmlauts) {
    std::string next;
    std::size_t pos = 0;
    for (std::size_t hit; (hit = out.find(from, pos)) != std::string::npos;
         pos = hit + from.size()) {
      next.append(out, pos, hit - pos);
      next += to;
    }
    next.append(out, pos);
    out = std::move(next);
  }
  return out;
}

std::string ReverseText(std::string_view text) {
  std::vector<std::string> chars = SplitCharacters(text);
  std::reverse(chars.begin(), chars.end());
  return Join(chars);
}

std::string ProperCase(std::string_view text) {
  std::string out;
  bool in_word = false;
  for (const std::string& c : SplitCharacters(text)) {
    const bool letter = HasCase(c);
    out += letter ? (in_word ? LowerOf(c) : UpperOf(c)) : c;
    in_word = letter || IsAsciiDigit(c[0]) || c == "'";
  }
  return out;
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
  std::string out;
  bool upper = false;
  for (const std::string& c : SplitCharacters(text)) {
    if (!HasCase(c)) {
      out += c;
      continue;
    }
    out += upper ? UpperOf(c) : LowerOf(c);
    upper = !upper;
  }
  return out;
}

std::string FirstNumber(std::string_view text, std::size_t start) {
  const std::vector<std::string> chars = SplitCharacters(text);
  std::string digits;
  for (std::size_t i = start == 0 ? 0 : start - 1; i < chars.size(); ++i) {
    if (IsAsciiDigit(chars[i][0])) {
      digits += chars[i];
    } else if (!digits.empty()) {
      break;
    }
  }
  return digits;
}

}  // namespace tarnwick
