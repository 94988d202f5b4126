#pragma once

#include <memory>

#include "filelist/media_source.h"

namespace tarnwick {

class ExifReader;

// Fills the list's EXIF-date column from the picture's date of origin, read
// by our EXIF reader; the media column stays empty.
class ExifDateSource : public FileRowMediaSource {
 public:
  ExifDateSource();
  ~ExifDateSource() override;

  std::optional<ListDateTime> ExifDate(const std::filesystem::path& file) override;

 private:
  std::unique_ptr<ExifReader> reader_;
};

}  // namespace tarnwick
