#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "playlist/playlist_row.h"

namespace tarnwick {

class OptionStore;
struct PlaylistUi;

enum class CopyTitlesMode { kCopy, kMove };

// How a copy or move of titles ended.
struct CopyTitlesResult {
  std::size_t done = 0;
  std::size_t missing = 0;                // ticked rows whose file is not there
  std::vector<std::string> existing;      // targets already there, left alone
  std::vector<std::string> failed;        // "path: error" of other failures
  bool cancelled = false;
};

// What the walk shows: the row's number, the row count and the file, or
// `missing` for a row whose file is not there. Returning false stops (Esc).
using CopyTitlesObserver =
    std::function<bool(std::size_t number, std::size_t total, const std::string& path,
                       bool missing)>;

// Copies or moves the files of the ticked rows, in list order, into `folder`
// under their own names. An existing file is never replaced: it is counted
// and left as it is. A move that crosses file systems copies, flushes and
// then removes the source. Kept: after a move the rows keep their old paths.
CopyTitlesResult CopyPlaylistTitles(const std::vector<PlaylistRow>& rows,
                                    const std::string& folder, CopyTitlesMode mode,
                                    const CopyTitlesObserver& observer);

// `cmdCopyFiles` and `cmdMoveFiles`: with rows, asks for the folder ("Please
// select folder", starting at `StartDir` of the section `Playlist`, which
// keeps the answer), shows "Copying:" or "Moving:" with "[i/n] name ..." and
// the progress bar, "File doesn't exist:" for a missing file, and ends with
// "Action successfull!" or the count of files not found, plus what was
// already there and what failed.
void CopyTitles(const std::vector<PlaylistRow>& rows, CopyTitlesMode mode, OptionStore& options,
                PlaylistUi ui);

}  // namespace tarnwick
