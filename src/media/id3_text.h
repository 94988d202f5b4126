#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// Decodes tag text. Encodings: 0 Latin-1, 1 UTF-16 with byte-order mark,
// 2 UTF-16 big-endian, 3 UTF-8, any other UTF-16 little-endian. Adds the bytes
// it used to `consumed`. With `stop_at_null` a NUL character ends the text
// (its bytes count as used). In the result every CR is dropped and every LF
// becomes CR LF.
std::string BytesToText(std::span<const std::uint8_t> data, int encoding, std::size_t& consumed,
                        bool stop_at_null);

// Encodes a text for a tag: one byte a character, or with `unicode` FE FF and
// each UTF-16 unit high byte first. A `max_length` above 0 and no larger than
// the text's length cuts it. `terminate` adds a NUL (two bytes in unicode).
// A character above 255 without `unicode` raises VbError 6 (overflow).
std::vector<std::uint8_t> TextToBytes(std::string_view text, std::size_t max_length, bool unicode,
                                      bool terminate);

// The length of a text in the units TextToBytes writes: characters, counting
// a character beyond U+FFFF as two.
std::size_t TagTextLength(std::string_view text);

// Removes unsynchronisation in place: of each pair FF 00 the 00 is dropped.
// Returns the number of bytes dropped; the vector shrinks by as many.
std::size_t RemoveUnsynchronisation(std::vector<std::uint8_t>& bytes);

}  // namespace tarnwick
