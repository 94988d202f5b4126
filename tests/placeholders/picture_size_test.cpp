#include "placeholders/picture_size.h"

#include <gtest/gtest.h>

#include <string>

#include "support/temp_dir.h"

namespace tarnwick {
namespace {

std::string Bytes(std::initializer_list<int> values) {
  std::string out;
  for (int v : values) out.push_back(static_cast<char>(v));
  return out;
}

void ExpectSize(const std::string& bytes, std::uint32_t width, std::uint32_t height) {
  const auto size = ParsePictureSize(bytes);
  ASSERT_TRUE(size.has_value());
  EXPECT_EQ(size->width, width);
  EXPECT_EQ(size->height, height);
}

std::string Jpeg() {
  // SOI, an APP0 segment, then SOF0 with height 480 and width 640.
  return Bytes({0xFF, 0xD8, 0xFF, 0xE0, 0x00, 0x06, 'J',  'F',  'I',  'F', 0xFF,
                0xFF, 0xC0, 0x00, 0x11, 0x08, 0x01, 0xE0, 0x02, 0x80, 0x03});
}

TEST(PictureSizeTest, ReadsEachKnownHeader) {
  ExpectSize(Jpeg(), 640, 480);
  ExpectSize(Bytes({0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13,
                    'I',  'H', 'D', 'R', 0,    0,    0,    24,   0, 0, 0, 16}),
             24, 16);
  ExpectSize(Bytes({'G', 'I', 'F', '8', '9', 'a', 0x2C, 0x01, 0xC8, 0x00}), 300, 200);
  std::string bmp = Bytes({'B', 'M'}) + std::string(12, '\0') +
                    Bytes({40, 0, 0, 0, 24, 0, 0, 0, 0xE8, 0xFF, 0xFF, 0xFF});  // height -24
  ExpectSize(bmp, 24, 24);
  ExpectSize(Bytes({'I', 'I',  42,   0, 8, 0,    0,    0, 2, 0, 0x00, 0x01, 3, 0,    1,    0, 0,
                    0,   0x20, 0x00, 0, 0, 0x01, 0x01, 4, 0, 1, 0,    0,    0, 0x10, 0x00, 0, 0}),
             32, 16);
  ExpectSize(Bytes({'M', 'M',  0,    42, 0, 0,    0,    8, 0, 2, 0x01, 0x00, 0, 3,    0,    0, 0,
                    1,   0x00, 0x07, 0,  0, 0x01, 0x01, 0, 3, 0, 0,    0,    1, 0x00, 0x05, 0, 0}),
             7, 5);
}

TEST(PictureSizeTest, UnknownDamagedOrMissingGivesNothing) {
  EXPECT_FALSE(ParsePictureSize("plain text").has_value());
  EXPECT_FALSE(ParsePictureSize("").has_value());
  const std::string jpeg = Jpeg();
  for (std::size_t size = 0; size + 1 < jpeg.size(); ++size) {
    EXPECT_FALSE(ParsePictureSize(jpeg.substr(0, size)).has_value()) << size;
  }
  // A JPEG whose segments loop on themselves (length 0) ends without a size.
  EXPECT_FALSE(ParsePictureSize(Bytes({0xFF, 0xD8, 0xFF, 0xE1, 0x00, 0x00})).has_value());
  testing::TempDir dir;
  EXPECT_FALSE(ReadPictureSize(dir.path() / "gone.jpg").has_value());
  EXPECT_FALSE(ReadPictureSize(dir.path()).has_value());
  const auto file = dir.WriteFile("p.jpg", Jpeg());
  ASSERT_TRUE(ReadPictureSize(file).has_value());
  EXPECT_EQ(ReadPictureSize(file)->height, 480u);
}

}  // namespace
}  // namespace tarnwick
