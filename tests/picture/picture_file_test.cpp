// Reading pictures: every format by its content, and a clear refusal of
// damaged, hostile or unknown data.
#include "picture/picture_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <png.h>
#include <tiffio.h>

#include <fstream>

#include "picture/bmp_codec.h"
#include "picture/image_buffer.h"
#include "picture/jpeg_encoder.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using ::testing::HasSubstr;
using testing::TempDir;

RgbPicture Gradient(int width, int height) {
  RgbPicture picture(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      std::uint8_t* p = picture.Pixel(x, y);
      p[0] = static_cast<std::uint8_t>(x * 255 / std::max(1, width - 1));
      p[1] = static_cast<std::uint8_t>(y * 255 / std::max(1, height - 1));
      p[2] = 100;
    }
  }
  return picture;
}

std::vector<std::uint8_t> JpegOf(const RgbPicture& picture, std::vector<std::uint8_t> exif = {}) {
  cJPEG encoder;
  encoder.SetQuality(95);
  encoder.SetExifBlock(std::move(exif));
  EXPECT_EQ(encoder.SampleHDC(picture), 0);
  return encoder.Encode();
}

std::vector<std::uint8_t> PngOf(const RgbPicture& picture, bool alpha = false) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(picture.width);
  image.height = static_cast<png_uint_32>(picture.height);
  image.format = alpha ? PNG_FORMAT_RGBA : PNG_FORMAT_RGB;
  std::vector<std::uint8_t> pixels;
  for (std::size_t i = 0; i < picture.rgb.size(); i += 3) {
    pixels.insert(pixels.end(), picture.rgb.begin() + static_cast<long>(i),
                  picture.rgb.begin() + static_cast<long>(i) + 3);
    if (alpha) pixels.push_back(0);  // fully transparent
  }
  png_alloc_size_t size = 0;
  png_image_write_to_memory(&image, nullptr, &size, 0, pixels.data(), 0, nullptr);
  std::vector<std::uint8_t> bytes(size);
  EXPECT_NE(png_image_write_to_memory(&image, bytes.data(), &size, 0, pixels.data(), 0, nullptr),
            0);
  bytes.resize(size);
  return bytes;
}

// The checksum of PNG chunks (ISO 3309, as zlib computes it).
std::uint32_t Crc32(std::span<const std::uint8_t> bytes) {
  std::uint32_t crc = 0xFFFFFFFF;
  for (std::uint8_t byte : bytes) {
    crc ^= byte;
    for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ (0xEDB88320U & (0U - (crc & 1U)));
  }
  return ~crc;
}

std::vector<std::uint8_t> ReadAll(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<std::uint8_t> TiffOf(const RgbPicture& picture, int bits_per_sample,
                                 const TempDir& dir) {
  const std::filesystem::path path = dir.path() / "t.tif";
  TIFF* tiff = TIFFOpen(path.c_str(), "w");
  TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, picture.width);
  TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, picture.height);
  TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, 3);
  TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, bits_per_sample);
  TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
  TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
  TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_LZW);
  for (int y = 0; y < picture.height; ++y) {
    std::vector<std::uint16_t> wide;
    std::vector<std::uint8_t> row(picture.Pixel(0, y), picture.Pixel(0, y) + picture.width * 3);
    if (bits_per_sample == 16) {
      for (std::uint8_t v : row) wide.push_back(static_cast<std::uint16_t>(v * 257));
      TIFFWriteScanline(tiff, wide.data(), static_cast<std::uint32_t>(y), 0);
    } else {
      TIFFWriteScanline(tiff, row.data(), static_cast<std::uint32_t>(y), 0);
    }
  }
  TIFFClose(tiff);
  return ReadAll(path);
}

// The smallest GIF: 2 by 1 pixels, red and a transparent one.
const std::vector<std::uint8_t> kGif = {
    'G',  'I',  'F',  '8',  '9', 'a', 2, 0, 1, 0, 0x80, 0, 0,  // screen, 2-colour table
    255,  0,    0,    0,    0,   255,                          // red, blue
    0x21, 0xF9, 4,    0x01, 0,   0,   1, 0,                    // transparent index 1
    0x2C, 0,    0,    0,    0,   2,   0, 1, 0, 0,              // the frame
    2,    2,    0x44, 0x0A, 0,                                 // LZW: indices 0, 1
    0x3B};

