#include "playlist/playlist_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "base/path_text.h"
#include "base/text.h"
#include "persist/option_store_file.h"
#include "platform/posix/errno_status.h"
#include "platform/posix/unique_fd.h"
#include "playlist/m3u.h"
#include "playlist/pls.h"
#include "playlist/playlist_text.h"

namespace tarnwick {
namespace {

bool HasM3uHead(std::string_view text) {
  for (std::string_view line : PlaylistLines(text)) {
    if (line == "#EXTM3U") return true;
  }
  return false;
}

// The whole file, or the error that kept it from being read. A file above the
// limit reads as no playlist.
FileResult<std::string> ReadPlaylistBytes(const std::filesystem::path& file, bool* too_large) {
  const posix::UniqueFd fd(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  if (!fd.valid()) return posix::StatusFromErrno(errno, file);
  struct stat info {};
  if (::fstat(fd.get(), &info) != 0) return posix::StatusFromErrno(errno, file);
  if (S_ISDIR(info.st_mode)) return FileStatus::Error(75);
  std::string bytes;
  char buffer[65536];
  for (;;) {
    const ssize_t got = ::read(fd.get(), buffer, sizeof buffer);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return posix::StatusFromErrno(errno, file);
    if (got == 0) break;
    bytes.append(buffer, static_cast<std::size_t>(got));
    if (bytes.size() > kMaxPlaylistFileSize) {
      *too_large = true;
      return std::string();
    }
  }
  return bytes;
}

}  // namespace

std::string DetectPlaylistFormat(std::string_view text, std::string_view file_name) {
  if (text.find('\0') != std::string_view::npos) return {};
  if (HasM3uHead(text)) return "M3U";
  const PlsSection pls = ScanPls(text);
  if (pls.found && pls.number_of_entries > 0) return "PLS";
  const std::string extension = ExtensionName(file_name);
  if (EqualsText(extension, "m3u") || EqualsText(extension, "m3u8")) return "M3U";
  if (EqualsText(extension, "pls") && pls.found) return "PLS";
  return {};
}

std::vector<PlaylistRow> ReadPlaylistText(std::string_view text, std::string_view format,
                                          std::string_view folder) {
  if (format == "M3U") return ReadM3u(text, folder);
  if (format == "PLS") return ReadPls(text, folder);
  return {};
}

PlaylistLoad LoadPlaylist(const std::filesystem::path& file) {
  PlaylistLoad load;
  bool too_large = false;
  const FileResult<std::string> bytes = ReadPlaylistBytes(file, &too_large);
  if (!bytes.ok()) {
    load.status = bytes.status();
    return load;
  }
  if (too_large) return load;
  const std::string name = file.string();
  const std::string text = DecodePlaylistBytes(bytes.value(), IsUtf8PlaylistName(name));
  load.format = DetectPlaylistFormat(text, name);
  const std::string folder = ParentFolder(AbsolutePathName(name, std::filesystem::current_path().string()));
  load.rows = ReadPlaylistText(text, load.format, folder);
  return load;
}

std::string FormatForName(std::string_view file_name) {
  return EqualsText(ExtensionName(file_name), "pls") ? "PLS" : "M3U";
}

std::string PlaylistFileBytes(const std::vector<PlaylistRow>& rows, std::string_view format,
                              std::string_view file_name) {
  const std::string text = format == "PLS" ? WritePls(rows) : WriteM3u(rows);
  return EncodePlaylistText(text, IsUtf8PlaylistName(file_name));
}

PlaylistSave SavePlaylist(const std::filesystem::path& file,
                          const std::vector<PlaylistRow>& rows) {
  PlaylistSave save;
  save.unstorable_row = FirstUnstorableRow(rows);
  if (save.unstorable_row >= 0) return save;
  const std::string name = file.string();
  mode_t mode = 0644;
  struct stat info {};
  if (::stat(file.c_str(), &info) == 0) {
    if (S_ISDIR(info.st_mode)) {
      save.status = FileStatus::Error(75);
      return save;
    }
    mode = info.st_mode & 07777;
  }
  const std::string bytes = PlaylistFileBytes(rows, FormatForName(name), name);
  if (!ReplaceOptionFile(file, bytes, mode)) save.status = posix::StatusFromErrno(errno, file);
  return save;
}

}  // namespace tarnwick
