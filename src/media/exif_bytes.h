#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarnwick {

// The bytes of the head of a picture file with the byte order of its TIFF
// block. Numbers are read at absolute positions; a number that does not lie
// wholly inside the bytes raises VbError 9, which ends a parse.
class ExifBytes {
 public:
  ExifBytes(std::string_view bytes, bool intel) : bytes_(bytes), intel_(intel) {}

  // `ReadUnsigned`: `size` bytes (0 to 8) as base-256 digits in the byte order.
  std::uint64_t ReadUnsigned(std::int64_t position, int size) const;

  // `ReadSigned`: as ReadUnsigned; a value above 2^(8*size-1) - 1 becomes the
  // bitwise NOT of (value - 2^(8*size-1)), so 0xFFFFFFFF reads as
  // -2147483648 and 0x80000000 as -1.
  std::int64_t ReadSigned(std::int64_t position, int size) const;

  // Up to `length` bytes from `position`: what lies inside the bytes, so a
  // range behind their end comes out short or empty.
  std::string_view Slice(std::int64_t position, std::int64_t length) const;

  bool intel() const { return intel_; }
  std::size_t size() const { return bytes_.size(); }

 private:
  std::string_view bytes_;
  bool intel_;
};

// The same reading rules on a data span of its own (an entry's value bytes).
std::uint64_t ReadUnsignedAt(std::string_view data, std::size_t offset, int size, bool intel);
std::int64_t ReadSignedAt(std::string_view data, std::size_t offset, int size, bool intel);

}  // namespace tarnwick
