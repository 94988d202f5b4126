// Random bytes through the character-counted text functions, the code pages
// and the path helpers. Nothing may crash, and the functions must agree with
// each other on every input, whatever its encoding.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/path_text.h"
#include "base/text.h"
#include "base/utf8.h"

namespace {

using tarnwick::vb::Compare;
namespace vb = tarnwick::vb;

void Check(bool condition) {
  if (!condition) std::abort();
}

bool IsWellFormed(std::string_view text) {
  for (tarnwick::utf8::Char c : tarnwick::utf8::Chars(text)) {
    if (!c.valid) return false;
  }
  return true;
}

void CheckCutting(std::string_view text, std::int64_t n) {
  const std::int64_t length = vb::Len(text);
  Check(vb::Len(vb::Left(text, n)) == std::min(n, length));
  Check(vb::Len(vb::Right(text, n)) == std::min(n, length));
  Check(vb::Left(text, n) + vb::Mid(text, n + 1) == text);
  Check(vb::Mid(text, n + 1, 1).size() <= 4);
  // Reversed invalid bytes may pair up into a new character, so only a
  // well-formed text comes back from two reversals.
  const std::string reversed = vb::StrReverse(text);
  Check(reversed.size() == text.size());
  if (IsWellFormed(text)) Check(vb::StrReverse(reversed) == text);
  Check(vb::Len(vb::UCase(text)) == length);
  Check(vb::Len(vb::LCase(text)) == length);
  Check(tarnwick::EqualsText(vb::UCase(text), vb::LCase(text)) ==
        tarnwick::EqualsText(vb::LCase(text), vb::UCase(text)));
  std::int64_t walked = 0;
  for (tarnwick::utf8::Char c : tarnwick::utf8::Chars(text)) walked += c.size > 0 ? 1 : 0;
  Check(walked == length);
}

void CheckSearch(std::string_view text, std::string_view find) {
  const std::int64_t at = vb::InStr(text, find);
  if (at > 0 && !find.empty()) Check(vb::Mid(text, at, vb::Len(find)) == find);
  const std::int64_t folded = vb::InStr(text, find, Compare::kText);
  if (folded > 0 && !find.empty()) {
    Check(tarnwick::EqualsText(vb::Mid(text, folded, vb::Len(find)), find));
  }
  if (at > 0) Check(folded > 0 && folded <= at);
  const std::int64_t last = vb::InStrRev(text, find);
  Check((last > 0) == (at > 0) && last >= at);
  if (!find.empty()) Check(vb::Replace(text, find, find) == text);
  if (!text.empty() && !find.empty()) Check(vb::Join(vb::Split(text, find), find) == text);
  vb::Replace(text, find, "x", 1, -1, Compare::kText);
  vb::Split(text, find, 3, Compare::kText);
}

void CheckCodePages(std::string_view text) {
  for (const auto* page :
       {&tarnwick::SingleByteCodePage::Windows1252(), &tarnwick::SingleByteCodePage::Oem850()}) {
    const std::string bytes = page->Encode(text);
    Check(bytes.size() <= text.size());
    page->Decode(text);
    page->Decode(bytes);
  }
  Check(vb::Len(tarnwick::AnsiToOem(text)) == vb::Len(text));
  Check(vb::Len(tarnwick::OemToAnsi(text)) == vb::Len(text));
}

void CheckPaths(std::string_view text, std::string_view other) {
  const std::string absolute = tarnwick::AbsolutePathName(text, "/base");
  Check(!absolute.empty() && absolute[0] == '/');
  Check(absolute.find("//") == std::string::npos);
  Check(tarnwick::AbsolutePathName(absolute, "/") == absolute);
  const std::string joined = tarnwick::JoinPath(text, other);
  Check(joined.size() <= text.size() + other.size() + 1);
  tarnwick::ParentFolder(text);
  tarnwick::WithoutExtension(text);
  Check(tarnwick::ExtensionName(text).size() <= tarnwick::LastPathElement(text).size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  // The first line is the text to search for, the rest the text; the first
  // byte also gives a count.
  const std::size_t split = input.find('\n');
  const std::string_view find = split == std::string_view::npos ? "" : input.substr(0, split);
  const std::string_view text = split == std::string_view::npos ? input : input.substr(split + 1);
  const std::int64_t n = size == 0 ? 0 : data[0] % 16;

  CheckCutting(input, n);
  CheckSearch(text, find);
  CheckCodePages(input);
  CheckPaths(text, find);
  Check(tarnwick::StripAtNull(input).size() <= input.size());
  return 0;
}
