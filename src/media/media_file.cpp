#include "media/media_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/file_attributes.h"
#include "platform/temp_files.h"

namespace tarnwick {

MediaFile::MediaFile(const std::filesystem::path& path, Mode mode) {
  // Non-blocking, so that a FIFO among the files cannot hold the open; only
  // regular files are kept.
  const int flags = (mode == Mode::kRead ? O_RDONLY : O_RDWR) | O_CLOEXEC | O_NONBLOCK;
  fd_ = ::open(path.c_str(), flags);
  if (fd_ < 0) return;
  struct stat st {};
  if (::fstat(fd_, &st) != 0 || !S_ISREG(st.st_mode)) {
    ::close(fd_);
    fd_ = -1;
    return;
  }
  size_ = st.st_size;
}

MediaFile::~MediaFile() {
  if (fd_ >= 0) ::close(fd_);
}

namespace {

constexpr std::size_t kWindowAlign = 4096;
constexpr std::size_t kWindowSize = 2 * kWindowAlign;

}  // namespace

std::size_t MediaFile::ReadInto(std::int64_t offset, std::uint8_t* out, std::size_t count) const {
  if (fd_ < 0 || offset < 0) return 0;
  if (count > kWindowAlign) return ReadDirect(offset, out, count);
  const auto inside = [&] {
    return window_at_ >= 0 && offset >= window_at_ &&
           offset + static_cast<std::int64_t>(count) <=
               window_at_ + static_cast<std::int64_t>(window_.size());
  };
  if (!inside()) {
    // A window that reaches past the end holds what the file has; a read
    // beyond it is answered as the file answers it.
    window_.resize(kWindowSize);
    window_at_ = offset - offset % static_cast<std::int64_t>(kWindowAlign);
    window_.resize(ReadDirect(window_at_, window_.data(), kWindowSize));
    if (!inside()) {
      const std::int64_t available =
          window_at_ + static_cast<std::int64_t>(window_.size()) - offset;
      if (available <= 0) return 0;
      std::copy_n(window_.begin() + (offset - window_at_), available, out);
      return static_cast<std::size_t>(available);
    }
  }
  std::copy_n(window_.begin() + (offset - window_at_), count, out);
  return count;
}

std::size_t MediaFile::ReadDirect(std::int64_t offset, std::uint8_t* out,
                                  std::size_t count) const {
  std::size_t done = 0;
  while (done < count) {
    const ssize_t got = ::pread(fd_, out + done, count - done, offset + done);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) break;
    done += static_cast<std::size_t>(got);
  }
  return done;
}

std::vector<std::uint8_t> MediaFile::ReadAt(std::int64_t offset, std::size_t count) const {
  std::vector<std::uint8_t> bytes(count, 0);
  ReadInto(offset, bytes.data(), count);
  return bytes;
}

bool MediaFile::WriteAt(std::int64_t offset, const std::uint8_t* data, std::size_t count) {
  window_at_ = -1;
  std::size_t done = 0;
  if (count == 0) return true;
  while (done < count) {
    const ssize_t put = ::pwrite(fd_, data + done, count - done, offset + done);
    if (put < 0 && errno == EINTR) continue;
    if (put <= 0) return false;
    done += static_cast<std::size_t>(put);
  }
  size_ = std::max<std::int64_t>(size_, offset + static_cast<std::int64_t>(count));
  return true;
}

bool MediaFile::Truncate(std::int64_t size) {
  window_at_ = -1;
  if (::ftruncate(fd_, size) != 0) return false;
  size_ = size;
  return true;
}

bool MediaFile::Sync() { return ::fsync(fd_) == 0; }

void ClearReadOnly(const std::filesystem::path& path) {
  const auto attributes = GetFileAttributes(path);
  if (!attributes.ok()) return;
  const int word = attributes.value();
  if ((word & file_attribute::kReadOnly) == 0) return;
  SetFileAttributes(path, word & ~file_attribute::kReadOnly);
}

namespace {

bool CopyTail(const MediaFile& from, std::int64_t offset, MediaFile& to, std::int64_t to_offset) {
  std::vector<std::uint8_t> chunk(1 << 16);
  const std::int64_t end = from.Size();
  while (offset < end) {
    const std::size_t want =
        static_cast<std::size_t>(std::min<std::int64_t>(end - offset, chunk.size()));
    const std::size_t got = from.ReadInto(offset, chunk.data(), want);
    if (got == 0) return false;
    if (!to.WriteAt(to_offset, chunk.data(), got)) return false;
    offset += got;
    to_offset += got;
  }
  return true;
}

}  // namespace

bool ReplaceWithHeadAndTail(const std::filesystem::path& link,
                            const std::vector<std::uint8_t>& head, std::int64_t from) {
  // Through a symbolic link the file it names is replaced, not the link.
  std::error_code error;
  const std::filesystem::path path = std::filesystem::canonical(link, error);
  if (error) return false;
  const auto folder = path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
  const auto temp = CreateUniqueTempFile(folder, "." + path.filename().string() + ".tw");
  if (!temp.ok()) return false;
  const std::filesystem::path temp_path = temp.value();
  bool ok = false;
  {
    MediaFile source(path, MediaFile::Mode::kRead);
    MediaFile target(temp_path, MediaFile::Mode::kReadWrite);
    struct stat st {};
    ok = source.is_open() && target.is_open() && ::stat(path.c_str(), &st) == 0 &&
         target.WriteAt(0, head.data(), head.size()) &&
         CopyTail(source, std::max<std::int64_t>(from, 0), target,
                  static_cast<std::int64_t>(head.size())) &&
         ::chmod(temp_path.c_str(), st.st_mode & 07777) == 0;
    if (ok)
      ok = target.Truncate(static_cast<std::int64_t>(head.size()) +
                           std::max<std::int64_t>(source.Size() - from, 0));
    if (ok) ok = target.Sync();
  }
  if (ok) ok = ::rename(temp_path.c_str(), path.c_str()) == 0;
  if (!ok) ::unlink(temp_path.c_str());
  return ok;
}

}  // namespace tarnwick
