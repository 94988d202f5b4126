#pragma once

#include <optional>
#include <string>

namespace tarnwick::posix {

// The record Samba keeps in the extended attribute `user.DOSATTRIB`:
//   - a hexadecimal text "0x20" with its NUL, the whole record in old
//     versions (and still read when nothing follows it);
//   - in later versions a binary record after that text: at the next even
//     offset a 16-bit version (little-endian) and the same number again as the
//     union's level, then at the next offset divisible by four the record of
//     that version. The attribute word is its first 32-bit field in version
//     1, its second in versions 2 to 5 (after a field of flags; in versions 3
//     to 5 bit 1 of those flags says whether the word is valid).
// Writing puts a fresh text in front, keeps version, level and the rest of
// the versioned record, and moves them to their alignments again.

// The attribute word of a record, if it holds one.
std::optional<int> ReadDosAttributes(const std::string& record);

// The record with its attribute word replaced and everything else kept; a
// record that is empty or not understood is replaced by the plain text form.
std::string WriteDosAttributes(const std::string& record, int attributes);

}  // namespace tarnwick::posix
