#include "platform/file_in_use.h"

#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <cctype>
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_set>
#include <utility>

#include "platform/posix/unique_fd.h"

namespace tarnwick {
namespace {

enum class Probe { kFree, kInUse, kNoLease };

// A write lease is granted only when no other descriptor of the file is open
// anywhere; it is given back at once.
Probe ProbeWithLease(int fd) {
  if (::fcntl(fd, F_SETLEASE, F_WRLCK) == 0) {
    ::fcntl(fd, F_SETLEASE, F_UNLCK);
    return Probe::kFree;
  }
  if (errno == EAGAIN || errno == EBUSY) return Probe::kInUse;
  return Probe::kNoLease;
}

bool AllDigits(const char* name) {
  if (*name == '\0') return false;
  for (; *name != '\0'; ++name) {
    if (!std::isdigit(static_cast<unsigned char>(*name))) return false;
  }
  return true;
}

bool FolderHoldsInode(const std::string& fd_folder, dev_t device, ino_t inode) {
  DIR* folder = ::opendir(fd_folder.c_str());
  if (folder == nullptr) return false;  // Not ours to read, or gone.
  bool found = false;
  while (const dirent* entry = ::readdir(folder)) {
    if (!AllDigits(entry->d_name)) continue;
    struct stat info;
    if (::fstatat(::dirfd(folder), entry->d_name, &info, 0) != 0) continue;
    if (info.st_dev == device && info.st_ino == inode) {
      found = true;
      break;
    }
  }
  ::closedir(folder);
  return found;
}

// Calls `visit` with the fd folder of each process until it returns true;
// false when /proc cannot be read.
template <typename Visit>
bool ForEachProcessFdFolder(Visit visit) {
  DIR* processes = ::opendir("/proc");
  if (processes == nullptr) return false;
  while (const dirent* entry = ::readdir(processes)) {
    if (!AllDigits(entry->d_name)) continue;
    if (visit(std::string("/proc/") + entry->d_name + "/fd")) break;
  }
  ::closedir(processes);
  return true;
}

bool AnyProcessHolds(dev_t device, ino_t inode) {
  bool found = false;
  ForEachProcessFdFolder([&](const std::string& fd_folder) {
    found = FolderHoldsInode(fd_folder, device, inode);
    return found;
  });
  return found;
}

// A device as statx gives it (major in the high 32 bits, minor in the low),
// and an inode.
using FileId = std::pair<std::uint64_t, std::uint64_t>;

std::uint64_t DeviceKey(dev_t device) {
  return (static_cast<std::uint64_t>(major(device)) << 32) | minor(device);
}

struct FileIdHash {
  std::size_t operator()(const FileId& id) const {
    return std::hash<std::uint64_t>()(static_cast<std::uint64_t>(id.first) * 0x9E3779B97F4A7C15ull ^
                                      static_cast<std::uint64_t>(id.second));
  }
};

// The regular files the descriptors in `fd_folder` name.
void AddOpenFiles(const std::string& fd_folder, std::unordered_set<FileId, FileIdHash>& open) {
  DIR* folder = ::opendir(fd_folder.c_str());
  if (folder == nullptr) return;  // Not ours to read, or gone.
  while (const dirent* entry = ::readdir(folder)) {
    if (!AllDigits(entry->d_name)) continue;
    struct stat info;
    if (::fstatat(::dirfd(folder), entry->d_name, &info, 0) != 0) continue;
    if (S_ISREG(info.st_mode)) open.insert({DeviceKey(info.st_dev), info.st_ino});
  }
  ::closedir(folder);
}

}  // namespace

struct OpenFileScan::Table {
  std::unordered_set<FileId, FileIdHash> open;
  std::chrono::steady_clock::time_point taken{};
  bool taken_once = false;
  bool proc_readable = true;

  void Take() {
    open.clear();
    proc_readable = ForEachProcessFdFolder([&](const std::string& fd_folder) {
      AddOpenFiles(fd_folder, open);
      return false;
    });
    taken = std::chrono::steady_clock::now();
    taken_once = true;
  }
};

OpenFileScan::OpenFileScan(std::chrono::milliseconds max_age)
    : table_(std::make_unique<Table>()), max_age_(max_age) {}

OpenFileScan::~OpenFileScan() = default;

void OpenFileScan::Refresh() {
  if (!table_->taken_once || std::chrono::steady_clock::now() - table_->taken >= max_age_) {
    table_->Take();
  }
}

bool OpenFileScan::IsFileInUse(const std::filesystem::path& path) {
  Refresh();
  if (!table_->proc_readable) return tarnwick::IsFileInUse(path);
  struct stat info;
  if (path.empty() || ::stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) return false;
  return table_->open.contains({DeviceKey(info.st_dev), info.st_ino});
}

bool OpenFileScan::IsFileInUse(const std::filesystem::path& path, std::uint64_t device,
                               std::uint64_t inode) {
  if (inode == 0) return IsFileInUse(path);
  Refresh();
  if (!table_->proc_readable) return tarnwick::IsFileInUse(path);
  if (!table_->open.contains({device, inode})) return false;
  // The rare yes is made sure of: the file may have gone since the fill and
  // its inode been given to another file that is open.
  return IsFileInUse(path);
}

bool IsFileInUse(const std::filesystem::path& path) {
  struct stat info;
  if (path.empty() || ::stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) return false;
  {
    posix::UniqueFd probe(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (probe.valid()) {
      const Probe result = ProbeWithLease(probe.get());
      if (result != Probe::kNoLease) return result == Probe::kInUse;
    }
  }
  // The probe's own descriptor is closed before the scan, so it is not seen.
  return AnyProcessHolds(info.st_dev, info.st_ino);
}

}  // namespace tarnwick
