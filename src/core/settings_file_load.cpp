#include <string>

#include "base/path_text.h"
#include "base/text.h"
#include "base/vb_error.h"
#include "core/settings_file.h"
#include "persist/log_file.h"
#include "persist/log_options.h"
#include "persist/log_undo_env.h"
#include "persist/option_store.h"
#include "platform/files.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

using Outcome = LoadSettingsResult::Outcome;

constexpr std::int64_t kLongName = 31;
constexpr std::int64_t kShownPart = 30;

std::string Text(const LogUndoEnv& env, std::string_view key) {
  return std::string(env.messages.Text(key));
}

void ReportLoadError(const LogUndoEnv& env, const VbError& error) {
  RunLog(env).WriteLogFileTool(Text(env, "settings_file.log_load_error"),
                               Text(env, "settings_file.error_while_loading") +
                                   std::to_string(error.number()) + ": " + error.description());
  MessageBoxRequest box;
  box.title = Text(env, "settings_file.title_error");
  box.text = Text(env, "settings_file.an_error_occured") + "\r\n" + error.description();
  box.icon = MessageIcon::kCritical;
  env.interaction.ShowMessage(box);
}

}  // namespace

std::string SettingsFrameCaption(const MessageTable& messages, std::string_view file_name) {
  std::string name(file_name);
  if (vb::Len(name) >= kLongName) name = vb::Left(name, kShownPart) + " ...";
  return std::string(messages.Text("settings_file.frame_settings")) + "   [" + name + "]";
}

LoadSettingsResult LoadSettingsFile(const LogUndoEnv& env, std::string_view path,
                                    RenameSettings& settings) {
  LoadSettingsResult result;
  result.path = AbsolutePath(path);
  try {
    result.folder_gone = !ApplySettingsFile(env, result.path, settings);
  } catch (const VbError& error) {
    ReportLoadError(env, error);
    result.outcome = Outcome::kFailed;
    result.error = error.description();
    return result;
  }
  const std::string name = LastPathElement(result.path);
  result.frame_caption = SettingsFrameCaption(env.messages, name);
  env.app.loaded_settings_name = name;
  env.app.SettingsDirty = false;
  SaveOptionValue(env.options, "SavePathIni", ParentFolder(result.path));
  RunLog(env).WriteLogFileTool(Text(env, "settings_file.log_load"),
                               Text(env, "settings_file.log_loaded") + result.path + "'");
  result.outcome = Outcome::kLoaded;
  return result;
}

LoadSettingsResult LoadIniSettings(const LogUndoEnv& env, RenameSettings& settings) {
  LoadSettingsResult cancelled;
  cancelled.outcome = Outcome::kCancelled;
  if (OptionIsZero(env.options, "SaveChanges", "1") && env.app.SettingsDirty) {
    MessageBoxRequest box;
    box.title = Text(env, "options.title_discard_changes");
    box.text = Text(env, "options.really_quit_discard");
    box.buttons = Buttons::kYesNo;
    box.icon = MessageIcon::kQuestion;
    box.topic = Topic::kDiscardChanges;
    if (env.interaction.ShowMessage(box) != Answer::kYes) return cancelled;
  }
  FileChooserRequest chooser;
  chooser.title = Text(env, "settings_file.title_load");
  chooser.filters = {{Text(env, "settings_file.filter") + " (*.twr)", "*.twr"}};
  chooser.default_extension = kSettingsFileExtension;
  chooser.start_folder = ReadOption(env.options, "SavePathIni", "");
  const std::optional<std::string> path = env.interaction.ChooseFile(chooser);
  if (!path || path->empty()) return cancelled;
  return LoadSettingsFile(env, *path, settings);
}

LoadSettingsResult LoadDefaultSettings(const LogUndoEnv& env, std::string_view path,
                                       RenameSettings& settings) {
  if (!FileExists(std::string(path))) {
    MessageBoxRequest box;
    box.title = Text(env, "settings_file.title_error");
    box.text = Text(env, "settings_file.default_file") + std::string(path) +
               Text(env, "settings_file.default_file_not_found");
    box.icon = MessageIcon::kExclamation;
    env.interaction.ShowMessage(box);
    SaveOptionValue(env.options, "NoSettingsFile", "1");
    SaveOptionValue(env.options, "SettingsFile", "0");
    SaveOptionValue(env.options, "SettingsFilePath", "");
    LoadSettingsResult result;
    result.outcome = Outcome::kNotFound;
    result.path = std::string(path);
    return result;
  }
  LoadSettingsResult result = LoadSettingsFile(env, path, settings);
  if (result.outcome != Outcome::kLoaded) return result;
  result.default_file_label =
      Text(env, "settings_file.current_default_file") + " " + LastPathElement(result.path);
  return result;
}

}  // namespace tarnwick
