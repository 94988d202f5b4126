#include "platform/file_pieces.h"

#include <errno.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <vector>

#include "platform/posix/errno_status.h"
#include "platform/posix/rename_no_replace.h"
#include "platform/posix/unique_fd.h"

namespace tarnwick {
namespace {

constexpr std::size_t kBlock = 1 << 20;

// Copies `length` bytes from `source` at `from` to `target` at `to`, in the
// kernel where it can, else through a buffer. 0, or the error code; ENODATA
// when the source ends early.
int CopyRange(int source, off_t from, int target, off_t to, std::uint64_t length) {
  bool kernel = true;
  std::vector<char> buffer;
  while (length > 0) {
    const std::size_t step = length < kBlock ? static_cast<std::size_t>(length) : kBlock;
    ssize_t done = -1;
    if (kernel) {
      done = ::copy_file_range(source, &from, target, &to, step, 0);
      if (done < 0 && errno == EINTR) continue;
      if (done < 0 && (errno == EXDEV || errno == EINVAL || errno == ENOSYS ||
                       errno == EOPNOTSUPP || errno == EBADF)) {
        kernel = false;
        continue;
      }
      if (done < 0) return errno;
    } else {
      if (buffer.empty()) buffer.resize(kBlock);
      done = ::pread(source, buffer.data(), step, from);
      if (done < 0 && errno == EINTR) continue;
      if (done < 0) return errno;
      for (ssize_t written = 0; written < done;) {
        const ssize_t put = ::pwrite(target, buffer.data() + written,
                                     static_cast<std::size_t>(done - written), to + written);
        if (put < 0 && errno == EINTR) continue;
        if (put < 0) return errno;
        written += put;
      }
      from += done;
      to += done;
    }
    if (done == 0) return ENODATA;
    length -= static_cast<std::uint64_t>(done);
  }
  return 0;
}

// The permission bits a new file gets from the process's umask.
mode_t NewFileMode() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

}  // namespace

FileStatus CopyByteRange(const std::filesystem::path& source, std::uint64_t first,
                         std::uint64_t length, const std::filesystem::path& target, bool replace) {
  posix::UniqueFd in(::open(source.c_str(), O_RDONLY | O_CLOEXEC));
  if (!in.valid()) return posix::StatusFromErrno(errno, source);
  const int flags = O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | (replace ? O_TRUNC : O_EXCL);
  posix::UniqueFd out(::open(target.c_str(), flags, 0666));
  if (!out.valid()) return posix::StatusFromErrno(errno, target);
  const int error = CopyRange(in.get(), static_cast<off_t>(first), out.get(), 0, length);
  if (error == 0) return FileStatus::Success();
  out.Reset();
  ::unlink(target.c_str());
  if (error == ENODATA) return FileStatus::Error(vb_error::kInputPastEndOfFile);
  return posix::StatusFromErrno(error, target);
}

StagedFile::~StagedFile() {
  if (fd_ < 0) return;
  ::close(fd_);
  ::unlink(temporary_.c_str());
}

FileStatus StagedFile::Open(const std::filesystem::path& final_path) {
  final_path_ = final_path;
  const std::filesystem::path folder = final_path.has_parent_path() ? final_path.parent_path() : ".";
  std::string name = (folder / ".~twmerge-XXXXXX").string();
  fd_ = ::mkostemp(name.data(), O_CLOEXEC);
  if (fd_ < 0) return posix::StatusFromErrno(errno, final_path);
  temporary_ = name;
  return FileStatus::Success();
}

FileStatus StagedFile::Append(const std::filesystem::path& source) {
  posix::UniqueFd in(::open(source.c_str(), O_RDONLY | O_CLOEXEC));
  if (!in.valid()) return posix::StatusFromErrno(errno, source);
  struct stat info;
  if (::fstat(in.get(), &info) != 0) return posix::StatusFromErrno(errno, source);
  if (!S_ISREG(info.st_mode)) return FileStatus::Error(vb_error::kPathFileAccessError);
  const auto length = static_cast<std::uint64_t>(info.st_size);
  const int error = CopyRange(in.get(), 0, fd_, static_cast<off_t>(size_), length);
  if (error == ENODATA) return FileStatus::Error(vb_error::kInputPastEndOfFile);
  if (error != 0) return posix::StatusFromErrno(error, final_path_);
  size_ += length;
  return FileStatus::Success();
}

FileStatus StagedFile::Write(std::span<const std::uint8_t> bytes) {
  if (fd_ < 0) return FileStatus::Error(vb_error::kBadFileName);
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t written = ::pwrite(fd_, bytes.data() + done, bytes.size() - done,
                                     static_cast<off_t>(size_ + done));
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return posix::StatusFromErrno(written < 0 ? errno : ENOSPC, final_path_);
    done += static_cast<std::size_t>(written);
  }
  size_ += bytes.size();
  return FileStatus::Success();
}

FileStatus StagedFile::Commit(bool replace, bool flush) {
  if (fd_ < 0) return FileStatus::Error(vb_error::kBadFileName);
  if (::fchmod(fd_, NewFileMode()) != 0 || (flush && ::fsync(fd_) != 0)) {
    return posix::StatusFromErrno(errno, final_path_);
  }
  const int error = replace ? (::rename(temporary_.c_str(), final_path_.c_str()) == 0 ? 0 : errno)
                            : posix::RenameNoReplace(temporary_.c_str(), final_path_.c_str());
  if (error != 0) return posix::StatusFromErrno(error, final_path_);
  ::close(fd_);
  fd_ = -1;
  return FileStatus::Success();
}

std::optional<FileIdentity> IdentityOf(const std::filesystem::path& path) {
  struct stat info;
  if (::stat(path.c_str(), &info) != 0) return std::nullopt;
  return FileIdentity{static_cast<std::uint64_t>(info.st_dev), static_cast<std::uint64_t>(info.st_ino)};
}

}  // namespace tarnwick
