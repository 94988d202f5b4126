#include "media/id3_v2_read.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "media/id3_text.h"
#include "media_test_support.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using namespace tarnwick::testing;
using namespace std::string_literals;

ID3v2Tag Read(const std::filesystem::path& path, bool expect_found = true) {
  ID3v2Tag tag;
  EXPECT_EQ(ReadID3v2(path, tag), expect_found) << path;
  return tag;
}

std::string S(const std::string& value) { return StripAtNull(value); }

TEST(ID3v2Read, AgreesWithMutagenOnEveryTaggedFixture) {
  int compared = 0;
  for (const auto& [file, m] : Mp3Manifest()) {
    if (!m.count("v2.version") || m.at("v2.version") == "1") continue;
    SCOPED_TRACE(file);
    const ID3v2Tag tag = Read(Mp3Fixture(file));
    const std::pair<const char*, std::string ID3v2Tag::*> kChecks[] = {
        {"v2.TIT2", &ID3v2Tag::title},
        {"v2.TPE1", &ID3v2Tag::artist},
        {"v2.TALB", &ID3v2Tag::album},
        {"v2.TCON", &ID3v2Tag::genre},
        {"v2.TRCK", &ID3v2Tag::track},
        {"v2.COMM", &ID3v2Tag::comment},
        {"v2.TXXX", &ID3v2Tag::userText},
        {"v2.WXXX", &ID3v2Tag::linkTo},
        {"v2.USLT", &ID3v2Tag::unsynchronisedLyrics},
        {"v2.WOAR", &ID3v2Tag::linkArtistWebpage},
        {"v2.TKEY", &ID3v2Tag::initialKey}};
    for (const auto& [key, field] : kChecks) {
      const std::string expected = m.count(key) ? m.at(key) : "";
      EXPECT_EQ(S(tag.*field), expected) << key;
      ++compared;
    }
    // mutagen shows every year as TDRC; the record keeps four characters.
    EXPECT_EQ(S(tag.year), m.count("v2.TDRC") ? m.at("v2.TDRC").substr(0, 4) : "");
  }
  EXPECT_GT(compared, 100);
}

TEST(ID3v2Read, YearFromTyerWinsInEitherOrder) {
  TempDir dir;
  const auto tdrc = Frame4("TDRC", Text("2005-06-01"));
  const auto tyer = Frame4("TYER", Text("1999"));
  EXPECT_EQ(Read(dir.WriteFile("a.mp3", Tag(4, tdrc + tyer) + MpegFrame())).year, "1999");
  EXPECT_EQ(Read(dir.WriteFile("b.mp3", Tag(4, tyer + tdrc) + MpegFrame())).year, "1999");
  EXPECT_EQ(Read(dir.WriteFile("c.mp3", Tag(4, tdrc) + MpegFrame())).year, "2005");
  const auto tdrl = Frame4("TDRL", Text("2010-01-02"));
  EXPECT_EQ(Read(dir.WriteFile("d.mp3", Tag(4, tdrl))).releaseYear, "2010");
}

TEST(ID3v2Read, FrameWalkEdgeCases) {
  TempDir dir;
  // Plain sizes in a 2.4 tag read right while the plain reading lands on an id.
  // 300 is 00 00 01 2C: read as syncsafe it would be 172 and land inside the text.
  const std::string long_title(299, 'a');
  const std::string plain = std::string("TIT2") + Plain(300) + std::string(2, '\0') +
                            Text(long_title) + Frame4("TPE1", Text("After"));
  ID3v2Tag tag = Read(dir.WriteFile("plain.mp3", Tag(4, plain + std::string(10, '\0'))));
  EXPECT_EQ(tag.title, long_title);
  EXPECT_EQ(tag.artist, "After");
  // A compressed 2.3 frame reads empty; grouping skips one byte.
  const auto v3 =
      Frame3("TIT2", Text("Packed"), '\x80') + Frame3("TPE1", "G" + Text("Grouped"), 0x20);
  tag = Read(dir.WriteFile("flags3.mp3", Tag(3, v3)));
  EXPECT_EQ(tag.title, "");
  EXPECT_EQ(tag.artist, "Grouped");
  // 2.4: data length indicator and grouping byte are skipped; encryption empties.
  const auto v4 = Frame4("TIT2", Syncsafe(6) + Text("Sized"), 0x01) +
                  Frame4("TALB", "g" + Text("Group"), 0x40) + Frame4("TPE1", Text("Secret"), 0x04);
  tag = Read(dir.WriteFile("flags4.mp3", Tag(4, v4)));
  EXPECT_EQ(tag.title, "Sized");
  EXPECT_EQ(tag.album, "Group");
  EXPECT_EQ(tag.artist, "");
  // A frame reaching beyond the body ends the walk; earlier frames stand.
  const std::string broken = Frame3("TIT2", Text("Kept")) + "TPE1" + Plain(5000) + "\0\0x"s;
  tag = Read(dir.WriteFile("broken.mp3", Tag(3, broken)));
  EXPECT_EQ(tag.title, "Kept");
  EXPECT_EQ(tag.artist, "");
  // The last of several frames of one id wins; unknown ids are ignored.
  const auto twice = Frame3("COMM", "\0engA\0first"s) + Frame3("COMM", "\0deuB\0second"s) +
                     Frame3("XYZW", Text("ignored"));
  EXPECT_EQ(Read(dir.WriteFile("twice.mp3", Tag(3, twice))).comment, "second");
}

