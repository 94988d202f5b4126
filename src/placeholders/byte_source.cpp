#include "placeholders/byte_source.h"

#include <sys/stat.h>

#include <cstring>

namespace tarnwick {

bool MemorySource::Read(std::uint64_t offset, std::size_t size, void* out) const {
  if (offset > bytes_.size() || size > bytes_.size() - offset) return false;
  std::memcpy(out, bytes_.data() + offset, size);
  return true;
}

namespace {

// Only regular files: a folder or a device is not read.
std::FILE* OpenRegular(const std::filesystem::path& path) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) return nullptr;
  struct stat info;
  if (fstat(fileno(file), &info) != 0 || !S_ISREG(info.st_mode)) {
    std::fclose(file);
    return nullptr;
  }
  return file;
}

}  // namespace

FileSource::FileSource(const std::filesystem::path& path)
    : file_(OpenRegular(path), &std::fclose) {}

bool FileSource::Read(std::uint64_t offset, std::size_t size, void* out) const {
  if (!file_ || offset > static_cast<std::uint64_t>(INT64_MAX)) return false;
  if (fseeko(file_.get(), static_cast<off_t>(offset), SEEK_SET) != 0) return false;
  return std::fread(out, 1, size, file_.get()) == size;
}

}  // namespace tarnwick
