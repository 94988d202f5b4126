#include "playlist/playlist_rows.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>

#include "base/random.h"
#include "base/random_pool.h"
#include "base/text.h"
#include "base/vb_error.h"
#include "media/audio_length.h"
#include "media/id3_v1.h"
#include "media/id3_v2_read.h"
#include "media/media_file.h"
#include "media/mpeg_info.h"
#include "platform/files.h"
#include "playlist/media_types.h"
#include "playlist/playlist_length.h"
#include "playlist/playlist_path.h"

namespace tarnwick {
namespace {

// The length of an MP3 file by the MPEG reader; nothing when it finds no
// frame.
std::optional<std::string> Mp3Length(const MediaFile& file) {
  MPEGInfo info;
  try {
    if (!ReadMPEGInfo(file, info)) return std::nullopt;
  } catch (const VbError&) {
    return std::nullopt;
  }
  return LengthText(info.length);
}

std::optional<std::string> Mp3Length(const std::string& path) {
  return Mp3Length(MediaFile(path, MediaFile::Mode::kRead));
}

}  // namespace

bool RowFileExists(const PlaylistRow& row) {
  return !row.path.empty() && row.path.front() == '/' && FileExists(row.path);
}

std::size_t MarkMissingRows(std::vector<PlaylistRow>& rows, std::size_t first, std::size_t last) {
  std::size_t missing = 0;
  for (std::size_t i = first; i <= last && i < rows.size(); ++i) {
    PlaylistRow& row = rows[i];
    const bool gone = !RowFileExists(row);
    row.red = gone;
    row.tag = gone ? std::string(kDeleteTag) : std::string();
    missing += gone ? 1 : 0;
  }
  return missing;
}

std::size_t RemoveTaggedRows(std::vector<PlaylistRow>& rows) {
  return std::erase_if(rows, [](const PlaylistRow& row) { return row.tag == kDeleteTag; });
}

bool CorrectRow(PlaylistRow& row) {
  // One opening of the file serves the tags and the stream.
  if (row.path.empty() || row.path.front() != '/') return false;
  const MediaFile file(row.path, MediaFile::Mode::kRead);
  if (!file.is_open()) return false;
  std::string artist;
  std::string title;
  ID3v2Tag v2;
  ID3v1Tag v1;
  if (ReadID3v2(file, v2)) {
    artist = StripAtNull(v2.artist);
    title = StripAtNull(v2.title);
  } else if (ReadID3v1(file, v1)) {
    artist = StripAtNull(v1.artist);
    title = StripAtNull(v1.title);
  } else {
    return false;
  }
  row.title = artist + " - " + title;
  // A file without MPEG frames (a tagged WAV) keeps the length it had.
  if (std::optional<std::string> length = Mp3Length(file)) row.length = *length;
  return true;
}

PlaylistRow RowForFile(const std::string& path, bool correct) {
  PlaylistRow row;
  row.path = path;
  row.title = TitleFromPath(path);
  const std::string extension = GetFileExt(path);
  if (extension == "mp3") {
    row.length = Mp3Length(path).value_or(std::string(kUnknownLength));
  } else if (extension == "wav") {
    const double seconds = MCILengthWAV(path);
    row.length = LengthText(seconds > 0 ? static_cast<std::int64_t>(seconds) : 0);
  } else {
    row.length = std::string(kUnknownLength);
  }
  if (correct) CorrectRow(row);
  return row;
}

std::vector<std::int32_t> RandomLongArray(std::int32_t n, Random& random) {
  RandomPool pool;
  pool.Build(1, n, static_cast<std::uint64_t>(random.Rnd() * 9007199254740992.0));
  std::vector<std::int32_t> order;
  order.reserve(pool.size());
  for (std::size_t i = 0; i < pool.size(); ++i) {
    order.push_back(pool.Next());
    pool.Advance(1);
  }
  return order;
}

void ShuffleRows(std::vector<PlaylistRow>& rows, Random& random) {
  if (rows.size() < 2) return;
  // The rows go to a second list in the drawn order and come back from it.
  std::vector<PlaylistRow> shuffled;
  shuffled.reserve(rows.size());
  for (std::int32_t number : RandomLongArray(static_cast<std::int32_t>(rows.size()), random)) {
    shuffled.push_back(std::move(rows[static_cast<std::size_t>(number - 1)]));
  }
  rows = std::move(shuffled);
}

bool MoveRow(std::vector<PlaylistRow>& rows, std::size_t index, bool up) {
  if (index >= rows.size()) return false;
  if (up ? index == 0 : index + 1 >= rows.size()) return false;
  std::swap(rows[index], rows[up ? index - 1 : index + 1]);
  return true;
}

std::string RowsAsText(const std::vector<PlaylistRow>& rows) {
  std::string text;
  for (const PlaylistRow& row : rows) {
    text += row.title + "\t" + row.length + "\t" + row.path + "\n";
  }
  return text;
}

std::vector<std::string> MediaFilesIn(const std::string& folder, bool subfolders) {
  std::vector<std::string> files;
  std::error_code error;
  const auto visit = [&](const std::filesystem::directory_entry& entry) {
    std::error_code ignored;
    if (entry.is_regular_file(ignored) && FilterMedia(entry.path().filename().string())) {
      files.push_back(entry.path().string());
    }
  };
  const auto options = std::filesystem::directory_options::skip_permission_denied;
  if (subfolders) {
    for (std::filesystem::recursive_directory_iterator it(folder, options, error), end;
         !error && it != end; it.increment(error)) {
      visit(*it);
    }
  } else {
    for (std::filesystem::directory_iterator it(folder, options, error), end; !error && it != end;
         it.increment(error)) {
      visit(*it);
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace tarnwick
