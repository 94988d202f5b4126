#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// Character-level helpers of the text operations. They stand here only until
// the shared character-counted text functions of base are in place; then the
// text operations call those and this file goes.
namespace tarnwick::text_ops_detail {

// The characters of a UTF-8 text, each a code point or one invalid byte.
std::vector<std::string> SplitCharacters(std::string_view text);
std::string Join(const std::vector<std::string>& chars);
// The code point of one character of SplitCharacters; nothing for an invalid byte.
std::optional<char32_t> CodePointOf(std::string_view character);

// ICU's per-character mapping; invalid bytes pass unchanged.
std::string UpperOf(std::string_view text);
std::string LowerOf(std::string_view text);

bool ContainsIgnoringCase(std::string_view text, std::string_view find);
bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix);

// Blanks (character 32) only, like the system's Trim and RTrim.
std::string TrimBlanks(std::string_view text);
std::string RTrimBlanks(std::string_view text);

// A single-byte code page in both directions, read once from ICU.
class SingleByteCodePage {
 public:
  static const SingleByteCodePage& Windows1252();
  static const SingleByteCodePage& Oem850();

  // The byte of a code point, if the code page has it.
  std::optional<unsigned char> ByteOf(char32_t code_point) const;
  // The UTF-8 text of a byte.
  const std::string& TextOf(unsigned char byte) const { return text_of_[byte]; }

 private:
  explicit SingleByteCodePage(const char* name);

  std::array<std::string, 256> text_of_;
  std::unordered_map<char32_t, unsigned char> byte_of_;
};

}  // namespace tarnwick::text_ops_detail
