#pragma once

#include <ostream>
#include <span>
#include <string>

#include "startup/headless_host.h"

namespace tarnwick::gui {

// Exit status of "tarnwick".
inline constexpr int kExitOk = 0;
inline constexpr int kExitFilesFailed = 1;  // files failed, or the run was stopped
inline constexpr int kExitBadStart = 2;     // bad command line or unreadable settings file

// The program without its window: "SETTINGS.twr -d" runs start-up headless,
// applies the file and renames unattended; any other command line is
// refused, as the desktop window is not built yet. Questions get the
// command line's default answers and are written to the log.
int RunTarnwick(std::span<const std::string> args, std::ostream& err);

// The run of an unattended start: `StartRename` in batch mode on the list.
BatchRunOutcome RunBatchRename(const LogUndoEnv& env, RenameSettings& settings, FileList& list,
                               FileListLoader& loader);

}  // namespace tarnwick::gui
