#include "persist/log_append.h"

#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "platform/posix/errno_status.h"
#include "platform/posix/unique_fd.h"
#include "platform/temp_files.h"

namespace tarnwick {
namespace {

constexpr mode_t kNewFileMode = 0644;

// Writes every byte, going on after a short write or an interrupt.
int WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(fd, bytes.data(), bytes.size());
    if (written < 0) {
      if (errno == EINTR) continue;
      return errno;
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

// Closes and reports a failure of the close itself (NFS reports late errors
// there).
int CloseChecked(posix::UniqueFd& fd) {
  const int raw = fd.Release();
  return ::close(raw) == 0 ? 0 : errno;
}

FileStatus Failure(int error, const std::filesystem::path& path) {
  return posix::StatusFromErrno(error, path);
}

}  // namespace

FileStatus AppendToFile(const std::filesystem::path& file, std::string_view bytes) {
  posix::UniqueFd fd(::open(file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, kNewFileMode));
  if (!fd.valid()) return Failure(errno, file);
  if (const int error = WriteAll(fd.get(), bytes)) return Failure(error, file);
  if (const int error = CloseChecked(fd)) return Failure(error, file);
  return FileStatus::Success();
}

HeldAppendFile::~HeldAppendFile() { Close(); }

void HeldAppendFile::Close() {
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
  path_.clear();
}

FileStatus HeldAppendFile::Append(const std::filesystem::path& file, std::string_view bytes) {
  if (fd_ < 0 || file != path_) {
    Close();
    fd_ = ::open(file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, kNewFileMode);
    if (fd_ < 0) return Failure(errno, file);
    path_ = file;
  }
  if (const int error = WriteAll(fd_, bytes)) {
    // The next entry opens the file anew, as AppendToFile would.
    Close();
    return Failure(error, file);
  }
  return FileStatus::Success();
}

FileStatus AppendFileToFile(const std::filesystem::path& source,
                            const std::filesystem::path& target) {
  posix::UniqueFd in(::open(source.c_str(), O_RDONLY | O_CLOEXEC));
  if (!in.valid()) return Failure(errno, source);
  posix::UniqueFd out(
      ::open(target.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, kNewFileMode));
  if (!out.valid()) return Failure(errno, target);
  char buffer[64 * 1024];
  for (;;) {
    const ssize_t got = ::read(in.get(), buffer, sizeof buffer);
    if (got == 0) break;
    if (got < 0) {
      if (errno == EINTR) continue;
      return Failure(errno, source);
    }
    const std::string_view chunk(buffer, static_cast<std::size_t>(got));
    if (const int error = WriteAll(out.get(), chunk)) return Failure(error, target);
  }
  if (const int error = CloseChecked(out)) return Failure(error, target);
  return FileStatus::Success();
}

FileStatus ReplaceFileWith(const std::filesystem::path& file, std::string_view bytes) {
  const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : ".";
  const FileResult<std::filesystem::path> temporary =
      CreateUniqueTempFile(folder, "." + file.filename().string() + ".");
  if (!temporary.ok()) return temporary.status();
  const std::filesystem::path& temp = temporary.value();
  posix::UniqueFd fd(::open(temp.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC));
  int error = fd.valid() ? WriteAll(fd.get(), bytes) : errno;
  if (error == 0 && ::fchmod(fd.get(), kNewFileMode) != 0) error = errno;
  if (error == 0) error = CloseChecked(fd);
  if (error == 0 && ::rename(temp.c_str(), file.c_str()) != 0) error = errno;
  if (error == 0) return FileStatus::Success();
  ::unlink(temp.c_str());
  return Failure(error, file);
}

}  // namespace tarnwick
