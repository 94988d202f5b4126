// {{convertANSI-ASCII}} and {{convertASCII-ANSI}}.
#include "placeholders/text_ops.h"
#include "placeholders/text_ops_chars.h"

namespace tarnwick {
namespace {

using text_ops_detail::SingleByteCodePage;

// One character: its byte in `encode`, read as a character of `decode`. A
// character that `encode` lacks passes unchanged.
std::string Recode(const std::string& c, const SingleByteCodePage& encode,
                   const SingleByteCodePage& decode) {
  const std::optional<char32_t> code_point = text_ops_detail::CodePointOf(c);
  if (!code_point) return c;
  const std::optional<unsigned char> byte = encode.ByteOf(*code_point);
  if (!byte) return c;
  const std::string& decoded = decode.TextOf(*byte);
  return decoded.empty() ? c : decoded;
}

}  // namespace

// CharToOem on the ANSI text, read back as ANSI: a character's OEM byte shown
// as the ANSI character of that byte ("ö" -> "”"). A character outside either
// code page is kept.
std::string ConvertAnsiToOem(std::string_view text) {
  const SingleByteCodePage& ansi = SingleByteCodePage::Windows1252();
  std::string out;
  for (const std::string& c : text_ops_detail::SplitCharacters(text)) {
    const std::optional<char32_t> code_point = text_ops_detail::CodePointOf(c);
    const bool in_ansi = code_point && ansi.ByteOf(*code_point);
    out += in_ansi ? Recode(c, SingleByteCodePage::Oem850(), ansi) : c;
  }
  return out;
}

// OemToChar on the ANSI bytes: each ANSI byte read as an OEM character.
std::string ConvertOemToAnsi(std::string_view text) {
  std::string out;
  for (const std::string& c : text_ops_detail::SplitCharacters(text)) {
    out += Recode(c, SingleByteCodePage::Windows1252(), SingleByteCodePage::Oem850());
  }
  return out;
}

}  // namespace tarnwick
