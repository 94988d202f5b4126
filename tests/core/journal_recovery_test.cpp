// The journal of a run and the completion of an interrupted run's batch.
#include "core/journal_recovery.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "core/journal.h"
#include "core/journal_format.h"
#include "persist/undo_line.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {
namespace {

class JournalTest : public ::testing::Test {
 protected:
  std::string Path(const std::string& name) const { return (dir.path() / name).string(); }
  std::string batch() const { return Path("UndoBatch.bat"); }
  void Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(dir.path() / name, std::ios::binary) << bytes;
  }
  std::filesystem::path WriteJournal(const std::string& records,
                                     const std::string& older = "") const {
    const std::filesystem::path path = batch() + ".1.journal";
    Write(path.filename().string(), JournalHeaderText(batch(), older) + records);
    return path;
  }
  std::string Move(const std::string& from, const std::string& to) const {
    return JournalStepText({JournalStepKind::kMove, Path(from), Path(to)});
  }
  bool Exists(const std::string& name) const { return std::filesystem::exists(dir.path() / name); }

  TempDir dir;
};

TEST_F(JournalTest, RecordsReadBackAndATornLastLineDoesNotCount) {
  const std::string weird = "a \"b\"\nc\x01\xff";
  std::string bytes = JournalHeaderText("/u/UndoBatch.bat", "/tmp/TWRN1") +
                      JournalStepText({JournalStepKind::kMove, "/f/" + weird, "/f/new"}) +
                      JournalDoneText() + JournalStepText({JournalStepKind::kCopy, "/f/x", "/f/y"});
  JournalContent content = ParseJournal(bytes);
  EXPECT_TRUE(content.valid);
  EXPECT_EQ(content.batch_path, "/u/UndoBatch.bat");
  EXPECT_EQ(content.older_copy, "/tmp/TWRN1");
  EXPECT_EQ(content.settled, 1);
  ASSERT_EQ(content.open_steps.size(), 1u);
  EXPECT_EQ(content.open_steps[0].kind, JournalStepKind::kCopy);

  const std::string first = JournalHeaderText("/b", "") +
                            JournalStepText({JournalStepKind::kMove, "/f/" + weird, "/f/n"});
  EXPECT_EQ(ParseJournal(first).open_steps.at(0).from, "/f/" + weird);
  // A kill in the middle of a record leaves it without its line feed.
  content = ParseJournal(first + "done");
  EXPECT_EQ(content.settled, 0);
  EXPECT_EQ(content.open_steps.size(), 1u);
  EXPECT_FALSE(ParseJournal("not a journal\nmove a b\n").valid);
  EXPECT_FALSE(ParseJournal("").valid);
}

TEST_F(JournalTest, AMoveThatHappenedGetsItsLineAndOneThatDidNotGetsNone) {
  Write("UndoBatch.bat", " \r\n@echo off\r\n");
  Write("new.txt", "moved");
  Write("still.txt", "not moved");
  // The moved file's line; the second file's record came before its move.
  const auto journal = WriteJournal(Move("old.txt", "new.txt") + "done\n" + Move("a.txt", "b.txt"));
  JournalRecovery done = CompleteInterruptedRun(journal);
  EXPECT_EQ(done.outcome, JournalRecovery::Outcome::kCompleted);
  EXPECT_TRUE(done.lines_added.empty());  // old.txt was settled, a.txt never moved
  EXPECT_FALSE(std::filesystem::exists(journal));

  const auto second = WriteJournal(Move("still.txt", "moved.txt"));
  std::filesystem::rename(dir.path() / "still.txt", dir.path() / "moved.txt");
  done = CompleteInterruptedRun(second);
  ASSERT_EQ(done.lines_added.size(), 1u);
  EXPECT_EQ(done.lines_added[0], UndoEntryLine(Path("still.txt"), Path("moved.txt"), "move"));
  EXPECT_EQ(ReadWholeFile(batch()), " \r\n@echo off\r\n" + done.lines_added[0] + "\r\n");
  // The line the run had written already is not added twice.
  const auto third = WriteJournal(Move("still.txt", "moved.txt"));
  EXPECT_TRUE(CompleteInterruptedRun(third).lines_added.empty());
}

