// Copy and move of the selected rows into a folder, the batch script of the
// same, and the date step on the way.
#include "tools/copy_move.h"

#include <signal.h>
#include <sys/resource.h>

#include <filesystem>

#include "core/file_date_time_local.h"
#include "core/run_test_fixture.h"
#include "platform/file_times.h"
#include "tools/copy_move_batch.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

class CopyMoveTest : public RunTest {
 protected:
  CopyMoveTest() {
    fs::create_directories(target());
    SetOption("LogOnlyRename", "0");
    for (const char* name : {"a.txt", "b.txt", "c.txt"}) AddFile(name, name);
    Fill();
  }

  fs::path target() const { return dir.path() / "target"; }

  CopyMoveChoices Choices(bool move, bool overwrite = false) {
    CopyMoveChoices choices;
    choices.move = move;
    choices.overwrite = overwrite;
    choices.target_folder = target().string();
    return choices;
  }

  ToolJobResult Job(const CopyMoveChoices& choices) {
    return CopyMoveFiles({app, settings, list, options, interaction, messages, clock, log_undo},
                         choices);
  }

  std::string Target(const std::string& name) const { return ReadWholeFile(target() / name); }
};

TEST_F(CopyMoveTest, ACopyNeverReplacesUnlessAskedAndLogsEachFile) {
  dir.WriteFile("target/b.txt", "older");
  ToolJobResult result = Job(Choices(false));
  EXPECT_EQ(result.done, 2);
  EXPECT_EQ(result.failed, 1);
  ASSERT_EQ(result.failures.size(), 1u);
  EXPECT_NE(result.failures[0].find("b.txt: 58: File already exists"), std::string::npos);
  EXPECT_EQ(Target("a.txt"), "a.txt");
  EXPECT_EQ(Target("b.txt"), "older");
  EXPECT_EQ(Names(), (std::vector<std::string>{"a.txt", "b.txt", "c.txt"}));
  const std::string log = Log();
  EXPECT_NE(log.find("Copying file \"" + FilePath("a.txt") + "\" [\"" +
                     (target() / "a.txt").string() + "\"]"),
            std::string::npos)
      << log;
  EXPECT_NE(log.find("! ERROR: \"" + (target() / "b.txt").string() + "\" (58: File already exists)"),
            std::string::npos)
      << log;

  result = Job(Choices(false, true));
  EXPECT_EQ(result.done, 3);
  EXPECT_EQ(Target("b.txt"), "b.txt");
}

TEST_F(CopyMoveTest, AMoveOntoATakenNameLeavesBothFilesUnlessOverwriteIsOn) {
  dir.WriteFile("target/b.txt", "older");
  ToolJobResult result = Job(Choices(true));
  EXPECT_EQ(result.done, 2);
  EXPECT_EQ(result.failed, 1);
  EXPECT_EQ(Names(), (std::vector<std::string>{"b.txt"}));
  EXPECT_EQ(Target("b.txt"), "older");
  EXPECT_EQ(Target("a.txt"), "a.txt");

  Fill();
  result = Job(Choices(true, true));
  EXPECT_EQ(result.done, 1);
  EXPECT_TRUE(Names().empty());
  EXPECT_EQ(Target("b.txt"), "b.txt");
}

TEST_F(CopyMoveTest, ATargetFolderThatCannotTakeTheFilesIsRefusedBeforeTheJob) {
  CopyMoveChoices choices = Choices(false);
  choices.target_folder = (dir.path() / "no such folder").string();
  EXPECT_NE(CheckCopyMoveTarget(choices, messages).find("The target directory does not exist:"),
            std::string::npos);
  choices.target_folder = FilePath("a.txt");  // a file, not a folder
  EXPECT_FALSE(CheckCopyMoveTarget(choices, messages).empty());
  EXPECT_TRUE(CheckCopyMoveTarget(Choices(false), messages).empty());
}

TEST_F(CopyMoveTest, AVanishedSourceAndAFullDiskFailAloneAndLeaveNoPartialCopy) {
  fs::remove(FilePath("a.txt"));  // gone since the list was filled
  AddFile("c.txt", std::string(256 * 1024, 'c'));
  // The disk "fills" after 64 KiB of any file this process writes.
  struct rlimit old_limit;
  getrlimit(RLIMIT_FSIZE, &old_limit);
  signal(SIGXFSZ, SIG_IGN);
  struct rlimit small = old_limit;
  small.rlim_cur = 64 * 1024;
  setrlimit(RLIMIT_FSIZE, &small);
  const ToolJobResult copied = Job(Choices(false));
  setrlimit(RLIMIT_FSIZE, &old_limit);
  signal(SIGXFSZ, SIG_DFL);
  EXPECT_EQ(copied.done, 1);  // b.txt
  EXPECT_EQ(copied.failed, 2);  // a.txt is gone, c.txt does not fit
  EXPECT_EQ(Target("b.txt"), "b.txt");
  EXPECT_EQ(ReadWholeFile(FilePath("c.txt")).size(), 256u * 1024);
  for (const auto& entry : fs::directory_iterator(target())) {
    EXPECT_NE(entry.path().filename().string(), "c.txt");
    EXPECT_FALSE(entry.path().filename().string().starts_with(".~twcopy")) << entry.path();
  }
}

