#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "log_undo_fixture.h"
#include "persist/snapshot_options.h"
#include "persist/snapshot_rename_settings.h"
#include "persist/snapshot_system.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

using LogFileTest = LogUndoTest;

TEST_F(LogFileTest, RenameEntriesAreWholeLinesWithCrLf) {
  log_.WriteLogFile("/p/old1.jpg", "/p/new1.jpg", "Renamed");
  log_.WriteLogFile("/p/old2.jpg", "/p/new2.jpg", "");
  EXPECT_EQ(LogText(),
            "-> [15.11.2026 20:11:00] Renaming of \"/p/old1.jpg\" to \"/p/new1.jpg\" (Renamed)\r\n"
            "-> [15.11.2026 20:11:00] Renaming of \"/p/old2.jpg\" to \"/p/new2.jpg\" \r\n");
}

TEST_F(LogFileTest, CancelAddsASecondLine) {
  app_.CancelRun = true;
  log_.WriteLogFile("/a", "/b", "Renamed");
  app_.run_active = true;
  log_.WriteLogFileTool("Copy", "done");
  EXPECT_EQ(LogText(),
            "-> [15.11.2026 20:11:00] Renaming of \"/a\" to \"/b\" (Renamed)\r\n"
            "Operation cancelled by user!\r\n"
            "-> [15.11.2026 20:11:00] Copy [done]\r\n"
            "Operation cancelled by user!\r\n");
}

TEST_F(LogFileTest, MasterSwitchOffWritesNothing) {
  Set("WriteLogFile", "0");
  log_.WriteLogFile("/a", "/b", "");
  log_.WriteRunLogHeader(3);
  Set("LogOnlyRename", "0");
  log_.WriteLogFileTool("Subject", "text");
  log_.WriteLogFileHeader(3);
  EXPECT_FALSE(std::filesystem::exists(LogPath()));
  EXPECT_TRUE(ask_.asked().empty());
}

TEST_F(LogFileTest, ToolLinesOutsideARunOnlyWhenAskedFor) {
  log_.WriteLogFileTool("Idle", "left out");
  app_.run_active = true;
  log_.WriteLogFileTool("During run", "kept");
  app_.run_active = false;
  Set("LogOnlyRename", "0");
  log_.WriteLogFileTool("Any time", "kept");
  EXPECT_EQ(LogText(),
            "-> [15.11.2026 20:11:00] During run [kept]\r\n"
            "-> [15.11.2026 20:11:00] Any time [kept]\r\n");
}

TEST_F(LogFileTest, DateFollowsTheDateFormatOption) {
  Set("DateFormat", "yyyy.mm.dd");
  log_.WriteLogFile("/a", "/b", "x");
  EXPECT_THAT(LogText(), StartsWith("-> [2026.11.15 20:11:00] "));
}

constexpr char kRunHeaderLastRunOnly[] =
    "\r\n\r\n#############################################################\r\n\r\n\r\n"
    "Logfile created by Tarnwick v2.97 on 15.11.2026 20:11:00\r\n"
    "Selected files: 2\r\n"
    "Remember: Only the last renaming action is logged here!\r\n"
    " \r\n";

TEST_F(LogFileTest, RunHeaderStartsTheLogAnewByDefault) {
  log_.WriteLogFile("/old", "/older", "");
  chmod(LogPath().c_str(), 0444);
  log_.WriteRunLogHeader(2);
  EXPECT_EQ(LogText(), kRunHeaderLastRunOnly);
}

TEST_F(LogFileTest, RunHeaderLetsTheLogGrowWhenMulti) {
  Set("LogFilePathMulti", "1");
  log_.WriteLogFile("/a", "/b", "");
  log_.WriteRunLogHeader(7);
  EXPECT_EQ(LogText(),
            "-> [15.11.2026 20:11:00] Renaming of \"/a\" to \"/b\" \r\n"
            "\r\n\r\n#############################################################\r\n\r\n\r\n"
            "Logfile created by Tarnwick v2.97 on 15.11.2026 20:11:00\r\n"
            "Selected files: 7\r\n"
            " \r\n");
}

TEST_F(LogFileTest, RunHeaderRepairsALogPathWhoseFolderIsGone) {
  Set("LogFilePath", (dir_.path() / "gone" / "my.log").string());
  log_.WriteRunLogHeader(2);
  EXPECT_EQ(Get("LogFilePath"), LogPath());
  EXPECT_EQ(LogText(), kRunHeaderLastRunOnly);
}