TEST_F(JournalTest, AChangeOfCaseGoesBackFromWhereverItsTwoMovesLeftIt) {
  Write("UndoBatch.bat", "");
  const std::string steps = Move("abc.txt", "~VBabc.tmp") + Move("~VBabc.tmp", "ABC.txt");
  // Stopped at the temporary name, before or after the second record.
  Write("~VBabc.tmp", "x");
  for (const std::string& records : {Move("abc.txt", "~VBabc.tmp"), steps}) {
    const JournalRecovery done = CompleteInterruptedRun(WriteJournal(records));
    ASSERT_EQ(done.lines_added.size(), 1u);
    EXPECT_EQ(done.lines_added[0], UndoEntryLine(Path("abc.txt"), Path("~VBabc.tmp"), "move"));
    Write("UndoBatch.bat", "");
  }
  // Both moves done: the file is under its new name.
  std::filesystem::rename(dir.path() / "~VBabc.tmp", dir.path() / "ABC.txt");
  JournalRecovery done = CompleteInterruptedRun(WriteJournal(steps));
  ASSERT_EQ(done.lines_added.size(), 1u);
  EXPECT_EQ(done.lines_added[0], UndoEntryLine(Path("abc.txt"), Path("ABC.txt"), "move"));
  // The second move failed and the file went back: nothing to take back.
  std::filesystem::rename(dir.path() / "ABC.txt", dir.path() / "abc.txt");
  done = CompleteInterruptedRun(WriteJournal(steps + Move("~VBabc.tmp", "abc.txt")));
  EXPECT_TRUE(done.lines_added.empty());
}

TEST_F(JournalTest, OnlyACopyTheRunMadeGetsItsDelLine) {
  Write("UndoBatch.bat", "");
  Write("src.txt", "data");
  std::filesystem::copy_file(dir.path() / "src.txt", dir.path() / "dst.txt");
  std::filesystem::last_write_time(dir.path() / "dst.txt",
                                   std::filesystem::last_write_time(dir.path() / "src.txt"));
  const std::string copy =
      JournalStepText({JournalStepKind::kCopy, Path("src.txt"), Path("dst.txt")});
  EXPECT_EQ(CompleteInterruptedRun(WriteJournal(copy)).lines_added.size(), 1u);
  Write("UndoBatch.bat", "");
  Write("dst.txt", "someone else's");
  EXPECT_TRUE(CompleteInterruptedRun(WriteJournal(copy)).lines_added.empty());
}

TEST_F(JournalTest, OlderRunsArePutBehindAndAHalfDoneAppendIsRedone) {
  Write("older.bat", "OLDER\r\n");
  Write("UndoBatch.bat", "NEW\r\nOLD");  // the run was killed while appending
  const auto journal = WriteJournal("finish 5\n", Path("older.bat"));
  const JournalRecovery done = CompleteInterruptedRun(journal);
  EXPECT_TRUE(done.older_runs_appended);
  EXPECT_EQ(ReadWholeFile(batch()), "NEW\r\nOLDER\r\n");
  // Without a finish record the older runs simply follow.
  Write("UndoBatch.bat", "NEW\r\n");
  EXPECT_EQ(PreviewCompletedBatch(WriteJournal("", Path("older.bat")), "NEW\r\n"),
            "NEW\r\nOLDER\r\n");
  // Killed before the batch was started anew: it holds the older runs alone.
  Write("UndoBatch.bat", "OLDER\r\n");
  EXPECT_FALSE(CompleteInterruptedRun(WriteJournal("", Path("older.bat"))).older_runs_appended);
  EXPECT_EQ(ReadWholeFile(batch()), "OLDER\r\n");
}

TEST_F(JournalTest, AJournalHeldByALiveRunIsLeftAlone) {
  FileStatus status;
  auto live = RunJournal::Begin(batch(), "", &status);
  ASSERT_TRUE(live) << status.description;
  ASSERT_TRUE(live->RecordStep({JournalStepKind::kMove, Path("a"), Path("b")}).ok());
  EXPECT_EQ(JournalsOfBatch(batch()).size(), 1u);
  EXPECT_EQ(CompleteInterruptedRun(live->path()).outcome,
            JournalRecovery::Outcome::kRunStillActive);
  EXPECT_TRUE(std::filesystem::exists(live->path()));
  live->Remove();
  EXPECT_TRUE(JournalsOfBatch(batch()).empty());
  Write("x.journal", "garbage\n");
  EXPECT_EQ(CompleteInterruptedRun(dir.path() / "x.journal").outcome,
            JournalRecovery::Outcome::kUnreadable);
}

}  // namespace
}  // namespace tarnwick::testing
