#include "placeholders/name_cipher_bytes.h"

#include <unicode/utf8.h>

#include "placeholders/text_ops_chars.h"

namespace tarnwick {
namespace {

using text_ops_detail::SingleByteCodePage;

// The five bytes Windows-1252 leaves undefined. They have no character here,
// so their C1 control characters travel as UTF-8 and a raw byte of that value
// stays a raw byte.
bool IsUndefined(unsigned char b) {
  return b == 0x81 || b == 0x8d || b == 0x8f || b == 0x90 || b == 0x9d;
}

std::optional<unsigned char> CipherByteOf(char32_t code_point) {
  const std::optional<unsigned char> byte = SingleByteCodePage::Windows1252().ByteOf(code_point);
  if (!byte || IsUndefined(*byte)) return std::nullopt;
  return byte;
}

}  // namespace

std::string NameToCipherBytes(std::string_view text) {
  std::string bytes;
  for (const std::string& c : text_ops_detail::SplitCharacters(text)) {
    const std::optional<char32_t> code_point = text_ops_detail::CodePointOf(c);
    const std::optional<unsigned char> byte = code_point ? CipherByteOf(*code_point) : std::nullopt;
    // A byte of the code page, else the UTF-8 bytes or the invalid byte as they are.
    if (byte) {
      bytes += static_cast<char>(*byte);
    } else {
      bytes += c;
    }
  }
  return bytes;
}

std::string CipherBytesToName(std::string_view bytes) {
  std::string text;
  const auto length = static_cast<int32_t>(bytes.size());
  for (int32_t i = 0; i < length;) {
    const int32_t start = i;
    UChar32 c = -1;
    U8_NEXT(bytes.data(), i, length, c);
    // A complete multi-byte sequence of a character the code page lacks.
    if (c >= 0 && i - start > 1 && !CipherByteOf(static_cast<char32_t>(c))) {
      text.append(bytes.substr(start, i - start));
      continue;
    }
    i = start + 1;
    const auto b = static_cast<unsigned char>(bytes[start]);
    if (IsUndefined(b)) {
      text += bytes[start];
    } else {
      text += SingleByteCodePage::Windows1252().TextOf(b);
    }
  }
  return text;
}

}  // namespace tarnwick
