#pragma once

#include <string>

#include "core/run_context.h"

namespace tarnwick {

// The file system steps of a run, each announced in the run's journal before
// it happens (a step whose record cannot be written is not done) and none
// ever replacing a file. Each raises the step's run-time error (58 for a
// taken name, 70 for a refusal, 61 for a full disk ...); the journal then
// holds the file as settled, since nothing is left for its undo line.

// Moves `from` to `to`.
void RunMove(RunContext& run, const std::string& from, const std::string& to);

// Moves `from` to `to` when both are one name in upper case (a change of
// case, or the same name), through a free temporary name in the same folder.
// Should the second move fail, the file goes back to `from`.
void RunMoveThroughTemporaryName(RunContext& run, const std::string& from, const std::string& to);

// Copies `from` to `to`.
void RunCopy(RunContext& run, const std::string& from, const std::string& to);

// The move or copy to a name that was not checked beforehand. False, with
// nothing done, when a regular file of that name is there already (the
// caller asks what to do, as for a name found taken before); any other
// failure goes to the run's handler as with RunMove and RunCopy.
bool RunMoveUnlessTaken(RunContext& run, const std::string& from, const std::string& to);
bool RunCopyUnlessTaken(RunContext& run, const std::string& from, const std::string& to);

// The file's undo line is written (or needs none): its steps are settled.
// `deferred`: the record may wait for the next one (see RunJournal).
void SettleSteps(RunContext& run, bool deferred = false);

}  // namespace tarnwick
