#include "filelist/media_column_source.h"

#include "media/audio_length.h"
#include "media/exif_reader.h"
#include "media/exif_value.h"

namespace tarnwick {

MediaColumnSource::MediaColumnSource() : exif_(std::make_unique<ExifReader>()) {}
MediaColumnSource::~MediaColumnSource() = default;

std::string MediaColumnSource::MediaInfoText(const std::filesystem::path& file) {
  return tarnwick::MediaInfoText(file);
}

std::optional<ListDateTime> MediaColumnSource::ExifDate(const std::filesystem::path& file) {
  const std::optional<ExifDateTime> date = ExifOriginalDate(*exif_, file);
  if (!date) return std::nullopt;
  return ListDateTime{date->year, date->month, date->day, date->hour, date->minute, date->second};
}

}  // namespace tarnwick
