#include "placeholders/name_cipher_bytes.h"

#include <unicode/utf8.h>

#include <array>
#include <unordered_map>

#include "placeholders/text_ops_chars.h"

namespace tarnwick {
namespace {

// Windows-1252 in both directions. The five bytes the code page leaves
// undefined have no character here, so their C1 control characters travel as
// UTF-8 and a raw byte of that value stays a raw byte.
class Windows1252 {
 public:
  Windows1252() {
    for (int b = 0; b < 256; ++b) {
      if (IsUndefined(b)) continue;
      const std::string utf8 =
          text_ops_detail::FromCodePage(std::string(1, static_cast<char>(b)), "windows-1252");
      int32_t i = 0;
      UChar32 c = -1;
      U8_NEXT(utf8.data(), i, static_cast<int32_t>(utf8.size()), c);
      if (c < 0) continue;
      to_utf8_[b] = utf8;
      from_code_point_[c] = static_cast<char>(b);
    }
  }

  static const Windows1252& Get() {
    static const Windows1252 table;
    return table;
  }

  // The byte of a code point, or nothing if the code page lacks it.
  const char* ByteOf(UChar32 c) const {
    const auto it = from_code_point_.find(c);
    return it == from_code_point_.end() ? nullptr : &it->second;
  }
  bool Holds(UChar32 c) const { return from_code_point_.count(c) != 0; }
  // The UTF-8 text of a byte; empty if the byte is undefined.
  const std::string& TextOf(unsigned char b) const { return to_utf8_[b]; }

 private:
  static bool IsUndefined(int b) {
    return b == 0x81 || b == 0x8d || b == 0x8f || b == 0x90 || b == 0x9d;
  }

  std::array<std::string, 256> to_utf8_;
  std::unordered_map<UChar32, char> from_code_point_;
};

}  // namespace

std::string NameToCipherBytes(std::string_view text) {
  const Windows1252& code_page = Windows1252::Get();
  std::string bytes;
  const auto length = static_cast<int32_t>(text.size());
  for (int32_t i = 0; i < length;) {
    const int32_t start = i;
    UChar32 c = -1;
    U8_NEXT(text.data(), i, length, c);
    if (c < 0) {
      // Not UTF-8: the byte itself.
      i = start + 1;
      bytes += text[start];
      continue;
    }
    const char* byte = code_page.ByteOf(c);
    if (byte != nullptr) {
      bytes += *byte;
    } else {
      bytes.append(text.substr(start, i - start));
    }
  }
  return bytes;
}

std::string CipherBytesToName(std::string_view bytes) {
  const Windows1252& code_page = Windows1252::Get();
  std::string text;
  const auto length = static_cast<int32_t>(bytes.size());
  for (int32_t i = 0; i < length;) {
    const int32_t start = i;
    UChar32 c = -1;
    U8_NEXT(bytes.data(), i, length, c);
    if (c >= 0 && i - start > 1 && !code_page.Holds(c)) {
      text.append(bytes.substr(start, i - start));
      continue;
    }
    i = start + 1;
    const auto b = static_cast<unsigned char>(bytes[start]);
    const std::string& character = code_page.TextOf(b);
    if (character.empty()) {
      text += bytes[start];
    } else {
      text += character;
    }
  }
  return text;
}

}  // namespace tarnwick
