#pragma once

#include <optional>
#include <string>

#include "core/rename_settings.h"
#include "persist/option_store.h"

namespace tarnwick::cli {

// Loads a rename settings file named on the command line into `settings`
// (its `CurrentDir` included) and the run's options; the message of what
// went wrong, or nothing. The one place a run reads a settings file.
std::optional<std::string> LoadRunSettingsFile(const std::string& path, RenameSettings& settings,
                                               OptionStore& options);

}  // namespace tarnwick::cli
