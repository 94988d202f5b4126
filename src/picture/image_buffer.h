#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "picture/rgb_picture.h"

namespace tarnwick {

// `cImage`: one picture in the byte layout of a device-independent bitmap:
// rows bottom-up, each padded to a multiple of four bytes, at 1, 4 or 8 bits
// a pixel (an index into a colour table of up to 256 entries, blue, green,
// red) or at 24 bits (blue, green, red). Transforms return a new image and
// leave this one as it is; an empty image stands for "no image".
class cImage {
 public:
  struct Colour {
    std::uint8_t blue = 0;
    std::uint8_t green = 0;
    std::uint8_t red = 0;
    bool operator==(const Colour&) const = default;
  };

  // The largest picture Create takes, so that a hostile header cannot ask
  // for gigabytes: 100 million pixels.
  static constexpr std::int64_t kMaxPixels = 100'000'000;

  int Width() const { return width_; }
  int Height() const { return height_; }
  int BitCount() const { return bit_count_; }
  bool empty() const { return bits_.empty(); }
  // Bytes of one row with its padding.
  int BytesPerScanLine() const { return BytesPerScanLine(width_, bit_count_); }
  static int BytesPerScanLine(int width, int bit_count);
  std::uint8_t* DIBitsPtr() { return bits_.data(); }
  const std::uint8_t* DIBitsPtr() const { return bits_.data(); }
  const std::array<Colour, 256>& ColourTable() const { return colours_; }
  void SetColour(int index, Colour colour) {
    colours_[static_cast<std::size_t>(index & 0xFF)] = colour;
  }

  // A picture of `width` by `height` at 1, 4, 8 or 24 bits, all bits 0; the
  // indexed depths get a grey ramp (entry i of n = 2^bits - 1 is i * 255 / n,
  // rounded). False, and an empty image, for another depth, a size that is
  // not positive, or more than kMaxPixels.
  bool Create(int width, int height, int bit_count);

  // `CopyStdPicture` for a decoded picture: at 24 bits (bit_count 0 or 24),
  // or at 8 bits as the nearest grey of the ramp.
  bool CopyPicture(const RgbPicture& picture, int bit_count);
  // The picture as RGB, top row first, whatever the depth.
  RgbPicture ToRgb() const;

  // Pixel access by top-down coordinates: an index at 1, 4 and 8 bits, a
  // colour at 24 bits (the index of a 24-bit pixel is 0; the colour of an
  // indexed one comes from the table).
  int Index(int x, int y) const;
  void SetIndex(int x, int y, int index);
  Colour PixelColour(int x, int y) const;
  void SetPixelColour(int x, int y, Colour colour);

  // An 8-bit image with the grey ramp: each pixel the nearest grey, which
  // is the mean of red, green and blue, rounded.
  cImage Greyscale() const;
  // The same depth and colour table at a new size. Going down each new
  // pixel is the mean of the area it covers (area averaging); going up it
  // is interpolated between the four nearest (bilinear), so an enlargement
  // is smooth. Indexed pictures are scaled in colour and mapped back to the
  // nearest entry of their table. An empty image for a size not positive.
  cImage Resample(int width, int height) const;
  // Flipped left and right, or with `vertical` top and bottom.
  cImage Mirror(bool vertical) const;
  // Turned by 90, 180 or 270 degrees (taken modulo 360, negative ones raised
  // by 360): 270 is a quarter turn clockwise on the screen, 90 the same the
  // other way, both exchanging width and height. Any other angle gives an
  // empty image.
  cImage Rotate(int degrees) const;

 private:
  std::size_t RowOffset(int y) const {
    return static_cast<std::size_t>(height_ - 1 - y) * static_cast<std::size_t>(BytesPerScanLine());
  }
  // A new image of this one's depth and table at another size.
  cImage Blank(int width, int height) const;
  int NearestIndex(Colour colour) const;
  // Copies each pixel from the place `from(x, y)` of this image gives.
  template <typename From>
  cImage Remapped(int width, int height, From from) const;

  int width_ = 0;
  int height_ = 0;
  int bit_count_ = 0;
  std::vector<std::uint8_t> bits_;
  std::array<Colour, 256> colours_{};
};

}  // namespace tarnwick
