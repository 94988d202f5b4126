#include "platform/file_in_use.h"

#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cctype>
#include <string>

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

bool AnyProcessHolds(dev_t device, ino_t inode) {
  DIR* processes = ::opendir("/proc");
  if (processes == nullptr) return false;
  bool found = false;
  while (const dirent* entry = ::readdir(processes)) {
    if (!AllDigits(entry->d_name)) continue;
    if (FolderHoldsInode(std::string("/proc/") + entry->d_name + "/fd", device, inode)) {
      found = true;
      break;
    }
  }
  ::closedir(processes);
  return found;
}

}  // namespace

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
