#pragma once

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick::cli {

// The arguments of "run" and "preview".
struct RunArgs {
  std::string settings_file;                              // SETTINGS.twr; empty when none was named
  std::string folder;                                     // --folder
  std::vector<std::pair<std::string, std::string>> sets;  // --set NAME=VALUE, in order
  std::optional<int> mode;                                // --mode: 0 rename, 1 copy, 2 test
  std::string select;                                     // --select GLOB; empty: all rows
  bool yes = false;                                       // --yes
  bool subfolders = false;                                // --subfolders
  bool json = false;                                      // --json (preview)
  bool list_controls = false;                             // --controls
};

// Reads the arguments; the message of the first mistake, or nothing.
// `preview` takes no --mode: it is always a test. The named flags (--prefix,
// --number ...) become the --set pairs of the controls the window ticks and
// fills for the same job, in the order given.
std::optional<std::string> ParseRunArgs(std::span<const std::string> args, bool preview,
                                        RunArgs& out);

}  // namespace tarnwick::cli
