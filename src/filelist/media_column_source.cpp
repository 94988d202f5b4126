#include "filelist/media_column_source.h"

#include "media/audio_length.h"

namespace tarnwick {

std::string MediaColumnSource::MediaInfoText(const std::filesystem::path& file) {
  return tarnwick::MediaInfoText(file);
}

}  // namespace tarnwick
