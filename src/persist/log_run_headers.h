#pragma once

namespace tarnwick {

class RunLog;
class UndoBatch;

// Called once by a run after PrepareUndoBatchName and before the first file is
// touched: the log's run header (RunLog::WriteRunLogHeader) and the start of
// the undo batch (UndoBatch::WriteUndoBatchHeader). `selected_count` is the
// number of selected rows, `copy_rename_index` the run's mode (0 rename,
// 1 copy, 2 test). Shows nothing: failures are left for the first entry.
void WriteRunHeaders(RunLog& log, UndoBatch& undo, int selected_count, int copy_rename_index);

}  // namespace tarnwick