TEST_F(LogFileTest, ToolHeaderRepeatsTheReminderAndNeedsLogOnlyRenameOff) {
  log_.WriteLogFileHeader(1);
  EXPECT_FALSE(std::filesystem::exists(LogPath()));
  Set("LogOnlyRename", "0");
  log_.WriteLogFileHeader(1);
  EXPECT_EQ(LogText(),
            "\r\n\r\n#############################################################\r\n\r\n\r\n"
            "Logfile created by Tarnwick v2.97 on 15.11.2026 20:11:00\r\n"
            "Selected files: 1\r\n"
            "Remember: Only the last renaming action is logged here!\r\n"
            " \r\n"
            "Remember: Only the last renaming action is logged here!\r\n"
            " \r\n");
}

TEST_F(LogFileTest, UnwritableLogOffersToSwitchLoggingOff) {
  const std::string missing = (dir_.path() / "no such folder" / "x.log").string();
  Set("LogFilePath", missing);
  ask_.Then(Answer::kNo).Then(Answer::kYes);
  log_.WriteLogFile("/a", "/b", "");
  EXPECT_EQ(Get("WriteLogFile"), "");
  log_.WriteLogFile("/a", "/b", "");
  EXPECT_EQ(Get("WriteLogFile"), "0");
  log_.WriteLogFile("/a", "/b", "");

  ASSERT_EQ(ask_.asked().size(), 2u);
  const AnsweredQuestion& box = ask_.asked()[0];
  EXPECT_EQ(box.title, "Logfile");
  EXPECT_EQ(box.text, "Logfile can't be written.\r\n76: Path not found\r\n(" + missing +
                          ")\r\n\r\nWould you like to disable logging?");
  EXPECT_EQ(box.buttons, Buttons::kYesNo);
  EXPECT_EQ(box.icon, MessageIcon::kExclamation);
  EXPECT_EQ(box.topic, Topic::kDisableLogging);
  EXPECT_TRUE(ask_.failures().empty());
}

TEST_F(LogFileTest, HeadersNeverAsk) {
  // A folder where the log should be: no one, not even root, can append to it.
  const std::filesystem::path folder = dir_.path() / "a folder";
  std::filesystem::create_directories(folder);
  Set("LogFilePath", folder.string());
  Set("LogOnlyRename", "0");
  log_.WriteRunLogHeader(1);
  log_.WriteLogFileHeader(1);
  EXPECT_TRUE(ask_.asked().empty());
  ask_.Then(Answer::kNo);
  log_.WriteLogFileTool("Subject", "text");
  EXPECT_EQ(ask_.asked().size(), 1u);
}

TEST_F(LogFileTest, SystemLineWhenSwitchedOn) {
  SystemFacts facts;
  facts.computer = "box";
  facts.user = "ann";
  facts.cpu = "Some CPU";
  facts.os_name = "Debian GNU/Linux";
  facts.os_version = "12";
  facts.os_major = "6";
  facts.os_minor = "1";
  facts.os_build = "0";
  facts.service_pack = "18-amd64";
  facts.time_zone = "Europe/Berlin";
  facts.free_memory = 100;
  facts.total_memory = 200;
  facts.screen_width = 1920;
  facts.screen_height = 1080;
  facts.colour_depth = 24;
  Set("LogOnlyRename", "0");
  log_.LogSystemInfoLine(facts);
  EXPECT_FALSE(std::filesystem::exists(LogPath()));
  Set("LogSystemInfo", "1");
  log_.LogSystemInfoLine(facts);
  EXPECT_EQ(LogText(),
            "Systeminfo: Computer [box] | User [ann] | CPU [Some CPU] | OS [Debian GNU/Linux 12 "
            "6.1.0-18-amd64] | Administrative rights [False] | TZ [Europe/Berlin] | Memory [100 "
            "from 200 bytes] | Screen Resolution [1920x1080 (24bit)] | OS Path [/]\r\n\r\n");
}

TEST_F(LogFileTest, GatheredSystemFactsAreFilled) {
  const SystemFacts facts = GatherSystemFacts();
  EXPECT_FALSE(facts.computer.empty());
  EXPECT_FALSE(facts.os_major.empty());
  EXPECT_GT(facts.total_memory, 0u);
  EXPECT_LE(facts.free_memory, facts.total_memory);
}

