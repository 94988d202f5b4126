// Runs on a real folder: the three modes with their log and undo batch,
// collisions, the checks before a run, the error handler, cancelling and
// date keeping.
#include "core/start_rename.h"

#include <sys/stat.h>
#include <utime.h>

#include <fstream>

#include "core/journal.h"
#include "run_test_fixture.h"

namespace tarnwick::testing {
namespace {

constexpr std::string_view kBatchHeaderStart =
    " \r\n@echo off\r\ncls\r\necho Renaming 'Undo-List' created by Tarnwick on  08.03.2004 "
    "10:15:05\r\n";
constexpr std::string_view kBatchHeaderEnd =
    "echo Remember: Only the last renaming action is logged here!\r\n"
    "echo Attention: You use this script on your own risk, please make a backup of your data "
    "before using it!\r\npause\r\necho on\r\n";

std::string BatchHeader(int selected, std::string_view action) {
  return std::string(kBatchHeaderStart) + "echo Selected files: " + std::to_string(selected) +
         "\r\necho " + std::string(action) + "\r\n" + std::string(kBatchHeaderEnd);
}

std::string LogHeader(int selected) {
  return "\r\n\r\n#############################################################\r\n\r\n\r\n"
         "Logfile created by Tarnwick v2.97 on 08.03.2004 10:15:05\r\nSelected files: " +
         std::to_string(selected) +
         "\r\nRemember: Only the last renaming action is logged here!\r\n \r\n";
}

std::string LogLine(const std::string& from, const std::string& to, const std::string& note) {
  return "-> [08.03.2004 10:15:05] Renaming of \"" + from + "\" to \"" + to + "\" (" + note +
         ")\r\n";
}

TEST_F(RunTest, RenameCopyAndTestRunsWriteTheirLogAndBatchByteForByte) {
  AddFile("b.txt", "B");
  AddFile("a.txt", "A");
  Prefix("IMG_");
  settings.chkNumbers = 1;
  settings.optNumber = 1;
  settings.txtStartNumber = "01";

  RenameRunResult result = Run();
  EXPECT_FALSE(result.stopped);
  EXPECT_EQ(result.done, 2);
  EXPECT_EQ(Names(), (std::vector<std::string>{"IMG_01a.txt", "IMG_02b.txt"}));
  EXPECT_EQ(dir.ReadFile("files/IMG_01a.txt"), "A");
  EXPECT_EQ(Batch(), BatchHeader(2, "Action of this script: This script renames files") +
                         "move \"" + FilePath("IMG_01a.txt") + "\" \"" + FilePath("a.txt") +
                         "\"\r\nmove \"" + FilePath("IMG_02b.txt") + "\" \"" + FilePath("b.txt") +
                         "\"\r\n");
  EXPECT_EQ(Log(), LogHeader(2) + LogLine(FilePath("a.txt"), FilePath("IMG_01a.txt"), "Renamed") +
                       LogLine(FilePath("b.txt"), FilePath("IMG_02b.txt"), "Renamed"));
  // A clean end leaves no journal behind; the counter is back at the start.
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path() / "undo"), {}), 1);
  EXPECT_EQ(app.CurrentCount, 1);

  // A copy run: the new files beside the old, a batch that deletes them. In
  // appending mode the older run stands behind the new one.
  settings.optCopyRename = kModeCopy;
  settings.txtPrefix = "C_";
  settings.chkNumbers = 0;
  const std::string first_batch = Batch();
  result = Run();
  EXPECT_EQ(result.done, 2);
  EXPECT_EQ(Names(), (std::vector<std::string>{"C_IMG_01a.txt", "C_IMG_02b.txt", "IMG_01a.txt",
                                               "IMG_02b.txt"}));
  EXPECT_EQ(dir.ReadFile("files/C_IMG_01a.txt"), "A");
  EXPECT_EQ(Batch(), BatchHeader(2, "Action of the script: This script deletes files") + "del \"" +
                         FilePath("C_IMG_01a.txt") + "\"\r\ndel \"" + FilePath("C_IMG_02b.txt") +
                         "\"\r\n" + first_batch);
  EXPECT_EQ(Log(), LogHeader(2) +
                       LogLine(FilePath("IMG_01a.txt"), FilePath("C_IMG_01a.txt"), "Created copy") +
                       LogLine(FilePath("IMG_02b.txt"), FilePath("C_IMG_02b.txt"), "Created copy"));

  // A test run changes nothing, lists each file and writes comment lines.
  SetOption("OverwriteUndoBatch", "1");
  settings.optCopyRename = kModeTest;
  settings.txtPrefix = "T_";
  interaction.Then(Answer::kYes);
  list.Clear();
  result = Run();
  EXPECT_EQ(result.mode, 2);
  EXPECT_EQ(Names().size(), 4u);
  ASSERT_EQ(interaction.test_results().size(), 4u);
  EXPECT_EQ(interaction.test_results()[0].present_name, "C_IMG_01a.txt");
  EXPECT_EQ(interaction.test_results()[0].new_name, "T_C_IMG_01a.txt");
  EXPECT_EQ(interaction.test_results()[0].folder, files().string());
  EXPECT_TRUE(WasAsked("Test successfull"));
  EXPECT_TRUE(Batch().starts_with(
      BatchHeader(4, "Action of the script: This script does'nt do any action") + "rem \"" +
      FilePath("T_C_IMG_01a.txt") + "\" \"" + FilePath("C_IMG_01a.txt") + "\"\r\n"));
  EXPECT_TRUE(Log().ends_with(
      LogLine(FilePath("IMG_02b.txt"), FilePath("T_IMG_02b.txt"), "Only test mode / no action")));
}

