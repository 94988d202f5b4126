#include "filelist/exif_date_source.h"

#include "media/exif_reader.h"
#include "media/exif_value.h"

namespace tarnwick {

ExifDateSource::ExifDateSource() : reader_(std::make_unique<ExifReader>()) {}

ExifDateSource::~ExifDateSource() = default;

std::optional<ListDateTime> ExifDateSource::ExifDate(const std::filesystem::path& file) {
  const std::optional<ExifDateTime> date = ExifOriginalDate(*reader_, file);
  if (!date) return std::nullopt;
  return ListDateTime{date->year, date->month, date->day, date->hour, date->minute, date->second};
}

}  // namespace tarnwick
