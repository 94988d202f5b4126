#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/posix/unique_fd.h"

namespace tarnwick {

// What tells one state of the options file from another: a file replaced by
// a rename has a new inode, a file edited in place a new size or time.
struct OptionFileIdentity {
  bool exists = false;
  int error = 0;  // errno of a failed stat other than "not found"
  dev_t device = 0;
  ino_t inode = 0;
  off_t size = 0;
  timespec modified{};
  timespec changed{};

  bool operator==(const OptionFileIdentity& other) const;
};

OptionFileIdentity StatOptionFile(const std::filesystem::path& file);

// True when the file's time stamps are so recent (within kRacyWindowNanoseconds of the
// clock) that another change in the same clock tick could leave them as they
// are.
bool IsRecent(const OptionFileIdentity& identity);
inline constexpr long long kRacyWindowNanoseconds = 100'000'000;

// A file larger than this is not an options file; it reads as unreadable.
inline constexpr off_t kMaxOptionFileSize = 16 * 1024 * 1024;

struct OptionFileContent {
  enum class State { kMissing, kRead, kFailed };
  State state = State::kFailed;
  std::string text;
  OptionFileIdentity identity;  // of the file that was read
  mode_t mode = 0644;           // its permission bits, or those a new file gets
};

OptionFileContent ReadOptionFile(const std::filesystem::path& file);

// An exclusive lock held on a lock file (flock) until the object ends.
class OptionFileLock {
 public:
  static std::optional<OptionFileLock> Acquire(const std::filesystem::path& lock_file);

 private:
  explicit OptionFileLock(posix::UniqueFd fd) : fd_(std::move(fd)) {}
  posix::UniqueFd fd_;
};

// Replaces `file` by one holding `content`: a temporary file in the same
// folder is written and synced, renamed over `file`, and the folder synced.
// A failure leaves the old file whole. A symbolic link is written through.
bool ReplaceOptionFile(const std::filesystem::path& file, std::string_view content, mode_t mode);

}  // namespace tarnwick
