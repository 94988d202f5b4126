#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "playlist/m3u.h"
#include "playlist/playlist_file.h"
#include "playlist/playlist_path.h"
#include "playlist/pls.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::ReadWholeFile;
using testing::TempDir;

PlaylistRow Row(std::string title, std::string length, std::string path) {
  PlaylistRow row;
  row.title = std::move(title);
  row.length = std::move(length);
  row.path = std::move(path);
  return row;
}

void ExpectSameRows(const std::vector<PlaylistRow>& got, const std::vector<PlaylistRow>& want) {
  ASSERT_EQ(got.size(), want.size());
  for (std::size_t i = 0; i < got.size(); ++i) {
    EXPECT_EQ(got[i].title, want[i].title) << i;
    EXPECT_EQ(got[i].length, want[i].length) << i;
    EXPECT_EQ(got[i].path, want[i].path) << i;
  }
}

TEST(M3uTest, RealWorldShapesRead) {
  const std::string text =
      "#EXTM3U\r\n"
      "\r\n"
      "# a comment\r\n"
      "#EXTINF:-1,Radio\r\n"
      "http://radio.example/stream\r\n"
      "#EXTINF:215,Artist - Song, with comma\r\n"
      "Album/01 Song.mp3\r\n"
      "#EXTALB:Ignored\r\n"
      "../other/bare.ogg\n"
      "   \n"
      "#EXTINF:3723,Long\n"
      "file:///music/a%20b.flac\n"
      "C:\\Music\\win.mp3\n"
      "Sub\\dir\\x.mp3";
  ExpectSameRows(ReadM3u(text, "/lists/mine"),
                 {Row("Radio", "00:00", "http://radio.example/stream"),
                  Row("Artist - Song, with comma", "03:35", "/lists/mine/Album/01 Song.mp3"),
                  Row("bare", "00:00", "/lists/other/bare.ogg"),
                  Row("Long", "1:02:03", "/music/a b.flac"),
                  Row("win", "00:00", "C:\\Music\\win.mp3"),
                  Row("x", "00:00", "/lists/mine/Sub/dir/x.mp3")});
}

TEST(M3uTest, AnInfoLineServesOnlyTheNextPath) {
  ExpectSameRows(ReadM3u("#EXTINF:10,\n/a/one.mp3\n#EXTINF:20,Two\n/a/two.mp3\n/a/three.mp3\n",
                         "/"),
                 {Row("one", "00:10", "/a/one.mp3"), Row("Two", "00:20", "/a/two.mp3"),
                  Row("three", "00:00", "/a/three.mp3")});
}

TEST(PlaylistPathTest, UrlsAndWindowsPathsStayAndFileUrlsResolve) {
  EXPECT_EQ(ResolvePlaylistEntry("file://localhost/m/%C3%BC.mp3", "/x"), "/m/\xC3\xBC.mp3");
  EXPECT_EQ(ResolvePlaylistEntry("file:/m/a.mp3", "/x"), "/m/a.mp3");
  EXPECT_EQ(ResolvePlaylistEntry("file://host/m/a.mp3", "/x"), "file://host/m/a.mp3");
  EXPECT_EQ(ResolvePlaylistEntry("\\\\server\\share\\a.mp3", "/x"), "\\\\server\\share\\a.mp3");
  EXPECT_EQ(ResolvePlaylistEntry("d:/a.mp3", "/x"), "d:/a.mp3");
  EXPECT_EQ(ResolvePlaylistEntry("./a.mp3", "/x/y"), "/x/y/a.mp3");
  EXPECT_EQ(TitleFromPath("C:\\Music\\b.c.mp3"), "b.c");
}

TEST(PlsTest, MixedCaseKeysAndVersionFirstRead) {
  const std::string text =
      "; made by hand\r\n"
      "[Playlist]\r\n"
      "Version=2\r\n"
      "numberofentries = 3\r\n"
      "FILE1= rel/a.mp3\r\n"
      "title1=A = a\r\n"
      "LENGTH1=215\r\n"
      "File2=/abs/b.mp3\r\n"
      "File2=/ignored.mp3\r\n"
      "Length2=-1\r\n"
      "File3=/abs/c.mp3\r\n"
      "Title3=C\r\n"
      "File4=/beyond/count.mp3\r\n"
      "[other]\r\n"
      "File5=/other.mp3\r\n";
  ExpectSameRows(ReadPls(text, "/lists"),
                 {Row("A = a", "03:35", "/lists/rel/a.mp3"), Row("b", "00:00", "/abs/b.mp3"),
                  Row("C", "00:00", "/abs/c.mp3")});
}

