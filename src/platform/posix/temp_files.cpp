#include "platform/temp_files.h"

#include <errno.h>
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include "platform/files.h"
#include "platform/posix/errno_status.h"
#include "platform/posix/temp_name.h"

namespace tarnwick {

std::filesystem::path TempFolder() {
  const char* value = ::getenv("TMPDIR");
  if (value != nullptr && value[0] == '/' && FolderExists(value)) return value;
  return "/tmp";
}

FileResult<std::filesystem::path> CreateUniqueTempFile(const std::filesystem::path& folder,
                                                       const std::string& prefix) {
  if (prefix.find('/') != std::string::npos) return FileStatus::Error(vb_error::kBadFileName);
  std::string pattern = (folder / (prefix + "XXXXXX")).string();
  const int fd = ::mkostemp(pattern.data(), O_CLOEXEC);
  if (fd < 0) return posix::StatusFromErrno(errno, pattern);
  ::close(fd);
  return std::filesystem::path(pattern);
}

FileResult<std::filesystem::path> FreeTempName(const std::filesystem::path& folder,
                                               const std::string& prefix) {
  if (prefix.find('/') != std::string::npos) return FileStatus::Error(vb_error::kBadFileName);
  std::filesystem::path name = posix::FreeTemporaryName(folder, prefix);
  if (name.empty()) return FileStatus::Error(vb_error::kPathFileAccessError);
  return name;
}

}  // namespace tarnwick
