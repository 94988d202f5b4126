#include "platform/file_overwrite.h"

#include <errno.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <vector>

#include "platform/posix/errno_status.h"
#include "platform/posix/unique_fd.h"

namespace tarnwick {

bool IsSymbolicLink(const std::filesystem::path& path) {
  struct stat info;
  return ::lstat(path.c_str(), &info) == 0 && S_ISLNK(info.st_mode);
}

OverwriteFile::~OverwriteFile() { Close(); }

FileStatus OverwriteFile::Open(const std::filesystem::path& path) {
  Close();
  path_ = path;
  fd_ = ::open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW);
  if (fd_ < 0) return errno == ELOOP ? FileStatus::Error(vb_error::kPathFileAccessError)
                                     : posix::StatusFromErrno(errno, path);
  struct stat info;
  if (::fstat(fd_, &info) != 0) return posix::StatusFromErrno(errno, path);
  if (!S_ISREG(info.st_mode)) {
    Close();
    return FileStatus::Error(vb_error::kPathFileAccessError);
  }
  size_ = static_cast<std::uint64_t>(info.st_size);
  return FileStatus::Success();
}

FileStatus OverwriteFile::WriteAt(std::uint64_t offset, std::span<const unsigned char> bytes) {
  while (!bytes.empty()) {
    const ssize_t put = ::pwrite(fd_, bytes.data(), bytes.size(), static_cast<off_t>(offset));
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return posix::StatusFromErrno(errno, path_);
    bytes = bytes.subspan(static_cast<std::size_t>(put));
    offset += static_cast<std::uint64_t>(put);
  }
  return FileStatus::Success();
}

FileStatus OverwriteFile::Flush() {
  if (::fdatasync(fd_) != 0) return posix::StatusFromErrno(errno, path_);
  return FileStatus::Success();
}

void OverwriteFile::Close() {
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
}

FileStatus ReadFileInBlocks(const std::filesystem::path& path,
                            const std::function<bool(std::span<const unsigned char>)>& consume) {
  posix::UniqueFd in(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!in.valid()) return posix::StatusFromErrno(errno, path);
  struct stat info;
  if (::fstat(in.get(), &info) != 0) return posix::StatusFromErrno(errno, path);
  if (S_ISDIR(info.st_mode)) return FileStatus::Error(vb_error::kPathFileAccessError);
  ::posix_fadvise(in.get(), 0, 0, POSIX_FADV_SEQUENTIAL);
  std::vector<unsigned char> buffer(1 << 20);
  for (;;) {
    const ssize_t got = ::read(in.get(), buffer.data(), buffer.size());
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return posix::StatusFromErrno(errno, path);
    if (got == 0) return FileStatus::Success();
    if (!consume({buffer.data(), static_cast<std::size_t>(got)})) return FileStatus::Success();
  }
}

}  // namespace tarnwick
