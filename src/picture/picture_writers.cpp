// JPEG (libjpeg-turbo), PNG (libpng) and TIFF (libtiff) files of a picture,
// built in memory.
// jpeglib.h needs size_t and FILE declared before it.
// clang-format off
#include <cstddef>
#include <cstdio>
#include <jpeglib.h>
// clang-format on
#include "picture/picture_writers.h"

#include <png.h>

#include <algorithm>
#include <csetjmp>
#include <cstring>
#include <memory>

#include "base/text.h"
#include "picture/tiff_memory.h"

namespace tarnwick {
namespace {

struct JpegErrors {
  jpeg_error_mgr manager;
  std::jmp_buf jump;
  char last[JMSG_LENGTH_MAX] = {};
};

void JumpOut(j_common_ptr info) {
  auto* errors = reinterpret_cast<JpegErrors*>(info->err);
  (*info->err->format_message)(info, errors->last);
  std::longjmp(errors->jump, 1);
}

// Each pixel black (1) or white (0) by its grey, eight to a byte.
std::vector<std::uint8_t> BlackAndWhiteRow(const RgbPicture& rgb, int y) {
  std::vector<std::uint8_t> row(static_cast<std::size_t>((rgb.width + 7) / 8), 0);
  for (int x = 0; x < rgb.width; ++x) {
    const std::uint8_t* p = rgb.Pixel(x, y);
    if ((p[0] + p[1] + p[2]) < 3 * 128)
      row[static_cast<std::size_t>(x / 8)] |= static_cast<std::uint8_t>(0x80 >> (x % 8));
  }
  return row;
}

}  // namespace

TiffCompression TiffCompressionOf(const std::string& text, const std::string& none_words) {
  const std::string upper = vb::UCase(text);
  if (upper == "CCITT3") return TiffCompression::kCcitt3;
  if (upper == "CCITT4") return TiffCompression::kCcitt4;
  if (upper == "RLE") return TiffCompression::kRle;
  if (upper == vb::UCase(none_words)) return TiffCompression::kNone;
  return TiffCompression::kLzw;
}

std::vector<std::uint8_t> EncodeJpegTurbo(const cImage& image, int quality, std::string& error) {
  const RgbPicture rgb = image.ToRgb();
  jpeg_compress_struct info{};
  JpegErrors errors;
  info.err = jpeg_std_error(&errors.manager);
  errors.manager.error_exit = JumpOut;
  unsigned char* buffer = nullptr;
  unsigned long size = 0;
  if (setjmp(errors.jump) != 0) {
    jpeg_destroy_compress(&info);
    std::free(buffer);
    error = errors.last;
    return {};
  }
  jpeg_create_compress(&info);
  jpeg_mem_dest(&info, &buffer, &size);
  info.image_width = static_cast<JDIMENSION>(rgb.width);
  info.image_height = static_cast<JDIMENSION>(rgb.height);
  info.input_components = 3;
  info.in_color_space = JCS_RGB;
  jpeg_set_defaults(&info);
  jpeg_set_quality(&info, std::clamp(quality, 0, 100), TRUE);
  jpeg_start_compress(&info, TRUE);
  while (info.next_scanline < info.image_height) {
    JSAMPROW row = const_cast<std::uint8_t*>(rgb.Pixel(0, static_cast<int>(info.next_scanline)));
    jpeg_write_scanlines(&info, &row, 1);
  }
  jpeg_finish_compress(&info);
  jpeg_destroy_compress(&info);
  std::vector<std::uint8_t> bytes(buffer, buffer + size);
  std::free(buffer);
  return bytes;
}

std::vector<std::uint8_t> EncodePng(const cImage& image, std::string& error) {
  const RgbPicture rgb = image.ToRgb();
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  png.width = static_cast<png_uint_32>(rgb.width);
  png.height = static_cast<png_uint_32>(rgb.height);
  png.format = PNG_FORMAT_RGB;
  png_alloc_size_t size = 0;
  if (png_image_write_to_memory(&png, nullptr, &size, 0, rgb.rgb.data(), 0, nullptr) == 0) {
    error = png.message;
    return {};
  }
  std::vector<std::uint8_t> bytes(size);
  if (png_image_write_to_memory(&png, bytes.data(), &size, 0, rgb.rgb.data(), 0, nullptr) == 0) {
    error = png.message;
    return {};
  }
  bytes.resize(size);
  return bytes;
}

std::vector<std::uint8_t> EncodeTiff(const cImage& image, TiffCompression compression,
                                     std::string& error) {
  const RgbPicture rgb = image.ToRgb();
  TiffMemory memory;
  TiffHandle handle = OpenTiffMemory(memory, "w");
  if (!handle) {
    error = memory.complaint;
    return {};
  }
  TIFF* tiff = handle.get();
  const bool bilevel = compression == TiffCompression::kCcitt3 ||
                       compression == TiffCompression::kCcitt4 ||
                       compression == TiffCompression::kRle;
  TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, static_cast<std::uint32_t>(rgb.width));
  TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, static_cast<std::uint32_t>(rgb.height));
  TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
  TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, bilevel ? 1 : 3);
  TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, bilevel ? 1 : 8);
  TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, bilevel ? PHOTOMETRIC_MINISWHITE : PHOTOMETRIC_RGB);
  const int code = compression == TiffCompression::kLzw      ? COMPRESSION_LZW
                   : compression == TiffCompression::kCcitt3 ? COMPRESSION_CCITTFAX3
                   : compression == TiffCompression::kCcitt4 ? COMPRESSION_CCITTFAX4
                   : compression == TiffCompression::kRle    ? COMPRESSION_PACKBITS
                                                             : COMPRESSION_NONE;
  TIFFSetField(tiff, TIFFTAG_COMPRESSION, code);
  TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, TIFFDefaultStripSize(tiff, 0));
  bool written = true;
  for (int y = 0; y < rgb.height && written; ++y) {
    std::vector<std::uint8_t> row =
        bilevel ? BlackAndWhiteRow(rgb, y)
                : std::vector<std::uint8_t>(rgb.Pixel(0, y), rgb.Pixel(0, y) + rgb.width * 3);
    written = TIFFWriteScanline(tiff, row.data(), static_cast<std::uint32_t>(y), 0) == 1;
  }
  if (written) written = TIFFFlush(tiff) == 1;
  handle.reset();  // the file is whole only once closed
  if (!written) {
    error = memory.complaint;
    return {};
  }
  return std::move(memory.bytes);
}

}  // namespace tarnwick