TEST_F(CopyMoveTest, EscStopsTheJobBetweenTwoFiles) {
  interaction.PressCancelAtPoll(2);
  const ToolJobResult result = Job(Choices(false));
  EXPECT_TRUE(result.cancelled);
  EXPECT_EQ(result.done, 1);
  EXPECT_TRUE(fs::exists(target() / "a.txt"));
  EXPECT_FALSE(fs::exists(target() / "b.txt"));
}

TEST_F(CopyMoveTest, TheBatchScriptIsWhatItPromisesAndAppendsASecondHeader) {
  CopyMoveChoices choices = Choices(false);
  choices.batch_only = true;
  choices.batch_path = (dir.path() / "job.bat").string();
  ASSERT_EQ(Job(choices).done, 3);
  choices.move = true;
  choices.append_batch = true;
  list.DeselectAll();
  list.Select(0);
  ASSERT_EQ(Job(choices).done, 1);

  const std::string src = files().string(), dst = target().string();
  const std::string header =
      "@echo off\r\ncls\r\n"
      "echo Batchfile created with Tarnwick on 08.03.2004 10:15:05 [3 File(s)]\r\n"
      "echo Attention: You use this script on your own risk, please make a backup of your data "
      "before using it!\r\necho \r\npause\r\n";
  std::string expected = header;
  const char* names[] = {"a.txt", "b.txt", "c.txt"};
  for (int i = 0; i < 3; ++i) {
    const std::string from = "\"" + src + "/" + names[i] + "\"", to = "\"" + dst + "/" + names[i] + "\"";
    expected += "echo Copying file " + from + " to " + to + " [" + std::to_string(i + 1) +
                "/3] ...\r\ncopy " + from + " " + to + "\r\n";
  }
  std::string second = header;
  second.replace(second.find("[3 File(s)]"), 11, "[1 File(s)]");
  expected += second + "echo Rename file \"" + src + "/a.txt\" to \"" + dst +
              "/a.txt\" [1/1] ...\r\nmove \"" + src + "/a.txt\" \"" + dst + "/a.txt\"\r\n";
  EXPECT_EQ(ReadWholeFile(dir.path() / "job.bat"), expected);
  EXPECT_TRUE(fs::is_empty(target()));  // a script only
}

TEST(CopyMoveDates, SetPartsAloneOrShiftByCalendarUnits) {
  const vb::DateTime file{2023, 1, 31, 22, 30, 15};
  DateChange change;
  change.enabled = true;
  change.set_date = true;
  change.date = {2020, 2, 29, 1, 2, 3};
  change.time = {1899, 12, 30, 6, 7, 8};
  EXPECT_EQ(ChangedDate(change, file), (vb::DateTime{2020, 2, 29, 22, 30, 15}));
  change.set_date = false;
  change.set_time = true;
  EXPECT_EQ(ChangedDate(change, file), (vb::DateTime{2023, 1, 31, 6, 7, 8}));

  DateChange shift;
  shift.shift = DateShift::kAdd;
  shift.months = 1;
  shift.hours = 2;
  EXPECT_EQ(ChangedDate(shift, file), (vb::DateTime{2023, 3, 1, 0, 30, 15}))
      << "a month on 31 January is 28 February, two hours on 22:30 the next day";
  shift.shift = DateShift::kSubtract;
  shift.months = 0;
  shift.hours = 0;
  shift.years = 3;
  shift.seconds = 16;
  EXPECT_EQ(ChangedDate(shift, file), (vb::DateTime{2020, 1, 31, 22, 29, 59}));
  shift.years = 9000;
  EXPECT_FALSE(ChangedDate(shift, file).has_value());
}

TEST_F(CopyMoveTest, TheCopyTakesTheChangedDate) {
  CopyMoveChoices choices = Choices(false);
  choices.date.enabled = true;
  choices.date.set_date = true;
  choices.date.date = {2001, 9, 8, 0, 0, 0};
  choices.date.set_time = true;
  choices.date.time = {1899, 12, 30, 7, 6, 5};
  ASSERT_EQ(Job(choices).done, 3);
  const FileResult<FileTimes> times = GetFileTimes(target() / "b.txt");
  ASSERT_TRUE(times.ok());
  EXPECT_EQ(ToLocalStamp(times.value().last_write).date, (vb::DateTime{2001, 9, 8, 7, 6, 5}));
  EXPECT_NE(ToLocalStamp(GetFileTimes(FilePath("b.txt")).value().last_write).date.year, 2001);
}

TEST_F(CopyMoveTest, TheSavedFolderComesBackOnlyWhenTheTickWasOn) {
  CopyMoveChoices choices = Choices(false);
  choices.save_target = true;
  SaveCopyMoveFolder(options, choices);
  EXPECT_EQ(SavedCopyMoveFolder(options), target().string());
  choices.save_target = false;
  SaveCopyMoveFolder(options, choices);
  EXPECT_EQ(SavedCopyMoveFolder(options), "");
}

}  // namespace
}  // namespace tarnwick::testing