TEST_F(RunTest, ChangesOfCaseAndUnchangedNamesGoThroughATemporaryNameAndUndoToTheOldName) {
  AddFile("abc.txt", "1");
  AddFile("same.txt", "2");
  settings.chkReplace = 1;
  settings.txtSearchString = "abc";
  settings.txtReplaceString = "ABC";
  const RenameRunResult result = Run();
  EXPECT_EQ(result.done, 2);
  EXPECT_EQ(result.failed, 0);
  EXPECT_EQ(Names(), (std::vector<std::string>{"ABC.txt", "same.txt"}));
  EXPECT_EQ(dir.ReadFile("files/ABC.txt"), "1");
  EXPECT_NE(Batch().find("move \"" + FilePath("ABC.txt") + "\" \"" + FilePath("abc.txt") + "\""),
            std::string::npos);
}

TEST_F(RunTest, TakenNamesAreSkippedOrRenamedByTheDialogueAndNeverReplaced) {
  AddFile("a.txt", "a");
  AddFile("b.txt", "b");
  AddFile("c.txt", "c");
  AddFile("d.txt", "d");
  AddFile("X_a.txt", "taken a");
  AddFile("X_b.txt", "taken b");
  AddFile("X_c.txt", "taken c");
  AddFile("X_d.txt", "taken d");
  Prefix("X_");
  // a: another name; b: skip and tick "skip all further" so c and d go
  // without a question. The X_ files themselves get X_X_ names.
  interaction.Then(FileExistsAnswer{FileExistsChoice::kOk, "new_a.txt", false});
  interaction.Then(FileExistsAnswer{FileExistsChoice::kSkip, "", true});
  const RenameRunResult result = Run();
  EXPECT_EQ(interaction.pending(), 0u);
  EXPECT_EQ(result.skipped, 3);
  EXPECT_EQ(dir.ReadFile("files/new_a.txt"), "a");
  EXPECT_EQ(dir.ReadFile("files/b.txt"), "b");
  EXPECT_EQ(dir.ReadFile("files/c.txt"), "c");
  EXPECT_EQ(dir.ReadFile("files/X_X_b.txt"), "taken b");
  EXPECT_EQ(Option("SkipExistingFiles"), "0");
  EXPECT_NE(Log().find("(No action, file skipped!)"), std::string::npos);
}

TEST_F(RunTest, CancelInTheFileExistsDialogueEndsTheRun) {
  AddFile("a.txt");
  AddFile("b.txt");
  AddFile("X_a.txt");
  Prefix("X_");
  interaction.Then(FileExistsAnswer{FileExistsChoice::kCancel, "", false});
  const RenameRunResult result = Run();
  EXPECT_TRUE(result.cancelled);
  EXPECT_EQ(result.done, 0);
  EXPECT_EQ(Names(), (std::vector<std::string>{"X_a.txt", "a.txt", "b.txt"}));
  EXPECT_FALSE(app.CancelRun);
  EXPECT_NE(Log().find("Operation cancelled by user!"), std::string::npos);
}

struct PreambleStop {
  const char* name;
  void (*change)(RenameSettings&);
  const char* title;
  const char* text;
  const char* focus;
};

