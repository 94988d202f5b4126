#pragma once

// Decodes JPEG bytes with libjpeg-turbo, the oracle the encoder's output is
// checked against.
// jpeglib.h needs size_t and FILE declared before it.
// clang-format off
#include <cstddef>
#include <cstdio>
#include <jpeglib.h>
// clang-format on

#include <csetjmp>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "picture/rgb_picture.h"

namespace tarnwick::testing {

struct DecodedJpeg {
  RgbPicture picture;  // grey pictures come as R = G = B
  int components = 0;
  std::string warning;  // the decoder's complaint about corrupt data, if any
};

namespace detail {
struct JumpingErrors {
  jpeg_error_mgr manager;
  std::jmp_buf jump;
  std::string last;
};
inline void JumpOnError(j_common_ptr info) {
  auto* errors = reinterpret_cast<JumpingErrors*>(info->err);
  char text[JMSG_LENGTH_MAX];
  (*info->err->format_message)(info, text);
  errors->last = text;
  std::longjmp(errors->jump, 1);
}
inline void KeepWarning(j_common_ptr info, int level) {
  if (level >= 0) return;
  auto* errors = reinterpret_cast<JumpingErrors*>(info->err);
  char text[JMSG_LENGTH_MAX];
  (*info->err->format_message)(info, text);
  errors->last = text;
}
}  // namespace detail

// Nothing when the decoder refuses the data.
inline std::optional<DecodedJpeg> DecodeJpeg(const std::vector<std::uint8_t>& bytes) {
  jpeg_decompress_struct info{};
  detail::JumpingErrors errors;
  info.err = jpeg_std_error(&errors.manager);
  errors.manager.error_exit = detail::JumpOnError;
  errors.manager.emit_message = detail::KeepWarning;
  DecodedJpeg result;
  if (setjmp(errors.jump) != 0) {
    jpeg_destroy_decompress(&info);
    return std::nullopt;
  }
  jpeg_create_decompress(&info);
  jpeg_mem_src(&info, bytes.data(), static_cast<unsigned long>(bytes.size()));
  jpeg_read_header(&info, TRUE);
  result.components = info.num_components;
  info.out_color_space = JCS_RGB;
  jpeg_start_decompress(&info);
  result.picture =
      RgbPicture(static_cast<int>(info.output_width), static_cast<int>(info.output_height));
  while (info.output_scanline < info.output_height) {
    JSAMPROW row = result.picture.Pixel(0, static_cast<int>(info.output_scanline));
    jpeg_read_scanlines(&info, &row, 1);
  }
  jpeg_finish_decompress(&info);
  jpeg_destroy_decompress(&info);
  result.warning = errors.last;
  return result;
}

}  // namespace tarnwick::testing
