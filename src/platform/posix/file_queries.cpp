#include <errno.h>
#include <sys/stat.h>
#include <unistd.h>

#include <system_error>

#include "platform/files.h"
#include "platform/posix/errno_status.h"

namespace tarnwick {

FileStatus DeleteFile(const std::filesystem::path& path) {
  if (path.empty()) return FileStatus::Error(vb_error::kBadFileName);
  if (::unlink(path.c_str()) == 0) return FileStatus::Success();
  // A folder is not a file: Linux says EISDIR, some systems EPERM.
  if (errno == EISDIR || (errno == EPERM && FolderExists(path))) {
    return FileStatus::Error(vb_error::kPathFileAccessError);
  }
  return posix::StatusFromErrno(errno, path);
}

bool FileExists(const std::filesystem::path& path) {
  struct stat info;
  return !path.empty() && ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

bool FolderExists(const std::filesystem::path& path) {
  struct stat info;
  return !path.empty() && ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

FileResult<std::uint64_t> FileSize64(const std::filesystem::path& path) {
  struct stat info;
  if (path.empty()) return FileStatus::Error(vb_error::kBadFileName);
  if (::stat(path.c_str(), &info) != 0) return posix::StatusFromErrno(errno, path);
  if (S_ISDIR(info.st_mode)) return FileStatus::Error(vb_error::kFileNotFound);
  return static_cast<std::uint64_t>(info.st_size);
}

FileStatus CreateFolder(const std::filesystem::path& path) {
  if (path.empty()) return FileStatus::Error(vb_error::kBadFileName);
  if (::mkdir(path.c_str(), 0777) == 0) return FileStatus::Success();
  // A missing parent is a missing path, whatever the name.
  if (errno == ENOENT) return FileStatus::Error(vb_error::kPathNotFound);
  return posix::StatusFromErrno(errno, path);
}

FileStatus CreateFolders(const std::filesystem::path& path) {
  if (path.empty()) return FileStatus::Error(vb_error::kBadFileName);
  std::error_code error;
  std::filesystem::create_directories(path, error);
  if (!error) return FileStatus::Success();
  if (error.value() == EEXIST && FolderExists(path)) return FileStatus::Success();
  if (error.value() == EEXIST) return FileStatus::Error(vb_error::kPathNotFound);
  return posix::StatusFromErrno(error.value(), path);
}

}  // namespace tarnwick
