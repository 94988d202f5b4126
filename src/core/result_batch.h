#pragma once

#include <optional>
#include <string>
#include <vector>

#include "shell/interaction_dialogs.h"

namespace tarnwick {

// The batch of the renames a test run lists: "@echo off", then for each row
// whose name changes a line `move "OLD" "NEW"` with full paths. A row without
// a usable new name becomes a `rem` line holding both names; unchanged rows
// are left out. Names a batch cannot carry safely become comments in the
// escaped form of the undo batch. Lines end with CR LF.
std::string ResultListBatch(const std::vector<TestResultRow>& rows);

// Writes ResultListBatch to `path`, replacing the file the user chose.
// Returns the reason when the file cannot be written.
std::optional<std::string> SaveResultListBatch(const std::string& path,
                                               const std::vector<TestResultRow>& rows);

}  // namespace tarnwick
