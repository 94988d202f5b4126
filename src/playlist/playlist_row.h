#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// The tag of a row that a check found missing.
inline constexpr std::string_view kDeleteTag = "<DELETE>";

// One title of a playlist: the row of the editor's list. `length` is the
// column text ("03:35", "1:02:03"; "00:00" when unknown), `path` the file's
// full path, or the entry as it stood when it names no local file (a URL, a
// Windows path). `checked` is the row's tick, `tag` "<DELETE>" or empty,
// `red` the colour a check or a search for lost files gives a missing row.
struct PlaylistRow {
  std::string title;
  std::string length;
  std::string path;
  bool checked = true;
  bool red = false;
  std::string tag;

  // Rows are the same title when the three texts are; tick and marks are the
  // editor's state, not the playlist's.
  bool SameEntry(const PlaylistRow& other) const {
    return title == other.title && length == other.length && path == other.path;
  }
};

}  // namespace tarnwick