TEST(PlsTest, AHugeCountCostsNothingAndAMissingCountTakesEveryFile) {
  ExpectSameRows(
      ReadPls("[playlist]\nNumberOfEntries=999999999999\nFile7=/a.mp3\nFile2=/b.mp3\n", "/"),
      {Row("b", "00:00", "/b.mp3"), Row("a", "00:00", "/a.mp3")});
  ExpectSameRows(ReadPls("[playlist]\nFile1=/a.mp3\nFile01=/zero.mp3\n", "/"),
                 {Row("a", "00:00", "/a.mp3")});
}

TEST(PlaylistWriterTest, AnEmptyListWritesOnlyTheHead) {
  EXPECT_EQ(WriteM3u({}), "#EXTM3U\n");
  EXPECT_EQ(WritePls({}), "[playlist]\nNumberOfEntries=0\nVersion=2\n");
}

TEST(PlaylistWriterTest, RowsWriteWholeSecondsAndOneLineTitles) {
  const std::vector<PlaylistRow> rows = {Row("Long\r\nTitle", "1:02:03", "/a.mp3"),
                                         Row("", "", "/b.mp3")};
  EXPECT_EQ(WriteM3u(rows), "#EXTM3U\n#EXTINF:3723,Long  Title\n/a.mp3\n#EXTINF:0,\n/b.mp3\n");
  EXPECT_EQ(WritePls(rows),
            "[playlist]\nFile1=/a.mp3\nTitle1=Long  Title\nLength1=3723\n"
            "File2=/b.mp3\nTitle2=\nLength2=0\nNumberOfEntries=2\nVersion=2\n");
}

TEST(PlaylistDetectTest, HeadsCountsAndNamesDecide) {
  EXPECT_EQ(DetectPlaylistFormat("x\n#EXTM3U\n", "a.txt"), "M3U");
  EXPECT_EQ(DetectPlaylistFormat("[playlist]\nNumberOfEntries=1\n", "a.txt"), "PLS");
  EXPECT_EQ(DetectPlaylistFormat("[playlist]\nNumberOfEntries=0\n", "a.txt"), "");
  EXPECT_EQ(DetectPlaylistFormat("[playlist]\nNumberOfEntries=0\n", "a.PLS"), "PLS");
  EXPECT_EQ(DetectPlaylistFormat("File1=/a.mp3\nNumberOfEntries=1\n", "a.pls"), "");
  EXPECT_EQ(DetectPlaylistFormat("/a.mp3\n", "a.M3U8"), "M3U");
  EXPECT_EQ(DetectPlaylistFormat(std::string("#EXTM3U\n\0\x01", 10), "a.m3u"), "");
}

class PlaylistFileTest : public ::testing::Test {
 protected:
  std::vector<PlaylistRow> SaveAndLoad(const std::string& name,
                                       const std::vector<PlaylistRow>& rows) {
    const std::filesystem::path file = dir_.path() / name;
    EXPECT_TRUE(SavePlaylist(file, rows).ok());
    const PlaylistLoad load = LoadPlaylist(file);
    EXPECT_TRUE(load.ok());
    EXPECT_EQ(load.format, FormatForName(name));
    return load.rows;
  }

  TempDir dir_;
};

TEST_F(PlaylistFileTest, WhatWeWriteReadsBackRowForRowInEveryEncoding) {
  const std::vector<std::vector<PlaylistRow>> lists = {
      {Row("Müller – Straße €", "03:35", "/m/Müller.mp3"), Row(" blank ends ", "1:02:03", "/x.ogg")},
      {Row("日本語", "00:01", "/m/日本.mp3"), Row("ü", "59:59", "/a.mp3")},
      // Windows-1252 bytes that spell UTF-8 would be misread: written as UTF-8.
      {Row("Ã©", "00:10", "/Ã©.mp3")},
      // A Linux name in another encoding keeps its bytes.
      {Row("Latin-1 \xE9", "00:10", "/m/caf\xE9.mp3")},
  };
  for (const std::vector<PlaylistRow>& rows : lists) {
    for (const char* name : {"list.m3u", "list.m3u8", "list.pls"}) {
      ExpectSameRows(SaveAndLoad(name, rows), rows);
    }
  }
}

