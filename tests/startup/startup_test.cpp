#include "startup/startup.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "base/clock.h"
#include "base/vb_error.h"
#include "core/journal.h"
#include "core/rename_settings.h"
#include "core/settings_file.h"
#include "persist/log_undo_env.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "shell/app_state.h"
#include "shell/message_table.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::TempDir;

// Records what start-up asks of the window, in order.
class RecordingHost : public StartupHost {
 public:
  explicit RecordingHost(AppState& app) : app_(app) {}
  std::optional<ScreenSize> Screen() const override { return ScreenSize{1000, 800}; }
  void PlaceMainWindow(int top, int left) override {
    calls.push_back("place " + std::to_string(top) + " " + std::to_string(left));
  }
  void FillListFiles() override {
    calls.push_back("fill " + app_.CurrentPath);
    if (fail_fill) throw VbError(vb_error::kOutOfMemory, "Out of memory");
  }
  bool fail_fill = false;
  std::int64_t RowCount() const override { return 3; }
  BatchRunOutcome RunBatch() override {
    calls.push_back(std::string("batch ") + (app_.BatchMode ? "on" : "off"));
    BatchRunOutcome outcome;
    outcome.ran = true;
    outcome.done = 3;
    return outcome;
  }
  void RegisterFileAssociation() override { calls.push_back("associate"); }
  void ShowMainWindow() override { calls.push_back("show"); }
  void UnloadMainWindow() override { calls.push_back("unload"); }
  void StartFolderWatch() override { calls.push_back("watch"); }
  std::vector<std::string> calls;

 private:
  AppState& app_;
};

class StartupTest : public ::testing::Test {
 protected:
  StartupTest() {
    std::filesystem::create_directories(dir_.path() / "home");
    input_.working_folder = dir_.str();
    input_.data_base_folder = (dir_.path() / "data").string();
    input_.data_fallback_folder = (dir_.path() / "home").string();
    input_.system_short_date = "m/d/yyyy";
    input_.default_root = (dir_.path() / "home").string();
    input_.program_folder = "/opt/tarnwick-test/share/tarnwick";
  }
  StartupResult Start(std::vector<std::string> arguments = {}) {
    input_.arguments = std::move(arguments);
    host_.calls.clear();
    return RunStartup(env_, settings_, host_, input_);
  }
  std::string Option(const std::string& key) const {
    return options_.GetOption(key, "Options", "");
  }

  TempDir dir_;
  OptionStore options_{dir_.path() / "Tarnwick.ini"};
  ScriptedInteraction ask_;
  FixedClock clock_{vb::DateTime{2026, 11, 15, 20, 11, 0}};
  AppState app_;
  LogUndoState state_;
  LogUndoEnv env_{options_, ask_, MessageTable::Get(Language::kEnglish), clock_, app_, state_};
  RenameSettings settings_;
  RecordingHost host_{app_};
  StartupInput input_;
};

TEST_F(StartupTest, PlainStartRunsTheStepsInOrder) {
  options_.SaveOption("Top", "Options", "-5");
  options_.SaveOption("Left", "Options", "5000");
  options_.SaveOption("Path", "Options", (dir_.path() / "vanished").string());
  const StartupResult result = Start();
  EXPECT_EQ(result.outcome, StartupResult::Outcome::kReady);
  const std::vector<std::string> expected = {"place 0 0", "fill " + input_.default_root,
                                             "associate", "show", "watch"};
  EXPECT_EQ(host_.calls, expected);
  const std::vector<std::string>& statuses = ask_.statuses(StatusArea::kSplash);
  ASSERT_GE(statuses.size(), 4u);
  EXPECT_EQ(statuses.front(), "Starting ...");
  EXPECT_EQ(statuses[1].rfind("Reading: ", 0), 0u);
  EXPECT_EQ(statuses[statuses.size() - 2], "Sorting file list ...");
  EXPECT_EQ(statuses.back(), "Preparing user interface ...");
  EXPECT_EQ(Option("DateFormat"), "dd.mm.yyyy") << "an unusual system format is replaced";
  EXPECT_EQ(Option("SetFileAssoc"), "1");
  EXPECT_EQ(Option("ResetPath"), "0");
  EXPECT_FALSE(app_.LoadingFlag);
  EXPECT_TRUE(std::filesystem::exists(dir_.path() / "data/Oakhollow/Tarnwick/Undo Files"));
  EXPECT_EQ(state_.ProgramFolder, input_.program_folder) << "where the finish sound is found";
  EXPECT_TRUE(ask_.asked().empty());
}

