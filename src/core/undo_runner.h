#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/journal_recovery.h"
#include "persist/undo_line.h"
#include "platform/file_status.h"

namespace tarnwick {

// --- Reading a batch. ---------------------------------------------------------

// One line of a batch that names files, with its 1-based line number.
struct UndoBatchEntry {
  int line_number = 0;
  UndoLine line;
};

// The runs of a batch, newest first, as the batch holds them: each run's
// section begins with its own "@echo off"; lines before the first one form a
// run of their own.
struct UndoBatchText {
  std::vector<std::vector<UndoBatchEntry>> runs;
};

// Reads the bytes of a batch; lines may end in CR LF or LF. Never fails:
// lines that name no files are left out.
UndoBatchText ReadUndoBatchText(std::string_view bytes);

// The bytes of a batch without its newest run, which stands first: from the
// "@echo off" that opens the second run on (nothing when there is one run).
std::string_view WithoutNewestRun(std::string_view bytes);

// --- Carrying a batch out. ----------------------------------------------------

struct UndoRunOptions {
  bool dry_run = false;  // only tell what would be done
  int runs = 0;          // the newest N runs only; 0 for all
};

enum class UndoStepOutcome {
  kDone,     // moved back, or the copy removed
  kWouldDo,  // dry run: the step could be done now
  kFailed,   // the step cannot be or was not done; see `status`
  kSkipped,  // a comment line of a test run
};

struct UndoStep {
  int run = 0;  // 1 for the newest run
  int line_number = 0;
  UndoLine line;
  UndoStepOutcome outcome = UndoStepOutcome::kSkipped;
  FileStatus status;
};

struct UndoReport {
  // The batch could not be read; nothing was done.
  FileStatus status;
  // Journals of interrupted runs of this batch, completed first.
  std::vector<JournalRecovery> recoveries;
  int runs_in_batch = 0;
  int runs_done = 0;
  int done = 0;
  int failed = 0;
  int skipped = 0;
};

// `tarnwick-cli undo`: carries out the "move" and "del" lines of an undo
// batch, newest run first, each run's lines from its last to its first, so
// that a file that took over the former name of another is moved on before
// the other comes back. Nothing is ever overwritten: a "move" whose target
// name is taken fails and leaves both files as they are. A path that is not
// absolute, or that ends in "." or "..", is refused. "rem" lines are
// skipped. Journals left by an interrupted run of this batch are completed
// first (in a dry run, only in what is shown: nothing is written). Each line
// is handed to `on_step` as it is dealt with.
UndoReport RunUndoBatch(const std::filesystem::path& batch, const UndoRunOptions& options,
                        const std::function<void(const UndoStep&)>& on_step);

// Takes the newest run out of the batch after it was undone, so that the
// next undo reaches the run before it. A batch left without a run is
// deleted. The old batch is replaced whole or not at all.
FileStatus DropNewestUndoRun(const std::filesystem::path& batch);

}  // namespace tarnwick
