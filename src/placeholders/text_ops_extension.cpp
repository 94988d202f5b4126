// The text operations that work on the base of a name and keep its extension.
#include <algorithm>
#include <vector>

#include "placeholders/number_words.h"
#include "placeholders/text_ops.h"
#include "placeholders/text_ops_chars.h"

namespace tarnwick {
namespace {

using text_ops_detail::Join;
using text_ops_detail::SplitCharacters;

// The first `count` characters; a negative count gives the empty text.
std::string LeftChars(const std::vector<std::string>& chars, std::ptrdiff_t count) {
  if (count <= 0) return {};
  const auto end = chars.begin() + std::min<std::ptrdiff_t>(count, chars.size());
  return Join(std::vector<std::string>(chars.begin(), end));
}

std::ptrdiff_t LengthOf(std::string_view text) {
  return static_cast<std::ptrdiff_t>(SplitCharacters(text).size());
}

// Scratch without its last Len(ext) characters.
std::string BaseOf(std::string_view scratch, std::string_view ext) {
  const std::vector<std::string> chars = SplitCharacters(scratch);
  return LeftChars(chars, static_cast<std::ptrdiff_t>(chars.size()) - LengthOf(ext));
}

std::string WithoutPoints(std::string_view text) {
  std::string out;
  for (char c : text) {
    if (c != '.') out += c;
  }
  return out;
}

std::string ReplaceAll(std::string_view text, std::string_view find, std::string_view with) {
  std::string out;
  std::size_t pos = 0;
  for (std::size_t hit; (hit = text.find(find, pos)) != std::string_view::npos;
       pos = hit + find.size()) {
    out.append(text.substr(pos, hit - pos));
    out.append(with);
  }
  out.append(text.substr(pos));
  return out;
}

}  // namespace

std::string TrimRightKeepingExtension(std::string_view scratch, std::string_view ext) {
  // Kept: without an extension the trailing blanks stay.
  if (ext.empty()) return std::string(scratch);
  // Kept: leading blanks shorten the count and so cut into the base.
  const std::ptrdiff_t n = LengthOf(text_ops_detail::TrimBlanks(scratch)) - LengthOf(ext);
  return text_ops_detail::RTrimBlanks(LeftChars(SplitCharacters(scratch), n)) + std::string(ext);
}

std::string RemoveDotsKeepingExtension(std::string_view scratch, std::string_view ext) {
  if (ext.empty()) return WithoutPoints(scratch);
  return WithoutPoints(BaseOf(scratch, ext)) + std::string(ext);
}

std::string ReverseKeepingExtension(std::string_view scratch, std::string_view ext) {
  if (ext.empty()) return ReverseText(scratch);
  return ReverseText(BaseOf(scratch, ext)) + std::string(ext);
}

std::optional<std::string> ReplaceFirstNumberWithWords(std::string_view scratch,
                                                       std::string_view ext,
                                                       NumberLanguage language) {
  const std::string number = FirstNumber(BaseOf(scratch, ext));
  if (number.empty()) return std::string(scratch);
  const std::optional<std::string> words = language == NumberLanguage::kGerman
                                               ? NumberToGermanWords(number)
                                               : NumberToEnglishWords(number);
  if (!words) return std::nullopt;
  const std::string spoken =
      language == NumberLanguage::kEnglish ? text_ops_detail::TrimBlanks(*words) : *words;
  return ReplaceAll(scratch, number, spoken);
}

}  // namespace tarnwick
