#include "placeholders/name_cipher_bytes.h"

#include <optional>

#include "base/code_page.h"
#include "base/utf8.h"

namespace tarnwick {
namespace {

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
  for (auto it = utf8::Chars(text).begin(); it != utf8::Chars(text).end(); ++it) {
    const utf8::Char& c = *it;
    const std::optional<unsigned char> byte = c.valid ? CipherByteOf(c.code_point) : std::nullopt;
    // A byte of the code page, else the UTF-8 bytes or the invalid byte as they are.
    if (byte) {
      bytes += static_cast<char>(*byte);
    } else {
      bytes.append(it.bytes());
    }
  }
  return bytes;
}

std::string CipherBytesToName(std::string_view bytes) {
  std::string text;
  for (std::size_t start = 0; start < bytes.size(); ++start) {
    // A complete multi-byte sequence of a character the code page lacks.
    const std::size_t size = utf8::ValidSequenceAt(bytes, start);
    if (size > 1 && !CipherByteOf(utf8::DecodeAt(bytes, start).code_point)) {
      text.append(bytes.substr(start, size));
      start += size - 1;
      continue;
    }
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
