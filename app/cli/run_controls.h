#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "shell/message_table.h"

namespace tarnwick::cli {

// `run --controls`: every renaming control with its meaning (in the user's
// language, the window's own words), its default and the values it takes,
// one per line, separated by tabs.
void PrintControls(std::ostream& out, const MessageTable& messages);

// The controls whose names are nearest to a misspelt `name`, for the message
// that refuses it: "chkPrefix" for "chkPrefx". Empty when none is near.
std::string NearestControlNames(std::string_view name);

}  // namespace tarnwick::cli
