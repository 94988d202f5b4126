#include "picture/exif_orientation.h"

#include <cstring>

namespace tarnwick {

bool ResetExifOrientation(std::vector<std::uint8_t>& exif) {
  constexpr std::size_t kTiff = 6;  // after "Exif\0\0"
  if (exif.size() < kTiff + 8 || std::memcmp(exif.data(), "Exif\0\0", 6) != 0) return false;
  const bool intel = exif[kTiff] == 'I' && exif[kTiff + 1] == 'I';
  if (!intel && !(exif[kTiff] == 'M' && exif[kTiff + 1] == 'M')) return false;
  const auto read = [&](std::size_t at, int size) -> std::uint32_t {
    std::uint32_t value = 0;
    for (int i = 0; i < size; ++i) {
      const std::uint8_t byte =
          exif[kTiff + at + static_cast<std::size_t>(intel ? size - 1 - i : i)];
      value = (value << 8) | byte;
    }
    return value;
  };
  const std::size_t tiff_size = exif.size() - kTiff;
  const std::size_t ifd = read(4, 4);
  if (ifd + 2 > tiff_size) return false;
  const std::size_t count = read(ifd, 2);
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t entry = ifd + 2 + i * 12;
    if (entry + 12 > tiff_size) return false;
    if (read(entry, 2) != 0x0112 || read(entry + 2, 2) != 3) continue;  // SHORT Orientation
    // The value stands in the first two bytes of the value field.
    const std::size_t value = kTiff + entry + 8;
    exif[value] = intel ? 1 : 0;
    exif[value + 1] = intel ? 0 : 1;
    return true;
  }
  return false;
}

}  // namespace tarnwick
