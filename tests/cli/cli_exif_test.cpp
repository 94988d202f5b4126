// "exif", "wma", the EXIF tokens of "expand" and the EXIF column of "list",
// end to end on the committed fixtures.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "cli/cli_runner.h"

namespace tarnwick {
namespace {

using testing::CliResult;
using testing::CliRunner;
using ::testing::HasSubstr;
using ::testing::StartsWith;

std::string Fixture(const std::string& path) {
  const char* source = std::getenv("TW_SOURCE_DIR");
  return (std::filesystem::path(source ? source : ".") / "tests/fixtures" / path).string();
}

TEST(CliExifTest, ListsEntriesAndSingleTags) {
  CliRunner cli;
  CliResult r = cli.Run({"exif", Fixture("exif/full_intel.jpg")});
  EXPECT_EQ(r.exit_code, 0) << r.err;
  EXPECT_THAT(r.out, StartsWith("ImageDescription: Harbour at dusk\nMake: Oakhollow Optics\n"));
  EXPECT_THAT(r.out, HasSubstr("\nExposureTime: 125\n"));
  r = cli.Run({"exif", Fixture("exif/full_motorola.jpg"), "--tag", "40962"});
  EXPECT_EQ(r.exit_code, 0);
  EXPECT_EQ(r.out, "16\t16\n");
  r = cli.Run({"exif", Fixture("exif/full_motorola.jpg"), "--tag", "7"});
  EXPECT_EQ(r.exit_code, 1);
  EXPECT_EQ(r.out, "Tag 7 not found.\t0\n");
  r = cli.Run({"exif", Fixture("exif/no_exif.jpg")});
  EXPECT_EQ(r.exit_code, 1);
  EXPECT_THAT(r.err, HasSubstr("File has no EXIF Metainformation."));
  EXPECT_EQ(cli.Run({"exif", Fixture("exif/no_exif.jpg"), "--tag", "x"}).exit_code, 2);
  EXPECT_EQ(cli.Run({"exif"}).exit_code, 2);
}

TEST(CliExifTest, WmaPrintsNameTypeAndValue) {
  CliRunner cli;
  CliResult r = cli.Run({"wma", Fixture("asf/tagged.wma")});
  EXPECT_EQ(r.exit_code, 0) << r.err;
  EXPECT_THAT(r.out, HasSubstr("Title\tstring\tHarbour Song\n"));
  EXPECT_THAT(r.out, HasSubstr("WM/AlbumTitle\tstring\tPier Sessions\n"));
  EXPECT_THAT(r.out, HasSubstr("Seekable\tbool\tTrue\n"));
  r = cli.Run({"wma", Fixture("exif/full_intel.jpg")});
  EXPECT_EQ(r.exit_code, 1);
  EXPECT_THAT(r.err, HasSubstr("not a Windows Media file"));
}

TEST(CliExifTest, TokensUseTheTimeSeparatorOption) {
  CliRunner cli;
  const std::string full = Fixture("exif/full_intel.jpg");
  CliResult r = cli.Run({"expand",
                         "{{get_jpg_exif_originaldatetime}}|{{get_jpg_exif_originaldate}}|"
                         "{{get_jpg_exif_originaltime}}|{{get_jpg_exif_dcmaker}}|"
                         "{{get_jpg_exif_originaldate_mm_text}}|{{get_jpg_exif_Exposuretime}}",
                         "--file", full});
  EXPECT_EQ(r.out, "2004-04-12 11-38-00|2004-04-12|11-38-00|Oakhollow Optics|April|125\n") << r.err;
  ASSERT_EQ(cli.Run({"options", "set", "Options", "TimeSeperator", "_"}).exit_code, 0);
  r = cli.Run({"expand", "{{get_jpg_exif_DateTime}} {{get_jpg_exif_Copyright}}", "--file", full});
  EXPECT_EQ(r.out, "2005_06_07 08_09_10 Oakhollow 2004\n");
  // No date in the file: the value is empty, the derived month token stays.
  r = cli.Run({"expand", "a{{get_jpg_exif_dcmodel}}b{{get_jpg_exif_originaldate_mm_text}}",
               "--file", Fixture("exif/no_exif.jpg")});
  EXPECT_EQ(r.out, "ab{{get_jpg_exif_originaldate_mm_text}}\n");
}

TEST(CliExifTest, ListFillsTheExifDateColumnForJpegFilesOnly) {
  CliRunner cli;
  const auto folder = cli.dir().path() / "pictures";
  std::filesystem::create_directories(folder);
  std::filesystem::copy_file(Fixture("exif/full_intel.jpg"), folder / "a.JPG");
  std::filesystem::copy_file(Fixture("exif/negative_motorola.jpg"), folder / "b.jpeg");
  std::filesystem::copy_file(Fixture("exif/full_intel.jpg"), folder / "c.png");
  std::filesystem::copy_file(Fixture("exif/no_exif.jpg"), folder / "d.jpg");
  const CliResult r = cli.Run({"list", folder.string(), "--json"});
  EXPECT_EQ(r.exit_code, 0) << r.err;
  EXPECT_THAT(r.out, HasSubstr("\"name\": \"a.JPG\""));
  EXPECT_THAT(r.out, HasSubstr("\"exif_date\": \"12.04.2004 11:38:00\""));
  EXPECT_THAT(r.out, HasSubstr("\"exif_date\": \"31.12.2010 23:59:58\""));
  const auto c = r.out.find("\"c.png\"");
  ASSERT_NE(c, std::string::npos);
  EXPECT_THAT(r.out.substr(c, r.out.find('}', c) - c), HasSubstr("\"exif_date\": \"\""));
}

}  // namespace
}  // namespace tarnwick
