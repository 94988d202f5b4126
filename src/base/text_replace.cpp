// Replace.
#include "base/text.h"
#include "base/text_find.h"
#include "base/utf8.h"

namespace tarnwick::vb {

using text_internal::Finder;

std::string Replace(std::string_view text, std::string_view find, std::string_view with,
                    std::int64_t start, std::int64_t count, Compare compare) {
  if (start < 1 || count < -1) text_internal::RaiseInvalidArgument();
  const std::size_t from = utf8::Advance(text, 0, static_cast<std::size_t>(start - 1));
  // Kept: the result begins at `start`; what stands before it is dropped.
  const std::string_view rest = text.substr(from);
  if (rest.empty() || find.empty() || count == 0) return std::string(rest);

  const Finder finder(find, compare);
  std::string out;
  out.reserve(rest.size());
  std::size_t copied = 0;
  for (std::int64_t done = 0; count < 0 || done < count; ++done) {
    const Finder::Hit hit = finder.Next(rest, copied);
    if (!hit.found()) break;
    out.append(rest.substr(copied, hit.at - copied));
    out.append(with);
    copied = hit.end;
  }
  out.append(rest.substr(copied));
  return out;
}

}  // namespace tarnwick::vb
