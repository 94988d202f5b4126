// The live sample: actions without clean-up between them, one expansion, the
// rate words, and the texts around it.
#include "core/sample.h"

#include "core/action_order.h"
#include "core/pipeline_test_fixture.h"

namespace tarnwick::testing {
namespace {

class SampleTest : public PipelineTest {
 protected:
  std::optional<Sample> SampleOf(const std::string& file_name,
                                 SampleRate rate = SampleRate::kNormal) {
    return ComputeSample(Env(), AddRow(file_name), dir.str(), rate);
  }
};

TEST_F(SampleTest, ShowsTheFirstNumberAndAsksNothing) {
  settings.chkPrefix = 1;
  settings.txtPrefix = "IMG_";
  settings.chkNumbers = 1;
  settings.txtStartNumber = "001";
  settings.txtLimiter = "-";
  app.CurrentCount = 57;
  settings.chkEditManual = 1;
  const std::optional<Sample> sample = SampleOf("holiday.jpg");
  ASSERT_TRUE(sample);
  EXPECT_EQ(sample->text, "001-IMG_holiday.jpg");
  EXPECT_FALSE(sample->illegal_chars_replaced);
  EXPECT_EQ(app.CurrentCount, 1);
  EXPECT_TRUE(interaction.asked().empty());
}

TEST_F(SampleTest, DuringARunTheCounterIsLeftAlone) {
  settings.chkOnlyUsePatterns = 1;
  settings.txtUsePlaceholder = "{{count}}_";
  app.run_active = true;
  app.CurrentCount = 9;
  EXPECT_EQ(SampleOf("a.txt")->text, "9_a.txt");
}

TEST_F(SampleTest, ReplacedCharactersAreMarked) {
  SetOption("IllegalCharReplacerActive", "1");
  SetOption("IllegalCharReplacer", "_");
  settings.chkPostfix = 1;
  settings.txtPostfix = "<x>";
  const std::optional<Sample> sample = SampleOf("b.txt");
  EXPECT_EQ(sample->text, "b_x_.txt");
  EXPECT_TRUE(sample->illegal_chars_replaced);
}

TEST_F(SampleTest, TurnedOffShowsItsNoticeCleanedLikeAName) {
  SetOption("IllegalCharReplacerActive", "0");
  const std::optional<Sample> sample = SampleOf("c.txt", SampleRate::kTurnOff);
  // Kept: the asterisks of the notice go the way of any illegal character.
  EXPECT_EQ(sample->text, " Preview disabeld ");
  EXPECT_TRUE(sample->illegal_chars_replaced);
}

TEST_F(SampleTest, ActionsFollowTheStoredOrder) {
  settings.chkPrefix = 1;
  settings.txtPrefix = "NEW_";
  settings.chkCutLeft = 1;
  settings.txtLeftCut = "2";
  EXPECT_EQ(SampleOf("abcd.txt")->text, "NEW_cd.txt");
  ActionOrder order = DefaultActionOrder();
  std::swap(order[3], order[4]);
  StoreActionOrder(options, order);
  EXPECT_EQ(SampleOf("abcd.txt")->text, "W_abcd.txt");
}

TEST_F(SampleTest, AFailingStepKeepsTheShownSample) {
  settings.chkPrefix = 1;
  settings.chkNumbers = 1;
  settings.txtStartNumber = "99999999999";  // beyond 32 bits
  EXPECT_FALSE(SampleOf("d.txt"));
  // A cut longer than the name fails where a run would have asked first.
  settings.chkNumbers = 0;
  settings.chkCutRight = 1;
  settings.txtRightCut = "40";
  EXPECT_FALSE(SampleOf("e.txt"));
  EXPECT_TRUE(interaction.asked().empty());
}

TEST_F(SampleTest, RateWordsOfTheUsersLanguage) {
  EXPECT_EQ(ReadSampleRate(options, messages), SampleRate::kNormal);
  SetOption("SampleRefreshRate", "slow");
  EXPECT_EQ(ReadSampleRate(options, messages), SampleRate::kSlow);
  SetOption("SampleRefreshRate", "Langsam");
  EXPECT_EQ(ReadSampleRate(options, MessageTable::Get(Language::kGerman)), SampleRate::kSlow);
  // An unknown word reads as "Normal" and is stored so.
  SetOption("SampleRefreshRate", "Quick");
  EXPECT_EQ(ReadSampleRate(options, messages), SampleRate::kNormal);
  EXPECT_EQ(options.GetOption("SampleRefreshRate", "Options", ""), "Normal");

  EXPECT_EQ(SampleIntervalMilliseconds(SampleRate::kAverage), 1500);
  EXPECT_EQ(SampleIntervalMilliseconds(SampleRate::kSlow), 2500);
  EXPECT_EQ(SampleIntervalMilliseconds(SampleRate::kSpecial), 500);
  EXPECT_EQ(SampleIntervalMilliseconds(SampleRate::kTurnOff), 0);
}

TEST_F(SampleTest, WhenTheSampleWaits) {
  EXPECT_FALSE(SampleKeepsItsText({}, SampleRate::kNormal));
  EXPECT_TRUE(SampleKeepsItsText({.window_in_front = false}, SampleRate::kNormal));
  EXPECT_TRUE(SampleKeepsItsText({.folder_changing = true}, SampleRate::kNormal));
  EXPECT_FALSE(SampleKeepsItsText({.field_has_focus = true}, SampleRate::kNormal));
  EXPECT_TRUE(SampleKeepsItsText({.field_has_focus = true}, SampleRate::kSpecial));
}

TEST_F(SampleTest, CaptionAndSelectionTexts) {
  EXPECT_EQ(SampleFrameCaption(messages, "müller.txt"), "Sample   [Length: 10 chars]");
  EXPECT_EQ(SampleSelectionStatus(messages, "abcdef", 1, 3),
            "Selected length: 3 chars, from char 2 to 4 \"bcd\"");
  EXPECT_EQ(SampleSelectionStatus(messages, "abc", 0, 0), "");
  const std::string long_text(100, 'x');
  const std::string status = SampleSelectionStatus(messages, long_text, 0, 100);
  EXPECT_EQ(status.substr(status.size() - 6), "x ...\"");
  EXPECT_EQ(status.find(std::string(81, 'x')), std::string::npos);
}

}  // namespace
}  // namespace tarnwick::testing
