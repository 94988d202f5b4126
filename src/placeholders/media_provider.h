#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tarnwick {

// One tag block as the {{mp3IDTag...}} tokens see it: whether the block was
// found, and its fields by the token's word in lower case ("title",
// "comments", "track", "artistadditional", "unsynchronisedlyrics" ...).
struct TagBlock {
  bool found = false;
  std::unordered_map<std::string, std::string> fields;

  // The field's text; the empty text when the block lacks it.
  std::string Field(std::string_view word) const;
};

// The stream facts the {{mpeg_...}} tokens show. The record counts as filled
// when `mpegVersion` is not empty.
struct MpegFacts {
  std::string mpegVersion;
  std::int64_t bitrate = 0;
  std::string channelMode;
  std::int64_t fileSize = 0;
  std::int64_t frequency = 0;
  bool hasCRC = false;
  bool hasVBR = false;
  bool hasEmphasis = false;
  std::string ID3v1Version;
  std::string ID3v2Version;
  bool isCopyrighted = false;
  bool isOriginal = false;
  std::int64_t length = 0;  // seconds
  std::int64_t lengthFrames = 0;
};

// Where the media tokens get their facts. The base class is what a file
// without any such data yields (no tags, an empty stream record, empty EXIF
// values, no length); the media readers override it.
class MediaInfoProvider {
 public:
  virtual ~MediaInfoProvider() = default;

  virtual TagBlock ReadId3v1(const std::filesystem::path& path) const { return {}; }
  virtual TagBlock ReadId3v2(const std::filesystem::path& path) const { return {}; }
  // Handed the text the engine has (the expression, as the program does).
  virtual MpegFacts ReadMpegInfo(std::string_view file_name) const { return {}; }
  // The value text of EXIF tag `tag` of a picture, as the EXIF reader gives
  // it; the empty text when there is none.
  virtual std::string ExifValue(const std::filesystem::path& path, int tag) const { return {}; }
  // Playing lengths measured from the file: MP3 in milliseconds, WAV in
  // seconds; nothing when the length cannot be measured.
  virtual std::optional<std::int64_t> Mp3LengthMilliseconds(
      const std::filesystem::path& path) const {
    return std::nullopt;
  }
  virtual std::optional<std::int64_t> WavLengthSeconds(const std::filesystem::path& path) const {
    return std::nullopt;
  }

  // The provider for files without media data.
  static const MediaInfoProvider& None();
};

}  // namespace tarnwick
