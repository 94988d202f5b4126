#include "media/audio_length.h"

#include "base/text.h"
#include "base/vb_number.h"
#include "media/media_file.h"
#include "media/mpeg_info.h"
#include "placeholders/picture_size.h"

namespace tarnwick {
namespace {

std::uint32_t LittleEndian(const std::vector<std::uint8_t>& b, std::size_t at) {
  return static_cast<std::uint32_t>(b[at]) | static_cast<std::uint32_t>(b[at + 1]) << 8 |
         static_cast<std::uint32_t>(b[at + 2]) << 16 | static_cast<std::uint32_t>(b[at + 3]) << 24;
}

bool Is(const std::vector<std::uint8_t>& b, std::size_t at, std::string_view magic) {
  return std::string_view(reinterpret_cast<const char*>(b.data()) + at, 4) == magic;
}

}  // namespace

std::int64_t MCILengthMP3(const std::filesystem::path& path) {
  return MpegLengthMilliseconds(path);
}

double MCILengthWAV(const std::filesystem::path& path) {
  const MediaFile file(path, MediaFile::Mode::kRead);
  if (!file.is_open()) return -1;
  const auto riff = file.ReadAt(0, 12);
  if (!Is(riff, 0, "RIFF") || !Is(riff, 8, "WAVE")) return -1;
  const std::int64_t size = file.Size();
  std::uint32_t byte_rate = 0;
  std::int64_t at = 12;
  // Chunks in order; a data chunk before its format chunk cannot be timed.
  for (int chunks = 0; at + 8 <= size && chunks < 10000; ++chunks) {
    const auto header = file.ReadAt(at, 8);
    const std::uint32_t length = LittleEndian(header, 4);
    if (Is(header, 0, "fmt ") && length >= 12) byte_rate = LittleEndian(file.ReadAt(at + 8, 12), 8);
    if (Is(header, 0, "data")) {
      if (byte_rate == 0) return -1;
      // A data size beyond the file (as a stream being written has) counts to its end.
      const std::int64_t data = std::min<std::int64_t>(length, size - at - 8);
      return static_cast<double>(static_cast<std::int64_t>(data) * 1000 / byte_rate) / 1000;
    }
    at += 8 + static_cast<std::int64_t>(length) + (length & 1);
  }
  return -1;
}

std::string MediaInfoText(const std::filesystem::path& path) {
  std::string extension = vb::LCase(path.extension().string());
  if (!extension.empty()) extension.erase(0, 1);
  if (extension == "mp3") return FormatSeconds(MCILengthMP3(path) / 1000) + " min.";
  if (extension == "wav") {
    return FormatSeconds(static_cast<std::int64_t>(vb::RoundHalfEven(MCILengthWAV(path)))) +
           " min.";
  }
  const auto size = ReadPictureSize(path);
  if (!size) return {};
  return std::to_string(size->width) + " x " + std::to_string(size->height) + " Pixel";
}

}  // namespace tarnwick
