#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace tarnwick {

// An existing file opened for the tag readers and writers. Reads never fail:
// bytes past the end or not read stay zero, as the readers expect of a
// zero-filled buffer.
class MediaFile {
 public:
  enum class Mode { kRead, kReadWrite };

  MediaFile(const std::filesystem::path& path, Mode mode);
  ~MediaFile();
  MediaFile(const MediaFile&) = delete;
  MediaFile& operator=(const MediaFile&) = delete;

  bool is_open() const { return fd_ >= 0; }
  // The size at opening, or as the last Truncate left it.
  std::int64_t Size() const { return size_; }

  // `count` bytes from `offset`, zero where the file has none.
  std::vector<std::uint8_t> ReadAt(std::int64_t offset, std::size_t count) const;
  // Reads into `out` and returns the number of bytes that came from the file.
  std::size_t ReadInto(std::int64_t offset, std::uint8_t* out, std::size_t count) const;
  bool WriteAt(std::int64_t offset, const std::uint8_t* data, std::size_t count);
  bool Truncate(std::int64_t size);
  // Flushes the file's data to disk.
  bool Sync();

 private:
  std::size_t ReadDirect(std::int64_t offset, std::uint8_t* out, std::size_t count) const;

  int fd_ = -1;
  std::int64_t size_ = 0;
  // The readers ask for many small pieces near each other (a header, then its
  // frames, then the tag at the end): small reads are served from one window
  // of the file read at once. Any write empties it.
  mutable std::vector<std::uint8_t> window_;
  mutable std::int64_t window_at_ = -1;
};

// Clears the read-only attribute when the file has it; nothing else changes.
void ClearReadOnly(const std::filesystem::path& path);

// Builds a new file beside `path` from `head` followed by the bytes of
// `path` from `from` to its end, flushes it to disk and puts it in place of
// the old one, keeping its permission bits. A failure leaves the old file
// whole and removes the new one.
bool ReplaceWithHeadAndTail(const std::filesystem::path& path,
                            const std::vector<std::uint8_t>& head, std::int64_t from);

}  // namespace tarnwick
