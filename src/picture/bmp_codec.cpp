// BMP, read and written by our own code: uncompressed and bit-field pictures
// of every usual depth, and the two run-length compressions.
#include "picture/bmp_codec.h"

#include <algorithm>
#include <bit>

#include "picture/picture_file.h"

namespace tarnwick {
namespace {

constexpr std::uint32_t kRgb = 0, kRle8 = 1, kRle4 = 2, kBitFields = 3;

std::uint32_t Little(std::span<const std::uint8_t> bytes, std::size_t at, int size) {
  std::uint32_t value = 0;
  for (int i = size - 1; i >= 0; --i)
    value = (value << 8) | bytes[at + static_cast<std::size_t>(i)];
  return value;
}

void PutLittle(std::vector<std::uint8_t>& out, std::uint32_t value, int size) {
  for (int i = 0; i < size; ++i) out.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

// A channel of a bit-field pixel, scaled to 0..255.
std::uint8_t Channel(std::uint32_t pixel, std::uint32_t mask) {
  if (mask == 0) return 0;
  const int shift = std::countr_zero(mask);
  const std::uint32_t max = mask >> shift;
  return static_cast<std::uint8_t>(((pixel & mask) >> shift) * 255U / max);
}

struct Header {
  std::int64_t width = 0;
  std::int64_t height = 0;  // positive: bottom-up
  int bits = 0;
  std::uint32_t compression = kRgb;
  std::uint32_t masks[3] = {0, 0, 0};
  std::size_t palette_at = 0;
  int palette_entry = 4;  // 3 in the old core header
  int colours = 0;
  std::size_t pixels_at = 0;
};

std::string ReadHeader(std::span<const std::uint8_t> bytes, Header& h, std::int64_t max_pixels) {
  if (bytes.size() < 26) return "the BMP header is cut short";
  h.pixels_at = Little(bytes, 10, 4);
  const std::uint32_t info_size = Little(bytes, 14, 4);
  if (info_size == 12) {
    h.width = Little(bytes, 18, 2);
    h.height = static_cast<std::int16_t>(Little(bytes, 20, 2));
    h.bits = static_cast<int>(Little(bytes, 24, 2));
    h.palette_entry = 3;
  } else if (info_size >= 40 && bytes.size() >= 14 + 40) {
    h.width = static_cast<std::int32_t>(Little(bytes, 18, 4));
    h.height = static_cast<std::int32_t>(Little(bytes, 22, 4));
    h.bits = static_cast<int>(Little(bytes, 28, 2));
    h.compression = Little(bytes, 30, 4);
    h.colours = static_cast<int>(Little(bytes, 46, 4));
    if (h.compression == kBitFields) {
      // The masks follow a 40-byte header, or stand inside a larger one.
      if (bytes.size() < 14 + 40 + 12) return "the BMP header is cut short";
      for (int i = 0; i < 3; ++i)
        h.masks[i] = Little(bytes, 54 + static_cast<std::size_t>(i) * 4, 4);
    }
  } else {
    return "the BMP header is of an unknown kind";
  }
  h.palette_at = 14 + info_size + (info_size == 40 && h.compression == kBitFields ? 12 : 0);
  if (h.bits <= 8 && h.colours == 0) h.colours = 1 << h.bits;
  if (h.bits == 16 && h.compression == kRgb)
    h.masks[0] = 0x7C00, h.masks[1] = 0x03E0, h.masks[2] = 0x001F;
  if (h.bits == 32 && h.compression == kRgb) {
    h.masks[0] = 0xFF0000, h.masks[1] = 0xFF00, h.masks[2] = 0xFF;
  }
  const bool known_depth =
      h.bits == 1 || h.bits == 4 || h.bits == 8 || h.bits == 16 || h.bits == 24 || h.bits == 32;
  if (!known_depth) return "a BMP of " + std::to_string(h.bits) + " bits a pixel cannot be read";
  const bool known_compression = h.compression == kRgb || (h.compression == kRle8 && h.bits == 8) ||
                                 (h.compression == kRle4 && h.bits == 4) ||
                                 (h.compression == kBitFields && (h.bits == 16 || h.bits == 32));
  if (!known_compression) return "this kind of BMP compression cannot be read";
  if (h.colours > 256) return "the BMP colour table is too large";
  return CheckPictureSize(h.width, h.height < 0 ? -h.height : h.height, max_pixels);
}

// Run-length data into one index per pixel, rows bottom-up; pixels the data
// skip stay index 0.
bool DecodeRle(std::span<const std::uint8_t> bytes, const Header& h,
               std::vector<std::uint8_t>& out) {
  const auto width = static_cast<std::size_t>(h.width);
  const auto height = static_cast<std::size_t>(h.height);
  out.assign(width * height, 0);
  std::size_t x = 0, y = 0, at = h.pixels_at;
  const bool four = h.compression == kRle4;
  const auto put = [&](std::uint8_t index) {
    if (x < width && y < height) out[y * width + x] = index;
    ++x;
  };
  while (at + 1 < bytes.size()) {
    const std::uint8_t count = bytes[at], value = bytes[at + 1];
    at += 2;
    if (count > 0) {
      for (int i = 0; i < count; ++i)
        put(four ? ((i % 2 == 0) ? value >> 4 : value & 0x0F) : value);
      continue;
    }
    if (value == 0) {  // end of line
      x = 0;
      ++y;
    } else if (value == 1) {  // end of picture
      return true;
    } else if (value == 2) {  // delta
      if (at + 1 >= bytes.size()) return false;
      x += bytes[at];
      y += bytes[at + 1];
      at += 2;
    } else {  // a run of literal pixels, padded to a word
      const std::size_t length = four ? (value + 1) / 2 : value;
      if (at + length > bytes.size()) return false;
      for (int i = 0; i < value; ++i) {
        const std::uint8_t byte =
            bytes[at + (four ? static_cast<std::size_t>(i) / 2 : static_cast<std::size_t>(i))];
        put(four ? ((i % 2 == 0) ? byte >> 4 : byte & 0x0F) : byte);
      }
      at += length + (length % 2);
    }
    if (y >= height) return true;
  }
  return false;
}

}  // namespace

LoadedPicture DecodeBmp(std::span<const std::uint8_t> bytes, std::int64_t max_pixels) {
  LoadedPicture result;
  Header h;
  result.error = ReadHeader(bytes, h, max_pixels);
  if (!result.ok()) return result;
  const bool top_down = h.height < 0;
  const int width = static_cast<int>(h.width);
  const int height = static_cast<int>(top_down ? -h.height : h.height);
  if (h.palette_at + static_cast<std::size_t>(h.colours) * h.palette_entry > bytes.size()) {
    result.error = "the BMP colour table is cut short";
    return result;
  }
  const auto colour = [&](int index, std::uint8_t* p) {
    if (index >= h.colours) index = 0;
    const std::size_t at = h.palette_at + static_cast<std::size_t>(index) * h.palette_entry;
    p[0] = bytes[at + 2];
    p[1] = bytes[at + 1];
    p[2] = bytes[at];
  };
  result.picture = RgbPicture(width, height);
  if (h.compression == kRle8 || h.compression == kRle4) {
    std::vector<std::uint8_t> indices;
    if (top_down || !DecodeRle(bytes, h, indices)) {
      result.picture = RgbPicture();
      result.error = "the BMP data are damaged";
      return result;
    }
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        colour(indices[static_cast<std::size_t>(y) * width + x],
               result.picture.Pixel(x, height - 1 - y));
      }
    }
    return result;
  }
  const std::size_t stride = ((static_cast<std::size_t>(width) * h.bits + 31) / 32) * 4;
  if (h.pixels_at > bytes.size() || stride * height > bytes.size() - h.pixels_at) {
    result.picture = RgbPicture();
    result.error = "the BMP data are cut short";
    return result;
  }
  for (int row = 0; row < height; ++row) {
    const std::uint8_t* line = bytes.data() + h.pixels_at + stride * row;
    const int y = top_down ? row : height - 1 - row;
    for (int x = 0; x < width; ++x) {
      std::uint8_t* p = result.picture.Pixel(x, y);
      switch (h.bits) {
        case 1:
          colour((line[x / 8] >> (7 - x % 8)) & 1, p);
          break;
        case 4:
          colour(x % 2 == 0 ? line[x / 2] >> 4 : line[x / 2] & 0x0F, p);
          break;
        case 8:
          colour(line[x], p);
          break;
        case 24:
          p[0] = line[x * 3 + 2];
          p[1] = line[x * 3 + 1];
          p[2] = line[x * 3];
          break;
        default: {
          const std::uint32_t pixel =
              h.bits == 16 ? Little({line, stride}, static_cast<std::size_t>(x) * 2, 2)
                           : Little({line, stride}, static_cast<std::size_t>(x) * 4, 4);
          for (int c = 0; c < 3; ++c) p[c] = Channel(pixel, h.masks[c]);
        }
      }
    }
  }
  return result;
}

