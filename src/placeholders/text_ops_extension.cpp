// The text operations that work on the base of a name and keep its extension.
#include <algorithm>

#include "base/text.h"
#include "placeholders/number_words.h"
#include "placeholders/text_ops.h"

namespace tarnwick {
namespace {

// The first `count` characters; a negative count gives the empty text.
std::string LeftChars(std::string_view text, std::int64_t count) {
  return vb::Left(text, std::max<std::int64_t>(count, 0));
}

// Scratch without its last Len(ext) characters.
std::string BaseOf(std::string_view scratch, std::string_view ext) {
  return LeftChars(scratch, vb::Len(scratch) - vb::Len(ext));
}

std::string WithoutPoints(std::string_view text) {
  std::string out;
  for (char c : text) {
    if (c != '.') out += c;
  }
  return out;
}

}  // namespace

std::string TrimRightKeepingExtension(std::string_view scratch, std::string_view ext) {
  // Kept: without an extension the trailing blanks stay.
  if (ext.empty()) return std::string(scratch);
  // Kept: leading blanks shorten the count and so cut into the base.
  const std::int64_t n = vb::Len(vb::Trim(scratch)) - vb::Len(ext);
  return vb::RTrim(LeftChars(scratch, n)) + std::string(ext);
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
  const std::string spoken = language == NumberLanguage::kEnglish ? vb::Trim(*words) : *words;
  // The number is digits only, so the case-insensitive replacement matches
  // bytes.
  return vb::Replace(scratch, number, spoken, 1, -1, vb::Compare::kText);
}

}  // namespace tarnwick
