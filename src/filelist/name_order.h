#pragma once

#include <string_view>

namespace tarnwick {

// The order in which a folder lists its names: character by character
// without regard to case (simple case folding, code point order), names that
// differ only in case by their bytes, so the order is total and the same on
// every run. Negative, zero or positive like strcmp.
int CompareNames(std::string_view a, std::string_view b);

// Only the case-insensitive part: 0 for "Readme" and "README".
int CompareText(std::string_view a, std::string_view b);

}  // namespace tarnwick