const PreambleStop kStops[] = {
    {"CutLeftNotNumeric",
     [](RenameSettings& s) {
       s.chkCutLeft = 1;
       s.txtLeftCut = "x";
     },
     "Chars?", "Please enter only numeric chars.", "txtLeftCut"},
    {"ToCharNotNumeric",
     [](RenameSettings& s) {
       s.chkCutMiddle = 1;
       s.txtFromChar = "1";
       s.txtToChar = "";
     },
     "Chars?", "Please enter only numeric chars.", "txtToChar"},
    {"AddCountNotNumeric",
     [](RenameSettings& s) {
       s.chkNumbers = 1;
       s.txtAddCount = "one";
     },
     "Chars?", "Please enter only numeric chars.", "txtAddCount"},
    {"StepBelowOne",
     [](RenameSettings& s) {
       s.chkNumbers = 1;
       s.txtStep = "0";
     },
     "Chars?", "Width of steps must at least be 1.", "txtStep"},
    {"DotInExtensionUnticked", [](RenameSettings& s) { s.txtExtension = "t.xt"; }, "File extension",
     "File extension should not contains points!", "txtExtension"},
    {"EmptySearch",
     [](RenameSettings& s) {
       s.chkReplace = 1;
       s.txtSearchString = "";
     },
     "Search textfield", "Search textfield could  not be empty.", "txtSearchString"},
    {"OnlyNumbering",
     [](RenameSettings& s) {
       s.chkPrefix = 0;
       s.chkNumbers = 1;
     },
     "No options selected", "No options for renaming selected. This action can't be executed.", ""},
    {"ForbiddenCharacter", [](RenameSettings& s) { s.txtPrefix = "a:b"; }, "Filename",
     "You have entered an not allowed char for the filename. Pleas do NOT use one of this chars:  "
     "*,\\,/,\",?,:",
     "txtPrefix"},
};

TEST_F(RunTest, EachCheckBeforeTheRunStopsItWithItsMessageAndTouchesNothing) {
  AddFile("a.txt");
  for (const PreambleStop& stop : kStops) {
    SCOPED_TRACE(stop.name);
    RenameSettings fresh;
    settings = fresh;
    Prefix("p_");
    stop.change(settings);
    list.Clear();
    const std::size_t asked_before = interaction.asked().size();
    const RenameRunResult result = Run();
    EXPECT_TRUE(result.stopped);
    EXPECT_EQ(result.stop_title, stop.title);
    EXPECT_EQ(result.stop_message, stop.text);
    EXPECT_EQ(result.focus_field, stop.focus);
    ASSERT_EQ(interaction.asked().size(), asked_before + 1);
    EXPECT_EQ(interaction.asked().back().text, stop.text);
    EXPECT_EQ(Names(), std::vector<std::string>{"a.txt"});
  }
  // No row selected.
  settings = RenameSettings();
  Prefix("p_");
  Fill();
  list.DeselectAll();
  const RenameRunResult none =
      StartRename({app, settings, list, options, interaction, messages, clock, log_undo});
  EXPECT_EQ(none.stop_message, "No files to rename selected!");
  // An add count of 0 or below is corrected, not refused.
  settings.chkNumbers = 1;
  settings.txtAddCount = "-3";
  list.Clear();
  EXPECT_FALSE(Run().stopped);
  EXPECT_EQ(settings.txtAddCount, "1");
}

TEST_F(RunTest, TheConfirmationChoosesBetweenRenameTestAndCancel) {
  AddFile("a.txt");
  Prefix("p_");
  app.BatchMode = false;
  interaction.Then(StartRenamingChoice::kCancel);
  RenameRunResult result = Run();
  EXPECT_TRUE(result.stopped);
  EXPECT_TRUE(result.cancelled);
  interaction.Then(StartRenamingChoice::kTest).Then(Answer::kNo);
  list.Clear();
  result = Run();
  EXPECT_EQ(result.mode, 2);
  EXPECT_EQ(Names(), std::vector<std::string>{"a.txt"});
  interaction.Then(StartRenamingChoice::kRename);
  list.Clear();
  result = Run();
  EXPECT_EQ(Names(), std::vector<std::string>{"p_a.txt"});
}

