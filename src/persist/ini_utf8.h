#pragma once

#include <cstddef>
#include <string_view>

namespace tarnwick {

// The well-formed UTF-8 sequence that starts at text[pos]: returns its length
// (1 to 4) and stores its code point, or returns 0 when the byte there starts
// no well-formed sequence (stray continuation byte, overlong form, surrogate,
// beyond U+10FFFF, cut short). `pos` must be inside `text`.
int Utf8SequenceAt(std::string_view text, std::size_t pos, char32_t* code_point);

// True when every byte of `text` belongs to a well-formed UTF-8 sequence.
bool IsValidUtf8(std::string_view text);

}  // namespace tarnwick