TEST(ID3v2Read, VersionsHeadersAndTagPlaces) {
  TempDir dir;
  // Outside 2 to 4: found, record untouched.
  ID3v2Tag tag{.artist = "stays"};
  ASSERT_TRUE(ReadID3v2(dir.WriteFile("v5.mp3", Tag(5, Frame4("TIT2", Text("x")))), tag));
  EXPECT_EQ(tag.artist, "stays");
  // A whole-tag unsynchronised 2.3 tag: FF 00 loses its 00.
  const std::string unsynced = "TIT2"s + Plain(4) + "\0\0"s + "\0A\xFF\0\0"s;
  EXPECT_EQ(S(Read(dir.WriteFile("u.mp3", Tag(3, unsynced, '\x80'))).title), "A\xC3\xBF");
  // A 2.4 update tag keeps what an earlier tag of the chain set.
  // SEEK leads to a second tag, which is read with the first tag's body size.
  const std::string first_body =
      Frame4("TPE1", Text("First")) + Frame4("SEEK", Plain(5)) + std::string(4, '\0');
  const std::string first = Tag(4, first_body);
  const std::string second_body = Syncsafe(6) + "\x01\x40"s + Frame4("TIT2", Text("Second"));
  std::string second =
      Tag(4, second_body + std::string(first_body.size() - second_body.size(), '\0'), 0x40);
  tag = Read(dir.WriteFile("chain.mp3", first + "12345" + second + MpegFrame()));
  EXPECT_EQ(tag.artist, "First");
  EXPECT_EQ(tag.title, "Second");
  // A tag at the end found through "3DI": found, but read with the size of the
  // (missing) tag at the start, so no frames.
  const std::string end_tag = Tag(4, Frame4("TIT2", Text("End")), 0x10);
  const std::string footer = "3DI" + end_tag.substr(3, 7);
  std::string v1(128, '\0');
  v1.replace(0, 3, "TAG");
  tag = ID3v2Tag{.artist = "blanked"};
  ASSERT_TRUE(ReadID3v2(dir.WriteFile("end.mp3", MpegFrame() + end_tag + footer + v1), tag));
  EXPECT_EQ(tag.artist, "");
  EXPECT_EQ(tag.title, "");
  // Version 2.2 ids are mapped.
  const std::string v22 =
      "TT2"s + "\0\0\x04"s + Text("Old") + "COM"s + "\0\0\x09"s + "\0eng\0note"s;
  tag = Read(dir.WriteFile("v22.mp3", Tag(2, v22)));
  EXPECT_EQ(tag.title, "Old");
  EXPECT_EQ(tag.comment, "note");
  Read(dir.WriteFile("none.mp3", MpegFrame()), false);
  Read(dir.path() / "missing.mp3", false);
}

std::string Decode(const std::string& bytes, int encoding, bool stop, std::size_t* used = nullptr) {
  std::size_t consumed = 0;
  const std::vector<std::uint8_t> data(bytes.begin(), bytes.end());
  std::string text = BytesToText(data, encoding, consumed, stop);
  if (used) *used = consumed;
  return text;
}

TEST(ID3v2Text, DecodesEveryEncodingAsTheTagsHaveThem) {
  std::size_t used = 0;
  EXPECT_EQ(Decode("\xFF\xFE"
                   "A\0B\0\0\0C\0"s,
                   1, true, &used),
            "AB");
  EXPECT_EQ(used, 8u);
  EXPECT_EQ(Decode("\xFE\xFF\0A\0B"s, 1, false), "AB");
  EXPECT_EQ(Decode("\0\0\0A"s, 1, false, &used), "");  // 00 00: empty at once
  EXPECT_EQ(used, 2u);
  EXPECT_EQ(Decode("xy\0A"s, 1, false), "A");  // no mark: big-endian, pair lost
  EXPECT_EQ(Decode("\x01"s, 1, false, &used), "");
  EXPECT_EQ(used, 1u);
  // Surrogates take two units and give no character, valid pair or not.
  EXPECT_EQ(Decode("\xD8\x3D\xDE\x00\0Z"s, 2, false), "Z");
  EXPECT_EQ(Decode("\0A\xD8\x3D"s, 2, false, &used), "A");
  EXPECT_EQ(used, 4u);
  EXPECT_EQ(Decode("A\0B\0"s, 7, false), "AB");  // unknown encodings: UTF-16LE
  EXPECT_EQ(Decode("\xC3\xA9\xE2\x82\xAC\x80Z"s, 3, false),
            "\xC3\xA9\xE2\x82\xAC"
            "Z");
  EXPECT_EQ(Decode("Z\xE2\x82"s, 3, false), "Z");  // a cut sequence ends the text
  EXPECT_EQ(Decode("a\r\nb\nc"s, 0, false), "a\r\nb\r\nc");
  EXPECT_EQ(Decode("ab\0cd"s, 0, true, &used), "ab");
  EXPECT_EQ(used, 3u);
}

TEST(ID3v2Text, UnsynchronisationAndEncoding) {
  std::vector<std::uint8_t> bytes = {0xFF, 0x00, 0xE0, 0xFF, 0x00, 0x00, 0xFF};
  EXPECT_EQ(RemoveUnsynchronisation(bytes), 2u);
  EXPECT_EQ(bytes, (std::vector<std::uint8_t>{0xFF, 0xE0, 0xFF, 0x00, 0xFF}));
  EXPECT_EQ(TextToBytes("abc", 2, false, true), (std::vector<std::uint8_t>{'a', 'b', 0}));
  EXPECT_EQ(TextToBytes("\xC3\xA9", 0, true, true),
            (std::vector<std::uint8_t>{0xFE, 0xFF, 0x00, 0xE9, 0, 0}));
  EXPECT_THROW(TextToBytes("\xE2\x82\xAC", 0, false, false), std::exception);
}

}  // namespace
}  // namespace tarnwick
