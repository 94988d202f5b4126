#pragma once

#include <string>
#include <string_view>

namespace tarnwick::cli {

// A field of a tab-separated line: tabs, line ends and backslashes escaped
// ("\t", "\n", "\r", "\\"), so a row stays one line.
std::string TsvField(std::string_view text);

}  // namespace tarnwick::cli
