#include <errno.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files.h"
#include "platform/posix/errno_status.h"
#include "platform/posix/rename_no_replace.h"
#include "platform/posix/temp_name.h"

namespace tarnwick {
namespace {

bool SameEntry(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// The target name that the file system resolves to the source itself: a change
// of case on a mount that ignores case. Go through a free name in the same
// folder. If the second step fails (two hard links of one file on a mount that
// keeps case), the file goes back to its old name.
FileStatus MoveThroughTemporaryName(const std::filesystem::path& from,
                                    const std::filesystem::path& to) {
  const std::filesystem::path temporary = posix::FreeTemporaryName(from.parent_path(), ".~tw");
  if (temporary.empty()) return FileStatus::Error(vb_error::kFileAlreadyExists);
  if (const int error = posix::RenameNoReplace(from.c_str(), temporary.c_str())) {
    return posix::StatusFromErrno(error, from);
  }
  const int error = posix::RenameNoReplace(temporary.c_str(), to.c_str());
  if (error == 0) return FileStatus::Success();
  posix::RenameNoReplace(temporary.c_str(), from.c_str());
  return posix::StatusFromErrno(error, to);
}

FileStatus AfterTargetExists(const std::filesystem::path& from, const std::filesystem::path& to) {
  struct stat source, target;
  if (::lstat(from.c_str(), &source) != 0 || ::lstat(to.c_str(), &target) != 0 ||
      !SameEntry(source, target)) {
    return FileStatus::Error(vb_error::kFileAlreadyExists);
  }
  return MoveThroughTemporaryName(from, to);
}

// Another file system: copy first, then remove the source; a source that
// cannot be removed takes its copy back with it.
FileStatus MoveAcrossFileSystems(const std::filesystem::path& from,
                                 const std::filesystem::path& to) {
  struct stat source;
  if (::lstat(from.c_str(), &source) != 0) return posix::StatusFromErrno(errno, from);
  if (!S_ISREG(source.st_mode)) return FileStatus::Error(vb_error::kRenameAcrossDrives);
  if (FileStatus copied = CopyFile(from, to, false); !copied.ok()) return copied;
  if (::unlink(from.c_str()) == 0) return FileStatus::Success();
  const int error = errno;
  ::unlink(to.c_str());
  return posix::StatusFromErrno(error, from);
}

// The checks a replacing move makes of the target, those of a copy.
FileStatus CheckReplacedTarget(const std::filesystem::path& to) {
  struct stat target;
  if (::stat(to.c_str(), &target) != 0) return FileStatus::Success();
  if (S_ISDIR(target.st_mode)) return FileStatus::Error(vb_error::kPathFileAccessError);
  if ((target.st_mode & S_IWUSR) == 0) return FileStatus::Error(vb_error::kPermissionDenied);
  return FileStatus::Success();
}

}  // namespace

FileStatus MoveFileReplacing(const std::filesystem::path& from, const std::filesystem::path& to) {
  if (from.empty() || to.empty()) return FileStatus::Error(vb_error::kBadFileName);
  struct stat source;
  if (::lstat(from.c_str(), &source) != 0) return posix::StatusFromErrno(errno, from);
  if (FileStatus target = CheckReplacedTarget(to); !target.ok()) return target;
  if (::rename(from.c_str(), to.c_str()) == 0) return FileStatus::Success();
  const int error = errno;
  if (error != EXDEV) return posix::StatusFromErrno(error, error == ENOENT ? to : from);
  if (!S_ISREG(source.st_mode)) return FileStatus::Error(vb_error::kRenameAcrossDrives);
  if (FileStatus copied = CopyFile(from, to, true); !copied.ok()) return copied;
  // Both names now hold the data: should the source stay, nothing is lost.
  if (::unlink(from.c_str()) != 0) return posix::StatusFromErrno(errno, from);
  return FileStatus::Success();
}

FileStatus MoveFileNoReplace(const std::filesystem::path& from, const std::filesystem::path& to) {
  if (from.empty() || to.empty()) return FileStatus::Error(vb_error::kBadFileName);
  const int error = posix::RenameNoReplace(from.c_str(), to.c_str());
  if (error == 0) return FileStatus::Success();
  if (error == EEXIST) return AfterTargetExists(from, to);
  if (error == EXDEV) return MoveAcrossFileSystems(from, to);
  if (error == ENOENT && ::access(from.c_str(), F_OK) == 0) {
    return posix::StatusFromErrno(error, to);
  }
  return posix::StatusFromErrno(error, from);
}

}  // namespace tarnwick
