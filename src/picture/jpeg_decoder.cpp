// JPEG through libjpeg-turbo, with the EXIF block kept.
// jpeglib.h needs size_t and FILE declared before it.
// clang-format off
#include <cstddef>
#include <cstdio>
#include <jpeglib.h>
// clang-format on

#include <csetjmp>
#include <cstddef>
#include <cstdio>
#include <cstring>

#include "picture/picture_file.h"

namespace tarnwick {
namespace {

struct Errors {
  jpeg_error_mgr manager;
  std::jmp_buf jump;
  char last[JMSG_LENGTH_MAX] = {};
  bool corrupt = false;
};

void JumpOut(j_common_ptr info) {
  auto* errors = reinterpret_cast<Errors*>(info->err);
  (*info->err->format_message)(info, errors->last);
  std::longjmp(errors->jump, 1);
}

// A warning of libjpeg means damaged data: kept to refuse the picture.
void NoteWarning(j_common_ptr info, int level) {
  if (level >= 0) return;
  auto* errors = reinterpret_cast<Errors*>(info->err);
  if (!errors->corrupt) (*info->err->format_message)(info, errors->last);
  errors->corrupt = true;
}

std::vector<std::uint8_t> ExifOf(const jpeg_decompress_struct& info) {
  for (jpeg_saved_marker_ptr marker = info.marker_list; marker != nullptr; marker = marker->next) {
    if (marker->marker == JPEG_APP0 + 1 && marker->data_length >= 6 &&
        std::memcmp(marker->data, "Exif\0\0", 6) == 0) {
      return {marker->data, marker->data + marker->data_length};
    }
  }
  return {};
}

}  // namespace

LoadedPicture DecodeJpeg(std::span<const std::uint8_t> bytes, std::int64_t max_pixels) {
  LoadedPicture result;
  jpeg_decompress_struct info{};
  Errors errors;
  info.err = jpeg_std_error(&errors.manager);
  errors.manager.error_exit = JumpOut;
  errors.manager.emit_message = NoteWarning;
  // Nothing below holds an object with a destructor across the jump.
  if (setjmp(errors.jump) != 0) {
    jpeg_destroy_decompress(&info);
    result.picture = RgbPicture();
    result.error = std::string("the JPEG data cannot be read (") + errors.last + ")";
    return result;
  }
  jpeg_create_decompress(&info);
  jpeg_mem_src(&info, bytes.data(), static_cast<unsigned long>(bytes.size()));
  jpeg_save_markers(&info, JPEG_APP0 + 1, 0xFFFF);
  jpeg_read_header(&info, TRUE);
  result.error = CheckPictureSize(info.image_width, info.image_height, max_pixels);
  if (!result.ok()) {
    jpeg_destroy_decompress(&info);
    return result;
  }
  result.exif = ExifOf(info);
  info.out_color_space = JCS_RGB;  // grey and CMYK pictures come as RGB too
  jpeg_start_decompress(&info);
  result.picture =
      RgbPicture(static_cast<int>(info.output_width), static_cast<int>(info.output_height));
  while (info.output_scanline < info.output_height && !errors.corrupt) {
    JSAMPROW row = result.picture.Pixel(0, static_cast<int>(info.output_scanline));
    jpeg_read_scanlines(&info, &row, 1);
  }
  if (!errors.corrupt) jpeg_finish_decompress(&info);
  jpeg_destroy_decompress(&info);
  if (errors.corrupt) {
    result.picture = RgbPicture();
    result.exif.clear();
    result.error = std::string("the JPEG data are damaged (") + errors.last + ")";
  }
  return result;
}

}  // namespace tarnwick
