// Random bytes into the picture loader (JPEG, PNG, GIF, TIFF and BMP by
// their first bytes) and, as an EXIF block, into the orientation reset:
// nothing may crash, hang or allocate past the pixel limit, and a picture it
// accepts has the size it says.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include "picture/bmp_codec.h"
#include "picture/exif_orientation.h"
#include "picture/image_buffer.h"
#include "picture/picture_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // The same bytes as an EXIF block whose orientation is set to "as stored".
  std::vector<std::uint8_t> exif = {'E', 'x', 'i', 'f', 0, 0};
  exif.insert(exif.end(), data, data + size);
  const std::vector<std::uint8_t> before = exif;
  if (!tarnwick::ResetExifOrientation(exif) && exif != before)
    std::abort();  // untouched unless set
  if (exif.size() != before.size()) std::abort();

  // Four million pixels at most: a tiny run-length BMP may declare a large
  // picture, which is allowed but takes seconds under the sanitizers.
  constexpr std::int64_t kFuzzPixels = 4'000'000;
  const tarnwick::LoadedPicture loaded =
      tarnwick::DecodePicture(std::span(data, size), kFuzzPixels);
  if (!loaded.ok()) {
    if (!loaded.picture.empty()) std::abort();  // a refusal holds no half picture
    return 0;
  }
  const tarnwick::RgbPicture& picture = loaded.picture;
  if (picture.empty() ||
      static_cast<std::int64_t>(picture.width) * picture.height > tarnwick::kMaxPicturePixels) {
    std::abort();
  }
  if (picture.rgb.size() != static_cast<std::size_t>(picture.width) * picture.height * 3)
    std::abort();
  // A picture read once goes out as BMP and reads back the same.
  if (static_cast<std::int64_t>(picture.width) * picture.height <= 4096) {
    tarnwick::cImage image;
    if (!image.CopyPicture(picture, 24)) std::abort();
    const tarnwick::LoadedPicture again = tarnwick::DecodePicture(tarnwick::EncodeBmp(image));
    if (!again.ok() || again.picture.rgb != picture.rgb) std::abort();
  }
  return 0;
}