TEST_F(StartupTest, AStartThatDiedResetsTheOptionsOnceAndThenStartsNormally) {
  options_.SaveOption("DateFormat", "Options", "yyyy.mm.dd");
  options_.SaveOption("StartDir", "Playlist", "/music");
  // An error between the recovery step and the end stops start-up, as a
  // killed process would: the flag stays.
  host_.fail_fill = true;
  const StartupResult failed = Start();
  EXPECT_EQ(failed.outcome, StartupResult::Outcome::kFailed);
  EXPECT_EQ(Option("ResetPath"), "1");
  ASSERT_EQ(ask_.asked().size(), 1u);
  EXPECT_EQ(ask_.asked()[0].title, "Tarnwick [7]");

  host_.fail_fill = false;
  const StartupResult first = Start();
  EXPECT_TRUE(first.options_reset);
  ASSERT_EQ(ask_.asked().size(), 2u);
  EXPECT_EQ(ask_.asked()[1].title, "ATTENTION!");
  EXPECT_EQ(ask_.asked()[1].text,
            "Tarnwick could not start properly so all options are set back to their defaults.");
  // The date format check comes before the recovery, so its value went with
  // the section; the next start checks again.
  EXPECT_EQ(Option("DateFormat"), "");
  EXPECT_EQ(options_.GetOption("StartDir", "Playlist", ""), "/music");
  EXPECT_EQ(Option("ResetPath"), "0");
  const StartupResult second = Start();
  EXPECT_FALSE(second.options_reset);
  EXPECT_EQ(ask_.asked().size(), 2u) << "said once";
  EXPECT_EQ(Option("DateFormat"), "dd.mm.yyyy");
}

TEST_F(StartupTest, SettingsFileWithSwitchRunsTheBatchAndSkipsTheRest) {
  const std::string files = (dir_.path() / "files").string();
  std::filesystem::create_directories(files);
  app_.CurrentPath = files;
  settings_.chkPrefix = 1;
  ASSERT_EQ(SaveSettingsTo(env_, settings_, (dir_.path() / "job.twr").string(), true).outcome,
            SaveSettingsResult::Outcome::kSaved);
  settings_ = RenameSettings{};
  const StartupResult result = Start({"job.twr", "-D"});
  EXPECT_EQ(result.outcome, StartupResult::Outcome::kBatchDone);
  EXPECT_EQ(result.batch.done, 3);
  EXPECT_EQ(settings_.chkPrefix, 1);
  const std::vector<std::string> expected = {"place 200 200", "fill " + files, "batch on",
                                             "unload"};
  EXPECT_EQ(host_.calls, expected);
  EXPECT_EQ(Option("ResetPath"), "0");
  EXPECT_EQ(Option("SetFileAssoc"), "") << "the rest of start-up is skipped";

  // Nor does a file whose folder has gone: the list would show the root.
  std::filesystem::remove_all(files);
  const StartupResult gone = Start({"job.twr", "-d"});
  EXPECT_TRUE(gone.settings_load.folder_gone);
  EXPECT_FALSE(gone.batch.ran);
  EXPECT_EQ(app_.CurrentPath, "/");

  // A file that cannot be applied starts no run.
  const StartupResult missing = Start({"missing.twr", "-d"});
  EXPECT_TRUE(missing.settings_failed);
  EXPECT_FALSE(missing.batch.ran);
  EXPECT_EQ(Option("ResetPath"), "0");
}

TEST_F(StartupTest, AFolderThatIsGoneFallsBackToTheRootAndGoesOnWithAFilledList) {
  options_.SaveOption("LogOnlyRename", "Options", "0");
  const StartupResult result = Start({"/no/such/folder"});
  EXPECT_EQ(result.outcome, StartupResult::Outcome::kReady);
  EXPECT_EQ(app_.CurrentPath, input_.default_root);
  EXPECT_EQ(result.error_number, 76);
  const std::vector<std::string> expected = {"place 200 200", "fill " + input_.default_root,
                                             "associate", "show", "watch"};
  EXPECT_EQ(host_.calls, expected);
  EXPECT_EQ(Option("ResetPath"), "0");
  EXPECT_NE(testing::ReadWholeFile(dir_.path() / "data/Oakhollow/Tarnwick/Log Files/Tarnwick.log")
                .find("!76: Path not found"),
            std::string::npos)
      << "the handler logs the error";
}

TEST_F(StartupTest, NTLogModeShowsAndFillsTheStoredFolder) {
  options_.SaveOption("LogOnlyRename", "Options", "0");
  const std::string stored = (dir_.path() / "stored").string();
  std::filesystem::create_directories(stored);
  options_.SaveOption("Path", "Options", stored);
  EXPECT_EQ(Start({"NTLogMode"}).outcome, StartupResult::Outcome::kReady);
  EXPECT_EQ(app_.CurrentPath, stored);
  EXPECT_EQ(host_.calls[1], "fill " + stored);
  EXPECT_TRUE(ask_.controls_enabled());

  // A folder before the switch is shown first; the stored one wins.
  const std::string other = (dir_.path() / "other").string();
  std::filesystem::create_directories(other);
  Start({other, "NTLogMode"});
  EXPECT_EQ(app_.CurrentPath, stored);
  EXPECT_EQ(host_.calls[1], "fill " + other);
  EXPECT_EQ(host_.calls[2], "fill " + stored);

  // The stored folder is gone: the root, filled.
  std::filesystem::remove(stored);
  const StartupResult gone = Start({"NTLogMode"});
  EXPECT_EQ(gone.outcome, StartupResult::Outcome::kReady);
  EXPECT_EQ(gone.error_number, 76);
  EXPECT_EQ(app_.CurrentPath, input_.default_root);
  EXPECT_EQ(host_.calls[1], "fill " + input_.default_root);
}

