#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The character-counted string functions of the program's runtime. Texts are
// UTF-8; every length and position counts characters (see base/utf8.h), and
// positions are 1-based. A byte that is not valid UTF-8 is one character and
// comes through every function unchanged.
//
// A function that "raises" throws VbError 5 "Invalid procedure call or
// argument", as the runtime does for a negative length or a start below 1.
namespace tarnwick::vb {

// kBinary compares the characters as they are; kText compares them after
// simple case folding, one character for one, so "Ä" matches "ä" and the
// lengths of the matched texts stay equal in characters.
enum class Compare { kBinary, kText };

// The number of characters.
std::int64_t Len(std::string_view text);

// The first / last `count` characters; all of them when the text is shorter.
// A negative count raises.
std::string Left(std::string_view text, std::int64_t count);
std::string Right(std::string_view text, std::int64_t count);

// The characters from the 1-based `start` on, `length` of them or all the
// rest. Empty when start lies behind the text. A start below 1 or a negative
// length raises.
std::string Mid(std::string_view text, std::int64_t start);
std::string Mid(std::string_view text, std::int64_t start, std::int64_t length);

// The 1-based position of the first `find` at or after `start`, 0 when there
// is none. An empty text gives 0, a start behind the text gives 0, and an
// empty `find` gives `start`. A start below 1 raises.
std::int64_t InStr(std::int64_t start, std::string_view text, std::string_view find,
                   Compare compare = Compare::kBinary);
std::int64_t InStr(std::string_view text, std::string_view find,
                   Compare compare = Compare::kBinary);

// The 1-based position of the last `find` that ends at or before character
// `start` (-1: the end of the text), 0 when there is none. An empty text
// gives 0, a start behind the text gives 0, and an empty `find` gives the
// start. A start of 0 or below -1 raises.
std::int64_t InStrRev(std::string_view text, std::string_view find, std::int64_t start = -1,
                      Compare compare = Compare::kBinary);

// `text` from character `start` on, with `count` occurrences of `find` (-1:
// all) replaced by `with`, left to right without overlap. As in the runtime
// the result begins at `start`: the characters before it are dropped. An
// empty text or a start behind it gives the empty text; an empty `find` or a
// count of 0 gives the text from `start` unchanged. A start below 1 or a
// count below -1 raises.
std::string Replace(std::string_view text, std::string_view find, std::string_view with,
                    std::int64_t start = 1, std::int64_t count = -1,
                    Compare compare = Compare::kBinary);

// The parts of `text` between the occurrences of `delimiter`, at most `limit`
// of them (-1: all; the last part keeps the rest of the text). An empty text
// gives no parts, an empty delimiter gives the whole text as the one part, a
// limit of 0 gives no parts. A limit below -1 raises.
std::vector<std::string> Split(std::string_view text, std::string_view delimiter = " ",
                               std::int64_t limit = -1, Compare compare = Compare::kBinary);

// The parts with `delimiter` between them.
std::string Join(const std::vector<std::string>& parts, std::string_view delimiter = " ");

// Blanks (character 32) removed at both ends / the start / the end. Tabs and
// other white space stay.
std::string Trim(std::string_view text);
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);

// Each character mapped to its upper / lower case form on its own, so the
// length in characters is kept: "müller" -> "MÜLLER".
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);

// -1, 0 or 1 as `a` sorts before, equal to or after `b`, character by
// character (code point order, after case folding with kText). An invalid
// byte sorts after every code point.
int StrComp(std::string_view a, std::string_view b, Compare compare = Compare::kBinary);

// `count` blanks. A negative count raises.
std::string Space(std::int64_t count);

// The characters in reverse order; invalid bytes move as whole characters.
std::string StrReverse(std::string_view text);

}  // namespace tarnwick::vb

namespace tarnwick {

// True when the texts are equal under text compare: the program's
// case-insensitive comparison of option values and names.
bool EqualsText(std::string_view a, std::string_view b);

// True when `find` stands in `text` / `text` begins with `prefix`, under
// text compare. An empty `find` or `prefix` is always there.
bool ContainsText(std::string_view text, std::string_view find);
bool StartsWithText(std::string_view text, std::string_view prefix);

// A tag value up to, not including, its first NUL character. Without a NUL
// the whole value trimmed of blanks at both ends; a value cut at a NUL is not
// trimmed.
std::string StripAtNull(std::string_view text);

}  // namespace tarnwick
