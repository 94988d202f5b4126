#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

class RunLog;
struct LogUndoEnv;

// The program's folders below the user's data folder (the base folder):
//   base/Oakhollow                              maker
//   base/Oakhollow/Tarnwick                     program
//   base/Oakhollow/Tarnwick/Log Files           default log folder
//   base/Oakhollow/Tarnwick/Undo Files          default undo folder
//   base/Oakhollow/Tarnwick/Rename Settings     default settings folder
//   base/Oakhollow/Tarnwick/Favorites           favorites
struct ProgramFolders {
  std::string maker;
  std::string program;
  std::string log;
  std::string undo;
  std::string settings;
  std::string favorites;
};

ProgramFolders ProgramFoldersUnder(std::string_view base_folder);

// The base folder on Linux: $XDG_DATA_HOME when it is an absolute path, else
// ~/.local/share. The fallback, used when that folder does not exist and
// cannot be made (a fresh account may not have ~/.local/share yet), is the
// home folder.
std::string UserDataBaseFolder();
std::string UserDataFallbackFolder();

// Start-up step before any other log or undo writer:
//   1. Takes `base_folder`; when it does not exist it is made with its
//      parents, and when that fails `fallback_folder` is used instead.
//   2. Makes each missing folder of ProgramFolders, in the order above.
//   3. Sets DefaultLogFolder and DefaultUndoFolder of the state.
//   4. An `UndoFilePath` with an extension (an older version named a file
//      there) becomes DefaultUndoFolder.
//   5. A `LogFilePath` whose folder does not exist becomes DefaultLogFolder
//      + "/Tarnwick.log".
//   6. An `UndoFilePath` whose parent folder does not exist becomes
//      DefaultUndoFolder.
//   7. "Favorites.twf" in the program's own folder is copied to the
//      favorites folder unless one stands there already, with a log line.
// Nothing is shown to the user; a folder that cannot be made is left out.
// Returns the folders used.
ProgramFolders CreateDefaultPaths(const LogUndoEnv& env, RunLog& log, std::string_view base_folder,
                                  std::string_view fallback_folder);

}  // namespace tarnwick