TEST_F(LogFileTest, OptionsSnapshotPrintsEveryOptionWithItsDefault) {
  Set("LogOnlyRename", "0");
  Set("LogOptionSettings", "1");
  Set("Intervall", "9");
  Set("StretchSlide", "1");
  Set("SortOrderInternal3", "7");
  log_.LogOptionSettingsSnapshot(OptionSnapshotDefaults{"dd.mm.yyyy"});
  const std::string text = LogText();
  EXPECT_THAT(text, StartsWith("\r\nLogging current options [15.11.2026 20:11:00]\r\n"
                               "Options/View: 1\r\nOptions/View1: 1\r\nOptions/View2: 1\r\n"
                               "Icons: 1\r\nFullPic: 0\r\nOnlySelected: 0\r\nLoop: 1\r\n"
                               "Intervall: 9\r\nOnlySelected: 1\r\nMouseNext: 0\r\n"));
  EXPECT_THAT(text, HasSubstr("\r\nDateFormat: dd.mm.yyyy\r\n"));
  EXPECT_THAT(text, HasSubstr("\r\nSampleRefreshRate: Normal\r\nFileDateType: Created\r\n"));
  EXPECT_THAT(text, HasSubstr("\r\nLogOnlyRename: 0\r\n"));
  EXPECT_THAT(text, HasSubstr("\r\nUndoFilePath: " + state_.DefaultUndoFolder + "\r\n"));
  EXPECT_THAT(text, HasSubstr("\r\nLogFilePath: " + LogPath() + "\r\n"));
  EXPECT_THAT(text, HasSubstr("\r\nSettingsFilePath: \r\n\r\nSort order action 1: 1\r\n"));
  EXPECT_THAT(text, HasSubstr("Sort order action 3: 7\r\n"));
  EXPECT_THAT(text, ::testing::EndsWith("Sort order action 10: 10\r\n\r\n"));
}

TEST_F(LogFileTest, RenameSettingsSnapshotLines) {
  RenameSettingsSnapshot s;
  s.txtCompleteName = "holiday";
  s.chkCompleteName = 1;
  s.txtFromChar = "2";
  s.txtToChar = "4";
  s.txtReplaceChars = "xy";
  s.txtLeftCut = "3";
  s.txtSearchString = "a";
  s.txtReplaceString = "b";
  s.optNumber[2] = true;
  s.chkNumbers = 1;
  s.optOperator[0] = true;
  s.txtStartNumber = "1";
  s.txtStep = "1";
  s.txtLimiter = "000";
  s.optCopyRename[2] = true;
  log_.LogRenameSettingsSnapshot(s);
  EXPECT_FALSE(std::filesystem::exists(LogPath()));
  app_.run_active = true;
  Set("LogRenameSettings", "1");
  log_.LogRenameSettingsSnapshot(s);
  EXPECT_EQ(LogText(),
            "Logging current renaming settings [15.11.2026 20:11:00]\r\n"
            "CompleteName: holiday [1]\r\n"
            "Extension:  [0]\r\n"
            "Replace by length: from 2 to 4 with xy [0]\r\n"
            "LeftCut: 3 chars [0]\r\n"
            "Prefix:  [0]\r\n"
            "RightCut:  chars [0]\r\n"
            "Postfix:  [0]\r\n"
            "ReplaceText: a with b [0]\r\n"
            "UsePlaceholder:  [0]\r\n"
            "Numbering: before Prefix: False, after Prefix: False, before Postfix: True, after "
            "Postfix: False [1]\r\n"
            "Operator: Plus: True, Minus: False, Multi: False\r\n"
            "Count options: Start number: 1, Steps: 1, Limiter: 000\r\n"
            "Create options: Renaming: False, Create copy: False, Test: True\r\n"
            "Edit Manual:  [0]\r\n\r\n");
}

TEST_F(LogFileTest, NamesPassThroughUnchanged) {
  const std::string odd = "/p/M\xC3\xBCller \xFF%.txt";
  log_.WriteLogFile(odd, "/p/x", "");
  EXPECT_THAT(LogText(), HasSubstr("\"" + odd + "\""));
}

}  // namespace
}  // namespace tarnwick::testing
