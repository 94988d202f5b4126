#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// What the process's command line asks of start-up. On Linux the command
// line is a list of arguments, so a switch is a switch only as an argument
// of its own; a folder or file name that merely contains one ("my-docs",
// "2024-dec") is a name like any other.
//   - "-d" (any case): the unattended run.
//   - "NTLogMode" (exact case), without "-d": the stored folder is shown.
//   - The other arguments, joined by blanks, are the text: when its
//     extension is "twr" (any case), that settings file, made absolute, is
//     applied; otherwise it is a folder to show.
struct CommandLine {
  bool empty = true;
  std::string settings_file;  // absolute; empty when the line names none
  std::string folder;         // absolute; empty when a settings file or no name was given
  bool batch = false;
  bool nt_log_mode = false;
};

CommandLine ParseCommandLine(std::span<const std::string> arguments,
                             std::string_view working_folder);

// Whether the arguments hold the switch "-d" (any case) as an argument of its own.
bool HasBatchSwitch(std::span<const std::string> arguments);

}  // namespace tarnwick
