#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarnwick {

// A picture as 8-bit RGB: rows from the top down, three bytes a pixel, no
// padding. What the decoders give and the encoder takes.
struct RgbPicture {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> rgb;

  RgbPicture() = default;
  RgbPicture(int w, int h)
      : width(w), height(h), rgb(static_cast<std::size_t>(w) * static_cast<std::size_t>(h) * 3) {}

  bool empty() const { return width <= 0 || height <= 0; }
  const std::uint8_t* Pixel(int x, int y) const {
    return rgb.data() + (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + x) * 3;
  }
  std::uint8_t* Pixel(int x, int y) {
    return rgb.data() + (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + x) * 3;
  }
};

// The rectangle of a picture that a scaling reads.
struct PictureRegion {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

// The region of `source` scaled to `width` by `height` by area averaging:
// each new pixel is the mean of the source area it covers, weighted by how
// much of each source pixel lies inside it. Going down this is a box filter
// over every pixel, with no pixel skipped; going up each new pixel takes the
// one or two source pixels under it, so edges stay sharp. A region of the
// picture's own size is copied. The region must lie inside the picture and
// both sizes be positive.
RgbPicture ScaleByAreaAveraging(const RgbPicture& source, const PictureRegion& region, int width,
                                int height);

}  // namespace tarnwick
