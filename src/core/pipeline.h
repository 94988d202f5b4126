#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/vb_error.h"
#include "core/pipeline_env.h"

namespace tarnwick {

// What became of one file.
struct ProcessFileResult {
  // The name to use; the empty text means: skip this file.
  std::string name;
  // A step raised a run-time error (an overflow of the counter, a cut longer
  // than the name after an earlier action, a name the file system cannot
  // take, "." or ".."). The pipeline stopped at that step; the caller's error
  // handler reports it. `name` is then empty.
  std::optional<VbError> error;
  // With `PipelineEnv::defer_taken_check`: the name was not checked against
  // the folder; whoever takes it must treat a taken name as DecideCollision
  // does.
  bool name_unchecked = false;
};

// The whole name pipeline for one file: the row `row` of `env.list`, whose
// present name is `name` and whose folder is `folder` (the row's absolute
// folder). `name` is passed in and out: on return it holds the processed
// name, also when the result is a skip.
//
// Steps: the short-name checks (a file whose name is too short for a cut is
// asked about and keeps its name, without using up a number); the ten
// actions in the order of `SortOrderInternal1` to `SortOrderInternal10`, each
// followed by placeholder expansion and the illegal-character clean-up; the
// MP3 guard; the collision decision and the open-file test (not in test
// mode); and the counter step. Questions go through `env.interaction`;
// `CancelRun`, `FileLockSeen`, `CurrentCount` and `SameNumberCount` of
// `env.app` change. Nothing is thrown.
ProcessFileResult ProcessFile(const PipelineEnv& env, std::string& name, std::size_t row,
                              std::string_view folder);

// One action (code 1 to 10, see action_order.h) on `name` for the row, when its
// tick is set, then, ticked or not, the expansion of `name` and the
// illegal-character clean-up, with a log line when the clean-up changed
// anything. A code outside 1 to 10 only cleans up. Nothing is thrown.
ProcessFileResult ProcessFileOrder(const PipelineEnv& env, std::string& name, std::size_t row,
                                   std::string_view folder, int action_code);

// True if `text` occurs (binary comparison) in `txtCompleteName`,
// `txtExtension`, `txtReplaceChars`, `txtPrefix`, `txtPostfix`,
// `txtSearchString`, `txtReplaceString` or `txtUsePlaceholder`.
bool CheckForValidFields(const RenameSettings& settings, std::string_view text);

}  // namespace tarnwick
