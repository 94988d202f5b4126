#pragma once

#include "filelist/media_source.h"

namespace tarnwick {

// The list's media column from Tarnwick's own readers: the playing length of
// MP3 and WAV files, the size of pictures. The EXIF date stays with the base.
class MediaColumnSource : public FileRowMediaSource {
 public:
  std::string MediaInfoText(const std::filesystem::path& file) override;
};

}  // namespace tarnwick
