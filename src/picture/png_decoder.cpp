// PNG through libpng's simplified interface: every depth and colour type
// comes as 8-bit RGB, transparency laid over white.
#include <png.h>

#include "picture/picture_file.h"

namespace tarnwick {

LoadedPicture DecodePng(std::span<const std::uint8_t> bytes, std::int64_t max_pixels) {
  LoadedPicture result;
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_memory(&image, bytes.data(), bytes.size()) == 0) {
    result.error = std::string("the PNG data cannot be read (") + image.message + ")";
    return result;
  }
  result.error = CheckPictureSize(image.width, image.height, max_pixels);
  if (!result.ok()) {
    png_image_free(&image);
    return result;
  }
  image.format = PNG_FORMAT_RGB;
  result.picture = RgbPicture(static_cast<int>(image.width), static_cast<int>(image.height));
  png_color white{255, 255, 255};
  if (png_image_finish_read(&image, &white, result.picture.rgb.data(), 0, nullptr) == 0) {
    result.picture = RgbPicture();
    result.error = std::string("the PNG data are damaged (") + image.message + ")";
  }
  png_image_free(&image);
  return result;
}

}  // namespace tarnwick
