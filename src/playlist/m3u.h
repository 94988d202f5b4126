#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "playlist/playlist_row.h"

namespace tarnwick {

// The M3U reader: the rows of a playlist text (already decoded, see
// playlist_text.h), paths resolved against `folder`, the playlist's folder.
//
// "#EXTM3U" is the head. "#EXTINF:" gives the length (left of the first ",")
// and the title (right of it) of the next path line only. Every other line
// that starts with "#" is a comment, and blank lines mean nothing. Any other
// line is a path. A path without an info line, or with an empty title in it,
// is titled by its file name without the extension; its length is "00:00".
std::vector<PlaylistRow> ReadM3u(std::string_view text, std::string_view folder);

// The M3U writer: "#EXTM3U", then for each row "#EXTINF:" seconds "," title
// and the path, lines ending in LF. A line break in a title becomes a blank,
// as a title is one line. A path with a line break cannot be written: see
// FirstUnstorableRow.
std::string WriteM3u(const std::vector<PlaylistRow>& rows);

// The index of the first row whose path holds a line break (such a path
// cannot stand in either format), or -1.
long FirstUnstorableRow(const std::vector<PlaylistRow>& rows);

// The title as one line: CR and LF become blanks.
std::string OneLine(std::string_view text);

}  // namespace tarnwick
