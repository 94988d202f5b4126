#pragma once

#include <string_view>

namespace tarnwick {

// What the files Tarnwick writes say about the program that wrote them.
inline constexpr std::string_view kProductVersion = "v2.97.0";
inline constexpr std::string_view kMakerCopyright = "(c) 2001-2026 Oakhollow";
inline constexpr std::string_view kMakerAddress = "https://www.oakhollow.example/tarnwick";

}  // namespace tarnwick
