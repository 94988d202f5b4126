#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// What the process's command line asks of start-up. The line is the raw text
// after the program's name, used as it stands: quotes are not removed, and
// there is no parsing beyond these tests.
//   - The text with every "-d" removed (any case), trimmed, whose extension is
//     "twr" (any case): that settings file, made absolute, is applied.
//   - Otherwise the whole text, "-d" included, is a folder to show.
//   - "-d" anywhere (any case): the unattended run.
//   - Otherwise "NTLogMode" (exact case): the stored folder is shown.
// Kept: "-d" is removed wherever it stands, inside a path as well
// ("/tmp/my-docs/a.twr" names "/tmp/myocs/a.twr").
struct CommandLine {
  bool empty = true;
  std::string settings_file;  // absolute; empty when the line names none
  std::string folder;         // absolute; empty when a settings file was named
  bool batch = false;
  bool nt_log_mode = false;
};

CommandLine ParseCommandLine(std::string_view text, std::string_view working_folder);

}  // namespace tarnwick
