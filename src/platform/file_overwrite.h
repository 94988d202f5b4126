#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>

#include "platform/file_status.h"

namespace tarnwick {

// True when `path` itself is a symbolic link (the link is not followed).
bool IsSymbolicLink(const std::filesystem::path& path);

// An existing regular file opened for overwriting in place, never through a
// symbolic link: the writes land on the file's own blocks where the file
// system allows it (not on a copy-on-write or log-structured one).
class OverwriteFile {
 public:
  OverwriteFile() = default;
  ~OverwriteFile();
  OverwriteFile(const OverwriteFile&) = delete;
  OverwriteFile& operator=(const OverwriteFile&) = delete;

  FileStatus Open(const std::filesystem::path& path);
  std::uint64_t size() const { return size_; }
  // Writes all of `bytes` at `offset`.
  FileStatus WriteAt(std::uint64_t offset, std::span<const unsigned char> bytes);
  // The written data on the disk (fdatasync), not only in the page cache.
  FileStatus Flush();
  void Close();

 private:
  std::filesystem::path path_;
  int fd_ = -1;
  std::uint64_t size_ = 0;
};

// Reads `path` from start to end in blocks of up to a megabyte and hands each
// to `consume`, which returns false to stop early. The file is read ahead
// sequentially and never held in memory whole.
FileStatus ReadFileInBlocks(const std::filesystem::path& path,
                            const std::function<bool(std::span<const unsigned char>)>& consume);

}  // namespace tarnwick
