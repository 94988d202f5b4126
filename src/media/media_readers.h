#pragma once

#include <memory>

#include "placeholders/media_provider.h"

namespace tarnwick {

class ExifReader;

// The media tokens' facts from Tarnwick's own readers: ID3 tags, MPEG stream
// facts, playing lengths and EXIF values. Every call reads the file anew.
class MediaReaders : public MediaInfoProvider {
 public:
  MediaReaders();
  ~MediaReaders() override;

  TagBlock ReadId3v1(const std::filesystem::path& path) const override;
  TagBlock ReadId3v2(const std::filesystem::path& path) const override;
  MpegFacts ReadMpegInfo(std::string_view file_name) const override;
  std::optional<std::int64_t> Mp3LengthMilliseconds(
      const std::filesystem::path& path) const override;
  std::optional<std::int64_t> WavLengthSeconds(const std::filesystem::path& path) const override;
  std::string ExifValue(const std::filesystem::path& path, int tag) const override;

 private:
  // Kept for its buffer; it reads the picture anew at each ask.
  std::unique_ptr<ExifReader> exif_;
};

}  // namespace tarnwick
