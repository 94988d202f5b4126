#include "media/id3_v1.h"

#include <cstring>

#include "base/text.h"
#include "base/vb_number.h"
#include "media/id3_genres.h"
#include "media/id3_text.h"
#include "media/media_file.h"

namespace tarnwick {
namespace {

constexpr std::size_t kBlock = 128;

bool IsTagAt(const std::vector<std::uint8_t>& b) {
  return b[0] == 'T' && b[1] == 'A' && b[2] == 'G';
}

std::string Field(const std::vector<std::uint8_t>& b, std::size_t at, std::size_t width) {
  std::size_t used = 0;
  return vb::Trim(BytesToText(std::span(b).subspan(at, width), 0, used, true));
}

void Put(std::vector<std::uint8_t>& block, std::size_t at, std::string_view text,
         std::size_t width) {
  const auto bytes = TextToBytes(text, width, false, false);
  if (bytes.empty()) return;
  std::memcpy(block.data() + at, bytes.data(), std::min(bytes.size(), width));
}

// The track byte: a number from 1 to 255 of fewer than 4 characters, else 0.
std::uint8_t TrackByte(std::string_view track) {
  const std::string trimmed = vb::Trim(track);
  if (vb::Len(trimmed) >= 4 || !vb::IsNumeric(trimmed)) return 0;
  const double value = vb::RoundHalfEven(vb::CDbl(trimmed));
  return value >= 1 && value <= 255 ? static_cast<std::uint8_t>(value) : 0;
}

}  // namespace

bool ReadID3v1(const std::filesystem::path& path, ID3v1Tag& tag) {
  const MediaFile file(path, MediaFile::Mode::kRead);
  return ReadID3v1(file, tag);
}

bool ReadID3v1(const MediaFile& file, ID3v1Tag& tag) {
  if (!file.is_open() || file.Size() < static_cast<std::int64_t>(kBlock)) return false;
  const auto b = file.ReadAt(file.Size() - kBlock, kBlock);
  if (!IsTagAt(b)) return false;
  tag = {};
  tag.title = Field(b, 3, 30);
  tag.artist = Field(b, 33, 30);
  tag.album = Field(b, 63, 30);
  tag.year = Field(b, 93, 4);
  const bool has_track = b[125] == 0 && b[126] != 0;
  tag.comment = Field(b, 97, has_track ? 28 : 30);
  if (has_track) tag.track = std::to_string(b[126]);
  tag.genre = GenreName(b[127]);
  return true;
}

std::vector<std::uint8_t> ID3v1Block(const ID3v1Tag& tag) {
  std::vector<std::uint8_t> block(kBlock, 0);
  std::memcpy(block.data(), "TAG", 3);
  Put(block, 3, tag.title, 30);
  Put(block, 33, tag.artist, 30);
  Put(block, 63, tag.album, 30);
  Put(block, 93, tag.year, 4);
  Put(block, 97, vb::Replace(tag.comment, "\r\n", " "), 28);
  block[126] = TrackByte(tag.track);
  block[127] = static_cast<std::uint8_t>(GenreIndex(tag.genre));
  return block;
}

bool WriteID3v1(const std::filesystem::path& path, const ID3v1Tag& tag, bool clear_read_only) {
  const auto block = ID3v1Block(tag);
  if (clear_read_only) ClearReadOnly(path);
  MediaFile file(path, MediaFile::Mode::kReadWrite);
  if (!file.is_open()) return false;
  const std::int64_t size = file.Size();
  std::int64_t at = size;
  if (size >= static_cast<std::int64_t>(kBlock) && IsTagAt(file.ReadAt(size - kBlock, 3))) {
    at = size - kBlock;
  }
  file.WriteAt(at, block.data(), block.size());
  return true;
}

bool RemoveID3v1(const std::filesystem::path& path, bool clear_read_only) {
  if (clear_read_only) ClearReadOnly(path);
  MediaFile file(path, MediaFile::Mode::kReadWrite);
  if (!file.is_open()) return false;
  const std::int64_t size = file.Size();
  if (size < static_cast<std::int64_t>(kBlock)) return false;
  if (IsTagAt(file.ReadAt(size - kBlock, 3))) file.Truncate(size - kBlock);
  return true;
}

}  // namespace tarnwick
