// The EXIF report file: header literal, columns, "n/a" and the shifted
// columns kept as they always were.
#include "media/exif_report.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/text.h"
#include "media/exif_reader.h"
#include "media/media_fixtures.h"
#include "shell/message_table.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::FixtureFolder;

class ExifReportTest : public ::testing::Test {
 protected:
  ExifReportTest() : reader_(messages_, {}) {}

  std::vector<std::string> Lines(const std::vector<ReportRow>& rows,
                                 const ReportProgress& progress = {}) {
    const auto out = dir_.path() / "report.txt";
    EXPECT_TRUE(WriteExifReport(out, rows, reader_, messages_, progress));
    const std::string text = testing::ReadWholeFile(out);
    EXPECT_TRUE(text.ends_with("\r\n"));
    std::vector<std::string> lines = vb::Split(text, "\r\n");
    lines.pop_back();
    return lines;
  }

  const MessageTable& messages_ = MessageTable::Get(Language::kEnglish);
  ExifReader reader_;
  testing::TempDir dir_;
};

TEST_F(ExifReportTest, HeaderAndLinesOfPicturesWithAndWithoutExif) {
  const std::string folder = FixtureFolder("exif").string();
  const auto lines = Lines({{"full_intel.jpg", "2 KB", folder}, {"no_exif.jpg", "1 KB", folder}});
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_TRUE(lines[0].starts_with(
      "Filename;Size;Path;Picture siz in pixel;ApertureValue;CFAPattern;ColorSpace;"));
  EXPECT_TRUE(
      lines[0].ends_with(";sFocalPlaneResolutionUnit;FocalPlaneXResolution;"
                         "FocalPlaneYResolution;ImageDescription;ISOSpeedRatings;"
                         "LightSource;Make;MakerNote;MaxApertureValue;MeteringMode;"
                         "Model;Orientation;PrimaryChromaticities;ReferenceBlackWhite;"
                         "RelatedSoundFile;ResolutionUnit;SceneType;SensingMethod;"
                         "ShutterSpeedValue;Software;SubjectDistance;SubsecTime;"
                         "SubsecTimeDigitized;SubsecTimeOriginal;UserComment;WhitePoint;"
                         "XResolution;YCbCrCoefficients;YCbCrPositioning;YResolution"));
  const auto header = vb::Split(lines[0], ";");
  const auto full = vb::Split(lines[1], ";");
  EXPECT_EQ(header.size(), 57u);
  EXPECT_EQ(full.size(), 58u);  // one value more than the header names
  EXPECT_EQ(full[0], "full_intel.jpg");
  EXPECT_EQ(full[1], "2 KB");
  EXPECT_EQ(full[2], folder);
  EXPECT_EQ(full[3], "16 x 16");
  EXPECT_EQ(full[4], "4.0");                   // ApertureValue
  EXPECT_EQ(full[5], "33/4");                  // BrightnessValue, under "CFAPattern"
  EXPECT_EQ(full[13], "2004:04:12 11:38:00");  // DateTimeOriginal
  EXPECT_EQ(full[57], "75.0");                 // YResolution
  const auto none = vb::Split(lines[2], ";");
  ASSERT_EQ(none.size(), 58u);
  EXPECT_EQ(none[3], "16 x 16");
  for (std::size_t i = 4; i < none.size(); ++i) EXPECT_EQ(none[i], "n/a") << i;
}

TEST_F(ExifReportTest, SemicolonsMoveColumnsAndProgressCanStop) {
  const auto odd = dir_.WriteFile("a;b.jpg", "not a picture");
  const auto lines = Lines({{"a;b.jpg", "0", dir_.str()}, {"a;b.jpg", "0", dir_.str()}},
                           [](std::size_t place, std::size_t) { return place < 2; });
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(vb::Split(lines[1], ";").size(), 59u);
  EXPECT_TRUE(lines[1].starts_with("a;b.jpg;0;" + dir_.str() + ";0 x 0;n/a;"));
  EXPECT_FALSE(WriteExifReport(dir_.path() / "no" / "such" / "folder.txt", {}, reader_, messages_));
}

}  // namespace
}  // namespace tarnwick
