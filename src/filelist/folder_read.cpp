#include "filelist/folder_read.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include "base/path_text.h"
#include "filelist/name_order.h"
#include "filelist/type_text_cache.h"
#include "platform/file_attributes.h"

namespace tarnwick {
namespace {

constexpr char kFolderKey[] = "Folder";

struct DirCloser {
  void operator()(DIR* dir) const { ::closedir(dir); }
};
using DirHandle = std::unique_ptr<DIR, DirCloser>;

FileTime TimeOf(const struct statx_timestamp& stamp) {
  return FileTime(std::chrono::seconds(stamp.tv_sec) + std::chrono::nanoseconds(stamp.tv_nsec));
}

std::uint64_t DeviceOf(const struct statx& info) {
  return (static_cast<std::uint64_t>(info.stx_dev_major) << 32) | info.stx_dev_minor;
}

// The facts of an entry; links followed, a dangling link read as itself.
int StatEntry(int dir_fd, const char* name, struct statx& info) {
  constexpr unsigned kMask = STATX_TYPE | STATX_MODE | STATX_SIZE | STATX_MTIME | STATX_INO;
  if (::statx(dir_fd, name, AT_STATX_SYNC_AS_STAT, kMask, &info) == 0) return 0;
  if (errno != ENOENT) return errno;
  if (::statx(dir_fd, name, AT_SYMLINK_NOFOLLOW | AT_STATX_SYNC_AS_STAT, kMask, &info) == 0) {
    return 0;
  }
  return errno;
}

// The attribute word of the platform; what the mode shows when the entry
// went away in between.
std::uint32_t AttributesOf(const std::string& path, const struct statx& info) {
  const FileResult<int> word = GetFileAttributes(path);
  if (word.ok()) return static_cast<std::uint32_t>(word.value());
  std::uint32_t fallback =
      S_ISDIR(info.stx_mode) ? file_attribute::kDirectory : file_attribute::kArchive;
  if ((info.stx_mode & S_IWUSR) == 0) fallback |= file_attribute::kReadOnly;
  return fallback;
}

FileRecord RecordOf(const std::string& folder, std::string name, const struct statx& info,
                    TypeTextCache& types) {
  FileRecord record;
  record.folder = S_ISDIR(info.stx_mode);
  record.type_key = record.folder ? kFolderKey : TypeKeyOf(name);
  record.type_text = &types.TypeTextFor(record.type_key);
  record.attributes = AttributesOf(JoinPath(folder, name), info);
  record.size = static_cast<std::uint32_t>(info.stx_size);
  record.last_write = TimeOf(info.stx_mtime);
  record.device = DeviceOf(info);
  record.inode = info.stx_ino;
  record.name = std::move(name);
  return record;
}

bool DotEntry(const char* name) {
  return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

}  // namespace

FolderRead ReadFolder(const std::string& folder, TypeTextCache& types,
                      const FolderReadStep& on_entry) {
  FolderRead read;
  DirHandle dir(::opendir(folder.empty() ? "." : folder.c_str()));
  if (!dir) return read;
  read.opened = true;
  const int dir_fd = ::dirfd(dir.get());
  struct statx self;
  if (::statx(dir_fd, "", AT_EMPTY_PATH, STATX_INO, &self) == 0) {
    read.device = DeviceOf(self);
    read.inode = self.stx_ino;
  }
  std::size_t count = 0;
  while (const dirent* entry = ::readdir(dir.get())) {
    if (DotEntry(entry->d_name)) continue;
    struct statx info;
    const int error = StatEntry(dir_fd, entry->d_name, info);
    if (error == 0) {
      read.records.push_back(RecordOf(folder, entry->d_name, info, types));
    } else if (error != ENOENT) {
      read.error = FileStatus::Error(error == EACCES ? vb_error::kPermissionDenied
                                                     : vb_error::kPathFileAccessError);
      read.error_entry = entry->d_name;
      break;
    }
    if (on_entry && on_entry(++count)) {
      read.stopped = true;
      break;
    }
  }
  std::sort(read.records.begin(), read.records.end(), [](const FileRecord& a, const FileRecord& b) {
    return CompareNames(a.name, b.name) < 0;
  });
  return read;
}

}  // namespace tarnwick
