#include "unattended_start.h"

namespace tarnwick::gui {

// The rename run of an unattended start. Until the run itself is part of the
// core, the batch reports that it could not begin and no file is touched.
BatchRunOutcome RunBatchRename(const LogUndoEnv& env, RenameSettings& settings, FileList& list,
                               FileListLoader& loader) {
  BatchRunOutcome outcome;
  outcome.stopped = true;
  outcome.stop_message = "the rename run is not part of this build";
  return outcome;
}

}  // namespace tarnwick::gui
