#include "media/mpeg_info.h"

#include <array>
#include <cmath>
#include <limits>

#include "base/vb_error.h"
#include "base/vb_format.h"
#include "base/vb_number.h"
#include "media/id3_size.h"
#include "media/media_file.h"

namespace tarnwick {
namespace {

// kbit/s by index 1..14: V1 L1, V1 L2, V1 L3, V2/V2.5 L1, V2/V2.5 L2 and L3.
constexpr std::array<std::array<int, 14>, 5> kBitrates = {{
    {32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448},
    {32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384},
    {32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320},
    {32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256},
    {8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160},
}};

std::uint32_t BigEndian(const std::vector<std::uint8_t>& b, std::size_t at) {
  return static_cast<std::uint32_t>(b[at]) << 24 | static_cast<std::uint32_t>(b[at + 1]) << 16 |
         static_cast<std::uint32_t>(b[at + 2]) << 8 | b[at + 3];
}

std::int32_t Rounded(double value) {
  if (!std::isfinite(value)) throw VbError(vb_error::kDivisionByZero, "Division by zero");
  const double r = vb::RoundHalfEven(value);
  if (r > std::numeric_limits<std::int32_t>::max() || r < std::numeric_limits<std::int32_t>::min())
    throw VbError(vb_error::kOverflow, "Overflow");
  return static_cast<std::int32_t>(r);
}

// The offset of the first sync from `from`, or -1 when the search passes
// size minus 4.
std::int64_t FindSync(const MediaFile& file, std::int64_t from, std::int64_t size) {
  std::vector<std::uint8_t> chunk(1 << 14);
  for (std::int64_t at = from; at <= size - 4;) {
    const std::size_t got = file.ReadInto(at, chunk.data(), chunk.size());
    if (got < 2) return -1;
    for (std::size_t i = 0; i + 1 < got; ++i) {
      if (at + static_cast<std::int64_t>(i) > size - 4) return -1;
      if (chunk[i] == 0xFF && (chunk[i + 1] & 0xE0) == 0xE0)
        return at + static_cast<std::int64_t>(i);
    }
    at += static_cast<std::int64_t>(got) - 1;
  }
  return -1;
}

// What the first frame gives beyond the record: the exact playing time.
struct StreamScan {
  bool found = false;
  double milliseconds = 0;
};

StreamScan Scan(const MediaFile& file, MPEGInfo& info) {
  StreamScan scan;
  const std::int64_t size = file.Size();
  const std::int64_t start = ID3v2TagSize(file, 0, false);
  const std::int64_t frame = FindSync(file, start, size);
  if (frame < 0) return scan;
  const auto h = file.ReadAt(frame, 4);
  const int version_bits = (h[1] >> 3) & 3;
  const int layer_bits = (h[1] >> 1) & 3;
  if (version_bits == 1 || layer_bits == 0) return scan;
  const bool v1 = version_bits == 3;
  const int divisor = version_bits == 0 ? 4 : (version_bits == 2 ? 2 : 1);
  const char* version = version_bits == 0 ? "version 2.5" : (v1 ? "version 1" : "version 2");
  const int layer = 4 - layer_bits;
  const int samples = layer == 3 ? (v1 ? 1152 : 576) : (layer == 2 ? 1152 : 384);
  info.mpegVersion = std::string(version) + " layer " + std::to_string(layer);
  info.hasCRC = (h[1] & 1) == 0;
  const int mode = h[3] >> 6;
  static constexpr std::array<const char*, 4> kModes = {"Stereo", "Joint stereo", "Dual channel",
                                                        "Mono"};
  info.channelMode = kModes[mode];
  const int side = mode == 3 ? (v1 ? 17 : 9) : (v1 ? 32 : 17);
  static constexpr std::array<int, 4> kRates = {44100, 48000, 32000, 0};
  info.frequency = kRates[(h[2] >> 2) & 3] / divisor;

  std::uint32_t frames = 0;
  std::uint32_t bytes = 0;
  const auto xing = file.ReadAt(frame + 4 + side, 16);
  const bool xing_magic = (xing[0] == 'I' && xing[1] == 'n' && xing[2] == 'f' && xing[3] == 'o') ||
                          (xing[0] == 'X' && xing[1] == 'i' && xing[2] == 'n' && xing[3] == 'g');
  if (xing_magic && (xing[7] & 1) != 0) {
    frames = BigEndian(xing, 8);
    if ((xing[7] & 2) != 0) bytes = BigEndian(xing, 12);
  }
  const auto vbri = file.ReadAt(frame + 36, 18);
  if (vbri[0] == 'V' && vbri[1] == 'B' && vbri[2] == 'R' && vbri[3] == 'I') {
    bytes = BigEndian(vbri, 10);
    frames = BigEndian(vbri, 14);
  }
  if (frames != 0 && bytes != 0) {
    info.hasVBR = true;
    const double freq = info.frequency;
    if (freq == 0) throw VbError(vb_error::kDivisionByZero, "Division by zero");
    info.bitrate = Rounded(static_cast<double>(bytes) / frames / samples / 125 * freq);
    info.length = Rounded(frames / freq * samples);
    info.lengthFrames = Rounded(frames / freq * samples * 75);
    scan.milliseconds = frames / freq * samples * 1000;
  } else {
    info.hasVBR = false;
    const int index = h[2] >> 4;
    const int column = v1 ? layer - 1 : (layer == 1 ? 3 : 4);
    info.bitrate = index == 0 || index == 15 ? 0 : kBitrates[column][index - 1];
    if (info.bitrate > 0) {
      const double audio = static_cast<double>(size - frame);
      info.length = Rounded(audio / (info.bitrate * 125.0));
      info.lengthFrames = Rounded(audio * 75 / (info.bitrate * 125.0));
      scan.milliseconds = audio * 8 / info.bitrate;
    }
  }
  info.isCopyrighted = (h[3] & 0x08) != 0;
  info.isOriginal = (h[3] & 0x04) != 0;
  info.hasEmphasis = (h[3] & 0x03) != 0;
  scan.found = true;
  return scan;
}

void TagFacts(const MediaFile& file, MPEGInfo& info) {
  const std::int64_t size = file.Size();
  info.ID3v1Version = -1;
  if (size >= 128) {
    const auto t = file.ReadAt(size - 128, 128);
    if (t[0] == 'T' && t[1] == 'A' && t[2] == 'G')
      info.ID3v1Version = t[125] == 0 && t[126] != 0 ? 1 : 0;
  }
  info.ID3v2Version = -1;
  const auto h = file.ReadAt(0, 10);
  if (h[0] == 'I' && h[1] == 'D' && h[2] == '3') info.ID3v2Version = h[3];
  info.fileSize = static_cast<std::int32_t>(size);
}

}  // namespace

bool ReadMPEGInfo(const std::filesystem::path& path, MPEGInfo& info) {
  const MediaFile file(path, MediaFile::Mode::kRead);
  return ReadMPEGInfo(file, info);
}

bool ReadMPEGInfo(const MediaFile& file, MPEGInfo& info) {
  if (!file.is_open() || file.Size() < 4) return false;
  const StreamScan scan = Scan(file, info);
  TagFacts(file, info);
  return scan.found;
}

std::int64_t MpegLengthMilliseconds(const std::filesystem::path& path) {
  const MediaFile file(path, MediaFile::Mode::kRead);
  if (!file.is_open() || file.Size() < 4) return 0;
  MPEGInfo info;
  try {
    const StreamScan scan = Scan(file, info);
    return scan.found ? static_cast<std::int64_t>(vb::RoundHalfEven(scan.milliseconds)) : 0;
  } catch (const VbError&) {
    return 0;
  }
}

std::string FormatSeconds(std::int64_t seconds) {
  // Integer division and remainder keep their signs, as the program's
  // arithmetic does.
  return vb::Format(seconds / 60, "00") + ":" + vb::Format(seconds % 60, "00");
}

}  // namespace tarnwick
