#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/file_status.h"

namespace tarnwick {

class OptionStore;
struct LogUndoState;

// What became of one journal left behind by a run.
struct JournalRecovery {
  enum class Outcome {
    kCompleted,       // the batch is complete and the journal removed
    kRunStillActive,  // a live run holds the journal: left alone
    kUnreadable,      // not a journal this program wrote: left alone
    kFailed,          // the batch could not be written: the journal stays
  };
  std::filesystem::path journal;
  std::string batch_path;
  Outcome outcome = Outcome::kCompleted;
  // The undo lines put behind the batch's last line, without line ends.
  std::vector<std::string> lines_added;
  // The older runs were put behind this run's lines.
  bool older_runs_appended = false;
  FileStatus status;
};

// Completes the undo batch of a run that was killed, from its journal:
//   1. The file the run was working on when it stopped: where its record
//      says it was moved and the disk shows it was, the batch gets the line
//      that takes it back to the name it had before the run (also from the
//      temporary name of a change of case); a copy that was made gets its
//      "del" line. A line the batch already ends with is not added again.
//   2. In appending mode the older runs are put behind the batch (where the
//      run had begun to do so, what it had put there is replaced).
//   3. The journal is removed.
// Afterwards the batch takes every file of the run back, by `tarnwick-cli
// undo` or by hand. A journal that a live run holds is left alone.
JournalRecovery CompleteInterruptedRun(const std::filesystem::path& journal);

// What the batch will hold once `journal` is completed, worked out without
// writing anything: `batch_bytes` (the batch as it is now) with the missing
// line and the older runs. A journal that is held by a live run or cannot
// be read changes nothing.
std::string PreviewCompletedBatch(const std::filesystem::path& journal, std::string batch_bytes);

// Completes each journal of the list in turn (see journal.h for finding them).
std::vector<JournalRecovery> CompleteInterruptedRuns(
    const std::vector<std::filesystem::path>& journals);

// At start-up, after CreateDefaultPaths and before the first run: completes
// the journals left in the undo folder (`UndoFilePath`), and in the
// program's own undo folder, by runs that were killed.
std::vector<JournalRecovery> CompleteInterruptedRunsAtStart(const OptionStore& options,
                                                            const LogUndoState& state);

}  // namespace tarnwick
