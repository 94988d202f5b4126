#include "startup/command_line.h"

#include "base/path_text.h"
#include "base/text.h"

namespace tarnwick {
namespace {

bool IsBatchSwitch(std::string_view argument) { return EqualsText(argument, "-d"); }

}  // namespace

bool HasBatchSwitch(std::span<const std::string> arguments) {
  for (const std::string& argument : arguments) {
    if (IsBatchSwitch(argument)) return true;
  }
  return false;
}

CommandLine ParseCommandLine(std::span<const std::string> arguments,
                             std::string_view working_folder) {
  CommandLine line;
  std::string text;
  bool nt_log_mode = false;
  for (const std::string& argument : arguments) {
    if (argument.empty()) continue;
    line.empty = false;
    if (IsBatchSwitch(argument)) {
      line.batch = true;
    } else if (argument == "NTLogMode") {
      nt_log_mode = true;
    } else {
      if (!text.empty()) text += ' ';
      text += argument;
    }
  }
  line.nt_log_mode = nt_log_mode && !line.batch;
  if (text.empty()) return line;
  if (EqualsText(vb::Trim(ExtensionName(text)), "twr")) {
    line.settings_file = AbsolutePathName(text, working_folder);
  } else {
    line.folder = AbsolutePathName(text, working_folder);
  }
  return line;
}

}  // namespace tarnwick
