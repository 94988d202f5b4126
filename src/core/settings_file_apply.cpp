#include <string>

#include "base/vb_error.h"
#include "base/vb_number.h"
#include "core/settings_file.h"
#include "core/settings_file_items.h"
#include "persist/log_undo_env.h"
#include "persist/option_store.h"
#include "persist/xml_configuration.h"
#include "platform/files.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kAllFiles = "*.*";
constexpr int kActionItems = 10;

// The root of the saved folder's file system, where the list goes when that
// folder has gone (a drive root such as "C:\" where drives exist).
std::string RootOf(std::string_view folder) {
  if (folder.size() >= 3 && folder[1] == ':' && (folder[2] == '\\' || folder[2] == '/')) {
    return std::string(folder.substr(0, 3));
  }
  return "/";
}

void ApplyControls(const XMLConfiguration& file, RenameSettings& settings) {
  for (const std::string_view name : SettingsFileControlNames()) {
    if (name == "cboExtension") continue;
    const std::string value = file.ReadValue(kDefaultsSection, name);
    if (name == "txtStep") {
      SetRenameSetting(settings, name, vb::CStr(vb::Val(value)));
      continue;
    }
    SetRenameSetting(settings, name, value);
  }
}

// An older file without some of the items stores empty values, which read
// as the defaults: the standard order.
void ApplyActionOrder(const XMLConfiguration& file, OptionStore& options) {
  for (int n = 1; n <= kActionItems; ++n) {
    for (const char* stem : {"SortOrderName", "SortOrderInternal"}) {
      const std::string key = stem + std::to_string(n);
      options.SaveOption(key, "Options", file.ReadValue(kDefaultsSection, key));
    }
  }
}

void ApplyRadioGroups(const XMLConfiguration& file, RenameSettings& settings) {
  for (const RadioGroup& group : SettingsFileRadioGroups()) {
    for (int i = 0; i < group.buttons; ++i) {
      const std::string item = std::string(group.field) + std::to_string(i);
      if (file.ReadValue(kDefaultsSection, item) != "1") continue;
      SetRenameSetting(settings, group.field, std::to_string(i));
      break;
    }
  }
}

void ApplyFilter(const XMLConfiguration& file, RenameSettings& settings, AppState& app) {
  const std::string filter = file.ReadValue(kDefaultsSection, "cboExtension");
  if (filter.empty() || filter == kAllFiles) return;
  settings.cboExtension = filter;
  app.CurrentFilter = filter;
}

// False when the saved folder is gone.
bool ApplyFolder(const LogUndoEnv& env, const XMLConfiguration& file, RenameSettings& settings) {
  const std::string folder = file.ReadValue(kDefaultsSection, "CurrentDir");
  if (folder.empty()) return true;
  if (FolderExists(folder)) {
    env.app.CurrentPath = folder;
    return true;
  }
  MessageBoxRequest box;
  box.title = env.messages.Text("settings_file.title_folder");
  box.text = std::string(env.messages.Text("settings_file.the_saved_directory")) + folder +
             std::string(env.messages.Text("settings_file.directory_gone"));
  box.icon = MessageIcon::kExclamation;
  env.interaction.ShowMessage(box);
  env.app.CurrentPath = RootOf(folder);
  env.app.CurrentFilter = kAllFiles;
  settings.cboExtension = kAllFiles;
  return false;
}

}  // namespace

bool ApplySettingsFile(const LogUndoEnv& env, std::string_view path, RenameSettings& settings) {
  XMLConfiguration file;
  file.Encryption(true);
  // A missing file would read as a file of empty items and clear every
  // control; it is an error instead.
  if (!file.LoadConfigurationFile(path, false)) {
    throw VbError(vb_error::kFileNotFound, "File not found");
  }
  ApplyControls(file, settings);
  ApplyActionOrder(file, env.options);
  ApplyRadioGroups(file, settings);
  ApplyFilter(file, settings, env.app);
  return ApplyFolder(env, file, settings);
}

}  // namespace tarnwick
