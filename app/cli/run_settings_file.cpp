#include "run_settings_file.h"

namespace tarnwick::cli {

std::optional<std::string> LoadRunSettingsFile(const std::string& path, RenameSettings&,
                                               OptionStore&) {
  return "settings files cannot be read by this version yet ('" + path +
         "'); give the settings with --set NAME=VALUE";
}

}  // namespace tarnwick::cli
