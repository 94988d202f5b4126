#include "base/code_page.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>

#include "base/utf8.h"

namespace tarnwick {
namespace {

// The character of one byte, or nothing when the code page leaves it
// undefined.
std::optional<char32_t> CharOfByte(UConverter* converter, unsigned char byte) {
  const char in = static_cast<char>(byte);
  UChar unit[2];
  UErrorCode status = U_ZERO_ERROR;
  ucnv_resetToUnicode(converter);
  const int32_t units = ucnv_toUChars(converter, unit, 2, &in, 1, &status);
  if (U_FAILURE(status) || units != 1 || unit[0] == 0xFFFD) return std::nullopt;
  return static_cast<char32_t>(unit[0]);
}

}  // namespace

SingleByteCodePage::SingleByteCodePage(const char* name) {
  UErrorCode status = U_ZERO_ERROR;
  UConverter* converter = ucnv_open(name, &status);
  if (U_SUCCESS(status)) {
    ucnv_setToUCallBack(converter, UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  }
  for (int b = 0; b < 256; ++b) {
    const auto byte = static_cast<unsigned char>(b);
    // Below 128 both code pages are ASCII, as on Windows; ICU's table of 850
    // would swap three control characters.
    std::optional<char32_t> c =
        U_SUCCESS(status) && b >= 0x80 ? CharOfByte(converter, byte) : std::nullopt;
    // An undefined byte stands for the character of its own value.
    if (!c || byte_of_.contains(*c)) c = static_cast<char32_t>(b);
    utf8::AppendCodePoint(text_of_[b], *c);
    byte_of_.emplace(*c, byte);
  }
  low_byte_of_.fill(-1);
  for (const auto& [c, byte] : byte_of_) {
    if (c < low_byte_of_.size()) low_byte_of_[c] = byte;
  }
  if (converter != nullptr) ucnv_close(converter);
}

const SingleByteCodePage& SingleByteCodePage::Windows1252() {
  static const SingleByteCodePage code_page("windows-1252");
  return code_page;
}

const SingleByteCodePage& SingleByteCodePage::Oem850() {
  static const SingleByteCodePage code_page("ibm-850");
  return code_page;
}

std::optional<unsigned char> SingleByteCodePage::ByteOf(char32_t code_point) const {
  if (code_point < low_byte_of_.size()) {
    const std::int16_t byte = low_byte_of_[code_point];
    if (byte < 0) return std::nullopt;
    return static_cast<unsigned char>(byte);
  }
  const auto it = byte_of_.find(code_point);
  if (it == byte_of_.end()) return std::nullopt;
  return it->second;
}

std::string SingleByteCodePage::Encode(std::string_view text) const {
  std::string out;
  out.reserve(text.size());
  for (auto it = utf8::Chars(text).begin(); it != utf8::Chars(text).end(); ++it) {
    const utf8::Char& c = *it;
    const std::optional<unsigned char> byte = c.valid ? ByteOf(c.code_point) : std::nullopt;
    if (byte) {
      out += static_cast<char>(*byte);
    } else {
      out.append(it.bytes());  // outside the code page, or an invalid byte
    }
  }
  return out;
}

std::string SingleByteCodePage::Decode(std::string_view bytes) const {
  std::string out;
  out.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t size = utf8::ValidSequenceAt(bytes, at);
    if (size > 1 && !ByteOf(utf8::DecodeAt(bytes, at).code_point)) {
      out.append(bytes.substr(at, size));
      at += size;
      continue;
    }
    out += TextOf(static_cast<unsigned char>(bytes[at]));
    ++at;
  }
  return out;
}

}  // namespace tarnwick
