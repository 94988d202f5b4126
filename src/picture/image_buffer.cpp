#include "picture/image_buffer.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace tarnwick {
namespace {

bool IndexedDepth(int bits) { return bits == 1 || bits == 4 || bits == 8; }

std::uint8_t ToByte(double value) {
  return static_cast<std::uint8_t>(std::clamp(std::lround(value), 0L, 255L));
}

// Bilinear enlargement of an RGB picture; pixel centres line up with the
// source's, and the edge pixels repeat outward.
RgbPicture Enlarge(const RgbPicture& source, int width, int height) {
  RgbPicture result(width, height);
  const double sx = static_cast<double>(source.width) / width;
  const double sy = static_cast<double>(source.height) / height;
  for (int y = 0; y < height; ++y) {
    const double fy = std::clamp((y + 0.5) * sy - 0.5, 0.0, source.height - 1.0);
    const int y0 = static_cast<int>(fy);
    const int y1 = std::min(y0 + 1, source.height - 1);
    const double wy = fy - y0;
    for (int x = 0; x < width; ++x) {
      const double fx = std::clamp((x + 0.5) * sx - 0.5, 0.0, source.width - 1.0);
      const int x0 = static_cast<int>(fx);
      const int x1 = std::min(x0 + 1, source.width - 1);
      const double wx = fx - x0;
      for (int c = 0; c < 3; ++c) {
        const double top = source.Pixel(x0, y0)[c] * (1 - wx) + source.Pixel(x1, y0)[c] * wx;
        const double bottom = source.Pixel(x0, y1)[c] * (1 - wx) + source.Pixel(x1, y1)[c] * wx;
        result.Pixel(x, y)[c] = ToByte(top * (1 - wy) + bottom * wy);
      }
    }
  }
  return result;
}

}  // namespace

int cImage::BytesPerScanLine(int width, int bit_count) {
  switch (bit_count) {
    case 1:
      return ((width - 1) / 8 + 4) & ~3;
    case 4:
      return ((width - 1) / 2 + 4) & ~3;
    case 8:
      return (width + 3) & ~3;
    default:
      return (width * 3 + 3) & ~3;
  }
}

bool cImage::Create(int width, int height, int bit_count) {
  bits_.clear();
  width_ = height_ = bit_count_ = 0;
  if (!IndexedDepth(bit_count) && bit_count != 24) return false;
  if (width <= 0 || height <= 0 || static_cast<std::int64_t>(width) * height > kMaxPixels) {
    return false;
  }
  width_ = width;
  height_ = height;
  bit_count_ = bit_count;
  bits_.assign(static_cast<std::size_t>(BytesPerScanLine()) * static_cast<std::size_t>(height), 0);
  colours_ = {};
  if (IndexedDepth(bit_count)) {
    const int n = (1 << bit_count) - 1;
    for (int i = 0; i <= n; ++i) {
      const auto grey = static_cast<std::uint8_t>(std::lround(i * 255.0 / n));
      colours_[static_cast<std::size_t>(i)] = {grey, grey, grey};
    }
  }
  return true;
}

int cImage::Index(int x, int y) const {
  const std::uint8_t* row = bits_.data() + RowOffset(y);
  switch (bit_count_) {
    case 1:
      return (row[x / 8] >> (7 - x % 8)) & 1;
    case 4:
      return x % 2 == 0 ? row[x / 2] >> 4 : row[x / 2] & 0x0F;
    case 8:
      return row[x];
    default:
      return 0;
  }
}

void cImage::SetIndex(int x, int y, int index) {
  std::uint8_t* row = bits_.data() + RowOffset(y);
  switch (bit_count_) {
    case 1: {
      const auto bit = static_cast<std::uint8_t>(0x80 >> (x % 8));
      row[x / 8] = static_cast<std::uint8_t>((index & 1) ? row[x / 8] | bit : row[x / 8] & ~bit);
      break;
    }
    case 4:
      row[x / 2] =
          static_cast<std::uint8_t>(x % 2 == 0 ? (row[x / 2] & 0x0F) | ((index & 0x0F) << 4)
                                               : (row[x / 2] & 0xF0) | (index & 0x0F));
      break;
    case 8:
      row[x] = static_cast<std::uint8_t>(index);
      break;
    default:
      break;
  }
}

cImage::Colour cImage::PixelColour(int x, int y) const {
  if (IndexedDepth(bit_count_)) return colours_[static_cast<std::size_t>(Index(x, y))];
  const std::uint8_t* p = bits_.data() + RowOffset(y) + static_cast<std::size_t>(x) * 3;
  return {p[0], p[1], p[2]};
}

