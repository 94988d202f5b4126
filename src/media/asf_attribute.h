#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick {

// The attribute types of Windows Media files.
enum AsfAttributeType : std::uint16_t {
  kAsfDword = 0,
  kAsfString = 1,
  kAsfBinary = 2,
  kAsfBool = 3,
  kAsfQword = 4,
  kAsfWord = 5,
  kAsfGuid = 6,
};

// One attribute: its name, its type, and its value as text.
struct AsfAttribute {
  std::string name;
  std::uint16_t type = 0;
  std::string value;
};

// The value text of raw attribute bytes of `type`:
//   0  32-bit integer from the first 4 bytes (low byte first)
//   1  the bytes as UTF-16 (low byte first), cut at the first NUL
//   2  the empty text
//   3  "True" when any byte given is not 0, else "False"
//   4  the 64-bit value divided by 10000, as a number of up to four decimals
//   5  16-bit integer from the first 2 bytes
//   6  the GUID's text
// Missing bytes count as 0. A type above 6 gives the empty text.
std::string AsfValueText(std::uint16_t type, std::string_view bytes);

// UTF-16 text (low byte first) as UTF-8, cut at the first NUL; a lone
// surrogate becomes U+FFFD.
std::string Utf16LeText(std::string_view bytes);

// Little-endian number of `size` bytes at `at`; missing bytes count as 0.
std::uint64_t LittleEndianAt(std::string_view bytes, std::size_t at, int size);

}  // namespace tarnwick
