#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "playlist/playlist_row.h"

namespace tarnwick {

// The `[playlist]` section of a PLS text as read: `NumberOfEntries` and the
// numbered keys. Section and key names are not case-sensitive; blanks around
// a key, and around the values of `File`, `Length` and `NumberOfEntries`, are
// dropped; a title is kept as it stands. A key that appears twice counts the
// first time, as in any initialisation file. Lines outside the section mean
// nothing.
struct PlsSection {
  bool found = false;              // a `[playlist]` header was there
  std::int64_t number_of_entries = 0;  // 0 when missing or not a number
  bool has_files = false;          // at least one `File<n>` key
};
PlsSection ScanPls(std::string_view text);

// The PLS reader: rows 1 to `NumberOfEntries`, each from `File<n>`,
// `Title<n>` and `Length<n>`, paths resolved against `folder` (see
// playlist_path.h). A number without a `File` key gives no row, so a
// `NumberOfEntries` far beyond the keys present costs nothing. Without
// `NumberOfEntries`, or with 0 or no number there, every `File` key counts. A row without a title is titled
// by its file name, as in an M3U file.
std::vector<PlaylistRow> ReadPls(std::string_view text, std::string_view folder);

// The PLS writer: "[playlist]", `File<n>`, `Title<n>` and `Length<n>` for
// each row counted from 1, "NumberOfEntries=" with the count and
// "Version=2", lines ending in LF.
std::string WritePls(const std::vector<PlaylistRow>& rows);

}  // namespace tarnwick
