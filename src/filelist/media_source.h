#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "filelist/list_date_text.h"

namespace tarnwick {

// Where the list gets the texts of its media columns. The media readers
// implement it; this default knows nothing, so both columns stay empty.
class FileRowMediaSource {
 public:
  virtual ~FileRowMediaSource() = default;

  // Column 6, "Mediainfo": the playing length of an audio file as the list
  // shows it; asked only while the option `MP3WAVLength` is "1". Empty when
  // the file has none.
  virtual std::string MediaInfoText(const std::filesystem::path& file) { return {}; }

  // Column 8: the EXIF date of a picture, when it holds a valid one; asked
  // only for the extensions JPG and JPEG and not with `LoadOnlyFileName`.
  virtual std::optional<ListDateTime> ExifDate(const std::filesystem::path& file) {
    return std::nullopt;
  }
};

}  // namespace tarnwick
