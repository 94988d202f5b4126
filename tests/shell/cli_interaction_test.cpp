#include "shell/cli_interaction.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <sstream>

#include "shell/interaction_defaults.h"

namespace tarnwick {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;

MessageBoxRequest ContinueBox() {
  return MessageBoxRequest{"Error",
                           "Error occured while renaming:\r\n\r\n53: File not found\r\n\r\n"
                           "Continue with next file?",
                           Buttons::kYesNo, MessageIcon::kExclamation, Topic::kContinueAfterError};
}

MessageBoxRequest SystemFolderBox() {
  return MessageBoxRequest{"ATTENTION", "Renaming in windows path can destroy your installation.",
                           Buttons::kYesNo, MessageIcon::kExclamation,
                           Topic::kProceedInSystemFolder};
}

MessageBoxRequest OpenFileBox() {
  return MessageBoxRequest{"File is open", "The file is opened by another application.",
                           Buttons::kOkCancel, MessageIcon::kExclamation, Topic::kSkipOpenFile};
}

FileExistsRequest TakenName() { return FileExistsRequest{"Foo.txt", "/data", "a.txt", false}; }

// A command-line interaction over string streams, with chosen terminal flags.
struct Console {
  explicit Console(std::string typed = "", bool terminal = false, CliOptions options = {})
      : in(std::move(typed)) {
    options.on_answer = [this](const AnsweredQuestion& q) { log.push_back(q); };
    CliStreams streams{&in, &err, &out, terminal, terminal, 80};
    ui = std::make_unique<CliInteraction>(std::move(options), streams);
  }
  static Console Interactive(std::string typed) {
    CliOptions options;
    options.interactive = true;
    return Console(std::move(typed), true, std::move(options));
  }
  std::string Unread() {
    std::string rest;
    std::getline(in, rest, '\0');
    return rest;
  }

