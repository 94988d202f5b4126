#pragma once

#include <string>
#include <string_view>

#include "placeholders/skipjack.h"

namespace tarnwick {

// The name cipher of {{EncryptFilename[key]}} and {{DecryptFilename[key]}}:
// Skipjack over blocks of six characters, written as upper-case hexadecimal
// text, 16 digits per block.
//
// Packing. Each character of the name becomes its byte in the system's
// single-byte code page (Windows-1252). Six bytes fill words 1 to 3 of a
// block, the fourth word is zero; the last block is filled up with blanks.
//
// Characters the code page lacks are not lost: such a character is written
// as its UTF-8 bytes, which then count as characters of the packing. A reader
// tells the two apart when it turns bytes back into text: a complete UTF-8
// sequence of a character that Windows-1252 cannot hold is read as that
// character, every other byte as its Windows-1252 character. A byte that
// Windows-1252 leaves undefined (81, 8D, 8F, 90, 9D) and a byte that was not
// valid UTF-8 in the name are written as themselves; on the way back an
// undefined byte stays a raw byte, any other byte becomes its code page
// character (so a Latin-1 name comes back in UTF-8).

// The ten key bytes of a typed key: characters 1-2, 3-4, ... 19-20 read as
// hexadecimal pairs. A pair that is not hexadecimal counts as 0, a lone last
// digit counts as its value, and a short key leaves the rest at 0.
SkipjackKey NameCipherKey(std::string_view key);

// The cipher text of a name: 16 digits for each started six characters; the
// empty text for an empty name.
std::string EncryptName(std::string_view text, std::string_view key);

// The name back from its cipher text, trimmed of blanks at both ends. The text
// is read in blocks of 16 characters and a shorter rest is dropped. A block
// that is not 16 hexadecimal digits ends the reading: the result is what the
// blocks before it gave (possibly empty). A wrong key gives a garbled name,
// never an error; each block gives six characters, the fourth word is not
// read.
std::string DecryptName(std::string_view hex, std::string_view key);

}  // namespace tarnwick
