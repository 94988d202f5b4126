#include "run_settings_file.h"

#include "base/clock.h"
#include "base/vb_error.h"
#include "core/settings_file.h"
#include "core/settings_file_items.h"
#include "persist/log_undo_env.h"
#include "persist/log_undo_state.h"
#include "persist/xml_configuration.h"
#include "platform/files.h"
#include "shell/app_state.h"
#include "shell/cli_interaction.h"
#include "shell/message_table.h"

namespace tarnwick::cli {
namespace {

// The folder the file saved, read on its own: applying a file whose folder
// has gone moves to the root, which a run must not take for the file's folder.
std::string SavedFolder(const std::string& path) {
  XMLConfiguration file;
  file.Encryption(true);
  if (!file.LoadConfigurationFile(path, false)) return {};
  return file.ReadValue(kDefaultsSection, "CurrentDir");
}

}  // namespace

std::optional<std::string> LoadRunSettingsFile(const std::string& path, RenameSettings& settings,
                                               OptionStore& options) {
  if (!FileExists(path)) return "no settings file '" + path + "'";
  AppState app;
  LogUndoState state;
  SystemClock clock;
  CliInteraction interaction{CliOptions{}};
  const LogUndoEnv env{options, interaction, MessageTable::Get(SystemLanguage()),
                       clock,   app,         state};
  std::string folder;
  try {
    ApplySettingsFile(env, path, settings);
    folder = SavedFolder(path);
  } catch (const VbError& error) {
    return "cannot read the settings file '" + path + "': " + error.description();
  }
  if (!folder.empty() && !FolderExists(folder)) {
    return "the folder saved in '" + path + "' no longer exists: " + folder;
  }
  settings.CurrentDir = folder;
  return std::nullopt;
}

}  // namespace tarnwick::cli