  std::istringstream in;
  std::ostringstream err;
  std::ostringstream out;
  std::vector<AnsweredQuestion> log;
  std::unique_ptr<CliInteraction> ui;
};

TEST(CliDefaultsTest, AnswersEachQuestionWithItsDefaultAndSaysSo) {
  Console console;
  EXPECT_EQ(console.ui->ShowMessage(ContinueBox()), Answer::kYes);
  EXPECT_EQ(console.ui->ShowMessage(SystemFolderBox()), Answer::kNo);
  EXPECT_EQ(console.ui->ShowMessage(OpenFileBox()), Answer::kOk);
  EXPECT_EQ(console.ui->AskFileExists(TakenName()).choice, FileExistsChoice::kSkip);
  EXPECT_EQ(console.ui->AskManualRename({"new.txt", "old.txt", {}}).file_name, "new.txt");
  EXPECT_EQ(console.ui->AskInput({"Name of the Undo-Batch", "Name?", "Undo_1"}), "Undo_1");
  FileChooserRequest load;
  load.title = "Load settings from file";
  EXPECT_EQ(console.ui->ChooseFile(load), std::nullopt);

  const std::string err = console.err.str();
  EXPECT_THAT(err, HasSubstr("[Error] Error occured while renaming:\n\n53: File not found\n\n"
                             "Continue with next file?\n  -> Yes (default answer)\n"));
  EXPECT_THAT(err, HasSubstr("/data/Foo.txt (for a.txt)\n  -> Skip (default answer)"));
  EXPECT_THAT(err, Not(HasSubstr("\r")));
  ASSERT_THAT(console.log, SizeIs(7));
  for (const AnsweredQuestion& q : console.log) EXPECT_EQ(q.source, AnswerSource::kDefault);
  EXPECT_TRUE(console.out.str().empty());
}

TEST(CliDefaultsTest, StartRenamingTakesTheCommandsChoiceSilently) {
  CliOptions options;
  options.start_choice = StartRenamingChoice::kTest;
  Console console("", false, options);
  EXPECT_EQ(console.ui->AskStartRenaming({4}), StartRenamingChoice::kTest);
  EXPECT_TRUE(console.err.str().empty());
  ASSERT_THAT(console.log, SizeIs(1));
  EXPECT_EQ(console.log[0].answer, "Test");
}

TEST(CliDefaultsTest, YesAnswersYesNoQuestionsOnly) {
  CliOptions options;
  options.assume_yes = true;
  Console console("", false, options);
  EXPECT_EQ(console.ui->ShowMessage(SystemFolderBox()), Answer::kYes);
  EXPECT_EQ(console.ui->ShowMessage(OpenFileBox()), Answer::kOk);
  EXPECT_EQ(console.ui->AskFileExists(TakenName()).choice, FileExistsChoice::kSkip);
  EXPECT_EQ(console.log[0].source, AnswerSource::kAssumeYes);
  EXPECT_EQ(console.log[1].source, AnswerSource::kDefault);
  EXPECT_THAT(console.err.str(), HasSubstr("-> Yes (--yes)"));
}

TEST(CliDefaultsTest, RepeatedMessagesArePrintedOnceAndCounted) {
  Console console;
  for (int i = 0; i < 3; ++i) console.ui->ShowMessage(ContinueBox());
  console.ui->ShowMessage(OpenFileBox());
  const std::string err = console.err.str();
  EXPECT_EQ(err.find("Continue with next file?"), err.rfind("Continue with next file?"));
  EXPECT_THAT(err, HasSubstr("(the same message 2 more times)\n[File is open]"));
  EXPECT_THAT(console.log, SizeIs(4));
}

TEST(CliDefaultsTest, PrintsTheTestResultListToStandardOutput) {
  Console console;
  console.ui->ShowTestResults({{"a.txt", "b.txt", "/data"}, {"c.txt", "d.txt", "/data/x"}});
  EXPECT_EQ(console.out.str(), "a.txt\tb.txt\t/data\nc.txt\td.txt\t/data/x\n");
}

TEST(CliNoTerminalTest, NeverReadsInputWithoutATerminal) {
  CliOptions options;
  options.interactive = true;
  Console console("n\nc\n", false, options);
  EXPECT_FALSE(console.ui->asks());
  EXPECT_EQ(console.ui->ShowMessage(ContinueBox()), Answer::kYes);
  EXPECT_EQ(console.ui->AskFileExists(TakenName()).choice, FileExistsChoice::kSkip);
  EXPECT_EQ(console.Unread(), "n\nc\n");
}

// Standard input of the process is a pipe holding an answer: a question must
// leave it unread, since standard input is no terminal.
TEST(CliNoTerminalTest, ProcessStreamsLeaveAPipedStandardInputAlone) {
  int pipe_fds[2];
  ASSERT_EQ(pipe(pipe_fds), 0);
  ASSERT_EQ(write(pipe_fds[1], "n\n", 2), 2);
  const int saved_stdin = dup(STDIN_FILENO);
  ASSERT_GE(saved_stdin, 0);
  ASSERT_EQ(dup2(pipe_fds[0], STDIN_FILENO), STDIN_FILENO);

  CliOptions options;
  options.interactive = true;
  CliStreams streams = CliStreams::Process();
  std::ostringstream err;
  streams.err = &err;
  Answer answer = Answer::kNo;
  {
    CliInteraction ui(options, streams);
    answer = ui.ShowMessage(ContinueBox());
  }
  fcntl(STDIN_FILENO, F_SETFL, O_NONBLOCK);
  char left[4] = {};
  const ssize_t unread = read(STDIN_FILENO, left, sizeof left);

  dup2(saved_stdin, STDIN_FILENO);
  close(saved_stdin);
  close(pipe_fds[0]);
  close(pipe_fds[1]);
  EXPECT_FALSE(streams.in_is_terminal);
  EXPECT_EQ(answer, Answer::kYes);
  EXPECT_EQ(unread, 2);
  EXPECT_EQ(std::string(left, 2), "n\n");
}

TEST(CliInteractiveTest, AsksOnATerminalWhenAskedTo) {
  Console console = Console::Interactive("n\n\nx\ny\n");
  EXPECT_TRUE(console.ui->asks());
  EXPECT_EQ(console.ui->ShowMessage(ContinueBox()), Answer::kNo);
  EXPECT_EQ(console.ui->ShowMessage(ContinueBox()), Answer::kYes);      // Enter: the default
  EXPECT_EQ(console.ui->ShowMessage(SystemFolderBox()), Answer::kYes);  // after a wrong letter
  EXPECT_EQ(console.log[0].source, AnswerSource::kUser);
  EXPECT_THAT(console.err.str(), HasSubstr("[Y]es / [N]o (Enter = Yes): "));
  EXPECT_THAT(console.err.str(), HasSubstr("Please answer with one of the letters"));
}

TEST(CliInteractiveTest, TheEndOfInputGivesDefaultsWithoutReadingAgain) {
  Console console = Console::Interactive("");
  EXPECT_EQ(console.ui->ShowMessage(SystemFolderBox()), Answer::kNo);
  EXPECT_EQ(console.ui->ShowMessage(OpenFileBox()), Answer::kOk);
  const std::string err = console.err.str();
  EXPECT_EQ(err.find("(Enter = OK)"), std::string::npos);
}

TEST(CliInteractiveTest, FileExistsTakesAnotherNameOnlyWhenItDiffersByMoreThanCase) {
  Console console = Console::Interactive("r\nFOO.TXT\nbar.txt\n");
  const FileExistsAnswer answer = console.ui->AskFileExists(TakenName());
  EXPECT_EQ(answer.choice, FileExistsChoice::kOk);
  EXPECT_EQ(answer.file_name, "bar.txt");
  EXPECT_THAT(console.err.str(),
              HasSubstr("New name: You MUST enter another name to rename the file.\nNew name: "));
  EXPECT_EQ(console.log[0].answer, "OK: bar.txt");
}

TEST(CliInteractiveTest, FileExistsSkipAllAndCancel) {
  Console console = Console::Interactive("a\nc\n");
  const FileExistsAnswer all = console.ui->AskFileExists(TakenName());
  EXPECT_EQ(all.choice, FileExistsChoice::kSkip);
  EXPECT_TRUE(all.skip_all_others);
  EXPECT_EQ(console.ui->AskFileExists(TakenName()).choice, FileExistsChoice::kCancel);
}

TEST(CliInteractiveTest, StartRenamingManualRenameAndInput) {
  Console console = Console::Interactive("t\nhand.txt\n\n/tmp/s.twr\n");
  EXPECT_EQ(console.ui->AskStartRenaming({2}), StartRenamingChoice::kTest);
  EXPECT_EQ(console.ui->AskManualRename({"new.txt", "old.txt", {}}).file_name, "hand.txt");
  EXPECT_EQ(console.ui->AskInput({"Name of the Undo-Batch", "Name?", "Undo_1"}), "Undo_1");
  const std::optional<SaveSettingsAnswer> save = console.ui->AskSaveSettings({});
  ASSERT_TRUE(save.has_value());
  EXPECT_EQ(save->path, "/tmp/s.twr");
}

TEST(CliProgressTest, NothingIsDrawnWhenStandardErrorIsNoTerminal) {
  Console console;
  console.ui->ShowStatus(StatusArea::kStatusLine, "Action in progress, please wait ...");
  for (int i = 1; i <= 1000; ++i) console.ui->ShowProgress(i, 1000);
  console.ui->HideProgress();
  EXPECT_TRUE(console.err.str().empty());
}

TEST(CliProgressTest, ManyFilesDrawAFewLinesAndTheLastStep) {
  Console console("", true);
  console.ui->ShowStatus(StatusArea::kStatusLine, "Action in progress");
  constexpr int kFiles = 100000;
  for (int i = 1; i <= kFiles; ++i) console.ui->ShowProgress(i, kFiles);
  const std::string err = console.err.str();
  std::size_t lines = 0;
  for (std::size_t at = err.find('\r'); at != std::string::npos; at = err.find('\r', at + 1)) {
    ++lines;
  }
  EXPECT_LT(lines, 1000u);
  EXPECT_THAT(err, HasSubstr("Action in progress 100000/100000 (100%)"));
  EXPECT_EQ(err.find('\n'), std::string::npos);
}

TEST(CliProgressTest, AMessageErasesTheProgressLineFirst) {
  Console console("", true);
  console.ui->ShowProgress(1, 10);
  console.ui->ShowMessage(OpenFileBox());
  EXPECT_THAT(console.err.str(), HasSubstr("1/10 (10%)\r\x1b[K[File is open]"));
}

TEST(CliProgressTest, ALongStatusIsCutToTheWidthBetweenCharacters) {
  Console console("", true);
  std::string long_text;
  for (int i = 0; i < 100; ++i) long_text += "ä";
  console.ui->ShowStatus(StatusArea::kSplash, long_text);
  console.ui->ShowProgress(5, 10);
  const std::string err = console.err.str();
  const std::string last = err.substr(err.rfind("\x1b[K") + 3);
  EXPECT_THAT(last, HasSubstr(" 5/10 (50%)"));
  // 79 characters: 68 two-byte letters, a blank and the count.
  EXPECT_EQ(last.size(), 68u * 2 + 1 + 10);
}

}  // namespace
}  // namespace tarnwick
