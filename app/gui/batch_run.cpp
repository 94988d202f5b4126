#include "core/start_rename.h"
#include "media/media_readers.h"
#include "persist/log_undo_env.h"
#include "unattended_start.h"

namespace tarnwick::gui {

// The run of an unattended start: every row of the list is selected already;
// BatchMode asks no confirmation. The process ends after it, so the list is
// not filled again.
BatchRunOutcome RunBatchRename(const LogUndoEnv& env, RenameSettings& settings, FileList& list,
                               FileListLoader& loader) {
  const MediaReaders media;
  const RenameRunResult result = StartRename({env.app, settings, list, env.options, env.interaction,
                                              env.messages, env.clock, env.state, media});
  BatchRunOutcome outcome;
  outcome.ran = true;
  outcome.stopped = result.stopped && !result.cancelled;
  outcome.stop_message = result.stop_message;
  outcome.mode = result.mode;
  outcome.done = result.done;
  outcome.failed = result.failed;
  outcome.skipped = result.skipped;
  outcome.cancelled = result.cancelled;
  return outcome;
}

}  // namespace tarnwick::gui
