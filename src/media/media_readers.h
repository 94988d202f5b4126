#pragma once

#include "placeholders/media_provider.h"

namespace tarnwick {

// The media tokens' facts from Tarnwick's own readers: ID3 tags, MPEG stream
// facts and playing lengths. Every call reads the file anew. EXIF values come
// from the base class.
class MediaReaders : public MediaInfoProvider {
 public:
  TagBlock ReadId3v1(const std::filesystem::path& path) const override;
  TagBlock ReadId3v2(const std::filesystem::path& path) const override;
  MpegFacts ReadMpegInfo(std::string_view file_name) const override;
  std::optional<std::int64_t> Mp3LengthMilliseconds(
      const std::filesystem::path& path) const override;
  std::optional<std::int64_t> WavLengthSeconds(const std::filesystem::path& path) const override;
};

}  // namespace tarnwick
