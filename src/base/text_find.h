#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "base/utf8.h"

// Inside the text functions: comparison keys of characters and the search of
// one text in another under either compare mode.
namespace tarnwick::vb::text_internal {

// Throws VbError 5 "Invalid procedure call or argument".
[[noreturn]] void RaiseInvalidArgument();

// What a character is compared by: its code point, folded with kText; an
// invalid byte gets a value beyond every code point, so it matches only the
// same byte and sorts last.
char32_t KeyOf(const utf8::Char& c, Compare compare);

// True when byte `at` starts a character (or is the end of the text).
bool IsCharBoundary(std::string_view text, std::size_t at);

// Searches for one text, prepared once for many searches.
class Finder {
 public:
  struct Hit {
    std::size_t at = std::string_view::npos;  // byte offset, npos when none
    std::size_t end = 0;                      // byte offset behind the match
    bool found() const { return at != std::string_view::npos; }
  };

  // `find` must not be empty.
  Finder(std::string_view find, Compare compare);

  // The first match that starts at or after byte `from`, a character boundary.
  Hit Next(std::string_view text, std::size_t from) const;

 private:
  Hit NextBinary(std::string_view text, std::size_t from) const;
  Hit NextAsciiText(std::string_view text, std::size_t from) const;
  Hit NextFolded(std::string_view text, std::size_t from) const;
  // Byte offset behind a folded match at `at`, or npos.
  std::size_t FoldedMatchAt(std::string_view text, std::size_t at) const;

  std::string_view find_;
  Compare compare_;
  bool find_ascii_ = false;
  bool find_valid_ = true;
  bool find_bytewise_ = false;  // a kText search that may compare bytes
  std::vector<char32_t> keys_;
};

}  // namespace tarnwick::vb::text_internal
