#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>

#include "platform/file_status.h"

namespace tarnwick {

// Writes `length` bytes of `source`, from byte `first` (0-based), to a new
// file `target`. An existing `target` is replaced only with `replace`;
// otherwise the piece fails with 58 "File already exists". The bytes move in
// the kernel where the file systems allow it. A piece that cannot be written
// whole (a full disk, a source shorter than asked) is removed again, so no
// partial piece is left under the name.
FileStatus CopyByteRange(const std::filesystem::path& source, std::uint64_t first,
                         std::uint64_t length, const std::filesystem::path& target, bool replace);

// A file built by appending whole files or bytes, under a hidden temporary name in the
// folder of its final name. Nothing appears under the final name until
// Commit; a file that is neither committed nor kept is removed at the end of
// the object, so a failed or cancelled merge leaves the folder as it was.
class StagedFile {
 public:
  StagedFile() = default;
  ~StagedFile();
  StagedFile(const StagedFile&) = delete;
  StagedFile& operator=(const StagedFile&) = delete;

  // Creates the temporary file beside `final_path`.
  FileStatus Open(const std::filesystem::path& final_path);
  // Appends the whole of `source`, streamed, never held in memory.
  FileStatus Append(const std::filesystem::path& source);
  // Appends bytes held in memory.
  FileStatus Write(std::span<const std::uint8_t> bytes);
  std::uint64_t size() const { return size_; }
  // Puts the file under its final name: replacing a file there only with
  // `replace`, else failing with 58. With `flush` its data reach the disk
  // first, so that a crash cannot leave a short file where a whole one stood
  // (needed when a file is replaced, or when the sources go next).
  FileStatus Commit(bool replace, bool flush);

 private:
  std::filesystem::path final_path_;
  std::filesystem::path temporary_;
  int fd_ = -1;
  std::uint64_t size_ = 0;
};

// The identity of a file (device and inode), to tell whether two paths name
// the same file; nothing for a path that names no file.
struct FileIdentity {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  bool operator==(const FileIdentity&) const = default;
};
std::optional<FileIdentity> IdentityOf(const std::filesystem::path& path);

}  // namespace tarnwick
