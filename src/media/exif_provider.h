#pragma once

#include <memory>

#include "placeholders/media_provider.h"

namespace tarnwick {

class ExifReader;

// Serves the EXIF values of the media tokens from our EXIF reader; every
// other fact is that of a file without media data. One reader is kept and
// re-reads the picture at each ask, as the tokens require.
class ExifInfoProvider : public MediaInfoProvider {
 public:
  ExifInfoProvider();
  ~ExifInfoProvider() override;

  std::string ExifValue(const std::filesystem::path& path, int tag) const override;

 private:
  std::unique_ptr<ExifReader> reader_;
};

}  // namespace tarnwick
