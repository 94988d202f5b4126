// "tags" and "report" end to end, and the media column of "list".
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::CliResult;
using testing::CliRunner;
using ::testing::HasSubstr;
using testing::ReadWholeFile;
using ::testing::StartsWith;

class CliTagsTest : public ::testing::Test {
 protected:
  std::string Copy(const std::string& fixture, const std::string& name) {
    const auto target = cli_.dir().path() / name;
    std::filesystem::copy_file(std::filesystem::path(TW_FIXTURE_DIR) / "mp3" / fixture, target);
    return target.string();
  }
  CliRunner cli_;
};

TEST_F(CliTagsTest, JsonHoldsBothRecordsAndTheStreamFacts) {
  const std::string file = Copy("v1_track.mp3", "a.mp3");
  const CliResult r = cli_.Run({"tags", file, "--json"});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_THAT(r.out, StartsWith("{\"v1\": {\"artist\": \"Lame Artist\", \"album\": \"Lame Album\", "
                                "\"title\": \"Lame Title\", \"year\": \"2001\", \"genre\": "
                                "\"Rock\", \"comment\": \"a comment\", \"track\": \"5\"}, "
                                "\"v2\": null, \"mpeg\": {\"mpegVersion\": \"version 2 layer 3\""));
  EXPECT_THAT(r.out, HasSubstr("\"hasVBR\": false, \"channelMode\": \"Mono\""));
  EXPECT_THAT(r.out, HasSubstr("\"ID3v1Version\": 1, \"ID3v2Version\": -1"));
  EXPECT_THAT(r.out, HasSubstr("\"valid\": true}}"));
}

TEST_F(CliTagsTest, JsonShowsValuesWithoutTheClosingNulUnlessRaw) {
  const std::string file = Copy("ffmpeg_v23.mp3", "f.mp3");
  CliResult r = cli_.Run({"tags", file, "--json"});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_THAT(r.out, HasSubstr("\"title\": \"FF Title\","));
  EXPECT_THAT(r.out, ::testing::Not(HasSubstr("\\u0000")));
  r = cli_.Run({"tags", file, "--json", "--raw"});
  EXPECT_THAT(r.out, HasSubstr("\"title\": \"FF Title\\u0000\","));
  EXPECT_EQ(cli_.Run({"tags", file, "--raw"}).exit_code, 2);
}

TEST_F(CliTagsTest, SetWritesBothVersionsAndKeepsTheVersionThere) {
  const std::string file = Copy("v24_utf8.mp3", "b.mp3");
  CliResult r = cli_.Run({"tags", file, "--set", "v2.title=New Title", "--set", "v1.track=9",
                          "--set", "v2.userText=note"});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  r = cli_.Run({"tags", file});
  EXPECT_THAT(r.out, HasSubstr("  title: New Title\n"));
  EXPECT_THAT(r.out, HasSubstr("  artist: UTF8 Artist\n"));  // kept from the old tag
  EXPECT_THAT(r.out, HasSubstr("  userText: note\n"));
  EXPECT_THAT(r.out, HasSubstr("  track: 9\n"));
  EXPECT_THAT(r.out, HasSubstr("ID3v2Version: 4\n"));
  // To 2.3 and with nothing kept but the record.
  ASSERT_EQ(cli_.Run({"tags", file, "--v23", "--discard-other-frames"}).exit_code, 0);
  r = cli_.Run({"tags", file});
  EXPECT_THAT(r.out, HasSubstr("ID3v2Version: 3\n"));
  EXPECT_THAT(r.out, HasSubstr("  artist: UTF8 Artist\n"));
  ASSERT_EQ(cli_.Run({"tags", file, "--remove-v1", "--remove-v2"}).exit_code, 0);
  r = cli_.Run({"tags", file, "--json"});
  EXPECT_THAT(r.out, StartsWith("{\"v1\": null, \"v2\": null"));
}

