#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_status.h"
#include "playlist/playlist_row.h"

namespace tarnwick {

// A playlist file larger than this is not read: no real playlist comes near
// it (100,000 titles take some 20 MiB).
inline constexpr std::size_t kMaxPlaylistFileSize = 256u << 20;

// The format of a playlist text: "M3U", "PLS" or the empty text.
//
// A line "#EXTM3U" gives "M3U"; a `[playlist]` section whose
// `NumberOfEntries` is above 0 gives "PLS". Beyond that the name decides for
// files that lack those marks: a ".m3u" or ".m3u8" file is M3U (plain lists
// of paths have no head), a ".pls" file with a `[playlist]` section is PLS.
// A text with a NUL byte is never a playlist.
std::string DetectPlaylistFormat(std::string_view text, std::string_view file_name);

// The rows of a decoded playlist text in the detected format.
std::vector<PlaylistRow> ReadPlaylistText(std::string_view text, std::string_view format,
                                          std::string_view folder);

struct PlaylistLoad {
  // Set when the file could not be read (53 not found, 70 permission ...).
  FileStatus status;
  // "M3U" or "PLS"; empty when the file is no supported playlist.
  std::string format;
  std::vector<PlaylistRow> rows;
  bool ok() const { return status.ok() && !format.empty(); }
};

// Reads a playlist file: its bytes decoded (see playlist_text.h), its format
// detected, its relative entries taken from its own folder.
PlaylistLoad LoadPlaylist(const std::filesystem::path& file);

// "PLS" for a ".pls" name (any case), else "M3U".
std::string FormatForName(std::string_view file_name);

// The text of a playlist file in `format`, encoded for its name.
std::string PlaylistFileBytes(const std::vector<PlaylistRow>& rows, std::string_view format,
                              std::string_view file_name);

struct PlaylistSave {
  FileStatus status;
  // The first row whose path holds a line break; nothing is written then.
  long unstorable_row = -1;
  bool ok() const { return status.ok() && unstorable_row < 0; }
};

// Writes the rows in the format of the file's name. The file is replaced as a
// whole (a new file written and synced, then renamed over the old one), so a
// failure leaves the old playlist whole; an existing file keeps its
// permission bits. The caller has asked before replacing a file.
PlaylistSave SavePlaylist(const std::filesystem::path& file, const std::vector<PlaylistRow>& rows);

}  // namespace tarnwick
