#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwick {

// How a name or value is written in the options file.
//
// A text is written as it stands ("plain") when it reads back unchanged that
// way: no control character (below U+0020, or DEL), no blank at either end,
// well-formed UTF-8, and not starting with a double quote. A key must also not
// contain "=" nor start with "[", ";" or "#"; a section name must not contain
// "]". Everything else is written in double quotes with backslash escapes:
// \\ \" \n \r \t, and \xHH (two hex digits) for any other control character
// and for each byte that is not valid UTF-8. Other characters, non-ASCII ones
// included, stand as they are inside the quotes.
//
// Reading is forgiving so that hand-edited files mean what they say: a plain
// text is taken literally (backslashes included); a text in quotes whose
// closing quote ends it is decoded, keeping a backslash that starts no known
// escape; a text with an unbalanced quote is taken literally.
enum class IniTextRole { kValue, kKey, kSection };

bool IsPlainIniText(std::string_view text, IniTextRole role);
std::string EncodeIniText(std::string_view text, IniTextRole role);

// Decodes the quoted text that starts at quoted[0] == '"'. Returns the number
// of bytes up to and including the closing quote, or 0 when there is none.
std::size_t DecodeQuotedIniText(std::string_view quoted, std::string* decoded);

}  // namespace tarnwick
