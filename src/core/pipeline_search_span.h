#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// The span that a search text with "{{-}}" stands for in `base`. The search
// text is split at "{{-}}" into A and B; the span starts at the first A in
// the base (binary comparison) and ends behind the first B from there on, or
// at the end of the base when B is empty: A and B are part of it. When A is
// not found, or the span comes out empty, the search text is given back as it
// is, so nothing will be found with it.
std::string SearchSpan(std::string_view search, std::string_view base);

}  // namespace tarnwick
