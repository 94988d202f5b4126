// The image buffer: its byte layout, colour tables and the transforms.
#include "picture/image_buffer.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Colour = cImage::Colour;

// A 24-bit picture whose pixels each say where they stood: red x, green y.
cImage Numbered(int width, int height) {
  cImage image;
  EXPECT_TRUE(image.Create(width, height, 24));
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      image.SetPixelColour(x, y, {0, static_cast<std::uint8_t>(y), static_cast<std::uint8_t>(x)});
    }
  }
  return image;
}

// Where the pixel at (x, y) of `image` came from, as "x,y".
std::string From(const cImage& image, int x, int y) {
  const Colour c = image.PixelColour(x, y);
  return std::to_string(c.red) + "," + std::to_string(c.green);
}

TEST(ImageBufferTest, RowsArePaddedToFourBytesAndRunBottomUp) {
  for (int bits : {1, 4, 8, 24}) EXPECT_EQ(cImage::BytesPerScanLine(1, bits), 4) << bits;
  EXPECT_EQ(cImage::BytesPerScanLine(33, 1), 8);
  EXPECT_EQ(cImage::BytesPerScanLine(9, 4), 8);
  EXPECT_EQ(cImage::BytesPerScanLine(5, 8), 8);
  EXPECT_EQ(cImage::BytesPerScanLine(5, 24), 16);

  cImage image;
  ASSERT_TRUE(image.Create(9, 2, 1));
  image.SetIndex(0, 0, 1);  // the top row is the last in memory
  image.SetIndex(8, 1, 1);
  EXPECT_EQ(image.DIBitsPtr()[4], 0x80);
  EXPECT_EQ(image.DIBitsPtr()[1], 0x80);
  EXPECT_EQ(image.Index(0, 0), 1);
  EXPECT_EQ(image.Index(1, 0), 0);

  ASSERT_TRUE(image.Create(3, 1, 4));
  image.SetIndex(0, 0, 0xA);
  image.SetIndex(1, 0, 0x5);
  image.SetIndex(2, 0, 0xF);
  EXPECT_EQ(image.DIBitsPtr()[0], 0xA5);
  EXPECT_EQ(image.DIBitsPtr()[1], 0xF0);
  EXPECT_EQ(image.Index(1, 0), 5);
}

TEST(ImageBufferTest, CreateMakesAGreyRampAndRefusesWhatItCannotHold) {
  cImage image;
  ASSERT_TRUE(image.Create(2, 2, 1));
  EXPECT_EQ(image.ColourTable()[1], (Colour{255, 255, 255}));
  ASSERT_TRUE(image.Create(2, 2, 4));
  EXPECT_EQ(image.ColourTable()[1], (Colour{17, 17, 17}));
  EXPECT_EQ(image.ColourTable()[15], (Colour{255, 255, 255}));
  ASSERT_TRUE(image.Create(2, 2, 8));
  EXPECT_EQ(image.ColourTable()[200], (Colour{200, 200, 200}));
  EXPECT_FALSE(image.Create(2, 2, 16));
  EXPECT_TRUE(image.empty());
  EXPECT_FALSE(image.Create(0, 2, 24));
  EXPECT_FALSE(image.Create(20000, 20000, 24));  // over the pixel limit
}

