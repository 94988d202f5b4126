#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// A name as one line of a text export can hold it: a control character
// (below U+0020, and DEL) and a byte that starts no well-formed UTF-8
// sequence are written as "\xNN" with the byte's value in upper-case hex, so
// a line break in a file name cannot split a row and nothing is lost from
// sight. Everything else, umlauts and all other scripts included, stays as it
// is (the text is UTF-8).
std::string EscapedLineText(std::string_view text);

// A value as an XML 1.0 document in UTF-8 can hold it. XML cannot hold
// control characters other than tab, line feed and carriage return, the
// non-characters U+FFFE and U+FFFF, or bytes that are no UTF-8.
// `convert` on (`setParseUmlauts`): these are written as EscapedLineText
// writes them ("\x01", "\xFF"; the non-characters as U+FFFD), and tab, line
// feed and carriage return too, so every value is one visible line.
// Off: each of them becomes U+FFFD, tab and line ends stay (the writer puts
// them in as character references).
std::string XmlValueText(std::string_view text, bool convert);

}  // namespace tarnwick
