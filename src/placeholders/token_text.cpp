#include "placeholders/token_text.h"

#include <cstring>
#include <utility>

#include "base/text.h"
#include "base/utf8.h"

namespace tarnwick {
namespace {

char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

// A match: where it starts and how many bytes of the text it covers.
struct Hit {
  std::size_t at = std::string_view::npos;
  std::size_t length = 0;
};

bool MatchesAt(std::string_view text, std::size_t i, std::string_view find) {
  std::size_t k = 1;
  while (k < find.size() && LowerAscii(text[i + k]) == LowerAscii(find[k])) ++k;
  return k == find.size();
}

Hit FindAscii(std::string_view text, std::string_view find, std::size_t from) {
  if (find.size() > text.size()) return {};
  const std::size_t last = text.size() - find.size();
  const char first = LowerAscii(find[0]);
  // A token begins with a brace, which has no case: memchr jumps to each.
  if (first < 'a' || first > 'z') {
    for (std::size_t i = from; i <= last; ++i) {
      const void* at = std::memchr(text.data() + i, first, last - i + 1);
      if (at == nullptr) return {};
      i = static_cast<std::size_t>(static_cast<const char*>(at) - text.data());
      if (MatchesAt(text, i, find)) return {i, find.size()};
    }
    return {};
  }
  for (std::size_t i = from; i <= last; ++i) {
    if (LowerAscii(text[i]) == first && MatchesAt(text, i, find)) return {i, find.size()};
  }
  return {};
}

// The runtime's text compare: characters match after case folding, one for
// one, so the match is as many characters long as `find`.
Hit FindFolded(std::string_view text, std::string_view find, std::size_t from) {
  if (from >= text.size()) return {};
  const std::int64_t start = vb::Len(text.substr(0, from)) + 1;
  const std::int64_t position = vb::InStr(start, text, find, vb::Compare::kText);
  if (position == 0) return {};
  const std::size_t at = utf8::ByteOffsetOf(text, static_cast<std::size_t>(position - 1));
  const std::size_t end = utf8::Advance(text, at, static_cast<std::size_t>(vb::Len(find)));
  return {at, end - at};
}

Hit Find(std::string_view text, std::string_view find, std::size_t from) {
  return utf8::IsAscii(find) ? FindAscii(text, find, from) : FindFolded(text, find, from);
}

}  // namespace

std::string AsciiLower(std::string_view text) {
  std::string out(text);
  for (char& c : out) c = LowerAscii(c);
  return out;
}

void ReplaceToken(std::string& text, std::string_view find, std::string_view with, int count) {
  if (find.empty() || count == 0) return;
  Hit hit = Find(text, find, 0);
  if (hit.at == std::string_view::npos) return;
  std::string out;
  out.reserve(text.size() + with.size());
  std::size_t copied = 0;
  for (int done = 0; hit.at != std::string_view::npos && (count < 0 || done < count); ++done) {
    out.append(text, copied, hit.at - copied);
    out.append(with);
    copied = hit.at + hit.length;
    hit = Find(text, find, copied);
  }
  out.append(text, copied);
  text = std::move(out);
}

std::string RemoveToken(std::string_view text, std::string_view find, int count) {
  std::string out(text);
  ReplaceToken(out, find, "", count);
  return out;
}

std::string ExtensionOf(std::string_view text) {
  const std::size_t slash = text.rfind('/');
  const std::string_view element = slash == std::string_view::npos ? text : text.substr(slash + 1);
  const std::size_t point = element.rfind('.');
  if (point == std::string_view::npos) return {};
  std::string ext = "." + std::string(element.substr(point + 1));
  const std::size_t first = ext.find_first_not_of(' ');
  const std::size_t last = ext.find_last_not_of(' ');
  ext = ext.substr(first, last - first + 1);  // the point keeps it non-empty
  return ext.size() == 1 ? std::string() : ext;
}

}  // namespace tarnwick

namespace tarnwick {

std::size_t FindIgnoringCase(std::string_view text, std::string_view find, std::size_t from,
                             std::size_t* length) {
  if (find.empty()) return std::string_view::npos;
  const Hit hit = Find(text, find, from);
  if (length != nullptr) *length = hit.length;
  return hit.at;
}

}  // namespace tarnwick