TEST_F(PlaylistFileTest, EncodingFollowsTheNameAndTheCharacters) {
  const std::vector<PlaylistRow> german = {Row("Müller", "00:01", "/a.mp3")};
  const std::vector<PlaylistRow> japanese = {Row("日本", "00:01", "/a.mp3")};
  ASSERT_TRUE(SavePlaylist(dir_.path() / "a.m3u", german).ok());
  EXPECT_NE(ReadWholeFile(dir_.path() / "a.m3u").find("M\xFCller"), std::string::npos);
  ASSERT_TRUE(SavePlaylist(dir_.path() / "b.m3u8", german).ok());
  EXPECT_EQ(ReadWholeFile(dir_.path() / "b.m3u8").rfind("#EXTM3U", 0), 0u);
  ASSERT_TRUE(SavePlaylist(dir_.path() / "c.pls", japanese).ok());
  EXPECT_EQ(ReadWholeFile(dir_.path() / "c.pls").rfind("\xEF\xBB\xBF[playlist]", 0), 0u);
}

TEST_F(PlaylistFileTest, M3uToPlsToM3uKeepsTitlesAndLengths) {
  const std::vector<PlaylistRow> rows = {Row("One", "03:35", "/a.mp3"),
                                         Row("Two", "1:02:03", "/b.mp3")};
  const std::vector<PlaylistRow> pls = SaveAndLoad("x.pls", SaveAndLoad("x.m3u", rows));
  ExpectSameRows(SaveAndLoad("y.m3u", pls), rows);
}

TEST_F(PlaylistFileTest, AByteOrderMarkAndRelativePathsLoad) {
  dir_.WriteFile("lists/a.m3u8", "\xEF\xBB\xBF#EXTM3U\r\n#EXTINF:5,Ä\r\n../music/ä.mp3\r\n");
  const PlaylistLoad load = LoadPlaylist(dir_.path() / "lists/a.m3u8");
  ASSERT_TRUE(load.ok());
  ExpectSameRows(load.rows, {Row("Ä", "00:05", dir_.str() + "/music/ä.mp3")});
  // Windows-1252 bytes in a plain .m3u.
  dir_.WriteFile("lists/b.m3u", "#EXTINF:5,M\xFCller\n/x.mp3\n");
  ExpectSameRows(LoadPlaylist(dir_.path() / "lists/b.m3u").rows,
                 {Row("Müller", "00:05", "/x.mp3")});
}

TEST_F(PlaylistFileTest, BadFilesGiveNoRowsOrAnErrorButNeverACrash) {
  dir_.WriteFile("bin.m3u", std::string("\x00\x01\x02#EXTM3U", 10));
  EXPECT_FALSE(LoadPlaylist(dir_.path() / "bin.m3u").ok());
  EXPECT_TRUE(LoadPlaylist(dir_.path() / "bin.m3u").status.ok());
  dir_.WriteFile("nosection.pls", "File1=/a.mp3\nNumberOfEntries=1\n");
  EXPECT_FALSE(LoadPlaylist(dir_.path() / "nosection.pls").ok());
  const PlaylistLoad missing = LoadPlaylist(dir_.path() / "none.m3u");
  EXPECT_EQ(missing.status.number, 53);
}

TEST_F(PlaylistFileTest, APathWithALineBreakIsNotWrittenAndTheOldFileStays) {
  const std::filesystem::path file = dir_.WriteFile("keep.m3u", "#EXTM3U\n/old.mp3\n");
  const PlaylistSave save = SavePlaylist(file, {Row("a", "", "/ok.mp3"), Row("b", "", "/x\ny")});
  EXPECT_EQ(save.unstorable_row, 1);
  EXPECT_EQ(ReadWholeFile(file), "#EXTM3U\n/old.mp3\n");
}

TEST_F(PlaylistFileTest, AHundredThousandEntriesLoad) {
  std::string text = "[playlist]\n";
  for (int i = 1; i <= 100000; ++i) {
    text += "File" + std::to_string(i) + "=/m/" + std::to_string(i) + ".mp3\n";
  }
  text += "NumberOfEntries=100000\n";
  dir_.WriteFile("big.pls", text);
  const PlaylistLoad load = LoadPlaylist(dir_.path() / "big.pls");
  ASSERT_EQ(load.rows.size(), 100000u);
  EXPECT_EQ(load.rows.back().path, "/m/100000.mp3");
}

}  // namespace
}  // namespace tarnwick
