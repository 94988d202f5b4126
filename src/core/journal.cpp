#include "core/journal.h"

#include <errno.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <system_error>

namespace tarnwick {
namespace {

constexpr std::string_view kSuffix = ".journal";

// The error numbers of file operations, as the platform layer gives them.
FileStatus FromErrno(int error) {
  switch (error) {
    case ENOENT:
      return FileStatus::Error(vb_error::kPathNotFound);
    case EACCES:
    case EPERM:
    case EROFS:
      return FileStatus::Error(vb_error::kPermissionDenied);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return FileStatus::Error(vb_error::kDiskFull);
    default:
      return FileStatus::Error(vb_error::kPathFileAccessError);
  }
}

int WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t put = ::write(fd, bytes.data(), bytes.size());
    if (put < 0 && errno == EINTR) continue;
    if (put <= 0) return put < 0 ? errno : EIO;
    bytes.remove_prefix(static_cast<std::size_t>(put));
  }
  return 0;
}

// Makes the new entry of `folder` last across a power loss.
void SyncFolder(const std::filesystem::path& folder) {
  const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return;
  ::fsync(fd);
  ::close(fd);
}

// Creates the journal file of the batch `batch_name` in `folder` under a name
// no other run uses.
int CreateJournalFile(const std::filesystem::path& folder, const std::filesystem::path& batch_name,
                      std::filesystem::path& path) {
  const std::string base = (folder / batch_name).string() + "." + std::to_string(::getpid());
  for (int n = 1; n <= 100; ++n) {
    path = base + (n == 1 ? "" : "-" + std::to_string(n)) + std::string(kSuffix);
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_CLOEXEC, 0644);
    if (fd >= 0 || errno != EEXIST) return fd >= 0 ? fd : -errno;
  }
  return -EEXIST;
}

bool EndsWith(const std::string& text, std::string_view tail) {
  return text.size() > tail.size() &&
         text.compare(text.size() - tail.size(), tail.size(), tail) == 0;
}

std::vector<std::filesystem::path> Journals(const std::filesystem::path& folder,
                                            const std::string& prefix) {
  std::vector<std::filesystem::path> found;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with(prefix) && EndsWith(name, kSuffix)) found.push_back(entry.path());
  }
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace

std::unique_ptr<RunJournal> RunJournal::Begin(const std::filesystem::path& batch_path,
                                              const std::string& older_copy, FileStatus* status,
                                              const std::filesystem::path& folder) {
  std::filesystem::path path;
  const int fd = CreateJournalFile(folder.empty() ? batch_path.parent_path() : folder,
                                   batch_path.filename(), path);
  if (fd < 0) {
    if (status != nullptr) *status = FromErrno(-fd);
    return nullptr;
  }
  // Held while the run lasts: a journal that can be locked has no live run.
  ::flock(fd, LOCK_EX);
  std::unique_ptr<RunJournal> journal(new RunJournal(path, fd));
  const std::string header = JournalHeaderText(batch_path.string(), older_copy);
  const int error = WriteAll(fd, header);
  if (error != 0 || ::fdatasync(fd) != 0) {
    if (status != nullptr) *status = FromErrno(error != 0 ? error : errno);
    journal->Remove();
    return nullptr;
  }
  SyncFolder(path.parent_path());
  if (status != nullptr) *status = FileStatus::Success();
  return journal;
}

RunJournal::~RunJournal() {
  if (fd_ >= 0) ::close(fd_);
}

FileStatus RunJournal::Write(const std::string& record) {
  if (fd_ < 0) return FileStatus::Error(vb_error::kPathFileAccessError);
  if (const int error = WriteAll(fd_, record)) return FromErrno(error);
  const auto now = std::chrono::steady_clock::now();
  if (++unsynced_ >= kSyncEveryRecords || now - last_sync_ >= kSyncInterval) {
    ::fdatasync(fd_);
    unsynced_ = 0;
    last_sync_ = now;
  }
  return FileStatus::Success();
}

FileStatus RunJournal::RecordStep(const JournalStep& step) { return Write(JournalStepText(step)); }

FileStatus RunJournal::RecordDone() { return Write(JournalDoneText()); }

FileStatus RunJournal::RecordFinish(std::uint64_t batch_size) {
  const FileStatus status = Write(JournalFinishText(batch_size));
  if (status.ok()) ::fdatasync(fd_);
  return status;
}

void RunJournal::Remove() {
  if (fd_ < 0) return;
  ::unlink(path_.c_str());
  ::close(fd_);
  fd_ = -1;
}

std::vector<std::filesystem::path> JournalsOfBatch(const std::filesystem::path& batch_path) {
  const std::filesystem::path folder =
      batch_path.has_parent_path() ? batch_path.parent_path() : std::filesystem::path(".");
  return Journals(folder, batch_path.filename().string() + ".");
}

std::vector<std::filesystem::path> JournalsInFolder(const std::filesystem::path& folder) {
  return Journals(folder, "");
}

}  // namespace tarnwick