TEST_F(StartupTest, AFolderWhoseNameHoldsTheSwitchIsAFolder) {
  for (const char* name : {"my-docs", "2024-Dec", "a -d b"}) {
    const std::string folder = (dir_.path() / name).string();
    std::filesystem::create_directories(folder);
    const StartupResult result = Start({folder});
    EXPECT_EQ(result.outcome, StartupResult::Outcome::kReady) << name;
    EXPECT_FALSE(result.command_line.batch) << name;
    EXPECT_EQ(app_.CurrentPath, folder);
    EXPECT_EQ(host_.calls[1], "fill " + folder);
  }
}

TEST_F(StartupTest, AJournalLeftByAKilledRunIsCompletedAtStart) {
  const auto undo = dir_.path() / "data/Oakhollow/Tarnwick/Undo Files";
  std::filesystem::create_directories(undo);
  dir_.WriteFile("data/Oakhollow/Tarnwick/Undo Files/UndoBatch.bat", "@echo off\r\n");
  // A journal that is closed without being removed: its run was killed.
  ASSERT_NE(RunJournal::Begin(undo / "UndoBatch.bat", "", nullptr), nullptr);
  ASSERT_EQ(JournalsInFolder(undo).size(), 1u);
  const StartupResult result = Start();
  ASSERT_EQ(result.journals.size(), 1u);
  EXPECT_EQ(result.journals[0].outcome, JournalRecovery::Outcome::kCompleted);
  EXPECT_TRUE(JournalsInFolder(undo).empty());
}

CommandLine Parse(std::vector<std::string> arguments) { return ParseCommandLine(arguments, "/w"); }

TEST(CommandLine, SwitchesAreArgumentsOfTheirOwn) {
  CommandLine line = Parse({"a.twr", "-d"});
  EXPECT_EQ(line.settings_file, "/w/a.twr");
  EXPECT_TRUE(line.batch);
  EXPECT_TRUE(Parse({"-D", "a.TWR"}).batch);
  line = Parse({"/x/my-docs/a.twr"});
  EXPECT_EQ(line.settings_file, "/x/my-docs/a.twr");
  EXPECT_FALSE(line.batch);
  line = Parse({"2024-dec"});
  EXPECT_EQ(line.folder, "/w/2024-dec");
  EXPECT_FALSE(line.batch);
  EXPECT_FALSE(HasBatchSwitch(std::vector<std::string>{"/home/u/my-docs", "x-d"}));
  EXPECT_TRUE(HasBatchSwitch(std::vector<std::string>{"job.twr", "-D"}));
  // A name of several arguments is joined by blanks.
  EXPECT_EQ(Parse({"/x/my", "photos"}).folder, "/x/my photos");
  line = Parse({"/x/folder", "NTLogMode"});
  EXPECT_EQ(line.folder, "/x/folder");
  EXPECT_TRUE(line.nt_log_mode);
  line = Parse({"NTLogMode"});
  EXPECT_FALSE(line.empty);
  EXPECT_TRUE(line.folder.empty());
  EXPECT_TRUE(line.nt_log_mode);
  EXPECT_FALSE(Parse({"/x", "ntlogmode"}).nt_log_mode);
  EXPECT_EQ(Parse({"/x", "ntlogmode"}).folder, "/x ntlogmode");
  EXPECT_FALSE(Parse({"a.twr", "-d", "NTLogMode"}).nt_log_mode);
  EXPECT_TRUE(Parse({}).empty);
  EXPECT_TRUE(Parse({""}).empty);
}

TEST_F(StartupTest, ClosingStoresThePlaceAndAsksAboutChanges) {
  options_.SaveOption("SaveChanges", "Options", "0");
  app_.SettingsDirty = true;
  app_.CurrentPath = dir_.str();
  ask_.Then(Answer::kNo).Then(Answer::kYes);
  EXPECT_TRUE(CloseMainWindow(env_, host_));
  EXPECT_EQ(Option("Path"), "");
  EXPECT_FALSE(CloseMainWindow(env_, host_));
  EXPECT_EQ(Option("Top"), "200");
  EXPECT_EQ(Option("Path"), dir_.str());
  app_.run_active = true;
  app_.SettingsDirty = false;
  app_.CurrentPath = (dir_.path() / "gone").string();
  EXPECT_TRUE(CloseMainWindow(env_, host_)) << "a running job keeps the window open";
  EXPECT_EQ(Option("Path"), "");
}

}  // namespace
}  // namespace tarnwick