TEST(ImageBufferTest, QuarterTurnsFlipsAndTheirInverses) {
  const cImage picture = Numbered(3, 2);
  const cImage clockwise = picture.Rotate(270);
  ASSERT_EQ(clockwise.Width(), 2);
  ASSERT_EQ(clockwise.Height(), 3);
  EXPECT_EQ(From(clockwise, 0, 0), "0,1");  // the bottom-left corner comes to the top left
  EXPECT_EQ(From(clockwise, 1, 0), "0,0");
  EXPECT_EQ(From(clockwise, 1, 2), "2,0");
  const cImage anticlockwise = picture.Rotate(90);
  EXPECT_EQ(From(anticlockwise, 0, 0), "2,0");  // the top-right corner comes to the top left
  EXPECT_EQ(From(anticlockwise, 0, 2), "0,0");
  EXPECT_EQ(From(picture.Rotate(-90), 0, 0), From(clockwise, 0, 0));
  EXPECT_EQ(From(anticlockwise.Rotate(270), 2, 1), "2,1");
  const cImage half = picture.Rotate(180);
  EXPECT_EQ(half.Width(), 3);
  EXPECT_EQ(half.Height(), 2);
  EXPECT_EQ(From(half, 0, 0), "2,1");
  EXPECT_TRUE(picture.Rotate(360).empty());
  EXPECT_TRUE(picture.Rotate(45).empty());

  EXPECT_EQ(From(picture.Mirror(false), 0, 0), "2,0");
  EXPECT_EQ(From(picture.Mirror(true), 0, 0), "0,1");
  EXPECT_EQ(From(picture.Mirror(true).Mirror(true), 1, 1), "1,1");

  // Indexed pictures turn by their indices.
  cImage bits;
  ASSERT_TRUE(bits.Create(9, 1, 1));
  bits.SetIndex(8, 0, 1);
  const cImage standing = bits.Rotate(270);
  EXPECT_EQ(standing.BitCount(), 1);
  EXPECT_EQ(standing.Index(0, 8), 1);
  EXPECT_EQ(standing.Index(0, 0), 0);
}

TEST(ImageBufferTest, GreyscaleAndResample) {
  cImage colour;
  ASSERT_TRUE(colour.Create(2, 2, 24));
  colour.SetPixelColour(0, 0, {90, 60, 30});  // blue, green, red
  const cImage grey = colour.Greyscale();
  EXPECT_EQ(grey.BitCount(), 8);
  EXPECT_EQ(grey.Index(0, 0), 60);
  EXPECT_EQ(grey.Index(1, 1), 0);

  // Down: the mean of the area.
  cImage checker;
  ASSERT_TRUE(checker.Create(2, 2, 24));
  checker.SetPixelColour(0, 0, {255, 255, 255});
  checker.SetPixelColour(1, 1, {255, 255, 255});
  EXPECT_EQ(checker.Resample(1, 1).PixelColour(0, 0), (Colour{128, 128, 128}));
  // Up: smooth between the pixels.
  cImage pair;
  ASSERT_TRUE(pair.Create(2, 1, 24));
  pair.SetPixelColour(1, 0, {255, 255, 255});
  const cImage wide = pair.Resample(4, 1);
  EXPECT_EQ(wide.PixelColour(0, 0).red, 0);
  EXPECT_EQ(wide.PixelColour(1, 0).red, 64);
  EXPECT_EQ(wide.PixelColour(2, 0).red, 191);
  EXPECT_EQ(wide.PixelColour(3, 0).red, 255);
  // Indexed pictures keep their depth and table.
  const cImage grey_wide = grey.Resample(4, 4);
  EXPECT_EQ(grey_wide.BitCount(), 8);
  EXPECT_EQ(grey_wide.ColourTable()[60], (Colour{60, 60, 60}));
  EXPECT_TRUE(colour.Resample(0, 3).empty());
}

TEST(ImageBufferTest, PicturesGoInAndOutAsRgb) {
  RgbPicture picture(2, 1);
  picture.rgb = {10, 20, 30, 200, 100, 0};
  cImage image;
  ASSERT_TRUE(image.CopyPicture(picture, 0));
  EXPECT_EQ(image.BitCount(), 24);
  EXPECT_EQ(image.ToRgb().rgb, picture.rgb);
  ASSERT_TRUE(image.CopyPicture(picture, 8));
  EXPECT_EQ(image.ToRgb().rgb, (std::vector<std::uint8_t>{20, 20, 20, 100, 100, 100}));
  EXPECT_FALSE(image.CopyPicture(picture, 4));
}

}  // namespace
}  // namespace tarnwick
