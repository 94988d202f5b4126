// Resizing pictures: the size rules, the blur, each format and TIFF
// compression read back, and the job's names.
#include "picture/resize_job.h"

#include <filesystem>

#include "core/run_test_fixture.h"
#include "picture/bmp_codec.h"
#include "picture/picture_file.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

cImage Checker(int width, int height) {
  cImage image;
  image.Create(width, height, 24);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const std::uint8_t v = (x / 4 + y / 4) % 2 ? 255 : 0;
      image.SetPixelColour(x, y, {v, v, v});
    }
  }
  return image;
}

TEST(ResizeRulesTest, PercentAndPixelSizes) {
  ResizeChoices c;
  c.percent = 25;
  EXPECT_EQ(ResizedSize(400, 300, c), std::make_pair(100, 75));
  c.scale_up = true;  // the same amount the other way
  EXPECT_EQ(ResizedSize(400, 300, c), std::make_pair(1600, 1200));
  c.percent = 150;
  EXPECT_EQ(ResizedSize(400, 300, c), std::make_pair(600, 450));
  c.scale_up = false;
  EXPECT_EQ(ResizedSize(400, 300, c), std::make_pair(267, 200));
  c.percent = 1;
  EXPECT_EQ(ResizedSize(50, 30, c), std::make_pair(1, 1));  // never below a pixel
  c.percent = 10;
  EXPECT_EQ(ResizedSize(25, 35, c), std::make_pair(2, 4));  // 2.5 and 3.5: ties to even
  c.by_percent = false;
  c.width = 640;
  EXPECT_EQ(ResizedSize(400, 300, c), std::make_pair(640, 300));  // no height: kept
  EXPECT_EQ(PercentOf("abc"), 25);
  EXPECT_EQ(PercentOf(""), 25);
  EXPECT_EQ(PercentOf("-5"), 25);
  EXPECT_EQ(PercentOf("50"), 50);
  EXPECT_EQ(PercentOf("12.5"), 12.5);
}

TEST(ResizeRulesTest, BlurAveragesTheTwoByTwoBoxAndKeepsTheSize) {
  cImage image;
  image.Create(2, 2, 24);
  image.SetPixelColour(0, 0, {200, 100, 40});
  const cImage blurred = BlurPicture(image);
  EXPECT_EQ(blurred.Width(), 2);
  EXPECT_EQ(blurred.PixelColour(0, 0), (cImage::Colour{50, 25, 10}));  // sum / 4
  EXPECT_EQ(blurred.PixelColour(1, 1), (cImage::Colour{0, 0, 0}));     // the edge repeats
}

class ResizeJobTest : public RunTest {
 protected:
  ResizeJobTest() {
    const std::vector<std::uint8_t> bmp = EncodeBmp(Checker(40, 20));
    AddFile("pic.bmp", std::string(bmp.begin(), bmp.end()));
  }
  RenameRunEnv Env() {
    return {app, settings, list, options, interaction, messages, clock, log_undo};
  }
  // The job on pic.bmp alone, whatever else the folder holds by now.
  ToolJobResult Resize(const ResizeChoices& choices) {
    Fill();
    list.DeselectAll();
    for (std::size_t row = 0; row < list.size(); ++row) {
      if (list.Text(row, file_column::kName) == "pic.bmp") list.Select(row);
    }
    return ResizePictures(Env(), choices);
  }
};

TEST_F(ResizeJobTest, EachFormatIsWrittenAtTheNewSizeWithItsStrip) {
  ResizeChoices c;
  c.percent = 50;
  for (ResizeFormat format :
       {ResizeFormat::kJpeg, ResizeFormat::kPng, ResizeFormat::kTiff, ResizeFormat::kBmp}) {
    c.format = format;
    EXPECT_EQ(Resize(c).done, 1);
  }
  // 20 by 10, and the 3-pixel white strip of the surface.
  for (const char* name : {"pic.jpg", "pic.png", "pic.tif", "pic (Copy_1).bmp"}) {
    const LoadedPicture back = LoadPicture(FilePath(name));
    ASSERT_TRUE(back.ok()) << name << ": " << back.error;
    EXPECT_EQ(back.picture.width, 23) << name;
    EXPECT_EQ(back.picture.height, 13) << name;
    EXPECT_GT(back.picture.Pixel(22, 12)[0], 240) << name;
  }
}

TEST_F(ResizeJobTest, TiffCompressionsReadBackAndBilevelOnesAreBlackAndWhite) {
  ResizeChoices c;
  c.by_percent = false;  // the size as it is
  c.format = ResizeFormat::kTiff;
  c.destination = (dir.path() / "out").string();
  for (TiffCompression compression :
       {TiffCompression::kLzw, TiffCompression::kCcitt3, TiffCompression::kCcitt4,
        TiffCompression::kRle, TiffCompression::kNone}) {
    fs::remove_all(c.destination);
    fs::create_directories(c.destination);
    c.tiff = compression;
    ASSERT_EQ(Resize(c).done, 1);
    const LoadedPicture back = LoadPicture(c.destination + "/pic.tif");
    ASSERT_TRUE(back.ok()) << static_cast<int>(compression) << ": " << back.error;
    EXPECT_EQ(back.picture.width, 43);
    // The checker's black and white come back exactly in every one.
    EXPECT_EQ(back.picture.Pixel(0, 0)[1], 0);
    EXPECT_EQ(back.picture.Pixel(4, 0)[1], 255);
  }
  EXPECT_EQ(TiffCompressionOf("ccitt4", "None"), TiffCompression::kCcitt4);
  EXPECT_EQ(TiffCompressionOf("Keine", "Keine"), TiffCompression::kNone);
  EXPECT_EQ(TiffCompressionOf("zip", "None"), TiffCompression::kLzw);
}

TEST_F(ResizeJobTest, ReplacingAsksAndTheOriginalGoes) {
  ResizeChoices c;
  c.overwrite = true;
  c.format = ResizeFormat::kPng;
  interaction.Then(Answer::kYes);
  EXPECT_EQ(Resize(c).done, 1);
  EXPECT_EQ(Names(), std::vector<std::string>{"pic.png"});
  EXPECT_TRUE(WasAsked("Overwrite files"));
}

}  // namespace
}  // namespace tarnwick::testing
