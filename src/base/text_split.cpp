// Split and Join.
#include "base/text.h"
#include "base/text_find.h"

namespace tarnwick::vb {

using text_internal::Finder;

std::vector<std::string> Split(std::string_view text, std::string_view delimiter,
                               std::int64_t limit, Compare compare) {
  if (limit < -1) text_internal::RaiseInvalidArgument();
  if (text.empty() || limit == 0) return {};
  if (delimiter.empty()) return {std::string(text)};

  const Finder finder(delimiter, compare);
  std::vector<std::string> parts;
  std::size_t from = 0;
  while (limit < 0 || static_cast<std::int64_t>(parts.size()) < limit - 1) {
    const Finder::Hit hit = finder.Next(text, from);
    if (!hit.found()) break;
    parts.emplace_back(text.substr(from, hit.at - from));
    from = hit.end;
  }
  parts.emplace_back(text.substr(from));
  return parts;
}

std::string Join(const std::vector<std::string>& parts, std::string_view delimiter) {
  std::string out;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0) out.append(delimiter);
    out.append(parts[i]);
  }
  return out;
}

}  // namespace tarnwick::vb
