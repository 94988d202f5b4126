#include "persist/default_paths.h"

#include "base/path_text.h"
#include "persist/log_date_text.h"
#include "persist/log_file.h"
#include "persist/log_options.h"
#include "persist/log_undo_env.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "platform/files.h"
#include "platform/user_folders.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kFavoritesFile = "Favorites.twf";

std::string ChooseBase(std::string_view base_folder, std::string_view fallback_folder) {
  const std::string base(base_folder);
  if (FolderExists(base)) return base;
  if (!base.empty() && CreateFolders(base).ok()) return base;
  return std::string(fallback_folder);
}

void MakeFolders(const ProgramFolders& folders) {
  for (const std::string* folder : {&folders.maker, &folders.program, &folders.log, &folders.undo,
                                    &folders.settings, &folders.favorites}) {
    if (!FolderExists(*folder)) CreateFolder(*folder);
  }
}

bool ParentExists(std::string_view path) { return FolderExists(ParentFolder(path)); }

void FixStaleOptions(OptionStore& options, const LogUndoState& state) {
  if (!ExtensionName(ReadOption(options, "UndoFilePath", state.DefaultUndoFolder)).empty()) {
    SaveOptionValue(options, "UndoFilePath", state.DefaultUndoFolder);
  }
  if (!ParentExists(ReadOption(options, "LogFilePath", DefaultLogFilePath(state)))) {
    SaveOptionValue(options, "LogFilePath", DefaultLogFilePath(state));
  }
  if (!ParentExists(ReadOption(options, "UndoFilePath", state.DefaultUndoFolder))) {
    SaveOptionValue(options, "UndoFilePath", state.DefaultUndoFolder);
  }
}

void MoveFavorites(const ProgramFolders& folders, const LogUndoEnv& env, RunLog& log) {
  const LogUndoState& state = env.state;
  if (state.ProgramFolder.empty()) return;
  const std::string old_file = JoinPath(state.ProgramFolder, kFavoritesFile);
  const std::string new_file = JoinPath(folders.favorites, kFavoritesFile);
  if (!FileExists(old_file) || FileExists(new_file)) return;
  const MessageTable& texts = env.messages;
  log.WriteLogFileTool(texts.Text("log.subject_create_default_paths"),
                       std::string(texts.Text("log.copy_favorites")) + log.NowText() + "]");
  CopyFile(old_file, new_file, false);
}

}  // namespace

ProgramFolders ProgramFoldersUnder(std::string_view base_folder) {
  ProgramFolders folders;
  folders.maker = JoinPath(base_folder, "Oakhollow");
  folders.program = JoinPath(folders.maker, "Tarnwick");
  folders.log = JoinPath(folders.program, "Log Files");
  folders.undo = JoinPath(folders.program, "Undo Files");
  folders.settings = JoinPath(folders.program, "Rename Settings");
  folders.favorites = JoinPath(folders.program, "Favorites");
  return folders;
}

std::string UserDataBaseFolder() { return DataFolder().parent_path().parent_path().string(); }

std::string UserDataFallbackFolder() { return HomeFolder().string(); }

ProgramFolders CreateDefaultPaths(const LogUndoEnv& env, RunLog& log, std::string_view base_folder,
                                  std::string_view fallback_folder) {
  LogUndoState& state = env.state;
  const std::string base = ChooseBase(base_folder, fallback_folder);
  const ProgramFolders folders = ProgramFoldersUnder(AbsolutePath(base));
  MakeFolders(folders);
  state.DefaultLogFolder = folders.log;
  state.DefaultUndoFolder = folders.undo;
  FixStaleOptions(env.options, state);
  MoveFavorites(folders, env, log);
  return folders;
}

}  // namespace tarnwick
