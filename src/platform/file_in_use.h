#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>

namespace tarnwick {

// True when some process, this one included, holds the file open. The probe
// asks for a write lease on a read-only descriptor, which the kernel grants
// only when no other descriptor of the file is open, and gives it back at
// once. Where a lease is not allowed (the file belongs to another user,
// leases are switched off, the file system has none) it looks through the
// open descriptors of every process it may read (/proc/*/fd); descriptors of
// processes it may not read are not seen there. A file that cannot be found,
// and anything that is not a regular file, is not in use.
bool IsFileInUse(const std::filesystem::path& path);

// The open-file test of a run of many files, at the cost of one stat per
// file, or none where the file's identity is known: the open descriptors of the processes this one may read
// (/proc/*/fd) are looked at once, and again when the last look is older
// than `max_age`. Its limits, against IsFileInUse:
//   - A descriptor of a process of another user is not seen unless this
//     process runs as root (IsFileInUse's lease sees it for files the user
//     owns).
//   - A file opened after the last look is seen at the next look, at most
//     `max_age` later.
// Where /proc cannot be read at all, each file is asked by IsFileInUse.
class OpenFileScan {
 public:
  explicit OpenFileScan(std::chrono::milliseconds max_age = std::chrono::seconds(1));
  ~OpenFileScan();
  OpenFileScan(const OpenFileScan&) = delete;
  OpenFileScan& operator=(const OpenFileScan&) = delete;

  bool IsFileInUse(const std::filesystem::path& path);
  // The same for a file whose identity is known (a row of the list keeps
  // what its fill's statx gave: the device as major << 32 | minor, and the
  // inode), without asking the file system; inode 0: not known, asked by
  // path. Only a file found open is looked at (its identity may have passed
  // to another file since); a file replaced by another since its identity
  // was taken is otherwise judged as the file it was.
  bool IsFileInUse(const std::filesystem::path& path, std::uint64_t device, std::uint64_t inode);

 private:
  void Refresh();
  struct Table;
  std::unique_ptr<Table> table_;
  std::chrono::milliseconds max_age_;
};

}  // namespace tarnwick
