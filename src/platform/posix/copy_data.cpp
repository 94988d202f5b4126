#include "platform/posix/copy_data.h"

#include <errno.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/sendfile.h>
#include <unistd.h>

#include <vector>

namespace tarnwick::posix {
namespace {

constexpr size_t kChunk = 1 << 20;

// Errors that mean "not this way", after which the next way is tried, as
// long as nothing has been copied yet.
bool TryAnotherWay(int error) {
  return error == EXDEV || error == EINVAL || error == ENOSYS || error == EOPNOTSUPP ||
         error == EBADF || error == ENOTSUP;
}

// Returns 0 when done, -1 when this way does not apply, or an error code.
int CopyInKernel(int source, int target, bool use_sendfile) {
  bool copied_any = false;
  for (;;) {
    const ssize_t done = use_sendfile
                             ? ::sendfile(target, source, nullptr, kChunk)
                             : ::copy_file_range(source, nullptr, target, nullptr, kChunk, 0);
    if (done == 0) return 0;
    if (done > 0) {
      copied_any = true;
      continue;
    }
    if (errno == EINTR) continue;
    if (!copied_any && TryAnotherWay(errno)) return -1;
    return errno;
  }
}

int WriteAll(int target, const char* data, size_t size) {
  while (size > 0) {
    const ssize_t written = ::write(target, data, size);
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return errno;
    data += written;
    size -= static_cast<size_t>(written);
  }
  return 0;
}

int CopyThroughBuffer(int source, int target) {
  std::vector<char> buffer(kChunk);
  for (;;) {
    const ssize_t got = ::read(source, buffer.data(), buffer.size());
    if (got == 0) return 0;
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return errno;
    if (const int error = WriteAll(target, buffer.data(), static_cast<size_t>(got))) return error;
  }
}

}  // namespace

int CopyData(int source, int target) {
  // Where the file system shares blocks between files (btrfs, XFS), the copy
  // is a clone: no data moves, whatever the size.
  if (::lseek(source, 0, SEEK_CUR) == 0 && ::ioctl(target, FICLONE, source) == 0) return 0;
  if (const int result = CopyInKernel(source, target, false); result >= 0) return result;
  if (const int result = CopyInKernel(source, target, true); result >= 0) return result;
  return CopyThroughBuffer(source, target);
}

}  // namespace tarnwick::posix
