#include "platform/posix/errno_status.h"

#include <errno.h>
#include <sys/stat.h>

namespace tarnwick::posix {
namespace {

bool IsFolder(const std::filesystem::path& path) {
  struct stat info;
  return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

}  // namespace

int VbNumberFromErrno(int error) {
  switch (error) {
    case 0:
      return 0;
    case ENOENT:
      return vb_error::kFileNotFound;
    case ENOTDIR:
      return vb_error::kPathNotFound;
    case EEXIST:
    case ENOTEMPTY:
      return vb_error::kFileAlreadyExists;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
    case EBUSY:
      return vb_error::kPermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return vb_error::kDiskFull;
    case ENAMETOOLONG:
    case EILSEQ:
      return vb_error::kBadFileName;
    case EXDEV:
      return vb_error::kRenameAcrossDrives;
    case EIO:
      return vb_error::kDeviceIoError;
    case ENXIO:
    case ENODEV:
    case ENOMEDIUM:
      return vb_error::kDeviceUnavailable;
    case EMFILE:
    case ENFILE:
      return vb_error::kTooManyFiles;
    case ENOMEM:
      return vb_error::kOutOfMemory;
    default:
      return vb_error::kPathFileAccessError;
  }
}

FileStatus StatusFromErrno(int error, const std::filesystem::path& path) {
  if (error == ENOENT) {
    const std::filesystem::path folder = path.has_parent_path() ? path.parent_path() : ".";
    if (!IsFolder(folder)) return FileStatus::Error(vb_error::kPathNotFound);
  }
  return FileStatus::Error(VbNumberFromErrno(error));
}

}  // namespace tarnwick::posix
