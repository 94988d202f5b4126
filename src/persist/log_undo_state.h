#pragma once

#include <string>

namespace tarnwick {

// What the main window keeps for the log and the undo batch for the life of
// the process. Owned by the front end and handed to the writers by
// reference; `CreateDefaultPaths` fills the two folders at start-up.
struct LogUndoState {
  // Absolute paths of the default folders of undo batches and of the log.
  std::string DefaultUndoFolder;
  std::string DefaultLogFolder;
  // File name (no folder) of the current run's batch, with its ".bat".
  std::string UndoBatchName;
  // The stamped part of the batch's name; empty until the first run that
  // writes single files, and kept from run to run.
  std::string UndoTimeStamp;
  // The temporary copy of the old batch that the current run puts behind its
  // own lines at its end; empty when there is none.
  std::string UndoTemporaryCopy;
  // The current run's header has started the batch anew, so the old runs
  // saved in the temporary copy belong behind it at the run's end.
  bool UndoBatchStarted = false;
  // The program's own folder, where an older version kept "Favorites.twf".
  std::string ProgramFolder;
};

}  // namespace tarnwick