TEST_F(RunTest, AFailedFileIsLoggedAndAskedAboutAndNoStopsTheRun) {
  AddFile("a.txt");
  AddFile("b.txt");
  AddFile("c.txt");
  Fill();
  std::filesystem::remove(files() / "a.txt");  // vanished after the fill
  Prefix("p_");
  interaction.Then(Answer::kYes);  // continue after a.txt
  RenameRunResult result =
      StartRename({app, settings, list, options, interaction, messages, clock, log_undo});
  EXPECT_EQ(result.failed, 1);
  EXPECT_EQ(result.done, 2);
  ASSERT_FALSE(interaction.asked().empty());
  EXPECT_EQ(interaction.asked()[0].title, "Error");
  EXPECT_EQ(interaction.asked()[0].text,
            "Error occured while renaming:\r\n\r\n53: File not found (" + FilePath("a.txt") +
                " -> " + FilePath("p_a.txt") + ")\r\n\r\nContinue with next file?");
  EXPECT_NE(Log().find("Renaming of \"! ERROR: " + FilePath("a.txt") + "\" to \"" +
                       FilePath("p_a.txt") + "\" (53: File not found; Renamed)"),
            std::string::npos);
  // The batch holds no line for the file that failed.
  EXPECT_EQ(Batch().find(FilePath("a.txt")), std::string::npos);

  // No ends the run after the failed file.
  list.Clear();
  Fill();
  std::filesystem::remove(files() / "p_b.txt");
  interaction.Then(Answer::kNo);
  result = StartRename({app, settings, list, options, interaction, messages, clock, log_undo});
  EXPECT_EQ(result.failed, 1);
  EXPECT_EQ(result.done, 0);
  EXPECT_TRUE(result.cancelled);
  EXPECT_EQ(Names(), std::vector<std::string>{"p_c.txt"});
}

TEST_F(RunTest, NamesTheFileSystemCannotTakeAreErrorsOfTheirFile) {
  AddFile("a.txt");
  AddFile("b.txt");
  settings.chkCompleteName = 1;
  settings.txtCompleteName = std::string(300, 'n');
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kYes);
  RenameRunResult result = Run();
  EXPECT_EQ(result.failed, 2);
  EXPECT_EQ(Names(), (std::vector<std::string>{"a.txt", "b.txt"}));
  EXPECT_NE(Log().find("52: Bad file name"), std::string::npos);

  settings.txtCompleteName = "..";
  settings.chkExtension = 1;  // ".." + "" without the dot
  list.Clear();
  result = Run();
  EXPECT_EQ(Names(), (std::vector<std::string>{"a.txt", "b.txt"}));
  EXPECT_EQ(result.done, 0);
  EXPECT_EQ(result.failed, 2);
}

TEST_F(RunTest, CancelIsReadOncePerFileAndKeepsWhatWasDone) {
  for (const char* name : {"a", "b", "c", "d", "e"}) AddFile(std::string(name) + ".txt");
  Prefix("p_");
  Fill();
  interaction.PressCancelAtPoll(2);
  const RenameRunResult result =
      StartRename({app, settings, list, options, interaction, messages, clock, log_undo});
  EXPECT_TRUE(result.cancelled);
  EXPECT_EQ(result.done, 2);
  EXPECT_EQ(Names(), (std::vector<std::string>{"c.txt", "d.txt", "e.txt", "p_a.txt", "p_b.txt"}));
  // Esc is read after the file's entries: the two files done are logged.
  EXPECT_NE(Log().find(FilePath("p_b.txt")), std::string::npos);
  EXPECT_EQ(Log().find(FilePath("p_c.txt")), std::string::npos);
  EXPECT_EQ(interaction.caption(), "Tarnwick");
  EXPECT_FALSE(interaction.progress_visible());
  EXPECT_TRUE(interaction.controls_enabled());
}

TEST_F(RunTest, KeepOldFiledateGivesTheRenamedFileTheDateItHadBefore) {
  AddFile("a.txt");
  struct utimbuf old_time;
  old_time.actime = old_time.modtime = 1000000000;  // 2001-09-09
  ASSERT_EQ(::utime(FilePath("a.txt").c_str(), &old_time), 0);
  SetOption("KeepOldFiledate", "1");
  SetOption("DateFormat", "dd.mm.yyyy");
  Prefix("p_");
  EXPECT_EQ(Run().done, 1);
  struct stat info;
  ASSERT_EQ(::stat(FilePath("p_a.txt").c_str(), &info), 0);
  EXPECT_EQ(info.st_mtime, 1000000000);
  // A copy gets the date of its source.
  ASSERT_EQ(::utime(FilePath("p_a.txt").c_str(), &old_time), 0);
  settings.optCopyRename = kModeCopy;
  settings.txtPrefix = "c_";
  list.Clear();
  EXPECT_EQ(Run().done, 1);
  ASSERT_EQ(::stat(FilePath("c_p_a.txt").c_str(), &info), 0);
  EXPECT_EQ(info.st_mtime, 1000000000);
}


