#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "picture/rgb_picture.h"

namespace tarnwick {

// A picture read from a file, or why it could not be.
struct LoadedPicture {
  RgbPicture picture;
  // The EXIF block of a JPEG (the APP1 payload from "Exif\0\0" on), to be
  // carried into a new file; empty for other formats.
  std::vector<std::uint8_t> exif;
  // Empty when the picture was read; otherwise a sentence for the user,
  // such as "the JPEG data are damaged (Premature end of JPEG file)".
  std::string error;
  bool ok() const { return error.empty(); }
};

// The largest picture read, so that a hostile header cannot ask for
// gigabytes: 100 million pixels (a 12,000 by 8,000 panorama still fits).
inline constexpr std::int64_t kMaxPicturePixels = 100'000'000;
// Files larger than this are not read at all: 512 MB.
inline constexpr std::uint64_t kMaxPictureFileBytes = 512ULL << 20;

// `CanLoadPicture` and the loader together: the picture in `path`, told by
// its content, not its extension: JPEG (libjpeg-turbo), PNG (libpng), GIF
// (giflib, the first frame), TIFF (libtiff, the first page), BMP (our own
// reader). Transparent pixels come out white. A picture with damaged data is
// refused rather than read in part, so a job never replaces a photograph by
// its grey remains. WMF and other formats give a clear error.
LoadedPicture LoadPicture(const std::string& path);
// The same for bytes in memory; `max_pixels` lowers the limit (the fuzz
// targets keep each input quick).
LoadedPicture DecodePicture(std::span<const std::uint8_t> bytes,
                            std::int64_t max_pixels = kMaxPicturePixels);

// The decoders, one per format; each expects bytes of its format.
LoadedPicture DecodeJpeg(std::span<const std::uint8_t> bytes, std::int64_t max_pixels);
LoadedPicture DecodePng(std::span<const std::uint8_t> bytes, std::int64_t max_pixels);
LoadedPicture DecodeGif(std::span<const std::uint8_t> bytes, std::int64_t max_pixels);
LoadedPicture DecodeTiff(std::span<const std::uint8_t> bytes, std::int64_t max_pixels);
LoadedPicture DecodeBmp(std::span<const std::uint8_t> bytes, std::int64_t max_pixels);

// A decoder's refusal of a size: empty when width by height may be read.
std::string CheckPictureSize(std::int64_t width, std::int64_t height,
                             std::int64_t max_pixels = kMaxPicturePixels);

}  // namespace tarnwick
