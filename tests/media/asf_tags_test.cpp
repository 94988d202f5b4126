// The ASF header reader: built headers with every attribute type, and WMA
// files from ffmpeg against what ffprobe reported of them.
#include "media/asf_tags.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "media/asf_guid.h"
#include "media/media_fixtures.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::FixtureFolder;

std::string Le(std::uint64_t v, int size) {
  std::string out(size, '\0');
  for (int i = 0; i < size; ++i) out[i] = static_cast<char>((v >> (8 * i)) & 0xFF);
  return out;
}

std::string Utf16(const std::string& ascii) {
  std::string out;
  for (const char c : ascii) out += std::string{c, '\0'};
  return out + std::string(2, '\0');
}

std::string Guid(const char* text) {
  const auto guid = TextToGuid(text);
  return std::string(guid->begin(), guid->end());
}

std::string Object(const char* guid, const std::string& payload) {
  return Guid(guid) + Le(24 + payload.size(), 8) + payload;
}

std::string Header(const std::string& objects, int count) {
  const std::string body = Le(count, 4) + "\x01\x02" + objects;
  return Guid("{75B22630-668E-11CF-A6D9-00AA0062CE6C}") + Le(24 + body.size(), 8) + body;
}

// One descriptor of the extended content description (stored type numbers).
std::string Descriptor(const std::string& name, int type, const std::string& value) {
  const std::string n = Utf16(name);
  return Le(n.size(), 2) + n + Le(type, 2) + Le(value.size(), 2) + value;
}

std::string Record(int stream, const std::string& name, int type, const std::string& value) {
  const std::string n = Utf16(name);
  return Le(0, 2) + Le(stream, 2) + Le(n.size(), 2) + Le(type, 2) + Le(value.size(), 4) + n + value;
}

std::map<std::string, std::pair<int, std::string>> ByName(const WmTags& tags) {
  std::map<std::string, std::pair<int, std::string>> out;
  for (int i = 0; i < tags.TagCount(); ++i) {
    out.emplace(tags.TagName(i), std::pair{int(tags.TagType(i)), tags.TagValue(i)});
  }
  return out;
}

TEST(AsfTagsTest, EveryAttributeTypeWithItsValueRule) {
  const std::string content = Le(4, 2) + Descriptor("WM/AlbumTitle", 0, Utf16("Pier")) +
                              Descriptor("Blob", 1, "\x01\x02\x03") +
                              Descriptor("IsVBR", 2, Le(1, 4)) +
                              Descriptor("WM/TrackNumber", 3, Le(0xFFFFFFFE, 4));
  const std::string metadata =
      Le(5, 2) + Record(0, "Length", 4, Le(10000, 8)) + Record(0, "Part", 5, Le(0xFFFF, 2)) +
      Record(0, "Id", 6, Guid("{01234567-89AB-CDEF-0123-456789ABCDEF}")) +
      Record(0, "Off", 2, Le(0, 2)) + Record(2, "StreamOnly", 0, Utf16("x"));
  const std::string extension_inner = Object("{C5F8CBEA-5BAF-4877-8467-AA8C44FA4CCA}", metadata);
  const std::string extension = Guid("{ABD3D211-A9BA-11CF-8EE6-00C00C205365}") + Le(6, 2) +
                                Le(extension_inner.size(), 4) + extension_inner;
  const std::string header = Header(Object("{D2D0A440-E307-11D2-97F0-00A0C95EA850}", content) +
                                        Object("{5FBF03B5-A92E-11CF-8EE3-00C00C205365}", extension),
                                    2);
  WmTags tags;
  ASSERT_TRUE(tags.ReadTagsFromBytes(header));
  const auto found = ByName(tags);
  EXPECT_EQ(tags.TagCount(), 8);
  EXPECT_EQ(found.at("WM/AlbumTitle"), (std::pair{1, std::string("Pier")}));
  EXPECT_EQ(found.at("Blob"), (std::pair{2, std::string()}));
  EXPECT_EQ(found.at("IsVBR"), (std::pair{3, std::string("True")}));
  EXPECT_EQ(found.at("WM/TrackNumber"), (std::pair{0, std::string("-2")}));
  EXPECT_EQ(found.at("Length"), (std::pair{4, std::string("1")}));  // 10000 prints as 1
  EXPECT_EQ(found.at("Part"), (std::pair{5, std::string("-1")}));
  EXPECT_EQ(found.at("Id"), (std::pair{6, std::string("{01234567-89AB-CDEF-0123-456789ABCDEF}")}));
  EXPECT_EQ(found.at("Off"), (std::pair{3, std::string("False")}));
  EXPECT_EQ(found.count("StreamOnly"), 0u);
}