TEST(PictureFileTest, EachFormatIsReadByItsContent) {
  const RgbPicture picture = Gradient(13, 7);
  const auto close_to = [&](const LoadedPicture& loaded, int tolerance) {
    ASSERT_TRUE(loaded.ok()) << loaded.error;
    ASSERT_EQ(loaded.picture.width, 13);
    ASSERT_EQ(loaded.picture.height, 7);
    for (std::size_t i = 0; i < picture.rgb.size(); ++i) {
      ASSERT_NEAR(loaded.picture.rgb[i], picture.rgb[i], tolerance) << i;
    }
  };
  close_to(DecodePicture(JpegOf(picture)), 40);
  close_to(DecodePicture(PngOf(picture)), 0);
  TempDir dir;
  close_to(DecodePicture(TiffOf(picture, 8, dir)), 0);
  close_to(DecodePicture(TiffOf(picture, 16, dir)), 1);
  cImage image;
  ASSERT_TRUE(image.CopyPicture(picture, 24));
  close_to(DecodePicture(EncodeBmp(image)), 0);

  const LoadedPicture gif = DecodePicture(kGif);
  ASSERT_TRUE(gif.ok()) << gif.error;
  EXPECT_EQ(gif.picture.rgb, (std::vector<std::uint8_t>{255, 0, 0, 255, 255, 255}));
  // Transparent PNG pixels come out white.
  const LoadedPicture clear = DecodePicture(PngOf(picture, true));
  ASSERT_TRUE(clear.ok());
  EXPECT_EQ(clear.picture.rgb[0], 255);
}

TEST(PictureFileTest, BmpOfEveryDepthGoesOutAndComesBack) {
  const RgbPicture picture = Gradient(9, 5);
  for (int bits : {1, 4, 8}) {
    cImage image;
    ASSERT_TRUE(image.Create(9, 5, bits));
    for (int y = 0; y < 5; ++y) {
      for (int x = 0; x < 9; ++x) image.SetIndex(x, y, (x + y) % (1 << bits));
    }
    const LoadedPicture back = DecodePicture(EncodeBmp(image));
    ASSERT_TRUE(back.ok()) << bits << ": " << back.error;
    EXPECT_EQ(back.picture.rgb, image.ToRgb().rgb) << bits;
  }
  // An eight-bit run-length BMP, 2 by 2: the bottom row a run of two of
  // index 1 (red), the top row runs of one, index 1 then 0 (black).
  // clang-format off
  const std::vector<std::uint8_t> rle = {
      'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0, 62, 0, 0, 0,   // file header
      40, 0, 0, 0, 2, 0, 0, 0, 2, 0, 0, 0, 1, 0, 8, 0,  // size, 2 x 2, 8 bits
      1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,   // RLE8
      2, 0, 0, 0, 0, 0, 0, 0,                           // two colours
      0, 0, 0, 0, 0, 0, 255, 0,                         // black, red
      2, 1, 0, 0, 1, 1, 1, 0, 0, 1};                    // the runs
  // clang-format on
  const LoadedPicture runs = DecodePicture(rle);
  ASSERT_TRUE(runs.ok()) << runs.error;
  EXPECT_EQ(runs.picture.rgb,
            (std::vector<std::uint8_t>{255, 0, 0, 0, 0, 0, 255, 0, 0, 255, 0, 0}));
}

