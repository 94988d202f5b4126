#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/text.h"  // StripAtNull

namespace tarnwick {

// A length in seconds as two-digit minutes, ":" and two-digit seconds: "03:13".
std::string MinutesAndSeconds(std::int64_t seconds);

}  // namespace tarnwick
