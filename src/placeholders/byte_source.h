#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>

namespace tarnwick {

// Random access to the bytes of a file on disk or of a buffer, for the small
// header readers of the metadata tokens. Every read is bounds-checked.
class ByteSource {
 public:
  virtual ~ByteSource() = default;
  // Copies `size` bytes at `offset` into `out`; false if they are not all there.
  virtual bool Read(std::uint64_t offset, std::size_t size, void* out) const = 0;
};

class MemorySource : public ByteSource {
 public:
  explicit MemorySource(std::string_view bytes) : bytes_(bytes) {}
  bool Read(std::uint64_t offset, std::size_t size, void* out) const override;

 private:
  std::string_view bytes_;
};

// A file opened for reading; `is_open()` is false when it could not be opened.
class FileSource : public ByteSource {
 public:
  explicit FileSource(const std::filesystem::path& path);
  bool is_open() const { return file_ != nullptr; }
  bool Read(std::uint64_t offset, std::size_t size, void* out) const override;

 private:
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
};

// Little- and big-endian integers of a byte array.
inline std::uint16_t LittleU16(const std::uint8_t* p) {
  return static_cast<std::uint16_t>(p[0] | p[1] << 8);
}
inline std::uint32_t LittleU32(const std::uint8_t* p) {
  return static_cast<std::uint32_t>(p[0]) | static_cast<std::uint32_t>(p[1]) << 8 |
         static_cast<std::uint32_t>(p[2]) << 16 | static_cast<std::uint32_t>(p[3]) << 24;
}
inline std::uint16_t BigU16(const std::uint8_t* p) {
  return static_cast<std::uint16_t>(p[0] << 8 | p[1]);
}
inline std::uint32_t BigU32(const std::uint8_t* p) {
  return static_cast<std::uint32_t>(p[0]) << 24 | static_cast<std::uint32_t>(p[1]) << 16 |
         static_cast<std::uint32_t>(p[2]) << 8 | static_cast<std::uint32_t>(p[3]);
}

}  // namespace tarnwick
