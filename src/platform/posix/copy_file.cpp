#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <string>

#include "platform/files.h"
#include "platform/posix/copy_data.h"
#include "platform/posix/errno_status.h"
#include "platform/posix/rename_no_replace.h"
#include "platform/posix/unique_fd.h"

namespace tarnwick {
namespace {

constexpr char kDosAttributes[] = "user.DOSATTRIB";

// The DOS attribute record travels with the copy, as attributes do on
// Windows; a target file system without extended attributes drops it.
void CopyDosAttributes(int source, int target) {
  char value[256];
  const ssize_t size = ::fgetxattr(source, kDosAttributes, value, sizeof value);
  if (size > 0) ::fsetxattr(target, kDosAttributes, value, static_cast<size_t>(size), 0);
}

// Data, permission bits, times, then (with `flush`) the data on disk.
int FillTemporary(int source, const struct stat& info, int target, bool flush) {
  if (const int error = posix::CopyData(source, target)) return error;
  CopyDosAttributes(source, target);
  if (::fchmod(target, info.st_mode & 07777) != 0) return errno;
  const struct timespec times[2] = {info.st_atim, info.st_mtim};
  if (::futimens(target, times) != 0) return errno;
  if (flush && ::fsync(target) != 0) return errno;
  return 0;
}

FileStatus CheckTarget(const std::filesystem::path& to, bool overwrite) {
  struct stat target;
  if (::stat(to.c_str(), &target) != 0) return FileStatus::Success();
  if (!overwrite) return FileStatus::Error(vb_error::kFileAlreadyExists);
  if (S_ISDIR(target.st_mode)) return FileStatus::Error(vb_error::kPathFileAccessError);
  if ((target.st_mode & S_IWUSR) == 0) return FileStatus::Error(vb_error::kPermissionDenied);
  return FileStatus::Success();
}

struct Temporary {
  std::string path;
  posix::UniqueFd fd;
};

// A new file with a hidden, unused name in the target's folder.
FileResult<Temporary> CreateTemporary(const std::filesystem::path& to) {
  const std::filesystem::path folder = to.has_parent_path() ? to.parent_path() : ".";
  Temporary temporary;
  temporary.path = (folder / ".~twcopy-XXXXXX").string();
  temporary.fd = posix::UniqueFd(::mkostemp(temporary.path.data(), O_CLOEXEC));
  if (!temporary.fd.valid()) return posix::StatusFromErrno(errno, to);
  return temporary;
}

int PutInPlace(const std::string& temporary, const std::filesystem::path& to, bool overwrite) {
  if (!overwrite) return posix::RenameNoReplace(temporary.c_str(), to.c_str());
  return ::rename(temporary.c_str(), to.c_str()) == 0 ? 0 : errno;
}

}  // namespace

FileStatus CopyFile(const std::filesystem::path& from, const std::filesystem::path& to,
                    bool overwrite, CopyFlush flush) {
  if (from.empty() || to.empty()) return FileStatus::Error(vb_error::kBadFileName);
  posix::UniqueFd source(::open(from.c_str(), O_RDONLY | O_CLOEXEC));
  if (!source.valid()) return posix::StatusFromErrno(errno, from);
  struct stat info;
  if (::fstat(source.get(), &info) != 0) return posix::StatusFromErrno(errno, from);
  if (!S_ISREG(info.st_mode)) return FileStatus::Error(vb_error::kPathFileAccessError);
  if (FileStatus target = CheckTarget(to, overwrite); !target.ok()) return target;
  struct stat existing;
  const bool replacing = ::stat(to.c_str(), &existing) == 0;

  FileResult<Temporary> created = CreateTemporary(to);
  if (!created.ok()) return created.status();
  const Temporary& temporary = created.value();
  int error = FillTemporary(source.get(), info, temporary.fd.get(),
                            flush == CopyFlush::kAlways || replacing);
  if (error == 0) error = PutInPlace(temporary.path, to, overwrite);
  if (error == 0) return FileStatus::Success();
  ::unlink(temporary.path.c_str());
  return posix::StatusFromErrno(error, error == EEXIST ? to : from);
}

}  // namespace tarnwick