TEST(PictureFileTest, DamagedHostileAndUnknownDataAreRefusedWithAReason) {
  // Cut inside the entropy-coded data: libjpeg would fill the rest grey.
  const std::vector<std::uint8_t> jpeg = JpegOf(Gradient(64, 64));
  const std::vector<std::uint8_t> cut(jpeg.begin(), jpeg.end() - 40);
  EXPECT_THAT(DecodePicture(cut).error, HasSubstr("damaged"));
  EXPECT_TRUE(DecodePicture(cut).picture.empty());
  const std::vector<std::uint8_t> headers_only(jpeg.begin(), jpeg.begin() + 300);
  EXPECT_THAT(DecodePicture(headers_only).error, HasSubstr("JPEG"));

  std::vector<std::uint8_t> huge = PngOf(Gradient(2, 2));
  // IHDR width and height to 100,000 each, with its checksum made good.
  const std::uint8_t big[8] = {0, 1, 0x86, 0xA0, 0, 1, 0x86, 0xA0};
  std::copy(std::begin(big), std::end(big), huge.begin() + 16);
  const std::uint32_t crc = Crc32({huge.data() + 12, 17});
  for (int i = 0; i < 4; ++i)
    huge[29 + static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(crc >> (24 - 8 * i));
  EXPECT_THAT(DecodePicture(huge).error, HasSubstr("too large"));

  std::vector<std::uint8_t> bmp_huge = {'B', 'M', 0,    0,    0,  0, 0, 0, 0,    0,
                                        54,  0,   0,    0,    40, 0, 0, 0, 0x10, 0x30,
                                        0,   0,   0x10, 0x30, 0,  0, 1, 0, 24,   0};
  bmp_huge.resize(54, 0);
  EXPECT_THAT(DecodePicture(bmp_huge).error, HasSubstr("too large"));
  // A run-length BMP needs no data for its pixels: a few bytes may declare
  // 16 million of them. Within the limit that is read; a lower limit refuses.
  const std::vector<std::uint8_t> tiny_rle = [] {
    std::vector<std::uint8_t> bmp = {'B', 'M',  0, 0, 0, 0, 0, 0, 0, 0, 62, 0, 0, 0, 40, 0, 0,
                                     0,   0x02, 0, 0, 1, 1, 0, 0, 0, 1, 0,  8, 0, 1, 0,  0, 0};
    bmp.resize(62, 0);
    bmp.insert(bmp.end(), {0, 1});  // end of picture at once
    return bmp;
  }();
  EXPECT_THAT(DecodePicture(tiny_rle, 4'000'000).error, HasSubstr("too large"));

  const std::vector<std::uint8_t> gif_without_frames = {'G', 'I', 'F', '8', '9', 'a', 1,
                                                        0,   1,   0,   0,   0,   0,   0x3B};
  EXPECT_FALSE(DecodePicture(gif_without_frames).ok());
  // A frame far larger than its screen is refused before it is read.
  std::vector<std::uint8_t> huge_frame = kGif;
  const std::size_t frame_at = 13 + 6 + 8;  // header, colours, control block
  ASSERT_EQ(huge_frame[frame_at], 0x2C);
  for (std::size_t i : {frame_at + 5, frame_at + 7}) {
    huge_frame[i] = 0x60;  // 60,000 wide and high
    huge_frame[i + 1] = 0xEA;
  }
  EXPECT_THAT(DecodePicture(huge_frame).error, HasSubstr("GIF is too large"));
  // A frame whose pixel data stop early is refused, not read half.
  const std::vector<std::uint8_t> cut_gif(kGif.begin(), kGif.end() - 4);
  EXPECT_THAT(DecodePicture(cut_gif).error, HasSubstr("GIF data are damaged"));
  EXPECT_THAT(DecodePicture(std::vector<std::uint8_t>{0xD7, 0xCD, 0xC6, 0x9A, 0, 0}).error,
              HasSubstr("WMF"));
  EXPECT_THAT(DecodePicture(std::vector<std::uint8_t>{'h', 'e', 'l', 'l', 'o'}).error,
              HasSubstr("not a picture"));
  EXPECT_THAT(DecodePicture(std::vector<std::uint8_t>()).error, HasSubstr("empty"));
  EXPECT_THAT(LoadPicture("/nonexistent/x.jpg").error, HasSubstr("cannot be opened"));
}

TEST(PictureFileTest, TheExifBlockOfAJpegIsKept) {
  const std::vector<std::uint8_t> exif = {'E', 'x', 'i', 'f', 0, 0, 'I', 'I',
                                          42,  0,   8,   0,   0, 0, 0,   0};
  TempDir dir;
  const std::filesystem::path path = dir.path() / "photo.JPG";
  {
    std::ofstream out(path, std::ios::binary);
    const std::vector<std::uint8_t> bytes = JpegOf(Gradient(8, 8), exif);
    out.write(reinterpret_cast<const char*>(bytes.data()),
              static_cast<std::streamsize>(bytes.size()));
  }
  const LoadedPicture loaded = LoadPicture(path.string());
  ASSERT_TRUE(loaded.ok()) << loaded.error;
  EXPECT_EQ(loaded.exif, exif);
}

}  // namespace
}  // namespace tarnwick
