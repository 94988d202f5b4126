#include "media/id3_size.h"

#include <vector>

namespace tarnwick {
namespace {

// The offset of the first run of four zero bytes from `from` on, counted from
// `from`; -1 when there is none.
std::int64_t FirstZeroRun(const MediaFile& file, std::int64_t from) {
  const std::int64_t end = file.Size();
  std::vector<std::uint8_t> chunk(1 << 16);
  int run = 0;
  for (std::int64_t at = from; at < end;) {
    const std::size_t got = file.ReadInto(at, chunk.data(), chunk.size());
    if (got == 0) break;
    for (std::size_t i = 0; i < got; ++i) {
      run = chunk[i] == 0 ? run + 1 : 0;
      if (run == 4) return at + static_cast<std::int64_t>(i) - 3 - from;
    }
    at += static_cast<std::int64_t>(got);
  }
  return -1;
}

}  // namespace

std::uint32_t ReadSize(std::span<const std::uint8_t> b, bool syncsafe) {
  const bool high_bit = ((b[0] | b[1] | b[2] | b[3]) & 0x80) != 0;
  if (syncsafe && !high_bit) {
    return static_cast<std::uint32_t>(b[0]) << 21 | static_cast<std::uint32_t>(b[1]) << 14 |
           static_cast<std::uint32_t>(b[2]) << 7 | b[3];
  }
  if (b[0] > 0x7F) return 0;
  return static_cast<std::uint32_t>(b[0]) << 24 | static_cast<std::uint32_t>(b[1]) << 16 |
         static_cast<std::uint32_t>(b[2]) << 8 | b[3];
}

void WriteSize(std::uint32_t value, bool syncsafe, std::uint8_t* out) {
  const int shift = syncsafe ? 7 : 8;
  const std::uint32_t mask = syncsafe ? 0x7F : 0xFF;
  for (int i = 3; i >= 0; --i) {
    out[i] = static_cast<std::uint8_t>(value & mask);
    value >>= shift;
  }
}

std::int64_t ID3v2TagSize(const MediaFile& file, std::int64_t position, bool body_only) {
  const auto header = file.ReadAt(position, 10);
  if (header[0] != 'I' || header[1] != 'D' || header[2] != '3') return 0;
  std::int64_t size = ReadSize(std::span(header).subspan(6, 4), true);
  if (!body_only) {
    size += 10;
    if (header[3] >= 4 && (header[5] & 0x10) != 0) size += 10;
  }
  const std::int64_t file_size = file.Size();
  if (size <= file_size) return size;
  if (body_only) return file_size;
  const std::int64_t run = FirstZeroRun(file, position + 10);
  return run >= 0 ? run : size;
}

}  // namespace tarnwick
