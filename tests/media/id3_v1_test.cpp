#include "media/id3_v1.h"

#include <gtest/gtest.h>

#include "media/id3_genres.h"
#include "media_test_support.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::Mp3Fixture;
using testing::Mp3Manifest;
using testing::ReadWholeFile;
using testing::TempDir;

std::string Block(const std::string& title, const std::string& comment30, char b125, char b126,
                  char genre) {
  std::string b = "TAG";
  b += title;
  b.resize(97, '\0');
  b.replace(93, 4, "2004");
  b += comment30;
  b.resize(125, '\0');
  b += b125;
  b += b126;
  b += genre;
  return b;
}

TEST(ID3v1, ReadsWhatLameWroteWithAndWithoutTrack) {
  const auto& manifest = Mp3Manifest();
  for (const std::string name : {"v1_track.mp3", "v1_plain.mp3"}) {
    SCOPED_TRACE(name);
    const auto& m = manifest.at(name);
    ID3v1Tag tag;
    ASSERT_TRUE(ReadID3v1(Mp3Fixture(name), tag));
    EXPECT_EQ(tag.title, m.at("v1.TIT2"));
    EXPECT_EQ(tag.artist, m.at("v1.TPE1"));
    EXPECT_EQ(tag.comment, m.at("v1.COMM"));
    EXPECT_EQ(tag.genre, GenreName(std::stoi(m.at("v1.TCON"))));
    EXPECT_EQ(tag.track, m.count("v1.TRCK") ? m.at("v1.TRCK") : "");
  }
  ID3v1Tag untouched{.artist = "keep"};
  EXPECT_FALSE(ReadID3v1(Mp3Fixture("lame_cbr.mp3"), untouched));
  EXPECT_EQ(untouched.artist, "keep");
}

TEST(ID3v1, TrackVariantAndFieldDecoding) {
  TempDir dir;
  // NUL at 125 and a non-zero 126: 28 comment bytes and a track.
  auto path = dir.WriteFile("a.mp3", Block("Title  ", std::string(30, 'c'), '\0', 9, 17));
  ID3v1Tag tag;
  ASSERT_TRUE(ReadID3v1(path, tag));
  EXPECT_EQ(tag.title, "Title");
  EXPECT_EQ(tag.comment, std::string(28, 'c'));
  EXPECT_EQ(tag.track, "9");
  EXPECT_EQ(tag.genre, "Rock");
  EXPECT_EQ(tag.year, "2004");
  // Byte 125 not NUL: the comment runs 30 bytes; an unknown genre is empty.
  path =
      dir.WriteFile("b.mp3", "audio" + Block("\xE9t\xE9", std::string(30, 'x'), 'y', 'z', '\xC8'));
  ASSERT_TRUE(ReadID3v1(path, tag));
  EXPECT_EQ(tag.title, "\xC3\xA9t\xC3\xA9");  // Latin-1 "été"
  EXPECT_EQ(tag.comment, std::string(28, 'x') + "yz");
  EXPECT_EQ(tag.track, "");
  EXPECT_EQ(tag.genre, "");
}

TEST(ID3v1, WriteAppendsOrReplacesAndRemoveCuts) {
  TempDir dir;
  // A file of exactly 128 bytes that starts with "TAG" is all tag.
  auto path = dir.WriteFile("all.mp3", Block("Old", "", '\0', 0, 1));
  ID3v1Tag tag{
      .artist = "Artist", .title = "New", .genre = "jazz", .comment = "one\r\ntwo", .track = "12"};
  ASSERT_TRUE(WriteID3v1(path, tag, false));
  std::string bytes = ReadWholeFile(path);
  ASSERT_EQ(bytes.size(), 128u);
  EXPECT_EQ(bytes.substr(97, 7), "one two");
  EXPECT_EQ(bytes[125], '\0');
  EXPECT_EQ(bytes[126], 12);
  EXPECT_EQ(bytes[127], 8);  // Jazz
  ASSERT_TRUE(RemoveID3v1(path, false));
  EXPECT_EQ(ReadWholeFile(path), "");
  EXPECT_FALSE(RemoveID3v1(path, false));  // under 128 bytes

  path = dir.WriteFile("audio.mp3", "short audio");
  ASSERT_TRUE(WriteID3v1(path, {.genre = "No Such Genre"}, false));
  bytes = ReadWholeFile(path);
  EXPECT_EQ(bytes.substr(0, 11), "short audio");
  EXPECT_EQ(bytes.size(), 139u);
  EXPECT_EQ(static_cast<unsigned char>(bytes.back()), 255);
  EXPECT_FALSE(WriteID3v1(dir.path() / "missing.mp3", {}, false));
}

