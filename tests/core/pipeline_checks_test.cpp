// What ProcessFile decides beyond the actions: short names, taken names, open
// files, the MP3 guard, names the file system cannot take, and the check of
// the typed fields before a run.
#include <fcntl.h>
#include <unistd.h>

#include "core/pipeline_illegal_chars.h"
#include "core/pipeline_name_diff.h"
#include "core/pipeline_test_fixture.h"

namespace tarnwick::testing {
namespace {

using Texts = std::vector<std::string>;

class ChecksTest : public PipelineTest {
 protected:
  void Prefix(const std::string& text) {
    settings.chkPrefix = 1;
    settings.txtPrefix = text;
  }
};

TEST_F(ChecksTest, ShortNamesAreAskedAboutWithTheirOwnTexts) {
  settings.chkCutRight = 1;
  settings.txtRightCut = "9";
  interaction.Then(Answer::kYes);
  EXPECT_EQ(Rename("abc.txt"), "abc.txt");
  ASSERT_EQ(interaction.asked().size(), 1u);
  EXPECT_EQ(interaction.asked()[0].text,
            "The filename 'abc.txt' is shorter than chars you want to cut from the right. "
            "Skipping this file.\r\n\r\nContinue with next file?");

  settings.chkCutRight = 0;
  settings.chkCutMiddle = 1;
  settings.txtFromChar = "5";
  settings.txtToChar = "6";
  interaction.Then(Answer::kNo);
  EXPECT_EQ(Rename("abc.txt"), "abc.txt");
  EXPECT_EQ(interaction.asked()[1].text,
            "The filename 'abc.txt' has no more chars on length 5. Skipping file."
            "\r\n\r\nContinue with next file?");
  // No stops the run.
  EXPECT_TRUE(app.CancelRun);
}

TEST_F(ChecksTest, ACutLeftTextHasNoQuoteBehindTheName) {
  settings.chkCutLeft = 1;
  settings.txtLeftCut = "4";
  interaction.Then(Answer::kYes);
  Rename("ab.c");
  ASSERT_EQ(interaction.asked().size(), 1u);
  EXPECT_EQ(interaction.asked()[0].text.substr(0, 40), "The filename 'ab.cis shorter than chars ");
}

TEST_F(ChecksTest, ChangeOfCaseIsNoCollision) {
  EXPECT_TRUE(CheckNameDiff("Photo.JPG", "photo.jpg", dir.str()));
  dir.WriteFile("taken.txt");
  EXPECT_FALSE(CheckNameDiff("free.txt", "taken.txt", dir.str()));
  EXPECT_TRUE(CheckNameDiff("free.txt", "other.txt", dir.str()));
  EXPECT_FALSE(CheckNameDiff("taken", "taken.txt", dir.str()));

  settings.chkCompleteName = 1;
  settings.txtCompleteName = "{{uppercasing}}same";
  EXPECT_EQ(Rename("same.txt"), "SAME.txt");
  EXPECT_TRUE(interaction.asked().empty());
}

TEST_F(ChecksTest, TakenNameAsksAndTheAnswerDecides) {
  dir.WriteFile("P_a.txt");
  Prefix("P_");
  FileExistsAnswer ok;
  ok.choice = FileExistsChoice::kOk;
  ok.file_name = "P_a2.txt";
  ok.skip_all_others = true;
  interaction.Then(ok);
  EXPECT_EQ(Rename("a.txt"), "P_a2.txt");
  // The tick carries over to the following files of the run.
  EXPECT_EQ(options.GetOption("SkipExistingFiles", "Options", "x"), "1");
  dir.WriteFile("P_b.txt");
  EXPECT_EQ(Rename("b.txt"), "");
  EXPECT_EQ(interaction.asked().size(), 1u);
}

TEST_F(ChecksTest, TakenNameSkipOrCancel) {
  dir.WriteFile("P_a.txt");
  Prefix("P_");
  FileExistsAnswer skip;
  skip.choice = FileExistsChoice::kSkip;
  interaction.Then(skip);
  EXPECT_EQ(Rename("a.txt"), "");
  EXPECT_FALSE(app.CancelRun);
  EXPECT_EQ(options.GetOption("SkipExistingFiles", "Options", "x"), "0");

  interaction.Then(Cancelled{});
  const std::size_t row = AddRow("a.txt", false);
  EXPECT_EQ(Process(row).name, "");
  EXPECT_TRUE(app.CancelRun);
  EXPECT_TRUE(interaction.failures().empty());
}

TEST_F(ChecksTest, TestModeNeverAsksAboutTakenNames) {
  dir.WriteFile("P_a.txt");
  Prefix("P_");
  settings.optCopyRename = kModeTest;
  EXPECT_EQ(Rename("a.txt"), "P_a.txt");
  EXPECT_TRUE(interaction.asked().empty());
}

TEST_F(ChecksTest, OpenFilesAreSkippedWhenRenamingAndMarkedWhenCopying) {
  Prefix("P_");
  const std::filesystem::path held = dir.WriteFile("held.txt", "x");
  const int fd = open(held.c_str(), O_RDONLY);
  ASSERT_GE(fd, 0);

  interaction.Then(Answer::kOk);
  EXPECT_EQ(Process(AddRow("held.txt", false)).name, "");
  ASSERT_EQ(Asked(), (Texts{"File is open"}));
  EXPECT_TRUE(app.FileLockSeen);
  EXPECT_FALSE(app.CancelRun);

  settings.optCopyRename = kModeCopy;
  app.FileLockSeen = false;
  EXPECT_EQ(Process(AddRow("held.txt", false)).name, "P_held.txt");
  EXPECT_TRUE(app.FileLockSeen);

  // A test run asks, but keeps the name whatever the answer.
  settings.optCopyRename = kModeTest;
  interaction.Then(Answer::kCancel);
  EXPECT_EQ(Process(AddRow("held.txt", false)).name, "P_held.txt");
  EXPECT_TRUE(app.CancelRun);
  close(fd);
}

TEST_F(ChecksTest, Mp3GuardKeepsUntaggedFilesAsTheyAre) {
  SetOption("ProcessNoMP3", "1");
  settings.chkCompleteName = 1;
  settings.txtCompleteName = "{{mp3IDTagV1_title}}x";
  EXPECT_EQ(Rename("song.mp3"), "song.mp3");
  // Other files, and settings that do not rest on tags, are renamed.
  EXPECT_EQ(Rename("song.wav"), "x.wav");
  SetOption("ProcessNoMP3", "0");
  EXPECT_EQ(Rename("tune.mp3"), "x.mp3");
}

TEST_F(ChecksTest, NamesThatLeadElsewhereAreErrorsOfTheFile) {
  settings.chkCompleteName = 1;
  for (const char* bad : {".", ".."}) {
    settings.txtCompleteName = bad;
    const ProcessFileResult result = Process(AddRow("noext"));
    ASSERT_TRUE(result.error) << bad;
    EXPECT_EQ(result.error->number(), 52);
  }
  settings.txtCompleteName = std::string(300, 'n');
  EXPECT_TRUE(Process(AddRow("long.txt")).error);
}

TEST_F(ChecksTest, TypedFieldsWithForbiddenCharactersStopTheRun) {
  std::string field;
  settings.chkPostfix = 1;
  settings.txtPostfix = "a<b";  // left to the clean-up
  EXPECT_FALSE(CheckIllegalNames(settings, interaction, messages, &field));

  settings.txtPostfix = "what?";
  settings.txtPrefix = "x*y";  // not ticked: not looked at
  EXPECT_TRUE(CheckIllegalNames(settings, interaction, messages, &field));
  EXPECT_EQ(field, "txtPostfix");
  ASSERT_EQ(Asked(), (Texts{"Filename"}));
  EXPECT_EQ(interaction.asked()[0].text,
            "You have entered an not allowed char for the filename. Pleas do NOT use one of "
            "this chars:  *,\\,/,\",?,:");

  settings.chkPostfix = 0;
  settings.chkReplace = 1;
  settings.txtSearchString = "a:b";
  settings.txtReplaceString = "c/d";
  EXPECT_TRUE(CheckIllegalNames(settings, interaction, messages, &field));
  EXPECT_EQ(field, "txtReplaceString");
}

TEST_F(ChecksTest, ReplaceIllegalCharsOrderAndReplacerThatIsItselfIllegal) {
  IllegalCharRule rule{"-"};
  EXPECT_EQ(ReplaceIllegalChars("a/b\\c:d*e?f\"g<h>i|j\x7fk\x01l\x1fm", rule),
            "a-b-c-d-e-f-g-h-i-j-k-l-m");
  // Kept: the replacer is not tested, so a forbidden one whose turn has
  // passed stays in the name.
  EXPECT_EQ(ReplaceIllegalChars("a?b", IllegalCharRule{":"}), "a:b");
  EXPECT_EQ(ReplaceIllegalChars("a/b", IllegalCharRule{""}), "ab");
}

}  // namespace
}  // namespace tarnwick::testing
