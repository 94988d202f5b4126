// The ten actions of the name pipeline, one file at a time through ProcessFile.
#include "core/action_order.h"
#include "core/pipeline_test_fixture.h"

namespace tarnwick::testing {
namespace {

class ActionsTest : public PipelineTest {};

TEST_F(ActionsTest, CompleteNameKeepsTheExtensionAndExpandsTokens) {
  settings.chkCompleteName = 1;
  settings.txtCompleteName = "Holiday";
  EXPECT_EQ(Rename("img_0001.jpg"), "Holiday.jpg");

  // Casing acts on the field's own text, not on the extension put behind it.
  settings.txtCompleteName = "{{uppercasing}}holiday";
  EXPECT_EQ(Rename("b.jpg"), "HOLIDAY.jpg");
}

TEST_F(ActionsTest, CompleteNameWithoutExtensionLeavesTokensForTheCleanUp) {
  settings.chkCompleteName = 1;
  settings.txtCompleteName = "{{parentfolder}}";
  // The action hands the raw field on; the expansion after it fills it in.
  EXPECT_EQ(Rename("README"), dir.path().filename().string());
}

TEST_F(ActionsTest, ExtensionCoversAllFourCases) {
  settings.chkExtension = 1;
  settings.txtExtension = "txt";
  EXPECT_EQ(Rename("notes"), "notes.txt");
  EXPECT_EQ(Rename("notes.md"), "notes.txt");
  settings.txtExtension = "";
  EXPECT_EQ(Rename("plain"), "plain");
  EXPECT_EQ(Rename("archive.tar.gz"), "archive.tar");
}

TEST_F(ActionsTest, CutLeftCountsTheWholeNameWithItsExtension) {
  settings.chkCutLeft = 1;
  settings.txtLeftCut = "4";
  EXPECT_EQ(Rename("IMG_1234.jpg"), "1234.jpg");
  // A cut as long as base and dot leaves the extension alone, without its dot.
  settings.txtLeftCut = "4";
  EXPECT_EQ(Rename("abc.txt"), "txt");
}

TEST_F(ActionsTest, CutRightWorksOnTheBase) {
  settings.chkCutRight = 1;
  settings.txtRightCut = "2";
  EXPECT_EQ(Rename("photo_01.jpg"), "photo_.jpg");
  EXPECT_EQ(Rename("letters"), "lette");
}

TEST_F(ActionsTest, PrefixPostfixAndPlaceholderText) {
  settings.chkPrefix = 1;
  settings.txtPrefix = "2004_";
  settings.chkPostfix = 1;
  settings.txtPostfix = "_final";
  EXPECT_EQ(Rename("report.doc"), "2004_report_final.doc");
  EXPECT_EQ(Rename("Makefile"), "2004_Makefile_final");

  settings.chkPrefix = 0;
  settings.chkPostfix = 0;
  settings.chkOnlyUsePatterns = 1;
  settings.txtUsePlaceholder = "{{lowercasing}}X-";
  // The text goes in front of the whole name, extension and all.
  EXPECT_EQ(Rename("a.txt"), "x-a.txt");
}

TEST_F(ActionsTest, ReplaceTextIgnoresCaseAndSparesTheExtension) {
  settings.chkReplace = 1;
  settings.txtSearchString = "jpg";
  settings.txtReplaceString = "pic";
  EXPECT_EQ(Rename("JPG_holiday_jpg.jpg"), "pic_holiday_pic.jpg");
}

TEST_F(ActionsTest, ReplaceTextWithASpanReplacesFromStartToEndMarker) {
  settings.chkReplace = 1;
  settings.txtSearchString =
      "("
      "{{-}}"
      ")";
  settings.txtReplaceString = "";
  EXPECT_EQ(Rename("song (live) remix.mp3"), "song  remix.mp3");
  // An opening text that is not there leaves the name alone.
  settings.txtSearchString = "[{{-}}]";
  EXPECT_EQ(Rename("song (live).mp3"), "song (live).mp3");
}

TEST_F(ActionsTest, ReplaceRangeByCharacterPositions) {
  settings.chkCutMiddle = 1;
  settings.txtFromChar = "2";
  settings.txtToChar = "3";
  settings.txtReplaceChars = "XY";
  EXPECT_EQ(Rename("abcdef.txt"), "aXYdef.txt");
  EXPECT_EQ(Rename("abcdef"), "aXYdef");
}

TEST_F(ActionsTest, ReplaceRangeUpToTheDotEmptiesTheNameAndSkipsTheFile) {
  settings.chkCutMiddle = 1;
  settings.txtFromChar = "1";
  settings.txtToChar = "4";
  settings.txtReplaceChars = "z";
  settings.optCopyRename = kModeTest;
  // Kept: the rest behind the range is "txt", too short for the fixed four.
  EXPECT_EQ(Rename("abc.txt"), "");
}

TEST_F(ActionsTest, ReplaceRangeLeavesPartOfALongExtensionBehind) {
  settings.chkCutMiddle = 1;
  settings.txtFromChar = "1";
  settings.txtToChar = "1";
  settings.txtReplaceChars = "Z";
  // Kept: the fixed four assumes a three-letter extension, so the old dot stays.
  EXPECT_EQ(Rename("abcd.jpeg"), "Zbcd..jpeg");
}

TEST_F(ActionsTest, CharactersAreCountedNotBytes) {
  settings.chkCutLeft = 1;
  settings.txtLeftCut = "2";
  EXPECT_EQ(Rename("äöü.txt"), "ü.txt");
}

TEST_F(ActionsTest, IllegalCharactersFromTokensAreReplacedAndLogged) {
  SetOption("IllegalCharReplacerActive", "1");
  SetOption("IllegalCharReplacer", "_");
  settings.chkPrefix = 1;
  settings.txtPrefix = "a<b>|";
  EXPECT_EQ(Rename("x.txt"), "a_b__x.txt");
  ASSERT_FALSE(log.lines.empty());
  EXPECT_EQ(log.lines.back().first, "Removed illegal chars");
  EXPECT_EQ(log.lines.back().second, "a<b>|x.txt -> a_b__x.txt");
}

TEST_F(ActionsTest, IllegalCharactersAreRemovedWhenTheReplacerIsOff) {
  SetOption("IllegalCharReplacerActive", "0");
  SetOption("IllegalCharReplacer", "_");
  settings.chkPostfix = 1;
  settings.txtPostfix = "<1>";
  EXPECT_EQ(Rename("y.txt"), "y1.txt");
}

TEST_F(ActionsTest, OnlyATickOfExactlyOneCounts) {
  settings.chkPrefix = 2;  // a greyed box
  settings.txtPrefix = "P_";
  EXPECT_EQ(Rename("z.txt"), "z.txt");
}

TEST_F(ActionsTest, ActionOrderChangesTheResult) {
  settings.chkPrefix = 1;
  settings.txtPrefix = "NEW_";
  settings.chkCutLeft = 1;
  settings.txtLeftCut = "2";
  // Default order: cut left (4) before prefix (5).
  EXPECT_EQ(Rename("abcd.txt"), "NEW_cd.txt");

  ActionOrder order = DefaultActionOrder();
  std::swap(order[3], order[4]);
  StoreActionOrder(options, order);
  // Now the cut removes characters of the prefix.
  EXPECT_EQ(Rename("efgh.txt"), "W_efgh.txt");
}

TEST_F(ActionsTest, AnOrderValueOutsideOneToTenRunsNoAction) {
  SetOption("SortOrderInternal5", "11");
  settings.chkPrefix = 1;
  settings.txtPrefix = "P_";
  EXPECT_EQ(Rename("q.txt"), "q.txt");
  EXPECT_EQ(ReadActionOrder(options)[4], 0);
}

TEST_F(ActionsTest, ProcessFileOrderRunsOneActionWithItsCleanUp) {
  settings.chkPrefix = 1;
  settings.txtPrefix = "a:";
  const std::size_t row = AddRow("one.txt");
  std::string text = "one.txt";
  const ProcessFileResult result = ProcessFileOrder(Env(), text, row, dir.str(), kActionPrefix);
  EXPECT_FALSE(result.error);
  EXPECT_EQ(result.name, "aone.txt");
  EXPECT_EQ(text, "aone.txt");
}

}  // namespace
}  // namespace tarnwick::testing