TEST_F(RunTest, AnUndoFolderThatCannotTakeTheJournalOnlyAsksAndTheRunGoesOn) {
  AddFile("a.txt");
  AddFile("b.txt");
  SetOption("UndoFilePath", (dir.path() / "missing").string());
  Prefix("p_");
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kNo);  // keep undo on
  const RenameRunResult result = Run();
  EXPECT_EQ(result.done, 2);
  EXPECT_EQ(result.failed, 0);
  EXPECT_EQ(Names(), (std::vector<std::string>{"p_a.txt", "p_b.txt"}));
  EXPECT_TRUE(WasAsked("Logfile"));
  EXPECT_NE(Option("WriteUndoList"), "0");
  // The journal lived in the program's own undo folder, and a clean end removed it.
  EXPECT_TRUE(JournalsInFolder(dir.path() / "undo").empty());

  // Yes switches undo off, and the run goes on as well.
  list.Clear();
  Prefix("q_");
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kYes);
  EXPECT_EQ(Run().done, 2);
  EXPECT_EQ(Option("WriteUndoList"), "0");
  EXPECT_EQ(Names(), (std::vector<std::string>{"q_p_a.txt", "q_p_b.txt"}));
}

// A new name with nothing in front of its extension is refused in every mode;
// the file keeps its name, and it counts as failed.
TEST_F(RunTest, ANameWithNothingBeforeItsExtensionIsNeverWritten) {
  AddFile("photo.jpg", "p");
  AddFile("README", "r");
  settings.chkCompleteName = 1;
  settings.txtCompleteName = "";  // photo.jpg -> ".jpg", README -> "" (skipped)
  RenameRunResult result = Run();
  EXPECT_EQ(Names(), (std::vector<std::string>{"README", "photo.jpg"}));
  EXPECT_EQ(result.done, 0);
  EXPECT_EQ(result.failed, 1);
  EXPECT_EQ(result.skipped, 1);
  EXPECT_NE(Log().find(LogLine(FilePath("photo.jpg"),
                               FilePath("<Could not be written, filename is empty>"), "Renamed")),
            std::string::npos);

  settings.txtCompleteName = ".";  // README -> "."; photo.jpg -> "..jpg" keeps a "."
  list.Clear();
  result = Run();
  EXPECT_EQ(Names(), (std::vector<std::string>{"..jpg", "README"}));
  EXPECT_EQ(result.done, 1);
  EXPECT_EQ(result.failed, 1);

  // A copy and a test are refused alike.
  std::filesystem::rename(files() / "..jpg", files() / "photo.jpg");
  settings.txtCompleteName = "";
  settings.optCopyRename = kModeCopy;
  list.Clear();
  result = Run();
  EXPECT_EQ(Names(), (std::vector<std::string>{"README", "photo.jpg"}));
  EXPECT_EQ(result.failed, 1);
  settings.optCopyRename = kModeTest;
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kYes);  // show the list
  list.Clear();
  result = Run();
  ASSERT_EQ(interaction.test_results().size(), 1u);  // README is skipped before the list
  EXPECT_EQ(interaction.test_results()[0].present_name, "photo.jpg");
  EXPECT_EQ(interaction.test_results()[0].new_name, "<Could not be written, filename is empty>");
}

// An error before a file's own step is not logged with the word of the file
// before it; a skipped file in a copy run never gets a "del" line, which
// would delete the untouched file when the batch runs.
TEST_F(RunTest, EntriesOfFailedAndSkippedFilesNeverSayWhatHappenedToAnother) {
  AddFile("a.txt");
  AddFile("b.txt");
  settings.chkNumbers = 1;
  settings.txtStartNumber = "2147483646";  // the second file's number overflows
  Prefix("p_");
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kYes);
  RenameRunResult result = Run();
  EXPECT_EQ(result.done, 1);
  EXPECT_EQ(result.failed, 1);
  const std::string log = Log();
  const std::size_t error = log.find("6: Overflow");
  ASSERT_NE(error, std::string::npos) << log;
  EXPECT_EQ(log.substr(error, log.find('\n', error) - error).find("Renamed"), std::string::npos)
      << log;

  for (const std::string& name : Names()) std::filesystem::remove(files() / name);
  AddFile("a.txt", "a");
  AddFile("b.txt", "b");
  AddFile("c_b.txt", "taken");
  settings = RenameSettings{};
  Prefix("c_");
  settings.optCopyRename = kModeCopy;
  interaction.Then(FileExistsAnswer{FileExistsChoice::kSkip, "", false});
  result = Run();
  EXPECT_EQ(result.done, 2);  // c_a.txt and c_c_b.txt
  EXPECT_EQ(result.skipped, 1);
  EXPECT_EQ(Batch().find("del \"" + FilePath("b.txt") + "\""), std::string::npos) << Batch();
  EXPECT_EQ(dir.ReadFile("files/b.txt"), "b");
}

}  // namespace
}  // namespace tarnwick::testing
