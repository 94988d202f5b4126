#pragma once

#include <memory>

#include "filelist/media_source.h"

namespace tarnwick {

class ExifReader;

// The list's media columns from Tarnwick's own readers: the playing length of
// MP3 and WAV files and the size of pictures, and the EXIF date of origin.
class MediaColumnSource : public FileRowMediaSource {
 public:
  MediaColumnSource();
  ~MediaColumnSource() override;

  std::string MediaInfoText(const std::filesystem::path& file) override;
  std::optional<ListDateTime> ExifDate(const std::filesystem::path& file) override;

 private:
  std::unique_ptr<ExifReader> exif_;
};

}  // namespace tarnwick
