#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "playlist/playlist_row.h"

namespace tarnwick {

// What the search for lost files reports while it walks, and at its end.
struct LostFilesProgress {
  std::string folder;  // the folder being searched
  std::size_t folders = 0;
  std::size_t files = 0;
  std::size_t found = 0;
  std::string file;  // the file just looked at
};

// Called for each file looked at; returning false stops the search (Esc).
using LostFilesObserver = std::function<bool(const LostFilesProgress&)>;

// The search for lost files (`mnuGetOprhanFiles`). The rows whose file is
// missing are looked for in `folder`, and in its subfolders when asked
// ("." and ".." skipped; links to folders are not followed, so a loop of
// links cannot hold the search). For each file of a media type, a missing
// row matches, without regard to case:
//   1. its title equals "artist - title" of the file's tags (ID3v2, else
//      ID3v1);
//   2. failing that, the file name of its old path equals the file's name;
//   3. failing that, its title equals the file's name without the extension.
// The first missing row that matches takes the file's path, loses red and
// tag, and is no longer looked for. Rows still missing at the end are marked
// red. Tags are only read while a row is still missing.
LostFilesProgress FindLostFiles(std::vector<PlaylistRow>& rows, const std::string& folder,
                                bool subfolders, const LostFilesObserver& observer);

}  // namespace tarnwick
