// Moves and copies of a run, with the journal kept before each of them.
#include "core/run_file_ops.h"

#include "base/path_text.h"
#include "platform/files.h"
#include "platform/temp_files.h"

namespace tarnwick {
namespace {

[[noreturn]] void Raise(const FileStatus& status) { throw status.ToVbError(); }

// The record before a step; without it the step is not done.
void Announce(RunContext& run, JournalStepKind kind, const std::string& from,
              const std::string& to) {
  if (!run.journal) return;
  const FileStatus status = run.journal->RecordStep({kind, from, to});
  if (!status.ok()) Raise(status);
}

// A failed step leaves nothing for the undo batch: the file is settled, and
// the error goes to the run's handler.
[[noreturn]] void Fail(RunContext& run, const FileStatus& status) {
  SettleSteps(run);
  Raise(status);
}

// A free name in the file's folder for the first step of a change of case.
// Nothing is created for it, so a run killed here leaves no stray file.
std::string FreeTemporaryName(const std::string& folder) {
  const FileResult<std::filesystem::path> name = FreeTempName(folder, "~VB");
  if (!name.ok()) Raise(name.status());
  return name.value().string();
}

}  // namespace

void SettleSteps(RunContext& run) {
  if (run.journal) run.journal->RecordDone();
}

void RunMove(RunContext& run, const std::string& from, const std::string& to) {
  Announce(run, JournalStepKind::kMove, from, to);
  const FileStatus status = MoveFileNoReplace(from, to);
  if (!status.ok()) Fail(run, status);
}

void RunMoveThroughTemporaryName(RunContext& run, const std::string& from, const std::string& to) {
  const std::string temporary = FreeTemporaryName(ParentFolder(from));
  Announce(run, JournalStepKind::kMove, from, temporary);
  FileStatus status = MoveFileNoReplace(from, temporary);
  if (!status.ok()) Fail(run, status);
  try {
    Announce(run, JournalStepKind::kMove, temporary, to);
    status = MoveFileNoReplace(temporary, to);
  } catch (const VbError& error) {
    status = {error.number(), error.description()};
  }
  if (status.ok()) return;
  // Back to the name it came with; should that fail as well, the batch
  // gets the line that brings it back from the temporary name.
  if (run.journal) run.journal->RecordStep({JournalStepKind::kMove, temporary, from});
  if (!MoveFileNoReplace(temporary, from).ok()) run.undo.WriteUndoEntry(from, temporary, "move");
  Fail(run, status);
}

void RunCopy(RunContext& run, const std::string& from, const std::string& to) {
  Announce(run, JournalStepKind::kCopy, from, to);
  const FileStatus status = CopyFile(from, to, false);
  if (!status.ok()) Fail(run, status);
}

}  // namespace tarnwick
