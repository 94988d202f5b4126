#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "playlist/playlist_row.h"

namespace tarnwick {

class Random;

// The operations of the playlist editor on its rows, without questions or
// messages (playlist_commands.h asks and tells).

// True when the row's path names an existing file. A URL or a Windows path
// names none.
bool RowFileExists(const PlaylistRow& row);

// The check of rows `first` to `last` (inclusive): a missing row turns red
// and gets the tag "<DELETE>"; a row whose file is there again loses both.
// The ticks stay. Returns the number of missing rows.
std::size_t MarkMissingRows(std::vector<PlaylistRow>& rows, std::size_t first, std::size_t last);

// Removes the rows tagged "<DELETE>", from the last to the first. Returns how
// many went.
std::size_t RemoveTaggedRows(std::vector<PlaylistRow>& rows);

// Corrects one row from the tags of its file: `ReadID3v2` first, else
// `ReadID3v1`; the title becomes artist + " - " + title of the tag, and the
// length the MPEG reader's length (see LengthText) when it finds a frame. Returns false, leaving the
// row as it was, when the file has neither tag.
bool CorrectRow(PlaylistRow& row);

// The row of an added file: titled by its file name without the extension,
// with the length of an MP3 file (MPEG reader) or a WAV file (RIFF header),
// else "00:00"; with `correct` (the option `CorrectPlaylistFiles`) corrected
// from its tags as CorrectRow does. The tick is set.
PlaylistRow RowForFile(const std::string& path, bool correct);

// `RandomLongArray`: the numbers 1 to n in random order, each once, drawn
// from a pool seeded from `random`.
std::vector<std::int32_t> RandomLongArray(std::int32_t n, Random& random);

// The rows in the order of RandomLongArray.
void ShuffleRows(std::vector<PlaylistRow>& rows, Random& random);

// Moves the row at `index` one place up or down; false when it cannot move.
bool MoveRow(std::vector<PlaylistRow>& rows, std::size_t index, bool up);

// The rows as text for the clipboard: title, length and path, split by tabs,
// one row a line.
std::string RowsAsText(const std::vector<PlaylistRow>& rows);

// The music files of a folder (and its subfolders, when asked) that pass
// `FilterMedia`, sorted by path; links to folders are not followed.
std::vector<std::string> MediaFilesIn(const std::string& folder, bool subfolders);

}  // namespace tarnwick
