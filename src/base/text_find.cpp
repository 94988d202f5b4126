#include "base/text_find.h"

#include <unicode/uchar.h>

#include "base/vb_error.h"

namespace tarnwick::vb::text_internal {
namespace {

constexpr char32_t kInvalidKeyBase = 0x110000;

char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool IsContinuation(unsigned char b) { return (b & 0xC0) == 0x80; }

bool IsValidUtf8(std::string_view text) {
  for (utf8::Char c : utf8::Chars(text)) {
    if (!c.valid) return false;
  }
  return true;
}

}  // namespace

void RaiseInvalidArgument() {
  throw VbError(vb_error::kInvalidProcedureCall, "Invalid procedure call or argument");
}

char32_t KeyOf(const utf8::Char& c, Compare compare) {
  if (!c.valid) return kInvalidKeyBase + c.code_point;
  if (compare == Compare::kBinary) return c.code_point;
  if (c.code_point < 0x80)
    return static_cast<char32_t>(LowerAscii(static_cast<char>(c.code_point)));
  return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(c.code_point), U_FOLD_CASE_DEFAULT));
}

// Only a continuation byte can lie inside a character: the one that a
// well-formed sequence starting up to three bytes before it covers.
bool IsCharBoundary(std::string_view text, std::size_t at) {
  if (at == 0 || at >= text.size()) return true;
  if (!IsContinuation(static_cast<unsigned char>(text[at]))) return true;
  for (std::size_t back = 1; back <= 3 && back <= at; ++back) {
    if (utf8::ValidSequenceAt(text, at - back) > back) return false;
  }
  return true;
}

Finder::Finder(std::string_view find, Compare compare)
    : find_(find), compare_(compare), find_ascii_(utf8::IsAscii(find)) {
  find_valid_ = find_ascii_ || IsValidUtf8(find);
  if (compare_ == Compare::kBinary) return;
  // Two characters outside ASCII fold to ASCII letters: the Kelvin sign to
  // "k" and the long s to "s". A find without those letters can only match
  // ASCII bytes, which are always whole characters.
  find_bytewise_ = find_ascii_ && find.find_first_of("KkSs") == std::string_view::npos;
  for (utf8::Char c : utf8::Chars(find)) keys_.push_back(KeyOf(c, compare_));
}

Finder::Hit Finder::Next(std::string_view text, std::size_t from) const {
  if (compare_ == Compare::kBinary) return NextBinary(text, from);
  if (find_bytewise_ || (find_ascii_ && utf8::IsAscii(text.substr(from)))) {
    return NextAsciiText(text, from);
  }
  return NextFolded(text, from);
}

// A well-formed find never starts with a continuation byte and ends with a
// whole character, so each byte match is a character match. A find holding
// invalid bytes has its ends checked against the characters of the text.
Finder::Hit Finder::NextBinary(std::string_view text, std::size_t from) const {
  for (std::size_t at = text.find(find_, from); at != std::string_view::npos;
       at = text.find(find_, at + 1)) {
    const std::size_t end = at + find_.size();
    if (find_valid_ || (IsCharBoundary(text, at) && IsCharBoundary(text, end))) return {at, end};
  }
  return {};
}

Finder::Hit Finder::NextAsciiText(std::string_view text, std::size_t from) const {
  const char first = LowerAscii(find_[0]);
  for (std::size_t at = from; at + find_.size() <= text.size(); ++at) {
    if (LowerAscii(text[at]) != first) continue;
    std::size_t k = 1;
    while (k < find_.size() && LowerAscii(text[at + k]) == LowerAscii(find_[k])) ++k;
    if (k == find_.size()) return {at, at + k};
  }
  return {};
}

Finder::Hit Finder::NextFolded(std::string_view text, std::size_t from) const {
  for (std::size_t at = from; at < text.size(); at += utf8::DecodeAt(text, at).size) {
    const std::size_t end = FoldedMatchAt(text, at);
    if (end != std::string_view::npos) return {at, end};
  }
  return {};
}

std::size_t Finder::FoldedMatchAt(std::string_view text, std::size_t at) const {
  for (char32_t key : keys_) {
    if (at >= text.size()) return std::string_view::npos;
    const utf8::Char c = utf8::DecodeAt(text, at);
    if (KeyOf(c, compare_) != key) return std::string_view::npos;
    at += c.size;
  }
  return at;
}

}  // namespace tarnwick::vb::text_internal
