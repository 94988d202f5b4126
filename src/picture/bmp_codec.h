#pragma once

#include <cstdint>
#include <vector>

#include "picture/image_buffer.h"

namespace tarnwick {

// A BMP file of the image at its own depth: BITMAPFILEHEADER, a 40-byte
// BITMAPINFOHEADER, the colour table of an indexed picture, the rows
// bottom-up as the image holds them. 96 dots per inch.
std::vector<std::uint8_t> EncodeBmp(const cImage& image);

}  // namespace tarnwick
