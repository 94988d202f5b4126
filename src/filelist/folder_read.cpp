#include "filelist/folder_read.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <thread>
#include <vector>

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

// What the file system says of one entry: the part of a read that waits on
// the file system, done for many entries at once.
struct EntryFacts {
  struct statx info;
  bool dangling = false;
  int error = 0;
  std::uint32_t attributes = 0;
};

// The facts of names[from, to) into facts[from - first ...].
void ReadFacts(int dir_fd, const FolderAttributeReader& attributes,
               const std::vector<std::string>& names, std::size_t first, std::size_t from,
               std::size_t to, std::vector<EntryFacts>& facts) {
  for (std::size_t i = from; i < to; ++i) {
    EntryFacts& entry = facts[i - first];
    entry.error = StatEntry(dir_fd, names[i].c_str(), entry.info, entry.dangling);
    if (entry.error == 0) {
      entry.attributes = AttributesOf(attributes, names[i], entry.info, entry.dangling);
    }
  }
}

// Entries are asked for in chunks; a chunk this large is shared with a
// second thread, so a large folder is read at the speed of two cores where
// the file system answers from memory.
constexpr std::size_t kChunk = 4096;
constexpr std::size_t kSharedChunk = 512;

void ReadChunkFacts(int dir_fd, const FolderAttributeReader& attributes,
                    const std::vector<std::string>& names, std::size_t first, std::size_t last,
                    std::vector<EntryFacts>& facts) {
  facts.assign(last - first, EntryFacts{});
  if (last - first < kSharedChunk || std::thread::hardware_concurrency() < 2) {
    ReadFacts(dir_fd, attributes, names, first, first, last, facts);
    return;
  }
  const std::size_t middle = first + (last - first) / 2;
  std::thread helper(
      [&] { ReadFacts(dir_fd, attributes, names, first, middle, last, facts); });
  ReadFacts(dir_fd, attributes, names, first, first, middle, facts);
  helper.join();
}

FileRecord RecordOf(std::string name, const EntryFacts& facts, TypeTextCache& types) {
  const struct statx& info = facts.info;
  FileRecord record;
  record.folder = S_ISDIR(info.stx_mode);
  record.type_key = record.folder ? kFolderKey : TypeKeyOf(name);
  record.type_text = &types.TypeTextFor(record.type_key);
  record.attributes = facts.attributes;
  record.size = static_cast<std::uint32_t>(info.stx_size);
  record.last_write = TimeOf(info.stx_mtime);
  record.last_access = TimeOf(info.stx_atime);
  record.created = (info.stx_mask & STATX_BTIME) != 0 ? TimeOf(info.stx_btime) : record.last_write;
  record.dangling = facts.dangling;
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
  std::vector<std::string> names;
  while (const dirent* entry = ::readdir(dir.get())) {
    if (!DotEntry(entry->d_name)) names.emplace_back(entry->d_name);
  }
  read.records.reserve(names.size());
  std::vector<EntryFacts> facts;
  std::size_t count = 0;
  for (std::size_t first = 0; first < names.size() && !read.stopped; first += kChunk) {
    const std::size_t last = std::min(names.size(), first + kChunk);
    ReadChunkFacts(dir_fd, attributes, names, first, last, facts);
    for (std::size_t i = first; i < last; ++i) {
      const EntryFacts& entry = facts[i - first];
      if (entry.error == 0) {
        read.records.push_back(RecordOf(std::move(names[i]), entry, types));
      } else if (entry.error != ENOENT) {
        read.error = FileStatus::Error(entry.error == EACCES ? vb_error::kPermissionDenied
                                                             : vb_error::kPathFileAccessError);
        read.error_entry = names[i];
        SortByName(read.records, order);
        return read;
      }
      if (on_entry && on_entry(++count)) {
        read.stopped = true;
        break;
      }
    }
  }
  SortByName(read.records, order);
  return read;
}

}  // namespace tarnwick
