// Rename from a text file: the reading of the names, the validation and the
// count check, and the run of the names with its log and undo batch.
#include "tools/rename_from_text.h"

#include <filesystem>

#include "core/run_test_fixture.h"
#include "core/undo_runner.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

class RenameFromTextTest : public RunTest {
 protected:
  NameTextFile NameText(const std::string& bytes) {
    dir.WriteFile("names.txt", bytes);
    return ReadNameTextFile((dir.path() / "names.txt").string(), messages);
  }

  RenameRunResult RunNames(const std::string& bytes) {
    Fill();
    const NameTextFile file = NameText(bytes);
    const NameTextCheck check = CheckNameTextFile(file, list.SelectedCount(), messages);
    EXPECT_TRUE(check.ok) << check.message;
    return RenameFromTextFile({app, settings, list, options, interaction, messages, clock, log_undo},
                              file);
  }
};

TEST_F(RenameFromTextTest, RowsEndAtCrLfOrAtLfAndAreTakenAsUtf8OrWindows1252) {
  NameTextFile file = NameText("one\r\ntwo\r\n");
  EXPECT_EQ(file.rows, (std::vector<std::string>{"one", "two", ""}));
  EXPECT_EQ(file.size, 10u);
  file = NameText("one\ntwo\n");  // a Linux text file: its last LF ends the last row
  EXPECT_EQ(file.rows, (std::vector<std::string>{"one", "two"}));
  EXPECT_TRUE(file.lf_only);
  file = NameText("\xEF\xBB\xBF" "Caf\xC3\xA9\r\nna\xC3\xAFve");
  EXPECT_TRUE(file.utf8);
  EXPECT_EQ(file.rows, (std::vector<std::string>{"Caf\xC3\xA9", "na\xC3\xAFve"}));
  file = NameText("Caf\xE9 \x80");  // Windows-1252: é and the euro sign
  EXPECT_FALSE(file.utf8);
  EXPECT_EQ(file.rows, (std::vector<std::string>{"Caf\xC3\xA9 \xE2\x82\xAC"}));
  EXPECT_TRUE(NameText("").rows.empty());
  EXPECT_NE(NameText(std::string("JFIF\0\x01", 6)).error.find("not a text file"), std::string::npos);
  EXPECT_NE(ReadNameTextFile((dir.path() / "none.txt").string(), messages).error.find("cannot be read"),
            std::string::npos);
}

TEST_F(RenameFromTextTest, TheReportNamesEachRefusedCharacterAtItsRowAndPlace) {
  const NameTextFile file = NameText("good\r\nta\tb\r\nw\xC3\xA4h?\r\na/b:c");
  EXPECT_EQ(NameTextReport(file.rows, messages),
            "Row 1, Char 3:\t-> \t [ASCII: 9]\r\n"
            "Row 2, Char 4:\t-> ? [ASCII: 63]\r\n"
            "Row 3, Char 2:\t-> / [ASCII: 47]\r\n"
            "Row 3, Char 4:\t-> : [ASCII: 58]\r\n");
  const NameTextCheck check = CheckNameTextFile(file, 4, messages);
  EXPECT_FALSE(check.ok);
  EXPECT_EQ(check.title, "Failed validation");
  EXPECT_TRUE(check.message.starts_with(
      "The following invalid chars are found in text file while validating:\r\n\r\nRow 1"));
  EXPECT_TRUE(check.message.ends_with("\r\n\r\nPlease correct the errors and load the file again!"));
}

TEST_F(RenameFromTextTest, TheCountMustMatchInBothDirectionsAndATrailingCrLfCounts) {
  const NameTextFile trailing = NameText("a\r\nb\r\n");
  NameTextCheck check = CheckNameTextFile(trailing, 2, messages);
  EXPECT_FALSE(check.ok);
  EXPECT_TRUE(check.message.starts_with(
      "Attention: The amount of selected files in the main dialog must be equal to the rows in "
      "the text file to execute the job!\r\n\r\n"));
  EXPECT_FALSE(CheckNameTextFile(trailing, 4, messages).ok);
  EXPECT_TRUE(CheckNameTextFile(trailing, 3, messages).ok);
  // Kept: the blank a last line end leaves counts as one more piece.
  EXPECT_EQ(CountNameTextWords(NameText("New  York\r\nold town  hall\r\n")), 6);
  EXPECT_EQ(CountNameTextWords(NameText("New  York\r\nold town  hall")), 5);
  EXPECT_EQ(CountNameTextWords(NameText("")), 0);
  EXPECT_EQ(CountNameTextWords(NameText("one\ntwo three\n")), 3);
}

