#pragma once

#include "core/run_context.h"

namespace tarnwick {

// The parts of a run, in the order StartRename calls them.

// The mode of `optCopyRename`: 0 rename, 1 copy, anything else test.
RunMode ModeOf(int opt_copy_rename);

// The checks and the confirmation before any file is touched. Returns false
// when one of them stopped the run; `result.stopped` and its message say
// which. Every box is shown through the interaction as it comes.
bool RunPreamble(RunContext& run);

// The run's set-up: the window's state, the counter, the order of the rows,
// the log's and the batch's headers, the random pool and the journal.
void SetUpRun(RunContext& run);

// The loop over the selected rows.
void RunFiles(RunContext& run);

// The end of the run: the journal, the older runs behind the batch, the
// window, the time, the test result list, the refill of the list.
void FinishRun(RunContext& run);

}  // namespace tarnwick
