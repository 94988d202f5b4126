#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/interaction_defaults.h"
#include "shell/interaction_record.h"
#include "shell/scripted_interaction.h"

namespace tarnwick {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

MessageBoxRequest Box(Topic topic, Buttons buttons, std::string title = "Error",
                      std::string text = "Continue with next file?") {
  return MessageBoxRequest{std::move(title), std::move(text), buttons, MessageIcon::kExclamation,
                           topic};
}

FileExistsRequest TakenName() { return FileExistsRequest{"Foo.txt", "/data", "a.txt", false}; }

// --- Default answers. ---

TEST(DefaultAnswerTest, KnownQuestionsGetTheirDocumentedAnswers) {
  EXPECT_EQ(DefaultAnswer(Box(Topic::kContinueAfterError, Buttons::kYesNo)), Answer::kYes);
  EXPECT_EQ(DefaultAnswer(Box(Topic::kSkipShortName, Buttons::kYesNo)), Answer::kYes);
  EXPECT_EQ(DefaultAnswer(Box(Topic::kSkipOpenFile, Buttons::kOkCancel)), Answer::kOk);
  EXPECT_EQ(DefaultAnswer(Box(Topic::kProceedInSystemFolder, Buttons::kYesNo)), Answer::kNo);
  EXPECT_EQ(DefaultAnswer(Box(Topic::kDisableLogging, Buttons::kYesNo)), Answer::kNo);
  EXPECT_EQ(DefaultAnswer(Box(Topic::kDisableUndo, Buttons::kYesNo)), Answer::kNo);
  EXPECT_EQ(DefaultAnswer(Box(Topic::kShowTestResults, Buttons::kYesNo)), Answer::kYes);
  EXPECT_EQ(DefaultAnswer(Box(Topic::kNotice, Buttons::kOk)), Answer::kOk);
}

TEST(DefaultAnswerTest, OtherQuestionsGetTheAnswerThatGoesNoFurther) {
  EXPECT_EQ(DefaultAnswer(Box(Topic::kOther, Buttons::kOk)), Answer::kOk);
  EXPECT_EQ(DefaultAnswer(Box(Topic::kOther, Buttons::kOkCancel)), Answer::kCancel);
  EXPECT_EQ(DefaultAnswer(Box(Topic::kOther, Buttons::kYesNo)), Answer::kNo);
  EXPECT_EQ(DefaultAnswer(Box(Topic::kOther, Buttons::kYesNoCancel)), Answer::kCancel);
  EXPECT_EQ(DefaultAnswer(Box(Topic::kOther, Buttons::kRetryCancel)), Answer::kCancel);
  EXPECT_EQ(DefaultAnswer(Box(Topic::kOther, Buttons::kAbortRetryIgnore)), Answer::kAbort);
}

TEST(DefaultAnswerTest, ATopicAnswerThatIsNoButtonFallsBackToTheButtons) {
  // A notice asked with Yes and No cannot answer OK.
  EXPECT_EQ(DefaultAnswer(Box(Topic::kNotice, Buttons::kYesNo)), Answer::kNo);
  EXPECT_EQ(DefaultAnswer(Box(Topic::kContinueAfterError, Buttons::kOkCancel)), Answer::kCancel);
}

TEST(DefaultAnswerTest, EveryTopicHasOneRowWhoseAnswerIsAButton) {
  for (int i = 0; i <= static_cast<int>(Topic::kOther); ++i) {
    const auto topic = static_cast<Topic>(i);
    int rows = 0;
    for (const TopicDefault& row : TopicDefaults()) rows += row.topic == topic ? 1 : 0;
    EXPECT_EQ(rows, 1) << "topic " << i;
  }
  for (const TopicDefault& row : TopicDefaults()) {
    bool some_buttons_have_it = false;
    for (int b = 0; b <= static_cast<int>(Buttons::kAbortRetryIgnore); ++b) {
      some_buttons_have_it |= HasButton(static_cast<Buttons>(b), row.answer);
    }
    EXPECT_TRUE(some_buttons_have_it) << row.description;
  }
}

TEST(DefaultAnswerTest, DialoguesSkipKeepOrCancel) {
  FileExistsRequest taken = TakenName();
  taken.skip_all_others = true;
  const FileExistsAnswer exists = DefaultAnswer(taken);
  EXPECT_EQ(exists.choice, FileExistsChoice::kSkip);
  EXPECT_TRUE(exists.skip_all_others);

  const ManualRenameRequest manual{"new.txt", "old.txt", ManualRenameCursor{true, 2, 4}};
  const ManualRenameAnswer kept = DefaultAnswer(manual);
  EXPECT_FALSE(kept.cancelled);
  EXPECT_EQ(kept.file_name, "new.txt");
  EXPECT_EQ(kept.cursor.end_position, 4);

  EXPECT_EQ(DefaultAnswer(StartRenamingRequest{5}), StartRenamingChoice::kRename);
  EXPECT_EQ(DefaultAnswer(InputRequest{"Name of the Undo-Batch", "Name?", "Undo_1"}), "Undo_1");
  EXPECT_EQ(DefaultAnswer(FileChooserRequest{}), std::nullopt);
  EXPECT_EQ(DefaultAnswer(FolderChooserRequest{}), std::nullopt);
  EXPECT_EQ(DefaultAnswer(SaveSettingsRequest{}), std::nullopt);
}

TEST(DefaultAnswerTest, HelpTextListsEveryDefault) {
  const std::string help = DefaultAnswersHelp();
  for (const TopicDefault& row : TopicDefaults()) {
    const std::string line =
        std::string(row.description) + "\n      -> " + std::string(AnswerName(row.answer));
    EXPECT_THAT(help, HasSubstr(line));
  }
  for (const char* dialogue : {"Start renaming", "The file exists already", "Manual renaming",
                               "test run", "input box", "Choosing a file", "--yes", "Ctrl-C"}) {
    EXPECT_THAT(help, HasSubstr(dialogue));
  }
  EXPECT_THAT(help, HasSubstr("Skip"));
}

TEST(NewNameTest, ANameThatDiffersOnlyInCaseIsNotAnotherName) {
  const FileExistsRequest taken = TakenName();
  EXPECT_FALSE(IsAcceptedNewName(taken, "Foo.txt"));
  EXPECT_FALSE(IsAcceptedNewName(taken, "FOO.TXT"));
  EXPECT_TRUE(IsAcceptedNewName(taken, "Foo2.txt"));
  const FileExistsRequest umlaut{"müller.txt", "/data", "a.txt", false};
  EXPECT_FALSE(IsAcceptedNewName(umlaut, "MÜLLER.TXT"));
}

// --- The scripted interaction. ---

TEST(ScriptedInteractionTest, AnswersFromTheQueueAndRecordsTheSequence) {
  ScriptedInteraction ui;
  ui.Then(StartRenamingChoice::kTest)
      .Then(Answer::kNo)
      .Then(FileExistsAnswer{FileExistsChoice::kOk, "b.txt", true});

  EXPECT_EQ(ui.AskStartRenaming({3}), StartRenamingChoice::kTest);
  EXPECT_EQ(ui.ShowMessage(Box(Topic::kContinueAfterError, Buttons::kYesNo)), Answer::kNo);
  const FileExistsAnswer exists = ui.AskFileExists(TakenName());
  EXPECT_EQ(exists.choice, FileExistsChoice::kOk);
  EXPECT_EQ(exists.file_name, "b.txt");

  ASSERT_THAT(ui.asked(), SizeIs(3));
  EXPECT_EQ(ui.asked()[0].kind, QuestionKind::kStartRenaming);
  EXPECT_EQ(ui.asked()[0].answer, "Test");
  EXPECT_EQ(ui.asked()[1].title, "Error");
  EXPECT_EQ(ui.asked()[1].text, "Continue with next file?");
  EXPECT_EQ(ui.asked()[1].buttons, Buttons::kYesNo);
  EXPECT_EQ(ui.asked()[1].answer, "No");
  EXPECT_EQ(ui.asked()[1].source, AnswerSource::kScript);
  EXPECT_EQ(ui.asked()[2].answer, "OK: b.txt, skip all further");
  EXPECT_THAT(ui.failures(), IsEmpty());
  EXPECT_EQ(ui.pending(), 0u);
}

TEST(ScriptedInteractionTest, AnUnscriptedQuestionFailsAndGetsTheDefault) {
  ScriptedInteraction ui;
  EXPECT_EQ(ui.ShowMessage(Box(Topic::kContinueAfterError, Buttons::kYesNo)), Answer::kYes);
  EXPECT_EQ(ui.AskFileExists(TakenName()).choice, FileExistsChoice::kSkip);
  EXPECT_EQ(ui.AskInput({"t", "p", "preset"}), "preset");
  ASSERT_THAT(ui.failures(), SizeIs(3));
  EXPECT_THAT(ui.failures()[0], HasSubstr("without a scripted answer"));
  EXPECT_EQ(ui.asked()[0].source, AnswerSource::kDefault);
}

TEST(ScriptedInteractionTest, AnAnswerThatDoesNotFitFailsAndGetsTheDefault) {
  ScriptedInteraction ui;
  ui.Then(Answer::kYes).Then(StartRenamingChoice::kTest).Then(Cancelled{});
  // Yes is no button of OK/Cancel.
  EXPECT_EQ(ui.ShowMessage(Box(Topic::kSkipOpenFile, Buttons::kOkCancel)), Answer::kOk);
  // A start-renaming answer is no file-exists answer.
  EXPECT_EQ(ui.AskFileExists(TakenName()).choice, FileExistsChoice::kSkip);
  // Yes/No has no Cancel.
  EXPECT_EQ(ui.ShowMessage(Box(Topic::kDisableLogging, Buttons::kYesNo)), Answer::kNo);
  EXPECT_THAT(ui.failures(), SizeIs(3));
  EXPECT_EQ(ui.pending(), 0u);
}

TEST(ScriptedInteractionTest, CancelledFitsEveryQuestionWithACancel) {
  ScriptedInteraction ui;
  for (int i = 0; i < 7; ++i) ui.Then(Cancelled{});
  EXPECT_EQ(ui.ShowMessage(Box(Topic::kSkipOpenFile, Buttons::kOkCancel)), Answer::kCancel);
  EXPECT_EQ(ui.AskStartRenaming({1}), StartRenamingChoice::kCancel);
  EXPECT_EQ(ui.AskFileExists(TakenName()).choice, FileExistsChoice::kCancel);
  const ManualRenameAnswer manual = ui.AskManualRename({"new.txt", "old.txt", {}});
  EXPECT_TRUE(manual.cancelled);
  EXPECT_EQ(manual.file_name, "old.txt");
  EXPECT_EQ(ui.AskInput({"t", "p", "preset"}), std::nullopt);
  EXPECT_EQ(ui.ChooseFolder({"Folder", "/"}), std::nullopt);
  EXPECT_EQ(ui.AskSaveSettings({}), std::nullopt);
  EXPECT_THAT(ui.failures(), IsEmpty());
}

TEST(ScriptedInteractionTest, KindDefaultsAnswerWhenTheQueueIsEmpty) {
  ScriptedInteraction ui;
  ui.SetDefault(QuestionKind::kMessageBox, Answer::kYes);
  ui.SetDefault(QuestionKind::kChooseFile, TextAnswer{"/tmp/a.twr"});
  ui.Then(Answer::kNo);
  EXPECT_EQ(ui.ShowMessage(Box(Topic::kContinueAfterError, Buttons::kYesNo)), Answer::kNo);
  EXPECT_EQ(ui.ShowMessage(Box(Topic::kContinueAfterError, Buttons::kYesNo)), Answer::kYes);
  EXPECT_EQ(ui.ShowMessage(Box(Topic::kDisableUndo, Buttons::kYesNo)), Answer::kYes);
  EXPECT_EQ(ui.ChooseFile({}), "/tmp/a.twr");
  EXPECT_THAT(ui.failures(), IsEmpty());
}

TEST(ScriptedInteractionTest, FileExistsStaysOpenOnTheSameNameInOtherCase) {
  ScriptedInteraction ui;
  ui.Then(FileExistsAnswer{FileExistsChoice::kOk, "FOO.TXT", false})
      .Then(FileExistsAnswer{FileExistsChoice::kOk, "Foo (2).txt", false});
  const FileExistsAnswer answer = ui.AskFileExists(TakenName());
  EXPECT_EQ(answer.file_name, "Foo (2).txt");
  ASSERT_THAT(ui.failures(), SizeIs(1));
  EXPECT_THAT(ui.failures()[0], HasSubstr("FOO.TXT"));
  EXPECT_THAT(ui.asked(), SizeIs(1));
}

TEST(ScriptedInteractionTest, KeepsWhatWasShownAndPressesCancelWhenTold) {
  ScriptedInteraction ui;
  ui.ShowStatus(StatusArea::kSplash, "Starting ...");
  ui.ShowStatus(StatusArea::kStatusLine, "Action in progress");
  ui.SetCaption("Tarnwick - [1/2] a.txt");
  ui.ShowProgress(1, 2);
  ui.SetControlsEnabled(false, false);
  ui.ShowTestResults({{"a.txt", "b.txt", "/data"}});
  EXPECT_THAT(ui.statuses(StatusArea::kSplash), ElementsAre("Starting ..."));
  EXPECT_THAT(ui.statuses(StatusArea::kSampleFrame), IsEmpty());
  EXPECT_EQ(ui.caption(), "Tarnwick - [1/2] a.txt");
  EXPECT_TRUE(ui.progress_visible());
  EXPECT_EQ(ui.progress_max(), 2);
  EXPECT_FALSE(ui.controls_enabled());
  ASSERT_THAT(ui.test_results(), SizeIs(1));
  EXPECT_EQ(ui.test_results()[0].new_name, "b.txt");

  ui.PressCancelAtPoll(2);
  EXPECT_FALSE(ui.PollCancel());
  EXPECT_TRUE(ui.PollCancel());
  EXPECT_FALSE(ui.PollCancel());
  ui.PressCancel();
  EXPECT_TRUE(ui.PollCancel());
  EXPECT_FALSE(ui.PollCancel());
}

TEST(AnsweredQuestionTest, FormatsOneLine) {
  AnsweredQuestion record =
      Describe(Box(Topic::kContinueAfterError, Buttons::kYesNo, "Error", "Failed:\r\n\r\nGo on?"),
               Answer::kYes);
  record.source = AnswerSource::kAssumeYes;
  EXPECT_EQ(FormatAnswered(record), "[Error] Failed:  Go on? -> Yes (--yes)");
}

}  // namespace
}  // namespace tarnwick
