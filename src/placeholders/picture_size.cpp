// Picture sizes from the headers of JPEG, PNG, GIF, BMP and TIFF files.
#include "placeholders/picture_size.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>

#include "placeholders/byte_source.h"

namespace tarnwick {
namespace {

// A JPEG holds at most this many segments before its frame header; more is
// taken for a damaged file.
constexpr int kMaxJpegSegments = 4096;
constexpr int kMaxTiffEntries = 4096;

std::optional<PictureSize> NonEmpty(std::uint32_t width, std::uint32_t height) {
  if (width == 0 || height == 0) return std::nullopt;
  return PictureSize{width, height};
}

bool IsFrameMarker(std::uint8_t marker) {
  // SOF0 to SOF15, without DHT (C4), JPG (C8) and DAC (CC).
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

std::optional<PictureSize> JpegSize(const ByteSource& source) {
  std::uint64_t at = 2;
  for (int i = 0; i < kMaxJpegSegments; ++i) {
    std::array<std::uint8_t, 4> head;
    if (!source.Read(at, 4, head.data()) || head[0] != 0xFF) return std::nullopt;
    const std::uint8_t marker = head[1];
    if (marker == 0xFF) {  // fill byte
      at += 1;
      continue;
    }
    if (marker == 0xD8 || (marker >= 0xD0 && marker <= 0xD7) || marker == 0x01) {
      at += 2;
      continue;
    }
    if (marker == 0xD9 || marker == 0xDA) return std::nullopt;  // no frame before the data
    const std::uint16_t length = BigU16(head.data() + 2);
    if (length < 2) return std::nullopt;
    if (IsFrameMarker(marker)) {
      std::array<std::uint8_t, 5> frame;
      if (!source.Read(at + 4, 5, frame.data())) return std::nullopt;
      return NonEmpty(BigU16(frame.data() + 3), BigU16(frame.data() + 1));
    }
    at += 2 + length;
  }
  return std::nullopt;
}

std::optional<PictureSize> PngSize(const ByteSource& source) {
  std::array<std::uint8_t, 16> ihdr;
  if (!source.Read(8, 16, ihdr.data()) || std::memcmp(ihdr.data() + 4, "IHDR", 4) != 0) {
    return std::nullopt;
  }
  return NonEmpty(BigU32(ihdr.data() + 8), BigU32(ihdr.data() + 12));
}

std::optional<PictureSize> GifSize(const ByteSource& source) {
  std::array<std::uint8_t, 4> screen;
  if (!source.Read(6, 4, screen.data())) return std::nullopt;
  return NonEmpty(LittleU16(screen.data()), LittleU16(screen.data() + 2));
}

std::optional<PictureSize> BmpSize(const ByteSource& source) {
  std::array<std::uint8_t, 12> info;
  if (!source.Read(14, 12, info.data())) return std::nullopt;
  const std::uint32_t header_size = LittleU32(info.data());
  if (header_size == 12) {  // BITMAPCOREHEADER
    return NonEmpty(LittleU16(info.data() + 4), LittleU16(info.data() + 6));
  }
  if (header_size < 40) return std::nullopt;
  const auto width = static_cast<std::int32_t>(LittleU32(info.data() + 4));
  const auto height = static_cast<std::int32_t>(LittleU32(info.data() + 8));
  if (width <= 0 || height == INT32_MIN) return std::nullopt;
  return NonEmpty(static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(std::abs(height)));
}

std::optional<PictureSize> TiffSize(const ByteSource& source, bool big_endian) {
  const auto u16 = [big_endian](const std::uint8_t* p) {
    return big_endian ? BigU16(p) : LittleU16(p);
  };
  const auto u32 = [big_endian](const std::uint8_t* p) {
    return big_endian ? BigU32(p) : LittleU32(p);
  };
  std::array<std::uint8_t, 4> offset;
  std::array<std::uint8_t, 2> count;
  if (!source.Read(4, 4, offset.data())) return std::nullopt;
  const std::uint64_t directory = u32(offset.data());
  if (!source.Read(directory, 2, count.data())) return std::nullopt;
  const int entries = std::min<int>(u16(count.data()), kMaxTiffEntries);
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  for (int i = 0; i < entries; ++i) {
    std::array<std::uint8_t, 12> entry;
    if (!source.Read(directory + 2 + 12ull * i, 12, entry.data())) break;
    const std::uint16_t tag = u16(entry.data());
    const std::uint16_t type = u16(entry.data() + 2);
    if (tag != 256 && tag != 257) continue;
    std::uint32_t value = 0;
    if (type == 3)
      value = u16(entry.data() + 8);  // SHORT
    else if (type == 4)
      value = u32(entry.data() + 8);  // LONG
    (tag == 256 ? width : height) = value;
  }
  return NonEmpty(width, height);
}

std::optional<PictureSize> SizeOf(const ByteSource& source) {
  std::array<std::uint8_t, 8> magic{};
  if (!source.Read(0, 4, magic.data())) return std::nullopt;
  source.Read(0, 8, magic.data());
  if (magic[0] == 0xFF && magic[1] == 0xD8) return JpegSize(source);
  if (std::memcmp(magic.data(), "\x89PNG\r\n\x1a\n", 8) == 0) return PngSize(source);
  if (std::memcmp(magic.data(), "GIF8", 4) == 0) return GifSize(source);
  if (magic[0] == 'B' && magic[1] == 'M') return BmpSize(source);
  if (std::memcmp(magic.data(), "II*\0", 4) == 0) return TiffSize(source, false);
  if (std::memcmp(magic.data(), "MM\0*", 4) == 0) return TiffSize(source, true);
  return std::nullopt;
}

}  // namespace

std::optional<PictureSize> ReadPictureSize(const std::filesystem::path& path) {
  const FileSource file(path);
  if (!file.is_open()) return std::nullopt;
  return SizeOf(file);
}

std::optional<PictureSize> ParsePictureSize(std::string_view bytes) {
  return SizeOf(MemorySource(bytes));
}

}  // namespace tarnwick
