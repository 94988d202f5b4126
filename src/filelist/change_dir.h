#pragma once

#include <chrono>
#include <cstddef>
#include <string_view>

#include "filelist/file_list_context.h"

namespace tarnwick {

// `ChangeDir`'s share of the core: the window reads its folder tree and fills
// the list; around that fill it calls these two.

// Before the fill of a newly chosen folder: a filter chosen for one folder
// does not carry over to the next, the list shows "*.*" again.
void BeginChangeDir(AppState& state);

// After the fill: the log's header and the line "Changed directory to: ..."
// with the number of rows and the time the change took (as a time of day,
// in the locale's long time format).
void LogChangedDir(FileListLog& log, const MessageTable& messages, std::string_view folder,
                   std::size_t rows, std::chrono::milliseconds took);

}  // namespace tarnwick
