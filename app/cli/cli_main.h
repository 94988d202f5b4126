#pragma once

#include <span>
#include <string>

#include "cli_command.h"

namespace tarnwick::cli {

// The whole program: `args` are the arguments after the program name. Returns
// the exit code; never throws.
int RunCli(std::span<const std::string> args, CliIo& io);

}  // namespace tarnwick::cli
