// "playlist" end to end.
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

class CliPlaylistTest : public ::testing::Test {
 protected:
  std::string Path(const std::string& relative) const {
    return (cli_.dir().path() / relative).string();
  }
  std::string Copy(const std::string& fixture, const std::string& relative) {
    std::filesystem::create_directories(std::filesystem::path(Path(relative)).parent_path());
    std::filesystem::copy_file(std::filesystem::path(TW_FIXTURE_DIR) / "mp3" / fixture,
                               Path(relative));
    return Path(relative);
  }
  CliRunner cli_;
};

TEST_F(CliPlaylistTest, ShowListsRowsAsLinesOrJson) {
  const std::string song = Copy("v1_plain.mp3", "music/a.mp3");
  cli_.dir().WriteFile("list.m3u", "#EXTM3U\n#EXTINF:215,Song\nmusic/a.mp3\nhttp://radio/x\n");
  CliResult r = cli_.Run({"playlist", "show", Path("list.m3u")});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_EQ(r.out, "Song\t03:35\t" + song + "\tyes\nx\t00:00\thttp://radio/x\tno\n");
  r = cli_.Run({"playlist", "show", Path("list.m3u"), "--json"});
  EXPECT_THAT(r.out, HasSubstr("{\"count\": 2, \"time\": \"03:35\", \"rows\": [{\"title\": "
                               "\"Song\", \"length\": \"03:35\", \"seconds\": 215"));
  EXPECT_THAT(r.out, HasSubstr("\"exists\": false}]}"));
}

TEST_F(CliPlaylistTest, ConvertKeepsLengthsAndNeverOverwritesUnasked) {
  cli_.dir().WriteFile("in.m3u", "#EXTM3U\n#EXTINF:3723,Long\n/x/long.mp3\n");
  ASSERT_EQ(cli_.Run({"playlist", "convert", Path("in.m3u"), Path("out.pls")}).exit_code, 0);
  EXPECT_EQ(ReadWholeFile(Path("out.pls")),
            "[playlist]\nFile1=/x/long.mp3\nTitle1=Long\nLength1=3723\nNumberOfEntries=1\n"
            "Version=2\n");
  const CliResult again = cli_.Run({"playlist", "convert", Path("out.pls"), Path("in.m3u")});
  EXPECT_EQ(again.exit_code, 1);
  EXPECT_THAT(again.err, HasSubstr("give --overwrite"));
  ASSERT_EQ(cli_.Run({"playlist", "convert", Path("out.pls"), Path("in.m3u"), "--overwrite"})
                .exit_code,
            0);
  EXPECT_EQ(ReadWholeFile(Path("in.m3u")), "#EXTM3U\n#EXTINF:3723,Long\n/x/long.mp3\n");
}

TEST_F(CliPlaylistTest, CheckCorrectAndFindLostWork) {
  const std::string song = Copy("v1_plain.mp3", "music/deep/a.mp3");
  cli_.dir().WriteFile("list.pls",
                       "[playlist]\nFile1=music/deep/a.mp3\nFile2=/gone/b.mp3\nTitle2=Plain "
                       "Artist - Plain Title\nNumberOfEntries=2\n");
  CliResult r = cli_.Run({"playlist", "check", Path("list.pls"), "--remove-missing", "--out",
                          Path("checked.m3u")});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_THAT(r.out, HasSubstr("missing\t2\t/gone/b.mp3\n1 files not found and are red marked!"));
  EXPECT_EQ(ReadWholeFile(Path("checked.m3u")), "#EXTM3U\n#EXTINF:0,a\n" + song + "\n");

  r = cli_.Run({"playlist", "correct", Path("list.pls"), "--out", Path("corrected.m3u")});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_EQ(r.out, "1 Titles could not be corrected.\n");
  EXPECT_THAT(ReadWholeFile(Path("corrected.m3u")), HasSubstr(",Plain Artist - Plain Title\n"));

  std::filesystem::rename(song, Path("music/moved.mp3"));
  r = cli_.Run({"playlist", "find-lost", Path("corrected.m3u"), "--search", Path("music"),
                "--out", Path("found.m3u")});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_THAT(r.out, HasSubstr("found\t1\t" + Path("music/moved.mp3")));
}

TEST_F(CliPlaylistTest, MakeBuildsAListOfTheMusicFiles) {
  Copy("v1_plain.mp3", "music/b.mp3");
  Copy("tone.wav", "music/sub/a.wav");
  cli_.dir().WriteFile("music/notes.txt", "x");
  CliResult r = cli_.Run({"playlist", "make", Path("music"), "--out", Path("m.m3u8")});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_EQ(ReadWholeFile(Path("m.m3u8")),
            "#EXTM3U\n#EXTINF:0,Plain Artist - Plain Title\n" + Path("music/b.mp3") + "\n");
  r = cli_.Run({"playlist", "make", Path("music"), "--subfolders", "--out", Path("n.m3u")});
  EXPECT_THAT(ReadWholeFile(Path("n.m3u")), HasSubstr(",a\n" + Path("music/sub/a.wav") + "\n"));
}

TEST_F(CliPlaylistTest, CopyAndMovePutTheFilesIntoAFolderAndReplaceNothing) {
  Copy("tone.wav", "music/a.wav");
  Copy("tone.wav", "music/b.wav");
  cli_.dir().WriteFile("out/b.wav", "older");
  cli_.dir().WriteFile("list.m3u", "music/a.wav\nmusic/b.wav\nmusic/gone.wav\n");
  CliResult r = cli_.Run({"playlist", "copy", Path("list.m3u"), Path("out")});
  EXPECT_EQ(r.exit_code, 1);
  EXPECT_THAT(r.out, HasSubstr("Copying: [1/3] " + Path("music/a.wav")));
  EXPECT_THAT(r.out, HasSubstr("1 files not found an not copied!"));
  EXPECT_THAT(r.err, HasSubstr("not replaced: " + Path("out/b.wav")));
  EXPECT_EQ(ReadWholeFile(Path("out/b.wav")), "older");
  EXPECT_TRUE(std::filesystem::exists(Path("out/a.wav")));

  cli_.dir().WriteFile("two.m3u", "music/b.wav\n");
  std::filesystem::create_directories(Path("moved"));
  r = cli_.Run({"playlist", "move", Path("two.m3u"), Path("moved")});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_THAT(r.out, HasSubstr("Action successfull!"));
  EXPECT_FALSE(std::filesystem::exists(Path("music/b.wav")));
  EXPECT_TRUE(std::filesystem::exists(Path("moved/b.wav")));
}

TEST_F(CliPlaylistTest, BadInputGivesAClearMessage) {
  cli_.dir().WriteFile("bin.m3u", std::string("\0\1\2\3", 4));
  CliResult r = cli_.Run({"playlist", "show", Path("bin.m3u")});
  EXPECT_EQ(r.exit_code, 1);
  EXPECT_THAT(r.err, HasSubstr("File is no supported playlist and can't be loaded!"));
  r = cli_.Run({"playlist", "show", Path("none.m3u")});
  EXPECT_THAT(r.err, HasSubstr("File not found"));
  cli_.dir().WriteFile("empty.m3u", "#EXTM3U\n");
  r = cli_.Run({"playlist", "convert", Path("empty.m3u"), Path("x.pls")});
  EXPECT_THAT(r.err, HasSubstr("Can't save empty playlist."));
  EXPECT_EQ(cli_.Run({"playlist", "correct", Path("empty.m3u")}).exit_code, 2);
  EXPECT_EQ(cli_.Run({"playlist", "juggle"}).exit_code, 2);
}

}  // namespace
}  // namespace tarnwick
