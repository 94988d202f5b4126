// The media tokens of the placeholder engine, fed by Tarnwick's own readers.
#include <gtest/gtest.h>

#include "media/id3_v1.h"
#include "media/id3_v2_write.h"
#include "media/media_readers.h"
#include "media_test_support.h"
#include "placeholders/engine_test_support.h"

namespace tarnwick {
namespace {

using namespace tarnwick::testing;

class MediaTokens : public ::testing::Test {
 protected:
  MediaTokens() { engine.context.media = &readers; }

  void UseFile(const std::string& name, const std::string& bytes = {}) {
    engine.context.row.name = name;
    if (!bytes.empty()) engine.dir().WriteFile(name, bytes);
  }
  void CopyFixture(const std::string& fixture, const std::string& name) {
    std::filesystem::copy_file(Mp3Fixture(fixture), engine.dir().path() / name);
    UseFile(name);
  }

  MediaReaders readers;
  EngineFixture engine;
};

TEST_F(MediaTokens, CorrectedTagTokensPreferVersionTwo) {
  CopyFixture("v1_track.mp3", "both.mp3");
  ASSERT_TRUE(WriteID3v2(engine.dir().path() / "both.mp3",
                         {.artist = "V2 Artist", .title = "V2 Title", .track = "3"}, kID3v23, false,
                         false, false));
  EXPECT_EQ(engine.Expand("{{mp3IDTagV1_title}}"), "V2 Title");
  EXPECT_EQ(engine.Expand("{{mp3IDTagV1_album}}|{{mp3IDTagV2_album}}"), "Lame Album|Lame Album");
  EXPECT_EQ(engine.Expand("{{mp3IDTagV1_track}}-{{mp3IDTagV2_track}}"), "03-03");
  engine.SetOption("FormatMP3TrackTag", "0");
  EXPECT_EQ(engine.Expand("{{mp3IDTagV2_track}}"), "3");
  // Without the correction a V1 token keeps its own value until a V2 token fills the slot.
  engine.SetOption("CorrectMP3Tags", "0");
  EXPECT_EQ(engine.Expand("{{mp3IDTagV1_title}}"), "Lame Title");
  // V1 tokens come first; the slots are not cleared, so an empty V2 album
  // yields the V1 slot left by the title.
  EXPECT_EQ(engine.Expand("{{mp3IDTagV2_title}} {{mp3IDTagV1_title}}"), "V2 Title Lame Title");
  EXPECT_EQ(engine.Expand("{{mp3IDTagV1_title}}|{{mp3IDTagV2_album}}"), "Lame Title|Lame Title");
}

TEST_F(MediaTokens, PlainVersionTwoTokensAndFilesWithoutTags) {
  CopyFixture("v23_latin1.mp3", "song.mp3");
  EXPECT_EQ(engine.Expand("{{mp3IDTagV2_userText}}/{{mp3IDTagV2_linkTo}}"),
            "user text/http://example.org/");
  EXPECT_EQ(engine.Expand("{{mp3IDTagV2_genre}} {{mp3IDTagV2_year}}"), "Rock 1999");
  EXPECT_EQ(engine.Expand("{{mp3IDTagV2_realLength}}"), "00:00");
  EXPECT_EQ(engine.Expand("{{mp3IDTagV1_realLength}}x"), "x");
  CopyFixture("lame_cbr.mp3", "plain.mp3");
  EXPECT_EQ(engine.Expand("a{{mp3IDTagV1_title}}b{{mp3IDTagV2_composer}}c"), "abc");
}

TEST_F(MediaTokens, MpegTokensReadTheExpressionAsAFileName) {
  CopyFixture("lame_cbr.mp3", "stream.mp3");
  // Handed the expression, the reader opens nothing: every token is empty.
  EXPECT_EQ(engine.Expand("[{{mpeg_bitrate}}][{{mpeg_hasVBR}}]"), "[][]");
  const MpegFacts facts = readers.ReadMpegInfo(engine.path());
  EXPECT_EQ(facts.mpegVersion, "version 1 layer 3");
  EXPECT_EQ(facts.ID3v1Version, "-1");
  EXPECT_EQ(readers.ReadMpegInfo("no such file").mpegVersion, "");
}

TEST_F(MediaTokens, MediaInfoByExtension) {
  CopyFixture("tone.wav", "tone.wav");
  EXPECT_EQ(engine.Expand("{{mediainfo}}"), "00:03 min.");
  CopyFixture("lame_cbr.mp3", "x.mp3");
  EXPECT_EQ(engine.Expand("{{mediainfo}}"), "00:00 min.");
  UseFile("broken.wav", "RIFF....WAVE");
  EXPECT_EQ(engine.Expand("{{mediainfo}}"), "$$$");
}

}  // namespace
}  // namespace tarnwick
