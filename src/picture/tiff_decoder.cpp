// TIFF through libtiff's RGBA interface: the first page, any layout libtiff
// can turn into RGBA, transparency laid over white.

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <memory>

#include "picture/picture_file.h"
#include "picture/tiff_memory.h"

namespace tarnwick {

LoadedPicture DecodeTiff(std::span<const std::uint8_t> bytes, std::int64_t max_pixels) {
  LoadedPicture result;
  TiffMemory memory;
  memory.input = bytes;
  const TiffHandle tiff = OpenTiffMemory(memory, "rm");
  if (!tiff) {
    result.error = "the TIFF data cannot be read (" + memory.complaint + ")";
    return result;
  }
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  TIFFGetField(tiff.get(), TIFFTAG_IMAGEWIDTH, &width);
  TIFFGetField(tiff.get(), TIFFTAG_IMAGELENGTH, &height);
  result.error = CheckPictureSize(width, height, max_pixels);
  if (!result.ok()) return result;
  char why[1024] = {};
  if (TIFFRGBAImageOK(tiff.get(), why) == 0) {
    result.error = std::string("this kind of TIFF cannot be read (") + why + ")";
    return result;
  }
  std::vector<std::uint32_t> raster(static_cast<std::size_t>(width) * height);
  if (TIFFReadRGBAImageOriented(tiff.get(), width, height, raster.data(), ORIENTATION_TOPLEFT, 0) ==
      0) {
    result.error = "the TIFF data are damaged (" + memory.complaint + ")";
    return result;
  }
  result.picture = RgbPicture(static_cast<int>(width), static_cast<int>(height));
  for (std::size_t i = 0; i < raster.size(); ++i) {
    const std::uint32_t pixel = raster[i];
    const unsigned alpha = TIFFGetA(pixel);
    // Colours come premultiplied by alpha; white shows through the rest.
    const auto over_white = [alpha](unsigned value) {
      return static_cast<std::uint8_t>(std::min(255U, value + (255U - alpha)));
    };
    result.picture.rgb[i * 3] = over_white(TIFFGetR(pixel));
    result.picture.rgb[i * 3 + 1] = over_white(TIFFGetG(pixel));
    result.picture.rgb[i * 3 + 2] = over_white(TIFFGetB(pixel));
  }
  return result;
}

}  // namespace tarnwick
