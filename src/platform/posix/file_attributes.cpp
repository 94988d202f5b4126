#include "platform/file_attributes.h"

#include <errno.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <optional>
#include <string>

#include "platform/posix/dos_attrib_record.h"
#include "platform/posix/errno_status.h"
#include "platform/posix/fat_attributes.h"

namespace tarnwick {
namespace {

namespace fa = file_attribute;

constexpr char kDosAttributes[] = "user.DOSATTRIB";
constexpr int kStoredBits = fa::kReadOnly | fa::kHidden | fa::kSystem | fa::kArchive | fa::kNormal |
                            fa::kTemporary | fa::kCompressed;

bool DotName(const std::string& name) { return name.size() > 1 && name[0] == '.' && name != ".."; }

bool DotName(const std::filesystem::path& path) { return DotName(path.filename().string()); }

// The stored record; empty when there is none or it cannot be read.
std::string ReadRecord(const char* path) {
  char value[512];
  const ssize_t size = ::getxattr(path, kDosAttributes, value, sizeof value);
  return size > 0 ? std::string(value, static_cast<size_t>(size)) : std::string();
}

std::string ReadRecord(const std::filesystem::path& path) { return ReadRecord(path.c_str()); }

int WordFromMode(mode_t mode) {
  int word = 0;
  if (S_ISDIR(mode)) word |= fa::kDirectory;
  if (S_ISREG(mode)) word |= fa::kArchive;
  return word;
}

int WordFromMode(const struct stat& info) { return WordFromMode(info.st_mode); }

// The word from the kind and permissions of the entry, its name, and what
// the file system stores for it (a DOSATTRIB record, or a FAT byte).
int ComposeWord(mode_t mode, bool dot_name, const std::optional<int>& stored) {
  int word = WordFromMode(mode);
  if (stored) word = (word & fa::kDirectory) | (*stored & kStoredBits);
  if ((mode & S_IWUSR) == 0) word |= fa::kReadOnly;
  if (dot_name) word |= fa::kHidden;
  if (word & ~fa::kNormal) word &= ~fa::kNormal;
  return word == 0 ? fa::kNormal : word;
}

// The permission bits for the R bit, from the bits the file had.
mode_t ModeFor(mode_t mode, bool read_only) {
  mode &= 07777;
  if (read_only) return mode & ~static_cast<mode_t>(0222);
  return (mode & S_IWUSR) == 0 ? mode | S_IWUSR : mode;
}

FileStatus ChangeMode(const std::filesystem::path& path, mode_t from, mode_t to) {
  if (from == to || ::chmod(path.c_str(), to) == 0) return FileStatus::Success();
  return posix::StatusFromErrno(errno, path);
}

// Users other than root can write extended attributes of their own files only
// while those are writable.
void WriteRecord(const std::filesystem::path& path, const std::string& record, mode_t& mode) {
  if ((mode & S_IWUSR) == 0 && ::chmod(path.c_str(), mode | S_IWUSR) == 0) mode |= S_IWUSR;
  // Ignored where the file system takes no extended attributes.
  ::setxattr(path.c_str(), kDosAttributes, record.data(), record.size(), 0);
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
  std::optional<int> stored = posix::ReadDosAttributes(ReadRecord(path));
  if (!stored) stored = posix::ReadFatAttributes(path);
  return ComposeWord(info.st_mode, DotName(path), stored);
}

FolderAttributeReader::FolderAttributeReader(const std::filesystem::path& folder, int folder_fd)
    : folder_(folder), fat_(posix::FolderIsOnFat(folder_fd)) {
  folder_text_ = folder_.string();
  if (folder_text_.empty() || folder_text_.back() != '/') folder_text_ += '/';
  char value[1];
  if (::fgetxattr(folder_fd, kDosAttributes, value, 0) < 0 &&
      (errno == ENOTSUP || errno == EOPNOTSUPP)) {
    extended_attributes_ = false;
  }
}

int FolderAttributeReader::Read(const std::string& name, unsigned mode) const {
  std::optional<int> stored;
  if (extended_attributes_ || fat_) {
    // Asked once per file of a fill, from several threads: the path is put
    // together from the folder's text, not parsed into a path object.
    std::string path;
    path.reserve(folder_text_.size() + name.size());
    path.append(folder_text_).append(name);
    if (extended_attributes_) stored = posix::ReadDosAttributes(ReadRecord(path.c_str()));
    if (!stored && fat_) stored = posix::ReadFatAttributesOnFat(path);
  }
  return ComposeWord(static_cast<mode_t>(mode), DotName(name), stored);
}

FileStatus SetFileAttributes(const std::filesystem::path& path, int attributes) {
  struct stat info;
  if (path.empty()) return FileStatus::Error(vb_error::kBadFileName);
  if (::stat(path.c_str(), &info) != 0) return posix::StatusFromErrno(errno, path);
  const int word = attributes & kStoredBits;
  // A FAT volume keeps R, H, S and A itself, and maps R to the permissions.
  if (posix::WriteFatAttributes(path, word)) return FileStatus::Success();
  const std::string record = ReadRecord(path);
  mode_t mode = info.st_mode & 07777;
  if (!record.empty() || NeedsRecord(info, path, word)) {
    WriteRecord(path, posix::WriteDosAttributes(record, word), mode);
  }
  return ChangeMode(path, mode, ModeFor(info.st_mode, (word & fa::kReadOnly) != 0));
}

}  // namespace tarnwick
