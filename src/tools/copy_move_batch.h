#pragma once

#include <string>
#include <vector>

#include "tools/copy_move.h"

namespace tarnwick {

// One file of the script: where it is and where it would go.
struct BatchFile {
  std::string source;
  std::string target;
};

// The script `chkCreateBatchOnly` writes: its header (echo off, the line
// "Batchfile created with Tarnwick on ..." with `now` and the number of
// files, the warning, a pause) and for each file a progress line and the
// copy or move command, every line ended by CR LF and in the batch's text
// (`ToOemText`).
std::string CopyMoveBatchText(const RenameRunEnv& env, bool move, const std::string& now,
                              const std::vector<BatchFile>& files);

// Writes the script of the selected rows to `choices.batch_path`: a new file,
// or appended to the one there with `append_batch` (a second header then
// stands in the middle). No file of the list is touched. A script that
// cannot be written is one failure.
ToolJobResult WriteCopyMoveBatch(const RenameRunEnv& env, const CopyMoveChoices& choices);

}  // namespace tarnwick