TEST(ID3v1, ClearReadOnlyGivesTheOwnerWriteBitBack) {
  TempDir dir;
  const auto path = dir.WriteFile("ro.mp3", "audio");
  namespace fs = std::filesystem;
  fs::permissions(path, fs::perms::owner_read | fs::perms::group_read);
  ASSERT_TRUE(WriteID3v1(path, {.title = "T"}, true));
  EXPECT_NE(fs::status(path).permissions() & fs::perms::owner_write, fs::perms::none);
  EXPECT_EQ(fs::status(path).permissions() & fs::perms::group_write, fs::perms::none);
  EXPECT_EQ(ReadWholeFile(path).size(), 5u + 128u);
}

TEST(ID3v1, TrackByteOnlyForNumbersFromOneTo255) {
  for (const auto& [track, expected] : std::vector<std::pair<std::string, int>>{
           {"0", 0}, {"256", 0}, {"12a", 0}, {"", 0}, {" 7 ", 7}, {"255", 255}, {"1000", 0}}) {
    SCOPED_TRACE(track);
    EXPECT_EQ(static_cast<unsigned char>(ID3v1Block({.track = track})[126]), expected);
  }
  // Fields are cut to their width.
  const auto block = ID3v1Block({.title = std::string(40, 't'), .year = "123456"});
  EXPECT_EQ(std::string(block.begin() + 3, block.begin() + 33), std::string(30, 't'));
  EXPECT_EQ(block[33], 0);
  EXPECT_EQ(std::string(block.begin() + 93, block.begin() + 97), "1234");
}

TEST(ID3v1, CharacterAboveLatin1FailsBeforeTheFileChanges) {
  TempDir dir;
  const auto path = dir.WriteFile("x.mp3", "audio");
  EXPECT_THROW(WriteID3v1(path, {.title = "\xE2\x82\xAC"}, false), std::exception);
  EXPECT_EQ(ReadWholeFile(path), "audio");
}

TEST(Genres, TableLookupAndFieldParsing) {
  EXPECT_EQ(GenreName(40), "Alt. Rock");
  EXPECT_EQ(GenreName(140), "Contemporary C");
  EXPECT_EQ(GenreName(147), "SynthPop");
  EXPECT_EQ(GenreName(148), "");
  EXPECT_EQ(GenreName(-1), "");
  EXPECT_EQ(GenreIndex("  psychadelic "), 67);
  EXPECT_EQ(GenreIndex("Psychedelic"), 255);
  EXPECT_EQ(ParseGenreField("(17)Rock"), "Rock");
  EXPECT_EQ(ParseGenreField("(17)Anything"), "Rock");
  EXPECT_EQ(ParseGenreField("(200)"), "");
  EXPECT_EQ(ParseGenreField("(RX)"), "Remix");
  EXPECT_EQ(ParseGenreField("(CR)"), "Cover");
  EXPECT_EQ(ParseGenreField("17"), "17");
  EXPECT_EQ(ParseGenreField("(Live)"), "(Live)");
  EXPECT_EQ(FormatGenreField("rock"), "(17)Rock");
  EXPECT_EQ(FormatGenreField("Chiptune"), "Chiptune");
}

}  // namespace
}  // namespace tarnwick
