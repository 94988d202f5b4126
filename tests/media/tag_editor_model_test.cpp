// What the tag editor and the MP3 viewer read and write, without a window.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "media/id3_fields.h"
#include "media/id3_v2_read.h"
#include "media/id3_v2_write.h"
#include "media/media_info_text.h"
#include "media/tag_editor_model.h"
#include "shell/message_table.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::Not;

class TagEditorModelTest : public ::testing::Test {
 protected:
  std::string Song() {
    const fs::path target = dir.path() / "song.mp3";
    fs::copy_file(fs::path(TW_FIXTURE_DIR) / "mp3" / "lame_cbr.mp3", target,
                  fs::copy_options::overwrite_existing);
    return target.string();
  }
  testing::TempDir dir;
  const MessageTable& english = MessageTable::Get(Language::kEnglish);
  const MessageTable& german = MessageTable::Get(Language::kGerman);
};

TEST_F(TagEditorModelTest, TheViewerLabelsEveryFieldInBothLanguages) {
  const std::string song = Song();
  ID3v2Tag tag;
  for (const ID3v2Field& field : ID3v2Fields()) tag.*field.member = "x";
  tag.track = "1";
  ASSERT_TRUE(WriteID3v2(song, tag, kID3v24, true, false, true));
  for (const MessageTable* messages : {&english, &german}) {
    const std::string text = MediaInfoText(song, *messages);
    EXPECT_THAT(text, Not(HasSubstr("viewer.field")));
    // A line for each field, the year's two frames giving one.
    const std::size_t start = text.find(std::string(messages->Text("viewer.mp3_v2_information")));
    ASSERT_NE(start, std::string::npos);
    const std::string v2 = text.substr(start);
    EXPECT_EQ(std::count(v2.begin(), v2.end(), '\n'), 1 + 57);
  }
  EXPECT_THAT(MediaInfoText(song, german), HasSubstr("Weitere Interpreten: x\n"));
}

TEST_F(TagEditorModelTest, WhatCannotBeWrittenIsNamedAndNothingIsTouched) {
  TagEditorUpdate update;
  update.v1_on = true;
  update.v1.track = "3";
  update.v1.comment = "ok é";
  const std::string missing = (dir.path() / "gone.mp3").string();
  TagUpdateResult result = UpdateTags(missing, update);
  EXPECT_EQ(result.outcome, TagUpdateOutcome::kWriteFailed);
  EXPECT_THAT(TagUpdateMessage(result, missing, english),
              HasSubstr("The tags of " + missing + " could not be written"));
  update.v1.title = "日本";
  result = UpdateTags(missing, update);
  EXPECT_EQ(result.outcome, TagUpdateOutcome::kNotLatin1);
  EXPECT_EQ(result.box, "v1Title");
  EXPECT_THAT(TagUpdateMessage(result, missing, german),
              HasSubstr("Das Zeichen \"日\" im Feld \"Titel\" (ID3-v1-Tag)"));
  // A box of an unticked version is not written, so not checked.
  update.v1_on = false;
  update.v2_on = true;
  update.v2.track = "x";
  EXPECT_EQ(UpdateTags(missing, update).outcome, TagUpdateOutcome::kV2TrackNotNumeric);
}

TEST_F(TagEditorModelTest, LoadingShowsTheStreamAndSaysWhatIsNoMp3) {
  const TagEditorFile file = LoadTagEditorFile(Song(), english);
  ASSERT_TRUE(file.is_mp3);
  EXPECT_TRUE(file.mpeg_found);
  const auto labels = MpegLabelTexts(file, english);
  EXPECT_EQ(labels[0], file.mpeg.mpegVersion);
  EXPECT_THAT(labels[2], HasSubstr("Bitrate: " + std::to_string(file.mpeg.bitrate) +
                                    " kbit / sec, "));
  EXPECT_EQ(labels[9], "ID3 v2 tag: none");
  EXPECT_FALSE(LoadTagEditorFile((dir.path() / "a.MP4").string(), english).is_mp3);
  EXPECT_TRUE(LoadTagEditorFile((dir.path() / "b.MP3").string(), english).is_mp3);
}

}  // namespace
}  // namespace tarnwick
