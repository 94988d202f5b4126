#include "media/id3_v2_write.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "media/id3_v1.h"
#include "media/id3_v2_read.h"
#include "media_test_support.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using namespace tarnwick::testing;
using namespace std::string_literals;

ID3v2Tag Read(const std::filesystem::path& path) {
  ID3v2Tag tag;
  EXPECT_TRUE(ReadID3v2(path, tag));
  return tag;
}

// The frame ids of a written tag in their order, with their declared sizes.
std::vector<std::pair<std::string, std::uint32_t>> Frames(const std::string& file, bool syncsafe) {
  std::vector<std::pair<std::string, std::uint32_t>> frames;
  std::size_t at = 10;
  while (at + 10 <= file.size() && file[at] != '\0') {
    const auto b = [&](int i) {
      return static_cast<std::uint32_t>(static_cast<unsigned char>(file[at + 4 + i]));
    };
    const std::uint32_t size = syncsafe ? b(0) << 21 | b(1) << 14 | b(2) << 7 | b(3)
                                        : b(0) << 24 | b(1) << 16 | b(2) << 8 | b(3);
    frames.emplace_back(file.substr(at, 4), size);
    at += 10 + size;
  }
  return frames;
}

TEST(ID3v2Write, TotalSizeGrowsInSteps) {
  EXPECT_EQ(NewTagTotal(5000, 4000), 6154);  // 5000 % 2048 = 904
  EXPECT_EQ(NewTagTotal(5200, 4000), 8202);  // 5200 % 2048 = 1104
  EXPECT_EQ(NewTagTotal(3000, 4000), 4000);
  EXPECT_EQ(NewTagTotal(10, 0), 2058);
}

TEST(ID3v2Write, DeclaredFrameSizes) {
  EXPECT_EQ(FrameSize("TIT2", "abc", false, false), 5u);
  EXPECT_EQ(FrameSize("TIT2", "abc", true, false), 11u);
  EXPECT_EQ(FrameSize("TXXX", "abc", false, false), 6u);
  EXPECT_EQ(FrameSize("TXXX", "abc", true, false), 15u);
  EXPECT_EQ(FrameSize("COMM", "abc", false, true), 19u);
  EXPECT_EQ(FrameSize("USLT", "abc", true, false), 18u);
  EXPECT_EQ(FrameSize("WOAR", "abc", true, false), 4u);
  EXPECT_EQ(FrameSize("WXXX", "abc", false, false), 6u);
  EXPECT_EQ(FrameSize("WXXX", "abc", true, false), 9u);
  EXPECT_EQ(FrameSize("TIT2", "  ", false, false), 0u);
  EXPECT_EQ(FrameSize("TIT2", " a ", false, false), 5u);  // the untrimmed length counts
}

TEST(ID3v2Write, FrameOrderVersionsAndContent) {
  const ID3v2Tag tag{.artist = "A",
                     .title = "T",
                     .year = "1999",
                     .genre = "Rock",
                     .comment = "c",
                     .linkTo = "http://x/",
                     .originalReleaseTime = "2001"};
  const auto v23 = BuildID3v2Tag(tag, kID3v23, {}, 0, false);
  const std::string b23(v23.begin(), v23.end());
  EXPECT_EQ(b23.substr(0, 6), "ID3\x03\0\0"s);
  EXPECT_EQ(v23.size(), 2058u);
  const auto frames = Frames(b23, false);
  std::vector<std::string> ids;
  for (const auto& f : frames) ids.push_back(f.first);
  // List order; TDOR is written from the record also in 2.3, TDRC never.
  EXPECT_EQ(ids,
            (std::vector<std::string>{"TCON", "TDOR", "TYER", "TIT2", "TPE1", "COMM", "WXXX"}));
  EXPECT_NE(b23.find("TCON\0\0\0\x0A\0\0\0(17)Rock\0"s), std::string::npos);
  EXPECT_NE(b23.find("COMM\0\0\0\x07\0\0\0eng\0c\0"s), std::string::npos);
  const auto v24 = BuildID3v2Tag(tag, kID3v24, {}, 0, false);
  const std::string b24(v24.begin(), v24.end());
  EXPECT_EQ(b24[3], 4);
  EXPECT_NE(b24.find("TDRC"), std::string::npos);
  EXPECT_EQ(b24.find("TYER"), std::string::npos);
  // Unicode: the declared size of COMM is 2 larger than its content.
  const auto wide = BuildID3v2Tag({.comment = "hi"}, kID3v24, {}, 0, true);
  const std::string bw(wide.begin(), wide.end());
  EXPECT_NE(bw.find("COMM\0\0\0\x10\0\0\x01"
                    "eng\0\0\xFE\xFF\0h\0i\0\0\0\0"s),
            std::string::npos);
}

TEST(ID3v2Write, GrowingTagKeepsAudioAndVersionOneTag) {
  TempDir dir;
  std::string audio = MpegFrame() + "AUDIO\xFF\xFB" + std::string(3000, 'x');
  const std::string old_tag = Tag(3, Frame3("TIT2", Text("Old")) + std::string(20, '\0'));
  const auto path = dir.WriteFile("grow.mp3", old_tag + audio);
  ASSERT_TRUE(WriteID3v1(path, {.title = "V1"}, false));
  ASSERT_TRUE(WriteID3v2(path, {.title = "New", .composer = std::string(100, 'c')}, kID3v24, false,
                         false, false));
  const std::string bytes = ReadWholeFile(path);
  EXPECT_EQ(bytes.size(), 2058 + audio.size() + 128);
  EXPECT_EQ(bytes.substr(2058, audio.size()), audio);
  EXPECT_EQ(StripAtNull(Read(path).title), "New");
  ID3v1Tag v1;
  ASSERT_TRUE(ReadID3v1(path, v1));
  EXPECT_EQ(v1.title, "V1");
  // No temporary file is left beside it.
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}), 1);

  // A tag that fits keeps its size: the audio does not move.
  ASSERT_TRUE(WriteID3v2(path, {.title = "Short"}, kID3v23, false, false, false));
  const std::string again = ReadWholeFile(path);
  EXPECT_EQ(again.size(), bytes.size());
  EXPECT_EQ(again.substr(2058), bytes.substr(2058));
}

