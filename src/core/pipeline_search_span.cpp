// The span search of the replace action.
#include "core/pipeline_search_span.h"

#include <cstdint>
#include <vector>

#include "base/text.h"
#include "core/pipeline_resume_next.h"

namespace tarnwick {

std::string SearchSpan(std::string_view search, std::string_view base) {
  const std::vector<std::string> parts = vb::Split(search, "{{-}}");
  const std::string a = parts.empty() ? std::string() : parts[0];
  const std::string b = parts.size() < 2 ? std::string() : parts[1];
  // Each statement on its own, as the program does: a missing A leaves the
  // start at 0, which makes the next two statements fail and the span empty.
  std::int64_t start = 0;
  std::int64_t end = 0;
  std::string span;
  ResumeNext([&] { start = vb::InStr(base, a); });
  ResumeNext([&] { end = b.empty() ? vb::Len(base) + 1 : vb::InStr(start, base, b); });
  ResumeNext([&] { span = vb::Mid(base, start, end + vb::Len(b) - start); });
  if (span.empty()) return std::string(search);
  return span;
}

}  // namespace tarnwick
