// InStr, InStrRev and the searches built on them.
#include "base/text.h"
#include "base/text_find.h"
#include "base/utf8.h"

namespace tarnwick::vb {
namespace {

using text_internal::Finder;

// The 1-based character position of byte offset `at`.
std::int64_t PositionOf(std::string_view text, std::size_t at) {
  return Len(text.substr(0, at)) + 1;
}

}  // namespace

std::int64_t InStr(std::int64_t start, std::string_view text, std::string_view find,
                   Compare compare) {
  if (start < 1) text_internal::RaiseInvalidArgument();
  if (text.empty() || start > Len(text)) return 0;
  if (find.empty()) return start;
  const std::size_t from = utf8::Advance(text, 0, static_cast<std::size_t>(start - 1));
  const Finder::Hit hit = Finder(find, compare).Next(text, from);
  return hit.found() ? PositionOf(text, hit.at) : 0;
}

std::int64_t InStr(std::string_view text, std::string_view find, Compare compare) {
  return InStr(1, text, find, compare);
}

std::int64_t InStrRev(std::string_view text, std::string_view find, std::int64_t start,
                      Compare compare) {
  if (start == 0 || start < -1) text_internal::RaiseInvalidArgument();
  if (text.empty()) return 0;
  const std::int64_t length = Len(text);
  if (start == -1) start = length;
  if (start > length) return 0;
  if (find.empty()) return start;
  // Only matches that end at or before character `start` count.
  const std::string_view head =
      text.substr(0, utf8::Advance(text, 0, static_cast<std::size_t>(start)));
  const Finder finder(find, compare);
  std::size_t last = std::string_view::npos;
  for (Finder::Hit hit = finder.Next(head, 0); hit.found();
       hit = finder.Next(head, hit.at + utf8::DecodeAt(head, hit.at).size)) {
    last = hit.at;
  }
  return last == std::string_view::npos ? 0 : PositionOf(text, last);
}

}  // namespace tarnwick::vb

namespace tarnwick {

bool ContainsText(std::string_view text, std::string_view find) {
  return find.empty() || vb::InStr(text, find, vb::Compare::kText) > 0;
}

bool StartsWithText(std::string_view text, std::string_view prefix) {
  return EqualsText(vb::Left(text, vb::Len(prefix)), prefix);
}

}  // namespace tarnwick
