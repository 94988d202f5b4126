// The text-level CharToOem and OemToChar.
#include "base/code_page.h"
#include "base/utf8.h"

namespace tarnwick {
namespace {

// Each character's byte in `encode`, read as the character of that byte in
// `decode`. A character that `encode` lacks, or an invalid byte, stays.
template <typename Keep>
std::string Recode(std::string_view text, const SingleByteCodePage& encode,
                   const SingleByteCodePage& decode, Keep keep) {
  std::string out;
  out.reserve(text.size());
  for (auto it = utf8::Chars(text).begin(); it != utf8::Chars(text).end(); ++it) {
    const utf8::Char& c = *it;
    const std::optional<unsigned char> byte =
        c.valid && !keep(c.code_point) ? encode.ByteOf(c.code_point) : std::nullopt;
    if (byte) {
      out += decode.TextOf(*byte);
    } else {
      out.append(it.bytes());
    }
  }
  return out;
}

}  // namespace

std::string AnsiToOem(std::string_view text) {
  const SingleByteCodePage& ansi = SingleByteCodePage::Windows1252();
  // A character outside the ANSI code page never reaches the conversion: it
  // stays as it is, even where the OEM code page has it.
  return Recode(text, SingleByteCodePage::Oem850(), ansi,
                [&](char32_t c) { return !ansi.ByteOf(c).has_value(); });
}

std::string OemToAnsi(std::string_view text) {
  return Recode(text, SingleByteCodePage::Windows1252(), SingleByteCodePage::Oem850(),
                [](char32_t) { return false; });
}

}  // namespace tarnwick