void cImage::SetPixelColour(int x, int y, Colour colour) {
  if (IndexedDepth(bit_count_)) {
    SetIndex(x, y, NearestIndex(colour));
    return;
  }
  std::uint8_t* p = bits_.data() + RowOffset(y) + static_cast<std::size_t>(x) * 3;
  p[0] = colour.blue;
  p[1] = colour.green;
  p[2] = colour.red;
}

int cImage::NearestIndex(Colour colour) const {
  const int entries = 1 << bit_count_;
  int best = 0;
  int best_distance = 1 << 30;
  for (int i = 0; i < entries; ++i) {
    const Colour& c = colours_[static_cast<std::size_t>(i)];
    const int db = c.blue - colour.blue, dg = c.green - colour.green, dr = c.red - colour.red;
    const int distance = db * db + dg * dg + dr * dr;
    if (distance < best_distance) {
      best_distance = distance;
      best = i;
    }
  }
  return best;
}

bool cImage::CopyPicture(const RgbPicture& picture, int bit_count) {
  if (bit_count == 0) bit_count = 24;
  if (bit_count != 24 && bit_count != 8) return false;
  if (!Create(picture.width, picture.height, bit_count)) return false;
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) {
      const std::uint8_t* p = picture.Pixel(x, y);
      if (bit_count == 8) {
        SetIndex(x, y, static_cast<int>(std::lround((p[0] + p[1] + p[2]) / 3.0)));
      } else {
        SetPixelColour(x, y, {p[2], p[1], p[0]});
      }
    }
  }
  return true;
}

RgbPicture cImage::ToRgb() const {
  RgbPicture picture(width_, height_);
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) {
      const Colour c = PixelColour(x, y);
      std::uint8_t* p = picture.Pixel(x, y);
      p[0] = c.red;
      p[1] = c.green;
      p[2] = c.blue;
    }
  }
  return picture;
}

cImage cImage::Blank(int width, int height) const {
  cImage image;
  if (!image.Create(width, height, bit_count_)) return image;
  image.colours_ = colours_;
  return image;
}

template <typename From>
cImage cImage::Remapped(int width, int height, From from) const {
  cImage image = Blank(width, height);
  if (image.empty()) return image;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const auto [sx, sy] = from(x, y);
      if (IndexedDepth(bit_count_)) {
        image.SetIndex(x, y, Index(sx, sy));
      } else {
        image.SetPixelColour(x, y, PixelColour(sx, sy));
      }
    }
  }
  return image;
}

cImage cImage::Greyscale() const {
  cImage grey;
  if (empty() || !grey.CopyPicture(ToRgb(), 8)) return cImage();
  return grey;
}

cImage cImage::Resample(int width, int height) const {
  if (empty() || width <= 0 || height <= 0) return cImage();
  if (width == width_ && height == height_) return *this;
  const RgbPicture source = ToRgb();
  const RgbPicture scaled =
      width <= width_ && height <= height_
          ? ScaleByAreaAveraging(source, {0, 0, width_, height_}, width, height)
          : Enlarge(source, width, height);
  cImage image = Blank(width, height);
  if (image.empty()) return image;
  // Many pixels share a colour; the nearest entry is looked up once for each.
  std::unordered_map<std::uint32_t, int> nearest;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const std::uint8_t* p = scaled.Pixel(x, y);
      const Colour colour{p[2], p[1], p[0]};
      if (!IndexedDepth(bit_count_)) {
        image.SetPixelColour(x, y, colour);
        continue;
      }
      const std::uint32_t key = (p[0] << 16) | (p[1] << 8) | p[2];
      auto found = nearest.find(key);
      if (found == nearest.end()) found = nearest.emplace(key, NearestIndex(colour)).first;
      image.SetIndex(x, y, found->second);
    }
  }
  return image;
}

cImage cImage::Mirror(bool vertical) const {
  if (empty()) return cImage();
  return Remapped(width_, height_, [&](int x, int y) {
    return vertical ? std::pair{x, height_ - 1 - y} : std::pair{width_ - 1 - x, y};
  });
}

cImage cImage::Rotate(int degrees) const {
  if (empty()) return cImage();
  int angle = degrees % 360;
  if (angle < 0) angle += 360;
  switch (angle) {
    case 180:
      return Remapped(width_, height_, [&](int x, int y) {
        return std::pair{width_ - 1 - x, height_ - 1 - y};
      });
    case 270:  // clockwise: the old left column becomes the top row
      return Remapped(height_, width_, [&](int x, int y) { return std::pair{y, height_ - 1 - x}; });
    case 90:  // anticlockwise: the old top row becomes the left column
      return Remapped(height_, width_, [&](int x, int y) { return std::pair{width_ - 1 - y, x}; });
    default:
      return cImage();
  }
}

}  // namespace tarnwick
