#include "platform/posix/rename_no_replace.h"

#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick::posix {
namespace {

bool FlagRefused(int error) { return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP; }

// Hard links never replace a name, so link + unlink is a no-replace move on
// file systems without the flag. Folders cannot be linked: the first error
// stands for them.
int LinkThenUnlink(const char* from, const char* to, int first_error) {
  struct stat info;
  if (::lstat(from, &info) != 0) return errno;
  if (S_ISDIR(info.st_mode)) return first_error;
  if (::link(from, to) != 0) return errno;
  if (::unlink(from) == 0) return 0;
  const int error = errno;
  ::unlink(to);  // Undo: the file keeps its old name only.
  return error;
}

}  // namespace

int RenameNoReplace(const char* from, const char* to) {
  if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) return 0;
  const int error = errno;
  if (!FlagRefused(error)) return error;
  return LinkThenUnlink(from, to, error);
}

}  // namespace tarnwick::posix
