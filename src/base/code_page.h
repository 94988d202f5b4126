#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tarnwick {

// A single-byte code page in both directions, read once from ICU: the
// system's single-byte code page (Windows-1252) and the OEM code page (850).
// Every one of the 256 bytes has a character: the bytes below 128 are ASCII,
// and a byte the code page leaves undefined stands for the C1 control of the
// same value, as on Windows.
//
// A character the code page lacks is not dropped: it is written as its own
// UTF-8 bytes. A reader tells the two apart like this: a well-formed
// multi-byte UTF-8 sequence is taken as UTF-8 only when its character has no
// byte in the code page; every other byte is a code-page byte. A writer never
// writes a character the code page has as UTF-8, so a sequence of such a
// character is always code-page bytes. The rule fails only for a run of
// code-page characters whose bytes happen to spell the UTF-8 of a character
// outside the code page: Encode gives both texts the same bytes, and the
// reader takes the foreign character. In Windows-1252 that needs a capital
// from "Ä" to "ß" followed by one of "€" to "¿" ("É’" spells U+0252); in 850
// also pairs such as "Ã©". Names rarely hold these pairs.
class SingleByteCodePage {
 public:
  static const SingleByteCodePage& Windows1252();
  static const SingleByteCodePage& Oem850();

  // The byte of a code point, if the code page has it.
  std::optional<unsigned char> ByteOf(char32_t code_point) const;
  // The UTF-8 text of a byte; never empty.
  const std::string& TextOf(unsigned char byte) const { return text_of_[byte]; }

  // UTF-8 text to code-page bytes by the rule above. A byte of the text that
  // is not valid UTF-8 is written as it stands, and so reads back as the
  // code page's character of that byte.
  std::string Encode(std::string_view text) const;
  // Code-page bytes to UTF-8 text by the rule above.
  std::string Decode(std::string_view bytes) const;

 private:
  explicit SingleByteCodePage(const char* name);

  std::array<std::string, 256> text_of_;
  std::unordered_map<char32_t, unsigned char> byte_of_;
  // The same for the code points below 256, the common case; -1 for none.
  std::array<std::int16_t, 256> low_byte_of_;
};

// The text-level conversions of the runtime's CharToOem and OemToChar on a
// machine whose ANSI code page is Windows-1252 and OEM code page 850. Both
// take and give UTF-8 text and keep any character outside Windows-1252.
//
// AnsiToOem: each character's OEM byte, shown as the ANSI character of that
// byte ("ö" -> "”"); a character without an OEM byte stays.
std::string AnsiToOem(std::string_view text);
// OemToAnsi: each character's ANSI byte, read as the OEM character of that
// byte ("”" -> "ö").
std::string OemToAnsi(std::string_view text);

}  // namespace tarnwick
