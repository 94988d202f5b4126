// TIFF through libtiff's RGBA interface: the first page, any layout libtiff
// can turn into RGBA, transparency laid over white.
#include <tiffio.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <memory>

#include "picture/picture_file.h"

namespace tarnwick {
namespace {

struct MemoryFile {
  std::span<const std::uint8_t> bytes;
  toff_t at = 0;
};

tmsize_t Read(thandle_t handle, void* buffer, tmsize_t size) {
  auto* file = static_cast<MemoryFile*>(handle);
  if (size <= 0 || file->at >= file->bytes.size()) return 0;
  const auto count =
      std::min<std::size_t>(static_cast<std::size_t>(size), file->bytes.size() - file->at);
  std::memcpy(buffer, file->bytes.data() + file->at, count);
  file->at += count;
  return static_cast<tmsize_t>(count);
}
tmsize_t Write(thandle_t, void*, tmsize_t) { return -1; }
toff_t Seek(thandle_t handle, toff_t offset, int whence) {
  auto* file = static_cast<MemoryFile*>(handle);
  const toff_t base = whence == SEEK_CUR ? file->at : whence == SEEK_END ? file->bytes.size() : 0;
  file->at = base + offset;
  return file->at;
}
int Close(thandle_t) { return 0; }
toff_t Size(thandle_t handle) { return static_cast<MemoryFile*>(handle)->bytes.size(); }

// libtiff's complaints go to this text instead of standard error.
thread_local std::string last_complaint;
int KeepComplaint(TIFF*, void*, const char*, const char* format, va_list arguments) {
  char text[512];
  std::vsnprintf(text, sizeof text, format, arguments);
  last_complaint = text;
  return 1;
}

struct TiffCloser {
  void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};

}  // namespace

LoadedPicture DecodeTiff(std::span<const std::uint8_t> bytes) {
  LoadedPicture result;
  last_complaint.clear();
  MemoryFile file{bytes};
  std::unique_ptr<TIFFOpenOptions, decltype(&TIFFOpenOptionsFree)> options(TIFFOpenOptionsAlloc(),
                                                                           &TIFFOpenOptionsFree);
  TIFFOpenOptionsSetErrorHandlerExtR(options.get(), KeepComplaint, nullptr);
  TIFFOpenOptionsSetWarningHandlerExtR(
      options.get(), [](TIFF*, void*, const char*, const char*, va_list) { return 1; }, nullptr);
  std::unique_ptr<TIFF, TiffCloser> tiff(TIFFClientOpenExt(
      "memory", "rm", &file, Read, Write, Seek, Close, Size, nullptr, nullptr, options.get()));
  if (!tiff) {
    result.error = "the TIFF data cannot be read (" + last_complaint + ")";
    return result;
  }
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  TIFFGetField(tiff.get(), TIFFTAG_IMAGEWIDTH, &width);
  TIFFGetField(tiff.get(), TIFFTAG_IMAGELENGTH, &height);
  result.error = CheckPictureSize(width, height);
  if (!result.ok()) return result;
  char why[1024] = {};
  if (TIFFRGBAImageOK(tiff.get(), why) == 0) {
    result.error = std::string("this kind of TIFF cannot be read (") + why + ")";
    return result;
  }
  std::vector<std::uint32_t> raster(static_cast<std::size_t>(width) * height);
  if (TIFFReadRGBAImageOriented(tiff.get(), width, height, raster.data(), ORIENTATION_TOPLEFT, 0) ==
      0) {
    result.error = "the TIFF data are damaged (" + last_complaint + ")";
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
