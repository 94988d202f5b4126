#include "platform/file_times.h"

#include <errno.h>
#include <fcntl.h>
#include <sys/stat.h>

#include "platform/posix/errno_status.h"

namespace tarnwick {
namespace {

FileTime FromStatx(const struct statx_timestamp& stamp) {
  return FileTime(std::chrono::seconds(stamp.tv_sec) + std::chrono::nanoseconds(stamp.tv_nsec));
}

// Seconds rounded down, so that times before 1970 keep a nanosecond part in
// [0, 1e9) as the kernel wants it.
struct timespec ToTimespec(FileTime time) {
  const auto since_epoch = time.time_since_epoch();
  const auto seconds = std::chrono::floor<std::chrono::seconds>(since_epoch);
  struct timespec result;
  result.tv_sec = static_cast<time_t>(seconds.count());
  result.tv_nsec = static_cast<long>((since_epoch - seconds).count());
  return result;
}

}  // namespace

FileResult<FileTimes> GetFileTimes(const std::filesystem::path& path) {
  if (path.empty()) return FileStatus::Error(vb_error::kBadFileName);
  struct statx info;
  const unsigned mask = STATX_MTIME | STATX_ATIME | STATX_BTIME;
  if (::statx(AT_FDCWD, path.c_str(), AT_STATX_SYNC_AS_STAT, mask, &info) != 0) {
    return posix::StatusFromErrno(errno, path);
  }
  FileTimes times;
  times.last_write = FromStatx(info.stx_mtime);
  times.last_access = FromStatx(info.stx_atime);
  times.created_is_birth_time = (info.stx_mask & STATX_BTIME) != 0;
  times.created = times.created_is_birth_time ? FromStatx(info.stx_btime) : times.last_write;
  return times;
}

FileStatus SetFileTimes(const std::filesystem::path& path, FileTime last_write,
                        FileTime last_access) {
  if (path.empty()) return FileStatus::Error(vb_error::kBadFileName);
  const struct timespec times[2] = {ToTimespec(last_access), ToTimespec(last_write)};
  if (::utimensat(AT_FDCWD, path.c_str(), times, 0) == 0) return FileStatus::Success();
  return posix::StatusFromErrno(errno, path);
}

}  // namespace tarnwick
