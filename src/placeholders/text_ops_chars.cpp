#include "placeholders/text_ops_chars.h"

#include <unicode/uchar.h>
#include <unicode/ucnv.h>
#include <unicode/utf8.h>

namespace tarnwick::text_ops_detail {
namespace {

void AppendCodePoint(std::string& out, UChar32 c) {
  char buffer[U8_MAX_LENGTH];
  int32_t length = 0;
  UBool failed = false;
  U8_APPEND(buffer, length, U8_MAX_LENGTH, c, failed);
  if (!failed) out.append(buffer, length);
}

template <typename Map>
std::string MapCodePoints(std::string_view text, Map map) {
  std::string out;
  const auto length = static_cast<int32_t>(text.size());
  for (int32_t i = 0; i < length;) {
    const int32_t start = i;
    UChar32 c = -1;
    U8_NEXT(text.data(), i, length, c);
    if (c < 0) {
      i = start + 1;
      out += text[start];
      continue;
    }
    AppendCodePoint(out, map(c));
  }
  return out;
}

}  // namespace

std::vector<std::string> SplitCharacters(std::string_view text) {
  std::vector<std::string> chars;
  const auto length = static_cast<int32_t>(text.size());
  for (int32_t i = 0; i < length;) {
    const int32_t start = i;
    UChar32 c = -1;
    U8_NEXT(text.data(), i, length, c);
    if (c < 0) i = start + 1;
    chars.emplace_back(text.substr(start, i - start));
  }
  return chars;
}

std::string Join(const std::vector<std::string>& chars) {
  std::string text;
  for (const std::string& c : chars) text += c;
  return text;
}

std::optional<char32_t> CodePointOf(std::string_view character) {
  int32_t i = 0;
  UChar32 c = -1;
  U8_NEXT(character.data(), i, static_cast<int32_t>(character.size()), c);
  if (c < 0) return std::nullopt;
  return static_cast<char32_t>(c);
}

std::string UpperOf(std::string_view text) { return MapCodePoints(text, u_toupper); }
std::string LowerOf(std::string_view text) { return MapCodePoints(text, u_tolower); }

bool ContainsIgnoringCase(std::string_view text, std::string_view find) {
  return LowerOf(text).find(LowerOf(find)) != std::string::npos;
}

bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix) {
  return LowerOf(text).starts_with(LowerOf(prefix));
}

std::string TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string RTrimBlanks(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  if (last == std::string_view::npos) return {};
  return std::string(text.substr(0, last + 1));
}

SingleByteCodePage::SingleByteCodePage(const char* name) {
  UErrorCode status = U_ZERO_ERROR;
  UConverter* converter = ucnv_open(name, &status);
  if (U_FAILURE(status)) return;
  for (int b = 0; b < 256; ++b) {
    const char byte = static_cast<char>(b);
    UChar unit[2];
    status = U_ZERO_ERROR;
    ucnv_resetToUnicode(converter);
    const int32_t units = ucnv_toUChars(converter, unit, 2, &byte, 1, &status);
    if (U_FAILURE(status) || units != 1 || unit[0] == 0xfffd) continue;
    AppendCodePoint(text_of_[b], unit[0]);
    byte_of_.emplace(unit[0], static_cast<unsigned char>(b));
  }
  ucnv_close(converter);
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
  const auto it = byte_of_.find(code_point);
  if (it == byte_of_.end()) return std::nullopt;
  return it->second;
}

}  // namespace tarnwick::text_ops_detail
