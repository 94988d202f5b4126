#include "persist/option_store_file.h"

#include <errno.h>
#include <fcntl.h>
#include <stdlib.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <ctime>
#include <system_error>

namespace tarnwick {
namespace {

using posix::UniqueFd;

bool SameTime(const timespec& a, const timespec& b) {
  return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

OptionFileIdentity IdentityOf(const struct stat& info) {
  OptionFileIdentity identity;
  identity.exists = true;
  identity.device = info.st_dev;
  identity.inode = info.st_ino;
  identity.size = info.st_size;
  identity.modified = info.st_mtim;
  identity.changed = info.st_ctim;
  return identity;
}

bool WriteAll(int fd, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = ::write(fd, content.data(), content.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool ReadAll(int fd, std::string* text) {
  char buffer[16384];
  for (;;) {
    const ssize_t got = ::read(fd, buffer, sizeof buffer);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return false;
    if (got == 0) return true;
    text->append(buffer, static_cast<std::size_t>(got));
    if (text->size() > static_cast<std::size_t>(kMaxOptionFileSize)) return false;
  }
}

// The file a write replaces: the target of a symbolic link, else `file`.
std::optional<std::filesystem::path> WriteTarget(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_symlink(file, error)) return file;
  std::filesystem::path target = std::filesystem::weakly_canonical(file, error);
  if (error) return std::nullopt;
  return target;
}

bool SyncFolder(const std::filesystem::path& folder) {
  const UniqueFd fd(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return fd.valid() && ::fsync(fd.get()) == 0;
}

}  // namespace

bool OptionFileIdentity::operator==(const OptionFileIdentity& other) const {
  return exists == other.exists && error == other.error && device == other.device &&
         inode == other.inode && size == other.size && SameTime(modified, other.modified) &&
         SameTime(changed, other.changed);
}

OptionFileIdentity StatOptionFile(const std::filesystem::path& file) {
  struct stat info {};
  if (::stat(file.c_str(), &info) == 0) return IdentityOf(info);
  OptionFileIdentity missing;
  if (errno != ENOENT && errno != ENOTDIR) missing.error = errno;
  return missing;
}

bool IsRecent(const OptionFileIdentity& identity) {
  timespec now{};
  ::clock_gettime(CLOCK_REALTIME, &now);
  const auto nanoseconds = [](const timespec& time) {
    return static_cast<long long>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
  };
  const long long newest = std::max(nanoseconds(identity.modified), nanoseconds(identity.changed));
  return nanoseconds(now) - newest < kRacyWindowNanoseconds;
}

OptionFileContent ReadOptionFile(const std::filesystem::path& file) {
  OptionFileContent content;
  const UniqueFd fd(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
  if (!fd.valid()) {
    if (errno == ENOENT || errno == ENOTDIR) content.state = OptionFileContent::State::kMissing;
    return content;
  }
  struct stat info {};
  if (::fstat(fd.get(), &info) != 0 || !S_ISREG(info.st_mode)) return content;
  if (info.st_size > kMaxOptionFileSize) return content;
  content.identity = IdentityOf(info);
  content.mode = info.st_mode & 07777;
  content.text.reserve(static_cast<std::size_t>(info.st_size));
  if (!ReadAll(fd.get(), &content.text)) return content;
  content.state = OptionFileContent::State::kRead;
  return content;
}

std::optional<OptionFileLock> OptionFileLock::Acquire(const std::filesystem::path& lock_file) {
  UniqueFd fd(::open(lock_file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOCTTY, 0644));
  if (!fd.valid()) return std::nullopt;
  while (::flock(fd.get(), LOCK_EX) != 0) {
    if (errno != EINTR) return std::nullopt;
  }
  return OptionFileLock(std::move(fd));
}

bool ReplaceOptionFile(const std::filesystem::path& file, std::string_view content, mode_t mode) {
  const std::optional<std::filesystem::path> target = WriteTarget(file);
  if (!target) return false;
  std::string temp = target->string() + ".XXXXXX";
  const UniqueFd fd(::mkostemp(temp.data(), O_CLOEXEC));
  if (!fd.valid()) return false;
  const bool written = ::fchmod(fd.get(), mode) == 0 && WriteAll(fd.get(), content) &&
                       ::fsync(fd.get()) == 0 && ::rename(temp.c_str(), target->c_str()) == 0;
  if (!written) {
    ::unlink(temp.c_str());
    return false;
  }
  SyncFolder(target->has_parent_path() ? target->parent_path() : ".");
  return true;
}

}  // namespace tarnwick