TEST(ID3v2Write, OtherFramesSurviveUnlessDiscarded) {
  TempDir dir;
  const std::string body = Frame4("TIT2", Text("Title")) + Frame4("PRIV", "owner\0data"s) +
                           Frame4("TORY", Text("1970")) + Frame4("TPE1", Text("Old artist")) +
                           Frame4("COMM", "\0engA\0one"s) + Frame4("COMM", "\0engB\0two"s) +
                           Frame4("TIT2", Text("packed"), 0x08) + std::string(30, '\0');
  const auto path = dir.WriteFile("keep.mp3", Tag(4, body) + MpegFrame());
  // Artist blanked in the record: its old frame stays. A new comment replaces both.
  ASSERT_TRUE(WriteID3v2(path, {.title = "T", .comment = "new"}, kID3v23, false, false, false));
  std::string bytes = ReadWholeFile(path);
  auto frames = Frames(bytes, false);
  std::vector<std::string> ids;
  for (const auto& f : frames) ids.push_back(f.first);
  EXPECT_EQ(ids, (std::vector<std::string>{"TIT2", "COMM", "PRIV", "TORY", "TPE1"}));
  ID3v2Tag tag = Read(path);
  EXPECT_EQ(StripAtNull(tag.artist), "Old artist");
  EXPECT_EQ(StripAtNull(tag.comment), "new");
  // To 2.4: TORY becomes TDOR.
  ASSERT_TRUE(WriteID3v2(path, {.title = "T"}, kID3v24, false, false, false));
  bytes = ReadWholeFile(path);
  EXPECT_NE(bytes.find("TDOR"), std::string::npos);
  EXPECT_EQ(bytes.find("TORY"), std::string::npos);
  ASSERT_TRUE(WriteID3v2(path, {.title = "T"}, kID3v24, true, false, false));
  tag = Read(path);
  EXPECT_EQ(tag.artist, "");
  EXPECT_EQ(ReadWholeFile(path).find("PRIV"), std::string::npos);
}

TEST(ID3v2Write, FailuresLeaveTheFileAlone) {
  TempDir dir;
  const std::string original = Tag(3, Frame3("TIT2", Text("Old"))) + MpegFrame();
  const auto path = dir.WriteFile("x.mp3", original);
  EXPECT_THROW(WriteID3v2(path, {.title = "\xE2\x82\xAC"}, kID3v23, false, false, false),
               std::exception);
  EXPECT_EQ(ReadWholeFile(path), original);
  EXPECT_FALSE(WriteID3v2(dir.path() / "missing.mp3", {}, kID3v23, false, false, false));
  EXPECT_FALSE(RemoveID3v2(dir.path() / "missing.mp3", false));
}

TEST(ID3v2Write, ThroughALinkTheFileItNamesChanges) {
  TempDir dir;
  const auto target = dir.WriteFile("real.mp3", Tag(3, Frame3("TIT2", Text("Old"))) + MpegFrame());
  const auto link = dir.path() / "link.mp3";
  std::filesystem::create_symlink(target, link);
  ASSERT_TRUE(WriteID3v2(link, {.title = std::string(300, 'n')}, kID3v23, false, false, false));
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(StripAtNull(Read(target).title), std::string(300, 'n'));
}

TEST(ID3v2Write, RemoveLeavesTheRest) {
  TempDir dir;
  const std::string rest = MpegFrame() + "tail";
  const auto path = dir.WriteFile("r.mp3", Tag(3, Frame3("TIT2", Text("x"))) + rest);
  ASSERT_TRUE(RemoveID3v2(path, false));
  EXPECT_EQ(ReadWholeFile(path), rest);
  ASSERT_TRUE(RemoveID3v2(path, false));  // no tag: nothing changes
  EXPECT_EQ(ReadWholeFile(path), rest);
}

TEST(ID3v2Write, RewritesEveryFixtureAndReadsItBack) {
  TempDir dir;
  for (const auto& [file, m] : Mp3Manifest()) {
    if (!file.ends_with(".mp3")) continue;
    SCOPED_TRACE(file);
    const auto path = dir.path() / file;
    std::filesystem::copy_file(Mp3Fixture(file), path);
    ID3v2Tag before;
    ReadID3v2(path, before);
    ID3v2Tag tag;
    tag.title = "Rewritten " + file;
    tag.track = "7";
    ASSERT_TRUE(WriteID3v2(path, tag, kID3v23, false, false, false));
    const ID3v2Tag after = Read(path);
    EXPECT_EQ(StripAtNull(after.title), tag.title);
    EXPECT_EQ(StripAtNull(after.track), "7");
    // Frames the record left empty come back from the old tag.
    EXPECT_EQ(StripAtNull(after.artist), StripAtNull(before.artist));
  }
}

}  // namespace
}  // namespace tarnwick
