// Carrying out an undo batch: order, no overwriting, escaped names, dry runs.
#include "core/undo_runner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "core/journal_format.h"
#include "persist/undo_line.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {
namespace {

class UndoRunnerTest : public ::testing::Test {
 protected:
  std::string Path(const std::string& name) const { return (dir.path() / name).string(); }
  void Write(const std::string& name, const std::string& bytes = "x") const {
    std::ofstream(dir.path() / name, std::ios::binary) << bytes;
  }
  bool Exists(const std::string& name) const { return std::filesystem::exists(dir.path() / name); }
  std::string Line(const std::string& from, const std::string& to, const char* command = "move") {
    return UndoEntryLine(Path(from), Path(to), command) + "\r\n";
  }
  UndoReport Undo(UndoRunOptions options = {}) {
    steps.clear();
    return RunUndoBatch(Path("u.bat"), options, [&](const UndoStep& s) { steps.push_back(s); });
  }

  TempDir dir;
  std::vector<UndoStep> steps;
};

TEST_F(UndoRunnerTest, NewestRunFirstEachFromItsLastLineAndNeverOverwriting) {
  // Run 1 (older): a -> b. Run 2 (newer, stands first): b -> c, then x -> b.
  Write("c", "was a");
  Write("b", "was x");
  Write("copy");
  Write("u.bat", " \r\n@echo off\r\npause\r\necho on\r\n" + Line("b", "c") + Line("x", "b") +
                     Line("orig", "copy", "del") + Line("t", "t2", "rem") +
                     " \r\n@echo off\r\necho on\r\n" + Line("a", "b"));
  UndoReport report = Undo({.dry_run = true});
  EXPECT_EQ(report.runs_in_batch, 2);
  EXPECT_TRUE(Exists("c"));  // a dry run changes nothing
  report = Undo();
  EXPECT_EQ(report.failed, 0);
  EXPECT_EQ(report.done, 4);
  EXPECT_EQ(report.skipped, 1);
  EXPECT_EQ(ReadWholeFile(dir.path() / "a"), "was a");
  EXPECT_EQ(ReadWholeFile(dir.path() / "x"), "was x");
  EXPECT_FALSE(Exists("copy"));
  ASSERT_EQ(steps.size(), 5u);
  EXPECT_EQ(steps[0].line.command, "rem");
  EXPECT_EQ(steps[0].run, 1);
  EXPECT_EQ(steps[4].run, 2);

  // Again: "c" moves to the free name "b", but "b" cannot go on to the
  // taken "a": nothing is replaced.
  Write("c", "new c");
  report = Undo();
  EXPECT_EQ(report.failed, 3);
  EXPECT_EQ(ReadWholeFile(dir.path() / "b"), "new c");
  EXPECT_EQ(ReadWholeFile(dir.path() / "a"), "was a");
}

TEST_F(UndoRunnerTest, TheNewestRunCanBeTakenOutAfterItWasUndone) {
  // Newest run first: b -> c; then the older run: a -> b.
  const std::string older = "@echo off\r\necho on\r\n" + Line("a", "b");
  Write("u.bat", " \r\n@echo off\r\necho on\r\n" + Line("b", "c") + older);
  Write("c", "was a");
  EXPECT_EQ(Undo({.runs = 1}).done, 1);
  ASSERT_EQ(DropNewestUndoRun(Path("u.bat")).number, 0);
  EXPECT_EQ(ReadWholeFile(dir.path() / "u.bat"), older);
  // The next undo reaches the older run.
  EXPECT_EQ(Undo({.runs = 1}).done, 1);
  EXPECT_EQ(ReadWholeFile(dir.path() / "a"), "was a");
  // The last run taken out leaves no batch.
  ASSERT_EQ(DropNewestUndoRun(Path("u.bat")).number, 0);
  EXPECT_FALSE(Exists("u.bat"));
  // Lines before the first header form the newest run of their own.
  EXPECT_EQ(WithoutNewestRun(Line("x", "y") + older), older);
  EXPECT_EQ(WithoutNewestRun(older), "");
}

TEST_F(UndoRunnerTest, RunsLimitEscapedNamesAndRefusedPaths) {
  const std::string odd = "q\"uo\nte";
  Write(odd + "2", "odd");
  Write("n", "plain");
  Write("u.bat", "@echo off\r\n" + Line(odd, odd + "2") + "@echo off\r\n" + Line("o", "n") +
                     "move \"relative\" \"x\"\r\n");
  EXPECT_NE(ReadWholeFile(dir.path() / "u.bat").find("rem tarnwick-escaped"), std::string::npos);
  UndoReport report = Undo({.runs = 1});
  EXPECT_EQ(report.runs_done, 1);
  EXPECT_EQ(ReadWholeFile(dir.path() / odd), "odd");
  EXPECT_TRUE(Exists("n"));
  report = Undo({.runs = 2});
  EXPECT_TRUE(Exists("o"));
  EXPECT_EQ(report.failed, 2);  // the relative path, and the escaped line done already
}

TEST_F(UndoRunnerTest, AnInterruptedRunIsCompletedFromItsJournalFirst) {
  Write("u.bat", " \r\n@echo off\r\n");
  Write("moved", "m");
  const std::string journal = Path("u.bat") + ".77.journal";
  std::ofstream(journal) << JournalHeaderText(Path("u.bat"), "")
                         << JournalStepText({JournalStepKind::kMove, Path("orig"), Path("moved")});
  UndoReport report = Undo({.dry_run = true});
  EXPECT_EQ(report.done, 1);
  EXPECT_TRUE(std::filesystem::exists(journal));
  report = Undo();
  EXPECT_EQ(report.recoveries.size(), 1u);
  EXPECT_FALSE(std::filesystem::exists(journal));
  EXPECT_EQ(ReadWholeFile(dir.path() / "orig"), "m");
  EXPECT_EQ(RunUndoBatch(Path("missing.bat"), {}, {}).status.number, 53);
}

}  // namespace
}  // namespace tarnwick::testing
