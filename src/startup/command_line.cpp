#include "startup/command_line.h"

#include "base/path_text.h"
#include "base/text.h"

namespace tarnwick {

CommandLine ParseCommandLine(std::string_view text, std::string_view working_folder) {
  CommandLine line;
  if (text.empty()) return line;
  line.empty = false;
  const std::string without_switch =
      vb::Trim(vb::Replace(text, "-d", "", 1, -1, vb::Compare::kText));
  if (EqualsText(vb::Trim(ExtensionName(without_switch)), "twr")) {
    line.settings_file = AbsolutePathName(without_switch, working_folder);
  } else {
    line.folder = AbsolutePathName(text, working_folder);
  }
  line.batch = ContainsText(text, "-d");
  line.nt_log_mode = !line.batch && text.find("NTLogMode") != std::string_view::npos;
  return line;
}

}  // namespace tarnwick
