#include <string>

#include "base/path_text.h"
#include "base/text.h"
#include "base/vb_error.h"
#include "core/settings_file.h"
#include "core/settings_file_items.h"
#include "persist/log_date_text.h"
#include "persist/log_file.h"
#include "persist/log_options.h"
#include "persist/log_undo_env.h"
#include "persist/option_store.h"
#include "persist/xml_configuration.h"
#include "platform/files.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

using Outcome = SaveSettingsResult::Outcome;

std::string Text(const LogUndoEnv& env, std::string_view key) {
  return std::string(env.messages.Text(key));
}

void ShowBlanksNotice(const LogUndoEnv& env) {
  MessageBoxRequest box;
  box.title = Text(env, "settings_file.title_replace_blanks");
  box.text = Text(env, "settings_file.blanks_replaced");
  box.icon = MessageIcon::kInformation;
  env.interaction.ShowMessage(box);
}

void BlankStep(const LogUndoEnv& env, RenameSettings& settings) {
  if (ReplaceEndBlanksInFields(settings)) ShowBlanksNotice(env);
}

// The folder to save as `CurrentDir`; nothing when the user chose not to
// save without it.
std::optional<std::string> CurrentDirToSave(const LogUndoEnv& env, bool save_path) {
  if (!save_path) return std::string();
  const std::string folder = env.app.CurrentPath;
  if (FolderExists(folder)) return folder;
  MessageBoxRequest box;
  box.title = Text(env, "settings_file.title_folder");
  box.text = Text(env, "settings_file.the_path") + folder +
             Text(env, "settings_file.path_cannot_be_saved") + "\r\n\r\n" +
             Text(env, "settings_file.continue_without_path");
  box.buttons = Buttons::kYesNo;
  box.icon = MessageIcon::kQuestion;
  box.topic = Topic::kSaveWithoutPath;
  if (env.interaction.ShowMessage(box) != Answer::kYes) return std::nullopt;
  return std::string();
}

void WriteFile(const LogUndoEnv& env, const std::string& path, const RenameSettings& settings,
               std::string_view current_dir) {
  XMLConfiguration file;
  file.Encryption(true);
  file.LoadConfigurationFile(path, true);
  const std::string now = PresentDateTimeText(env.clock, env.options);
  for (const SettingsItem& item :
       SettingsFileItems(settings, current_dir, env.options, env.messages, now)) {
    file.WriteValue(item.section, item.name, item.value);
  }
  file.SaveConfigurationFile();
}

void ShowError(const LogUndoEnv& env, std::string_view description) {
  MessageBoxRequest box;
  box.title = Text(env, "settings_file.title_error");
  box.text = Text(env, "settings_file.an_error_occured") + "\r\n" + std::string(description);
  box.icon = MessageIcon::kCritical;
  env.interaction.ShowMessage(box);
}

}  // namespace

SaveSettingsResult SaveSettingsTo(const LogUndoEnv& env, RenameSettings& settings,
                                  std::string_view path, bool save_path) {
  SaveSettingsResult result;
  result.path = AbsolutePath(path);
  BlankStep(env, settings);
  const std::optional<std::string> current_dir = CurrentDirToSave(env, save_path);
  if (!current_dir) return result;
  try {
    WriteFile(env, result.path, settings, *current_dir);
  } catch (const VbError& error) {
    result.outcome = Outcome::kFailed;
    result.error = error.description();
    ShowError(env, error.description());
    return result;
  }
  SaveOptionValue(env.options, "SavePathIni", ParentFolder(result.path));
  RunLog(env).WriteLogFileTool(Text(env, "settings_file.log_save"),
                               Text(env, "settings_file.log_saved") + result.path + "'");
  env.app.SettingsDirty = false;
  result.outcome = Outcome::kSaved;
  return result;
}

SaveSettingsResult SaveSettings(const LogUndoEnv& env, RenameSettings& settings,
                                std::string_view default_settings_folder) {
  BlankStep(env, settings);
  const std::string default_folder =
      FolderExists(default_settings_folder) ? std::string(default_settings_folder) : "";
  SaveSettingsRequest request;
  request.preset_path = env.app.loaded_settings_name;
  request.chooser.title = Text(env, "settings_file.title_save");
  const std::string filter = Text(env, "settings_file.filter");
  request.chooser.filters = {{filter + " (*.twr)", "*.twr"}};
  request.chooser.default_extension = kSettingsFileExtension;
  request.chooser.start_folder = ReadOption(env.options, "SavePathIni", default_folder);
  request.chooser.for_saving = true;
  const std::optional<SaveSettingsAnswer> answer = env.interaction.AskSaveSettings(request);
  if (!answer || answer->path.empty()) return {};
  // A bare name goes to the folder the chooser starts in (the settings
  // folder), not to the working folder; a name without ".twr" gets it.
  std::string path = answer->path;
  if (path.front() != '/' && !request.chooser.start_folder.empty()) {
    path = JoinPath(request.chooser.start_folder, path);
  }
  if (!EqualsText(ExtensionName(path), kSettingsFileExtension)) {
    path += "." + std::string(kSettingsFileExtension);
  }
  return SaveSettingsTo(env, settings, path, answer->save_path);
}

}  // namespace tarnwick
