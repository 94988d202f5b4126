#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// Token matching in the running text. Tokens and their heads are ASCII, so
// their case-insensitive search folds ASCII letters only and keeps byte
// positions; an argument a user typed may hold any character and is matched
// with the text compare of base/text.h (simple case folding, one character
// for one).

// ASCII letters in lower case, every other byte as it is.
std::string AsciiLower(std::string_view text);

// Every occurrence (or the first `count`) of `find`, in any case, replaced
// with `with`. An empty `find` changes nothing.
void ReplaceToken(std::string& text, std::string_view find, std::string_view with, int count = -1);

// `text` without the occurrences of `find`.
std::string RemoveToken(std::string_view text, std::string_view find, int count = -1);

// The extension step of the engine: the text after the last point of the
// last path element, with a point in front and trimmed of blanks; the empty
// text when that is one character long or when there is no point.
std::string ExtensionOf(std::string_view text);

}  // namespace tarnwick

namespace tarnwick {

// Byte position of the first occurrence of `find` at or after `from`, in any
// case, or npos; `length` gets the bytes it covers in `text`.
std::size_t FindIgnoringCase(std::string_view text, std::string_view find, std::size_t from,
                             std::size_t* length = nullptr);

}  // namespace tarnwick
