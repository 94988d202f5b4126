#include "media/exif_bytes.h"

#include "base/vb_error.h"

namespace tarnwick {
namespace {

[[noreturn]] void OutOfRange() {
  throw VbError(vb_error::kSubscriptOutOfRange, "Subscript out of range");
}

}  // namespace

std::uint64_t ReadUnsignedAt(std::string_view data, std::size_t offset, int size, bool intel) {
  if (size < 0 || size > 8 || offset > data.size() || data.size() - offset < std::size_t(size)) {
    OutOfRange();
  }
  std::uint64_t value = 0;
  for (int i = 0; i < size; ++i) {
    const int at = intel ? size - 1 - i : i;
    value = (value << 8) | static_cast<unsigned char>(data[offset + at]);
  }
  return value;
}

std::int64_t ReadSignedAt(std::string_view data, std::size_t offset, int size, bool intel) {
  const std::uint64_t value = ReadUnsignedAt(data, offset, size, intel);
  if (size == 0) return 0;
  const std::uint64_t half = std::uint64_t{1} << (8 * size - 1);
  if (value <= half - 1) return static_cast<std::int64_t>(value);
  // Kept: the mirrored scale, ~(value - half) = half - 1 - value, not two's
  // complement; the texts of negative rationals show it.
  return -static_cast<std::int64_t>(value - half) - 1;
}

std::uint64_t ExifBytes::ReadUnsigned(std::int64_t position, int size) const {
  if (position < 0) OutOfRange();
  return ReadUnsignedAt(bytes_, static_cast<std::size_t>(position), size, intel_);
}

std::int64_t ExifBytes::ReadSigned(std::int64_t position, int size) const {
  if (position < 0) OutOfRange();
  return ReadSignedAt(bytes_, static_cast<std::size_t>(position), size, intel_);
}

std::string_view ExifBytes::Slice(std::int64_t position, std::int64_t length) const {
  if (position < 0 || length <= 0 || position >= static_cast<std::int64_t>(bytes_.size())) {
    return {};
  }
  return bytes_.substr(static_cast<std::size_t>(position), static_cast<std::size_t>(length));
}

}  // namespace tarnwick