TEST_F(CliTagsTest, RefusesBadInputWithoutWriting) {
  const std::string file = Copy("v23_latin1.mp3", "c.mp3");
  const std::string before = ReadWholeFile(file);
  CliResult r = cli_.Run({"tags", file, "--set", "v1.track=12a"});
  EXPECT_EQ(r.exit_code, 1);
  EXPECT_THAT(r.err, HasSubstr("Illegal chars in ID v1 Tags"));
  r = cli_.Run({"tags", file, "--set", "v2.title=\xE2\x82\xAC"});
  EXPECT_EQ(r.exit_code, 1);
  EXPECT_EQ(ReadWholeFile(file), before);
  EXPECT_EQ(cli_.Run({"tags", file, "--set", "v2.nosuch=1"}).exit_code, 2);
  EXPECT_EQ(cli_.Run({"tags", file, "--v23", "--v24"}).exit_code, 2);
  EXPECT_EQ(cli_.Run({"tags", file, "--json", "--remove-v1"}).exit_code, 2);
  EXPECT_EQ(cli_.Run({"tags"}).exit_code, 2);
}

TEST_F(CliTagsTest, Mp3ReportHasTheFixedHeaderAndOneLineAFile) {
  const std::string v2 = Copy("v23_latin1.mp3", "v2.mp3");
  const std::string v1 = Copy("v1_track.mp3", "v1.mp3");
  const std::string none = Copy("lame_cbr.mp3", "none.mp3");
  const std::string out = (cli_.dir().path() / "report.txt").string();
  CliResult r = cli_.Run({"report", "mp3", out, v2, v1, none});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  const std::string text = ReadWholeFile(out);
  EXPECT_THAT(text, StartsWith("Filename;Size;Path;Album;Artist;Artist Additional;"));
  EXPECT_THAT(text, HasSubstr(";User Text;Comment;Available IDs\r\n"));
  const std::string folder = cli_.dir().path().string();
  EXPECT_THAT(text, HasSubstr(";" + folder + ";Latin Album;Latin Artist;"));
  EXPECT_THAT(text, HasSubstr(";la la la;user text;latin comment;V2\r\n"));
  EXPECT_THAT(text, HasSubstr("v1.mp3;"));
  EXPECT_THAT(text, HasSubstr(";Lame Album;Lame Artist;n/a;"));
  EXPECT_THAT(text, HasSubstr(";Lame Title;5;n/a;n/a;a comment;V1\r\n"));
  EXPECT_THAT(text, HasSubstr("none.mp3;"));
  EXPECT_EQ(cli_.Run({"report", "mp3", out, v2}).exit_code, 1);  // exists
}

TEST_F(CliTagsTest, ExifReportHasALineForEachPicture) {
  const auto picture = cli_.dir().path() / "full_intel.jpg";
  std::filesystem::copy_file(std::filesystem::path(TW_FIXTURE_DIR) / "exif" / "full_intel.jpg",
                             picture);
  const std::string out = (cli_.dir().path() / "exif.txt").string();
  const CliResult r = cli_.Run({"report", "exif", out, picture.string()});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  const std::string text = ReadWholeFile(out);
  EXPECT_THAT(text, StartsWith("Filename;"));
  EXPECT_THAT(text, HasSubstr("\r\nfull_intel.jpg;"));
  EXPECT_EQ(cli_.Run({"report", "gif", out, picture.string()}).exit_code, 2);
}

TEST_F(CliTagsTest, ExpandAndListUseTheMediaReaders) {
  const std::string file = Copy("v23_latin1.mp3", "song.mp3");
  CliResult r =
      cli_.Run({"expand", "{{mp3IDTagV2_artist}} - {{mp3IDTagV2_title}}", "--file", file});
  EXPECT_EQ(r.out, "Latin Artist - Caf\xC3\xA9 Title\n");
  Copy("tone.wav", "tone.wav");
  ASSERT_EQ(cli_.Run({"options", "set", "Options", "MP3WAVLength", "1"}).exit_code, 0);
  r = cli_.Run({"list", cli_.dir().path().string()});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_THAT(r.out, HasSubstr("00:03 min."));
  EXPECT_THAT(r.out, HasSubstr("00:00 min."));
}

}  // namespace
}  // namespace tarnwick