std::vector<std::uint8_t> EncodeBmp(const cImage& image) {
  const int colours = image.BitCount() <= 8 ? 1 << image.BitCount() : 0;
  const std::uint32_t pixels_at = 14 + 40 + static_cast<std::uint32_t>(colours) * 4;
  const std::uint32_t data_size = static_cast<std::uint32_t>(image.BytesPerScanLine()) *
                                  static_cast<std::uint32_t>(image.Height());
  std::vector<std::uint8_t> out;
  out.reserve(pixels_at + data_size);
  out.push_back('B');
  out.push_back('M');
  PutLittle(out, pixels_at + data_size, 4);
  PutLittle(out, 0, 4);
  PutLittle(out, pixels_at, 4);
  PutLittle(out, 40, 4);
  PutLittle(out, static_cast<std::uint32_t>(image.Width()), 4);
  PutLittle(out, static_cast<std::uint32_t>(image.Height()), 4);
  PutLittle(out, 1, 2);
  PutLittle(out, static_cast<std::uint32_t>(image.BitCount()), 2);
  PutLittle(out, kRgb, 4);
  PutLittle(out, data_size, 4);
  PutLittle(out, 3780, 4);  // 96 dots per inch, in dots per metre
  PutLittle(out, 3780, 4);
  PutLittle(out, static_cast<std::uint32_t>(colours), 4);
  PutLittle(out, 0, 4);
  for (int i = 0; i < colours; ++i) {
    const cImage::Colour& c = image.ColourTable()[static_cast<std::size_t>(i)];
    out.insert(out.end(), {c.blue, c.green, c.red, 0});
  }
  out.insert(out.end(), image.DIBitsPtr(), image.DIBitsPtr() + data_size);
  return out;
}

}  // namespace tarnwick
