// "jpeg" end to end: pictures written again, the question before replacing,
// and the refusal of bad arguments.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cli/cli_runner.h"
#include "picture/picture_file.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using testing::CliResult;
using testing::CliRunner;
using ::testing::HasSubstr;
using testing::ReadWholeFile;

class CliJpegTest : public ::testing::Test {
 protected:
  CliJpegTest() {
    fs::copy_file(std::string(TW_FIXTURE_DIR) + "/exif/full_intel.jpg", Path("photo.jpg"));
    cli_.dir().WriteFile("readme.txt", "not a picture");
  }
  std::string Path(const std::string& relative) const {
    return (cli_.dir().path() / relative).string();
  }
  CliRunner cli_;
};

TEST_F(CliJpegTest, WritesBesideTheOriginalTurnedWithItsExif) {
  const CliResult r = cli_.Run({"jpeg", Path("photo.jpg"), Path("readme.txt"), "--rotate", "90",
                                "--quality", "90", "--comment", "Hafen"});
  EXPECT_EQ(r.exit_code, 1);  // the text file failed
  EXPECT_THAT(r.err, HasSubstr("readme.txt: this is not a picture"));
  EXPECT_THAT(r.err, HasSubstr("1 written, 0 skipped, 1 failed"));
  const LoadedPicture original = LoadPicture(Path("photo.jpg"));
  const LoadedPicture copy = LoadPicture(Path("photo (Copy_1).jpg"));
  ASSERT_TRUE(copy.ok()) << copy.error;
  EXPECT_EQ(copy.picture.width, original.picture.height);
  EXPECT_FALSE(copy.exif.empty());
  EXPECT_THAT(ReadWholeFile(Path("photo (Copy_1).jpg")), HasSubstr("Hafen"));
  EXPECT_EQ(ReadWholeFile(Path("readme.txt")), "not a picture");
}

TEST_F(CliJpegTest, ReplacingNeedsAYesAndBadArgumentsAreRefused) {
  const std::string before = ReadWholeFile(Path("photo.jpg"));
  CliResult r = cli_.Run({"jpeg", "--replace", Path("photo.jpg")});
  EXPECT_EQ(r.exit_code, 3);
  EXPECT_EQ(ReadWholeFile(Path("photo.jpg")), before);
  r = cli_.Run(
      {"jpeg", "--replace", "--yes", "--no-exif", "--sampling", "grey", Path("photo.jpg")});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_NE(ReadWholeFile(Path("photo.jpg")), before);
  EXPECT_TRUE(LoadPicture(Path("photo.jpg")).exif.empty());

  for (const std::vector<std::string>& bad :
       {std::vector<std::string>{"jpeg", Path("photo.jpg"), "--quality", "0"},
        {"jpeg", Path("photo.jpg"), "--sampling", "5:1"},
        {"jpeg", Path("photo.jpg"), "--rotate", "45"},
        {"jpeg", Path("photo.jpg"), "--dest", Path("nowhere")},
        {"jpeg"}}) {
    EXPECT_EQ(cli_.Run(bad).exit_code, 2) << bad.back();
  }
}

TEST_F(CliJpegTest, ResizeWritesEachFormatAndRefusesBadSizes) {
  CliResult r = cli_.Run({"resize", Path("photo.jpg"), "--percent", "50", "--format", "png"});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  const LoadedPicture original = LoadPicture(Path("photo.jpg"));
  const LoadedPicture half = LoadPicture(Path("photo.png"));
  ASSERT_TRUE(half.ok()) << half.error;
  EXPECT_EQ(half.picture.width, (original.picture.width + 1) / 2 + 3);
  r = cli_.Run({"resize", Path("photo.jpg"), "--width", "10", "--format", "tiff",
                "--tiff-compression", "ccitt4"});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_EQ(LoadPicture(Path("photo.tif")).picture.width, 13);
  for (const std::vector<std::string>& bad :
       {std::vector<std::string>{"resize", Path("photo.jpg")},
        {"resize", Path("photo.jpg"), "--percent", "50", "--width", "10"},
        {"resize", Path("photo.jpg"), "--percent", "abc"},
        {"resize", Path("photo.jpg"), "--percent", "50", "--format", "gif"},
        {"resize", Path("photo.jpg"), "--width", "10", "--tiff-compression", "zip"}}) {
    EXPECT_EQ(cli_.Run(bad).exit_code, 2) << bad.back();
  }
}

}  // namespace
}  // namespace tarnwick
