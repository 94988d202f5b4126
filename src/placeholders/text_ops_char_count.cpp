// The letter counter of {{count2char}} and {{count2alphanumeric}}.
#include <vector>

#include "base/text.h"
#include "base/utf8.h"
#include "placeholders/text_ops.h"

namespace tarnwick {
namespace {

constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view kDigitsAndLetters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";

// 1-based position of the character in the alphabet, case-insensitive; 0 when
// it is not in it.
std::size_t PositionIn(std::string_view alphabet, const std::string& c) {
  if (c.size() != 1) return 0;
  char upper = c[0];
  if (upper >= 'a' && upper <= 'z') upper = static_cast<char>(upper - 'a' + 'A');
  const std::size_t at = alphabet.find(upper);
  return at == std::string_view::npos ? 0 : at + 1;
}

CharCountStep Settled(const std::vector<std::string>& chars) {
  std::string text;
  for (const std::string& c : chars) text += c;
  return {text, text};
}

}  // namespace

std::optional<CharCountStep> NextCharCount(std::string_view counter_text, bool alphanumeric,
                                           std::int32_t current_count) {
  if (counter_text == "-1") return CharCountStep{"-1", ""};
  const std::string_view alphabet = alphanumeric ? kDigitsAndLetters : kLetters;
  const std::size_t last = alphabet.size();
  if (current_count < 2) {
    const std::string start = alphanumeric ? "A0" : "A";
    return CharCountStep{start, start};
  }
  const std::string trimmed = vb::Trim(counter_text);
  const std::vector<std::string_view> views = utf8::SplitChars(trimmed);
  std::vector<std::string> chars(views.begin(), views.end());
  // Kept: an empty counter has no character at position 0 and faults.
  if (chars.empty()) return std::nullopt;

  for (std::size_t p = chars.size();; --p) {
    const std::size_t i = PositionIn(alphabet, chars[p - 1]);
    if (i != last) {
      chars[p - 1] = std::string(1, alphabet[i]);
      chars.resize(p);
      return Settled(chars);
    }
    chars[p - 1] = std::string(1, alphabet[0]);
    if (p <= 2) break;
  }

  const std::size_t i = PositionIn(alphabet, chars[0]);
  // Kept: a one-letter counter wraps from "Z" to "A" and never grows.
  if (i != last && chars.size() == 1) return Settled(chars);
  if (i != last) {
    chars[0] = std::string(1, alphabet[i]);
    return Settled(chars);
  }
  chars[0] = alphanumeric ? "10" : std::string(2, alphabet[0]);
  return Settled(chars);
}

}  // namespace tarnwick
