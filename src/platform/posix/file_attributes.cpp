#include "platform/file_attributes.h"

#include <errno.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <optional>
#include <string>

#include "platform/posix/dos_attrib_record.h"
#include "platform/posix/errno_status.h"

namespace tarnwick {
namespace {

namespace fa = file_attribute;

constexpr char kDosAttributes[] = "user.DOSATTRIB";
constexpr int kStoredBits = fa::kReadOnly | fa::kHidden | fa::kSystem | fa::kArchive | fa::kNormal |
                            fa::kTemporary | fa::kCompressed;

bool DotName(const std::filesystem::path& path) {
  const std::string name = path.filename().string();
  return name.size() > 1 && name[0] == '.' && name != "..";
}

// The stored record; empty when there is none or it cannot be read.
std::string ReadRecord(const std::filesystem::path& path) {
  char value[512];
  const ssize_t size = ::getxattr(path.c_str(), kDosAttributes, value, sizeof value);
  return size > 0 ? std::string(value, static_cast<size_t>(size)) : std::string();
}

int WordFromMode(const struct stat& info) {
  int word = 0;
  if (S_ISDIR(info.st_mode)) word |= fa::kDirectory;
  if (S_ISREG(info.st_mode)) word |= fa::kArchive;
  return word;
}

// Bits the permission bits and the name show without a record.
int ImpliedBits(const struct stat& info, const std::filesystem::path& path) {
  int word = 0;
  if ((info.st_mode & S_IWUSR) == 0) word |= fa::kReadOnly;
  if (DotName(path)) word |= fa::kHidden;
  return word;
}

FileStatus SetReadOnly(const std::filesystem::path& path, const struct stat& info, bool read_only) {
  mode_t mode = info.st_mode & 07777;
  if (read_only) mode &= ~static_cast<mode_t>(0222);
  if (!read_only && (mode & S_IWUSR) == 0) mode |= S_IWUSR;
  if (mode == (info.st_mode & 07777)) return FileStatus::Success();
  if (::chmod(path.c_str(), mode) == 0) return FileStatus::Success();
  return posix::StatusFromErrno(errno, path);
}

// A record is needed when the word says what the permission bits (after the
// change) and the name cannot.
bool NeedsRecord(const struct stat& info, const std::filesystem::path& path, int word) {
  int shown = (WordFromMode(info) & ~fa::kDirectory) | (word & fa::kReadOnly);
  if (DotName(path)) shown |= fa::kHidden;
  return word != shown;
}

}  // namespace

FileResult<int> GetFileAttributes(const std::filesystem::path& path) {
  struct stat info;
  if (path.empty()) return FileStatus::Error(vb_error::kBadFileName);
  if (::stat(path.c_str(), &info) != 0) return posix::StatusFromErrno(errno, path);
  int word = WordFromMode(info);
  if (const std::optional<int> stored = posix::ReadDosAttributes(ReadRecord(path))) {
    word = (word & fa::kDirectory) | (*stored & kStoredBits);
  }
  word |= ImpliedBits(info, path);
  if (word & ~fa::kNormal) word &= ~fa::kNormal;
  return word == 0 ? fa::kNormal : word;
}

FileStatus SetFileAttributes(const std::filesystem::path& path, int attributes) {
  struct stat info;
  if (path.empty()) return FileStatus::Error(vb_error::kBadFileName);
  if (::stat(path.c_str(), &info) != 0) return posix::StatusFromErrno(errno, path);
  const int word = attributes & kStoredBits;
  const std::string record = ReadRecord(path);
  if (!record.empty() || NeedsRecord(info, path, word)) {
    const std::string updated = posix::WriteDosAttributes(record, word);
    // Ignored where the file system takes no extended attributes.
    ::setxattr(path.c_str(), kDosAttributes, updated.data(), updated.size(), 0);
  }
  return SetReadOnly(path, info, (word & fa::kReadOnly) != 0);
}

}  // namespace tarnwick
