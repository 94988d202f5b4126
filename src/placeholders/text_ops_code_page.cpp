// {{convertANSI-ASCII}} and {{convertASCII-ANSI}}.
#include "placeholders/text_ops.h"
#include "placeholders/text_ops_chars.h"

namespace tarnwick {
namespace {

constexpr const char* kAnsi = "windows-1252";
constexpr const char* kOem = "ibm-850";

// One character through `from` bytes and `to` bytes: its byte in the code
// page `from` read as a byte of the code page `to`... both ways the result is
// read back as text. A character without a byte in the first code page, or
// whose byte has no character in the second, passes unchanged.
std::string Convert(std::string_view text, const char* encode_with, const char* decode_with) {
  std::string out;
  for (const std::string& c : text_ops_detail::SplitCharacters(text)) {
    bool lossless = false;
    const std::string byte = text_ops_detail::ToCodePage(c, encode_with, &lossless);
    if (!lossless || byte.size() != 1) {
      out += c;
      continue;
    }
    const std::string converted = text_ops_detail::FromCodePage(byte, decode_with);
    out += converted.empty() ? c : converted;
  }
  return out;
}

}  // namespace

// CharToOem on the ANSI bytes, read back as ANSI: the character's OEM byte
// shown as the ANSI character of that byte ("ö" -> "”").
std::string ConvertAnsiToOem(std::string_view text) {
  std::string out;
  for (const std::string& c : text_ops_detail::SplitCharacters(text)) {
    bool in_ansi = false;
    text_ops_detail::ToCodePage(c, kAnsi, &in_ansi);
    out += in_ansi ? Convert(c, kOem, kAnsi) : c;
  }
  return out;
}

// OemToChar on the ANSI bytes: each ANSI byte read as an OEM character.
std::string ConvertOemToAnsi(std::string_view text) { return Convert(text, kAnsi, kOem); }

}  // namespace tarnwick
