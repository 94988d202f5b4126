#include "run_settings_file.h"

#include "base/clock.h"
#include "base/vb_error.h"
#include "core/settings_file.h"
#include "persist/log_undo_env.h"
#include "persist/log_undo_state.h"
#include "platform/files.h"
#include "shell/app_state.h"
#include "shell/cli_interaction.h"
#include "shell/message_table.h"

namespace tarnwick::cli {

std::optional<std::string> LoadRunSettingsFile(const std::string& path, RenameSettings& settings,
                                               OptionStore& options) {
  if (!FileExists(path)) return "no settings file '" + path + "'";
  AppState app;
  LogUndoState state;
  SystemClock clock;
  CliInteraction interaction{CliOptions{}};
  const LogUndoEnv env{options, interaction, MessageTable::Get(SystemLanguage()),
                       clock,   app,         state};
  bool folder_found = true;
  try {
    folder_found = ApplySettingsFile(env, path, settings);
  } catch (const VbError& error) {
    return "cannot read the settings file '" + path + "': " + error.description();
  }
  // A file whose folder has gone moved the list to the root; a run must not
  // take that for the file's folder.
  if (!folder_found) return "the folder saved in '" + path + "' no longer exists";
  settings.CurrentDir = app.CurrentPath;  // empty when the file saved none
  return std::nullopt;
}

}  // namespace tarnwick::cli
