#pragma once

#include <string_view>

#include "persist/log_undo_env.h"
#include "platform/file_status.h"

namespace tarnwick {

// Which writer failed.
enum class FailedWriter { kLog, kUndo };

// Tells the user that the log (or the undo batch) at `path` cannot be written
// and offers to switch that writer off: title "Logfile" (for both), Yes and
// No with an exclamation mark, text
//   "Logfile can't be written." CR LF number ": " description CR LF
//   "(" path ")" CR LF CR LF "Would you like to disable logging?"
// (for the batch "Undofile can't be written." and "Would you like to disable
// undo?"). Yes stores "0" as `WriteLogFile` (or `WriteUndoList`). The work
// goes on either way.
void OfferToSwitchOff(const LogUndoEnv& env, FailedWriter writer, const FileStatus& status,
                      std::string_view path);

}  // namespace tarnwick
