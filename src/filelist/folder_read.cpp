#include "filelist/folder_read.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>

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

// Every fact of an entry in one call; links followed, a dangling link read
// as itself (`dangling`).
int StatEntry(int dir_fd, const char* name, struct statx& info, bool& dangling) {
  constexpr unsigned kMask =
      STATX_TYPE | STATX_MODE | STATX_SIZE | STATX_MTIME | STATX_ATIME | STATX_BTIME | STATX_INO;
  dangling = false;
  if (::statx(dir_fd, name, AT_STATX_SYNC_AS_STAT, kMask, &info) == 0) return 0;
  if (errno != ENOENT) return errno;
  if (::statx(dir_fd, name, AT_SYMLINK_NOFOLLOW | AT_STATX_SYNC_AS_STAT, kMask, &info) == 0) {
    dangling = true;
    return 0;
  }
  return errno;
}

// The attribute word of the platform. A dangling link has none: the word is
// what its mode shows.
std::uint32_t AttributesOf(const FolderAttributeReader& attributes, const std::string& name,
                           const struct statx& info, bool dangling) {
  if (!dangling) return static_cast<std::uint32_t>(attributes.Read(name, info.stx_mode));
  std::uint32_t fallback =
      S_ISDIR(info.stx_mode) ? file_attribute::kDirectory : file_attribute::kArchive;
  if ((info.stx_mode & S_IWUSR) == 0) fallback |= file_attribute::kReadOnly;
  return fallback;
}

FileRecord RecordOf(const FolderAttributeReader& attributes, std::string name,
                    const struct statx& info, bool dangling, TypeTextCache& types) {
  FileRecord record;
  record.folder = S_ISDIR(info.stx_mode);
  record.type_key = record.folder ? kFolderKey : TypeKeyOf(name);
  record.type_text = &types.TypeTextFor(record.type_key);
  record.attributes = AttributesOf(attributes, name, info, dangling);
  record.size = static_cast<std::uint32_t>(info.stx_size);
  record.last_write = TimeOf(info.stx_mtime);
  record.last_access = TimeOf(info.stx_atime);
  record.created = (info.stx_mask & STATX_BTIME) != 0 ? TimeOf(info.stx_btime) : record.last_write;
  record.dangling = dangling;
  record.device = DeviceOf(info);
  record.inode = info.stx_ino;
  record.name = std::move(name);
  return record;
}

bool DotEntry(const char* name) {
  return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

void SortByName(std::vector<FileRecord>& records, const NameOrder& order) {
  std::vector<std::string_view> names;
  names.reserve(records.size());
  for (const FileRecord& record : records) names.push_back(record.name);
  const std::vector<std::uint32_t> ranking = order.Ranking(names);
  std::vector<FileRecord> sorted;
  sorted.reserve(records.size());
  for (std::uint32_t index : ranking) sorted.push_back(std::move(records[index]));
  records = std::move(sorted);
}

}  // namespace

FolderRead ReadFolder(const std::string& folder, TypeTextCache& types, const NameOrder& order,
                      const FolderReadStep& on_entry) {
  FolderRead read;
  DirHandle dir(::opendir(folder.empty() ? "." : folder.c_str()));
  if (!dir) {
    const int error = errno;
    read.open_error = FileStatus::Error(error == EACCES || error == EPERM ? vb_error::kPermissionDenied
                                        : error == ENOENT || error == ENOTDIR
                                            ? vb_error::kPathNotFound
                                            : vb_error::kPathFileAccessError);
    return read;
  }
  read.opened = true;
  const int dir_fd = ::dirfd(dir.get());
  const FolderAttributeReader attributes(folder.empty() ? "." : folder, dir_fd);
  struct statx self;
  if (::statx(dir_fd, "", AT_EMPTY_PATH, STATX_INO, &self) == 0) {
    read.device = DeviceOf(self);
    read.inode = self.stx_ino;
  }
  std::size_t count = 0;
  while (const dirent* entry = ::readdir(dir.get())) {
    if (DotEntry(entry->d_name)) continue;
    struct statx info;
    bool dangling = false;
    const int error = StatEntry(dir_fd, entry->d_name, info, dangling);
    if (error == 0) {
      read.records.push_back(RecordOf(attributes, entry->d_name, info, dangling, types));
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
  SortByName(read.records, order);
  return read;
}

}  // namespace tarnwick