TEST_F(RenameFromTextTest, NamesGoByPositionKeepTheOldExtensionAndUndoTakesThemBack) {
  for (const char* name : {"a.jpg", "b.jpg", "c.txt", "d.txt"}) AddFile(name);
  settings.optCopyRename = kModeRename;
  const RenameRunResult result = RunNames("Beach\r\nsunset.png\r\nC.TXT\r\nnotes");
  EXPECT_EQ(result.done, 4);
  EXPECT_EQ(Names(), (std::vector<std::string>{"Beach.jpg", "C.TXT", "notes.txt", "sunset.png"}));
  const std::string log = Log();
  EXPECT_NE(log.find("\"" + FilePath("a.jpg") + "\" to \"" + FilePath("Beach.jpg") + "\" (Renamed)"),
            std::string::npos)
      << log;

  const UndoReport undo = RunUndoBatch(dir.path() / "undo" / "UndoBatch.bat", {}, nullptr);
  EXPECT_EQ(undo.failed, 0);
  EXPECT_EQ(Names(), (std::vector<std::string>{"a.jpg", "b.jpg", "c.txt", "d.txt"}));
}

// A name the file system cannot take fails alone: reported and logged, the
// file keeps its name and the other files are renamed.
TEST_F(RenameFromTextTest, ANameTooLongForTheFileSystemFailsAlone) {
  for (const char* name : {"a.txt", "b.txt"}) AddFile(name);
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kYes);
  const RenameRunResult result = RunNames(std::string(300, 'n') + "\r\nshort");
  EXPECT_EQ(result.failed, 1);
  EXPECT_EQ(result.done, 1);
  EXPECT_EQ(Names(), (std::vector<std::string>{"a.txt", "short.txt"}));
  EXPECT_NE(Log().find("! ERROR:"), std::string::npos) << Log();
}

TEST_F(RenameFromTextTest, TakenAndEmptyNamesAndTheOtherModes) {
  for (const char* name : {"a.jpg", "b.jpg", "c.jpg"}) AddFile(name);
  AddFile("keep.jpg");
  Fill();
  list.DeselectAll();
  for (std::size_t row = 0; row < list.size(); ++row) {
    if (list.rows()[row].name != "keep.jpg") list.Select(row);
  }
  SetOption("SkipExistingFiles", "0");
  interaction.SetDefault(QuestionKind::kFileExists, FileExistsAnswer{FileExistsChoice::kSkip, {}, false});
  const NameTextFile file = NameText("keep\r\n\r\nfree");
  ASSERT_TRUE(CheckNameTextFile(file, 3, messages).ok);
  const RenameRunResult result =
      RenameFromTextFile({app, settings, list, options, interaction, messages, clock, log_undo}, file);
  EXPECT_EQ(result.done + result.skipped + result.failed, 3);
  EXPECT_EQ(Names(), (std::vector<std::string>{"a.jpg", "b.jpg", "free.jpg", "keep.jpg"}));
  EXPECT_NE(Log().find("<Could not be written, filename is empty>"), std::string::npos) << Log();

  settings.optCopyRename = kModeCopy;
  RunNames("x\r\ny\r\nz\r\nw");
  EXPECT_EQ(Names().size(), 8u);
  settings.optCopyRename = 2;  // test
  const std::vector<std::string> before = Names();
  RunNames("1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8");
  EXPECT_EQ(Names(), before);
  EXPECT_NE(Batch().find("rem "), std::string::npos);
}

}  // namespace
}  // namespace tarnwick::testing
