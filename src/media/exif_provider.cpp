#include "media/exif_provider.h"

#include "media/exif_reader.h"
#include "media/exif_value.h"

namespace tarnwick {

ExifInfoProvider::ExifInfoProvider() : reader_(std::make_unique<ExifReader>()) {}

ExifInfoProvider::~ExifInfoProvider() = default;

std::string ExifInfoProvider::ExifValue(const std::filesystem::path& path, int tag) const {
  return ExifTagValue(*reader_, path, tag);
}

}  // namespace tarnwick
