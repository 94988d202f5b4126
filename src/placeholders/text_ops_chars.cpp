#include "placeholders/text_ops_chars.h"

#include <unicode/uchar.h>
#include <unicode/ucnv.h>
#include <unicode/utf8.h>

namespace tarnwick::text_ops_detail {

std::vector<std::string> SplitCharacters(std::string_view text) {
  std::vector<std::string> out;
  int32_t i = 0;
  const int32_t n = static_cast<int32_t>(text.size());
  while (i < n) {
    const int32_t start = i;
    UChar32 c;
    U8_NEXT(text.data(), i, n, c);
    if (c < 0) i = start + 1;
    out.emplace_back(text.substr(start, i - start));
  }
  return out;
}

std::string Join(const std::vector<std::string>& chars) {
  std::string s;
  for (const auto& c : chars) s += c;
  return s;
}

namespace {
template <typename F>
std::string MapChars(std::string_view text, F f) {
  std::string out;
  int32_t i = 0;
  const int32_t n = static_cast<int32_t>(text.size());
  while (i < n) {
    const int32_t start = i;
    UChar32 c;
    U8_NEXT(text.data(), i, n, c);
    if (c < 0) {
      i = start + 1;
      out += text[start];
      continue;
    }
    UChar32 m = f(c);
    char buf[4];
    int32_t len = 0;
    UBool err = false;
    U8_APPEND(buf, len, 4, m, err);
    out.append(buf, len);
  }
  return out;
}
}  // namespace

std::string UpperOf(std::string_view text) { return MapChars(text, u_toupper); }
std::string LowerOf(std::string_view text) { return MapChars(text, u_tolower); }

bool ContainsIgnoringCase(std::string_view text, std::string_view find) {
  return LowerOf(text).find(LowerOf(find)) != std::string::npos;
}
bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix) {
  return LowerOf(text).rfind(LowerOf(prefix), 0) == 0;
}

std::string TrimBlanks(std::string_view text) {
  const auto b = text.find_first_not_of(' ');
  if (b == std::string_view::npos) return {};
  const auto e = text.find_last_not_of(' ');
  return std::string(text.substr(b, e - b + 1));
}
std::string RTrimBlanks(std::string_view text) {
  const auto e = text.find_last_not_of(' ');
  if (e == std::string_view::npos) return {};
  return std::string(text.substr(0, e + 1));
}

std::string ToCodePage(std::string_view utf8, const char* code_page, bool* lossless) {
  *lossless = true;
  UErrorCode status = U_ZERO_ERROR;
  UConverter* conv = ucnv_open(code_page, &status);
  ucnv_setFromUCallBack(conv, UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  std::string out;
  int32_t i = 0;
  const int32_t n = static_cast<int32_t>(utf8.size());
  while (i < n) {
    UChar32 c;
    const int32_t start = i;
    U8_NEXT(utf8.data(), i, n, c);
    if (c < 0 || c > 0xFFFF) {
      *lossless = false;
      i = start + 1;
      continue;
    }
    UChar u = static_cast<UChar>(c);
    char buf[8];
    status = U_ZERO_ERROR;
    int32_t len = ucnv_fromUChars(conv, buf, 8, &u, 1, &status);
    if (U_FAILURE(status) || len != 1) {
      *lossless = false;
      continue;
    }
    out += buf[0];
  }
  ucnv_close(conv);
  return out;
}

std::string FromCodePage(std::string_view bytes, const char* code_page) {
  UErrorCode status = U_ZERO_ERROR;
  UConverter* conv = ucnv_open(code_page, &status);
  std::string out;
  for (char b : bytes) {
    UChar u[4];
    status = U_ZERO_ERROR;
    int32_t len = ucnv_toUChars(conv, u, 4, &b, 1, &status);
    for (int32_t k = 0; k < len; ++k) {
      char buf[4];
      int32_t l = 0;
      UBool err = false;
      U8_APPEND(buf, l, 4, u[k], err);
      out.append(buf, l);
    }
  }
  ucnv_close(conv);
  return out;
}

}  // namespace tarnwick::text_ops_detail
