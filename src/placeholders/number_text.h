#pragma once

#include <string>
#include <string_view>

#include "base/vb_format.h"

namespace tarnwick {

// The tag tokens' name for the runtime's Format of a text: a text that reads
// as a number gets the mask ("00" makes "3" "03"), any other stays as it is.
inline std::string FormatTextWithZeroMask(std::string_view text, std::string_view mask) {
  return vb::FormatText(text, mask);
}

}  // namespace tarnwick