TEST(AsfTagsTest, DamagedAndForeignFilesGiveFalse) {
  WmTags tags;
  EXPECT_FALSE(tags.ReadTagsFromBytes("RIFF....WAVEfmt "));
  EXPECT_EQ(tags.TagCount(), 0);
  const std::string content = Le(1, 2) + Descriptor("Name", 0, Utf16("Value"));
  std::string header = Header(Object("{D2D0A440-E307-11D2-97F0-00A0C95EA850}", content), 1);
  EXPECT_FALSE(tags.ReadTagsFromBytes(header.substr(0, header.size() - 1)));
  // An inner object that claims more than there is ends the walk, not the read.
  std::string broken = header;
  broken[30 + 16] = '\x7F';
  ASSERT_TRUE(tags.ReadTagsFromBytes(broken));
  EXPECT_EQ(tags.TagCount(), 0);

  testing::TempDir dir;
  EXPECT_FALSE(tags.ReadTags(dir.WriteFile("song.mp3", "ID3\x03\x00 not asf at all, no")));
  EXPECT_FALSE(tags.ReadTags(dir.path() / "missing.wma"));
  EXPECT_TRUE(tags.ReadTags(dir.WriteFile("only.wma", header)));
  EXPECT_EQ(tags.TagCount(), 1);
  EXPECT_FALSE(tags.ReadTags(""));
  EXPECT_EQ(tags.TagCount(), 1);  // an empty path does nothing
}

TEST(AsfTagsTest, GuidTextsRoundTrip) {
  const std::string text = "{15CC68E3-27CC-4ECD-B222-3F5D02D80BD5}";
  const auto guid = TextToGuid(text);
  ASSERT_TRUE(guid);
  EXPECT_EQ((*guid)[0], 0xE3);
  EXPECT_EQ((*guid)[8], 0xB2);
  EXPECT_EQ(GuidToText(*guid), text);
  EXPECT_EQ(GuidToText(*TextToGuid("{15cc68e3-27cc-4ecd-b222-3f5d02d80bd5}")), text);
  EXPECT_FALSE(TextToGuid("{15CC68E3-27CC-4ECD-B222-3F5D02D80BD}"));
  EXPECT_FALSE(TextToGuid("{15CC68E3+27CC-4ECD-B222-3F5D02D80BD5}"));
}

TEST(AsfTagsTest, WmaFilesFromFfmpegReadAsFfprobeReportsThem) {
  std::map<std::string, std::map<std::string, std::string>> manifest;
  for (const auto& row : testing::ReadManifest(FixtureFolder("asf") / "manifest.tsv")) {
    if (row.size() == 3) manifest[row[0]][row[1]] = row[2];
  }
  ASSERT_EQ(manifest.size(), 3u);
  // ffprobe's names of the attributes ffmpeg writes.
  const std::map<std::string, std::string> names = {{"title", "Title"},
                                                    {"artist", "Author"},
                                                    {"album", "WM/AlbumTitle"},
                                                    {"year", "year"},
                                                    {"track", "WM/TrackNumber"},
                                                    {"genre", "WM/Genre"},
                                                    {"comment", "Description"},
                                                    {"copyright", "Copyright"},
                                                    {"encoder", "WM/EncodingSettings"},
                                                    {"Custom Text", "Custom Text"},
                                                    {"MoodNumber", "MoodNumber"}};
  int compared = 0;
  for (const auto& [file, values] : manifest) {
    SCOPED_TRACE(file);
    WmTags tags;
    ASSERT_TRUE(tags.ReadTags(FixtureFolder("asf") / file));
    const auto found = ByName(tags);
    for (const auto& [key, value] : values) {
      if (key == "duration") {
        const double ms = std::stod(found.at("Duration").second);
        EXPECT_NEAR(ms / 1000, std::stod(value), 0.001);
        continue;
      }
      ASSERT_TRUE(names.count(key)) << key;
      ASSERT_TRUE(found.count(names.at(key))) << key;
      EXPECT_EQ(found.at(names.at(key)), (std::pair{1, value})) << key;
      ++compared;
    }
  }
  EXPECT_EQ(compared, 14);
}

}  // namespace
}  // namespace tarnwick
