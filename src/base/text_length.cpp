// Len, Left, Right, Mid, Space and StrReverse.
#include <algorithm>
#include <vector>

#include "base/text.h"
#include "base/text_find.h"
#include "base/utf8.h"

namespace tarnwick::vb {

using text_internal::RaiseInvalidArgument;

std::int64_t Len(std::string_view text) {
  return static_cast<std::int64_t>(utf8::CountChars(text));
}

std::string Left(std::string_view text, std::int64_t count) {
  if (count < 0) RaiseInvalidArgument();
  return std::string(text.substr(0, utf8::Advance(text, 0, static_cast<std::size_t>(count))));
}

std::string Right(std::string_view text, std::int64_t count) {
  if (count < 0) RaiseInvalidArgument();
  const std::int64_t skip = Len(text) - count;
  if (skip <= 0) return std::string(text);
  return std::string(text.substr(utf8::Advance(text, 0, static_cast<std::size_t>(skip))));
}

std::string Mid(std::string_view text, std::int64_t start) {
  if (start < 1) RaiseInvalidArgument();
  return std::string(text.substr(utf8::Advance(text, 0, static_cast<std::size_t>(start - 1))));
}

std::string Mid(std::string_view text, std::int64_t start, std::int64_t length) {
  if (start < 1 || length < 0) RaiseInvalidArgument();
  const std::size_t from = utf8::Advance(text, 0, static_cast<std::size_t>(start - 1));
  const std::size_t to = utf8::Advance(text, from, static_cast<std::size_t>(length));
  return std::string(text.substr(from, to - from));
}

std::string Space(std::int64_t count) {
  if (count < 0) RaiseInvalidArgument();
  return std::string(static_cast<std::size_t>(count), ' ');
}

std::string StrReverse(std::string_view text) {
  std::vector<std::string_view> chars;
  for (auto it = utf8::Chars(text).begin(); it != utf8::Chars(text).end(); ++it) {
    chars.push_back(it.bytes());
  }
  std::string out;
  out.reserve(text.size());
  std::for_each(chars.rbegin(), chars.rend(), [&](std::string_view c) { out.append(c); });
  return out;
}

}  // namespace tarnwick::vb
