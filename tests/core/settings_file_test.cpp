#include "core/settings_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "base/clock.h"
#include "core/action_order.h"
#include "core/settings_file_items.h"
#include "persist/log_undo_env.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "persist/xml_configuration.h"
#include "shell/app_state.h"
#include "shell/message_table.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::TempDir;

class SettingsFileTest : public ::testing::Test {
 protected:
  SettingsFileTest() {
    state_.DefaultLogFolder = dir_.str();
    options_.SaveOption("WriteLogFile", "Options", "0");
  }
  std::string PathOf(const std::string& name) const { return (dir_.path() / name).string(); }
  // A file with the given items of section Defaults only.
  std::string WriteRaw(const std::string& name,
                       std::initializer_list<std::pair<std::string, std::string>> items) {
    XMLConfiguration file;
    file.Encryption(true);
    file.LoadConfigurationFile(PathOf(name), true);
    for (const auto& [item, value] : items) file.WriteValue(kDefaultsSection, item, value);
    file.SaveConfigurationFile();
    return PathOf(name);
  }

  TempDir dir_;
  OptionStore options_{dir_.path() / "Tarnwick.ini"};
  ScriptedInteraction ask_;
  FixedClock clock_{vb::DateTime{2026, 11, 15, 20, 11, 0}};
  AppState app_;
  LogUndoState state_;
  LogUndoEnv env_{options_, ask_, MessageTable::Get(Language::kEnglish), clock_, app_, state_};
};

TEST(SettingsFileBlanks, OnlyATrailingBlankTriggersTheCountOfAllBlanks) {
  EXPECT_EQ(ReplaceEndBlanks("a b"), "a b");
  EXPECT_EQ(ReplaceEndBlanks("a b "), "a b{{space}}{{space}}");
  EXPECT_EQ(ReplaceEndBlanks(" a  b "), " a  b{{space}}{{space}}{{space}}{{space}}");
  EXPECT_EQ(ReplaceEndBlanks("  "), "{{space}}{{space}}");
  EXPECT_EQ(ReplaceEndBlanks(""), "");
  RenameSettings settings;
  settings.txtLeftCut = "3 ";  // not one of the protected fields
  EXPECT_FALSE(ReplaceEndBlanksInFields(settings));
  settings.txtUsePlaceholder = "x ";
  EXPECT_TRUE(ReplaceEndBlanksInFields(settings));
  EXPECT_EQ(settings.txtUsePlaceholder, "x{{space}}");
  EXPECT_EQ(settings.txtLeftCut, "3 ");
}

TEST_F(SettingsFileTest, EveryControlSurvivesSaveAndApply) {
  RenameSettings saved;
  int n = 0;
  for (const std::string_view name : SettingsFileControlNames()) {
    if (name.starts_with("chk")) {
      SetRenameSetting(saved, name, std::to_string(n++ % 2));
    } else if (name != "txtStep") {
      SetRenameSetting(saved, name, "<&\" Grüße ₤ " + std::string(name) + "\t");
    }
  }
  saved.cboExtension = "*.mp3";
  saved.txtStep = "3";
  saved.optCopyRename = 1;
  saved.optNumber = 3;
  saved.optOperator = 2;
  app_.CurrentPath = dir_.str();
  const SaveSettingsResult result = SaveSettingsTo(env_, saved, PathOf("all.twr"), true);
  ASSERT_EQ(result.outcome, SaveSettingsResult::Outcome::kSaved);
  EXPECT_EQ(options_.GetOption("SavePathIni", "Options", ""), dir_.str());

  RenameSettings loaded;
  app_.CurrentPath = "/";
  ApplySettingsFile(env_, result.path, loaded);
  for (const std::string_view name : SettingsFileControlNames()) {
    EXPECT_EQ(GetRenameSetting(loaded, name), GetRenameSetting(saved, name)) << name;
  }
  EXPECT_EQ(loaded.optCopyRename, 1);
  EXPECT_EQ(loaded.optNumber, 3);
  EXPECT_EQ(loaded.optOperator, 2);
  EXPECT_EQ(app_.CurrentPath, dir_.str());
  EXPECT_EQ(app_.CurrentFilter, "*.mp3");
  EXPECT_TRUE(ask_.failures().empty());
}

TEST_F(SettingsFileTest, ApplyRulesForNumbersGroupsAndMissingItems) {
  StoreActionOrder(options_, {3, 1, 2, 4, 5, 6, 7, 8, 9, 10});
  const std::string path = WriteRaw("rules.twr", {{"chkPrefix", "abc"},
                                                  {"chkPostfix", "1"},
                                                  {"txtStep", "002.50"},
                                                  {"optCopyRename0", "0"},
                                                  {"optCopyRename1", "1"},
                                                  {"optCopyRename2", "1"},
                                                  {"optNumber0", "0"},
                                                  {"cboExtension", "*.*"},
                                                  {"SortOrderInternal1", "2"},
                                                  {"SortOrderInternal2", "1"},
                                                  {"SortOrderInternal3", "3"}});
  RenameSettings settings;
  settings.chkPrefix = 1;
  settings.txtPrefix = "was here";
  settings.optNumber = 2;
  settings.cboExtension = "*.txt";
  app_.CurrentFilter = "*.txt";
  app_.CurrentPath = "/keep";
  ApplySettingsFile(env_, path, settings);
  EXPECT_EQ(settings.chkPrefix, 0) << "a text that is no number ticks nothing";
  EXPECT_EQ(settings.chkPostfix, 1);
  EXPECT_EQ(settings.txtPrefix, "") << "a missing item empties the field";
  EXPECT_EQ(settings.txtStep, "2.5");
  EXPECT_EQ(settings.optCopyRename, 1) << "the first \"1\" wins";
  EXPECT_EQ(settings.optNumber, 2) << "no \"1\" leaves the group";
  EXPECT_EQ(settings.cboExtension, "*.txt");
  EXPECT_EQ(app_.CurrentFilter, "*.txt");
  EXPECT_EQ(app_.CurrentPath, "/keep") << "no folder saved";
  // Item 3 is missing from the file: its position goes back to its default.
  const ActionOrder order = ReadActionOrder(options_);
  EXPECT_EQ(order[0], 2);
  EXPECT_EQ(order[1], 1);
  EXPECT_EQ(order[2], 3);
  EXPECT_EQ(order[3], 4);
}

TEST_F(SettingsFileTest, ASavedFolderThatIsGoneMovesToTheRoot) {
  const std::string gone = PathOf("gone/deeper");
  const std::string path = WriteRaw("gone.twr", {{"CurrentDir", gone}, {"cboExtension", "*.x"}});
  RenameSettings settings;
  ApplySettingsFile(env_, path, settings);
  ASSERT_EQ(ask_.asked().size(), 1u);
  EXPECT_EQ(ask_.asked()[0].text,
            "The saved directory '" + gone + "' don't exists any more. Change to root path.");
  EXPECT_EQ(ask_.asked()[0].title, "Folder?");
  EXPECT_EQ(app_.CurrentPath, "/");
  EXPECT_EQ(app_.CurrentFilter, "*.*");
}

TEST_F(SettingsFileTest, SavingWithAVanishedFolderAsksAndErrorsAreReported) {
  RenameSettings settings;
  app_.CurrentPath = PathOf("vanished");
  ask_.Then(Answer::kNo).Then(Answer::kYes);
  EXPECT_EQ(SaveSettingsTo(env_, settings, PathOf("x.twr"), true).outcome,
            SaveSettingsResult::Outcome::kCancelled);
  EXPECT_FALSE(std::filesystem::exists(PathOf("x.twr")));
  EXPECT_EQ(SaveSettingsTo(env_, settings, PathOf("x.twr"), true).outcome,
            SaveSettingsResult::Outcome::kSaved);
  XMLConfiguration file;
  file.Encryption(true);
  file.LoadConfigurationFile(PathOf("x.twr"), false);
  EXPECT_EQ(file.ReadValue(kDefaultsSection, "CurrentDir"), "");

  // A plain file is not a settings file: the error is shown, the controls stay.
  const std::string plain = dir_.WriteFile("plain.twr", "<configuration/>").string();
  settings.txtPrefix = "stays";
  const LoadSettingsResult failed = LoadSettingsFile(env_, plain, settings);
  EXPECT_EQ(failed.outcome, LoadSettingsResult::Outcome::kFailed);
  EXPECT_EQ(settings.txtPrefix, "stays");
  EXPECT_EQ(ask_.asked().back().title, "Error");
}

TEST_F(SettingsFileTest, DefaultSettingsFileMissingSwitchesItselfOff) {
  options_.SaveOption("SettingsFile", "Options", "1");
  options_.SaveOption("SettingsFilePath", "Options", PathOf("none.twr"));
  RenameSettings settings;
  const LoadSettingsResult result = LoadDefaultSettings(env_, PathOf("none.twr"), settings);
  EXPECT_EQ(result.outcome, LoadSettingsResult::Outcome::kNotFound);
  EXPECT_EQ(ask_.asked().at(0).text,
            "Default settings file '" + PathOf("none.twr") + "' not found!");
  EXPECT_EQ(options_.GetOption("SettingsFile", "Options", ""), "0");
  EXPECT_EQ(options_.GetOption("NoSettingsFile", "Options", ""), "1");
  EXPECT_EQ(options_.GetOption("SettingsFilePath", "Options", ""), "");

  const std::string path = WriteRaw("a-very-long-settings-file-name-indeed.twr", {});
  const LoadSettingsResult loaded = LoadDefaultSettings(env_, path, settings);
  EXPECT_EQ(loaded.outcome, LoadSettingsResult::Outcome::kLoaded);
  EXPECT_EQ(loaded.frame_caption, "Settings   [a-very-long-settings-file-name ...]");
  EXPECT_EQ(loaded.default_file_label,
            "Current loaded default settings file: a-very-long-settings-file-name-indeed.twr");
}

TEST_F(SettingsFileTest, TheDialoguesOfSavingAndLoading) {
  RenameSettings settings;
  settings.txtPostfix = "end ";
  std::filesystem::create_directories(dir_.path() / "Rename Settings");
  const std::string target = PathOf("dialog.twr");
  SaveSettingsAnswer save;
  save.path = target;
  ask_.Then(Answer::kOk).Then(save);
  const SaveSettingsResult saved = SaveSettings(env_, settings, PathOf("Rename Settings"));
  ASSERT_EQ(saved.outcome, SaveSettingsResult::Outcome::kSaved);
  ASSERT_EQ(ask_.asked().size(), 2u);
  EXPECT_EQ(ask_.asked()[0].title, "Replace blanks");
  EXPECT_EQ(settings.txtPostfix, "end{{space}}");

  // A bare name typed without ".twr" lands in the settings folder with it.
  SaveSettingsAnswer bare;
  bare.path = "holiday";
  ask_.Then(bare);
  const SaveSettingsResult named = SaveSettings(env_, settings, PathOf("Rename Settings"));
  ASSERT_EQ(named.outcome, SaveSettingsResult::Outcome::kSaved);
  EXPECT_EQ(named.path, PathOf("holiday.twr"));  // the folder saved to last, SavePathIni
  EXPECT_TRUE(std::filesystem::exists(PathOf("holiday.twr")));

  // Changed controls with SaveChanges "0": No keeps them, Yes asks for a file.
  options_.SaveOption("SaveChanges", "Options", "0");
  app_.SettingsDirty = true;
  ask_.Then(Answer::kNo);
  EXPECT_EQ(LoadIniSettings(env_, settings).outcome, LoadSettingsResult::Outcome::kCancelled);
  ask_.Then(Answer::kYes).Then(Cancelled{});
  EXPECT_EQ(LoadIniSettings(env_, settings).outcome, LoadSettingsResult::Outcome::kCancelled);
  settings.txtPostfix = "changed";
  ask_.Then(Answer::kYes).Then(TextAnswer{target});
  const LoadSettingsResult loaded = LoadIniSettings(env_, settings);
  EXPECT_EQ(loaded.outcome, LoadSettingsResult::Outcome::kLoaded);
  EXPECT_EQ(loaded.frame_caption, "Settings   [dialog.twr]");
  EXPECT_EQ(settings.txtPostfix, "end{{space}}");
  EXPECT_FALSE(app_.SettingsDirty);
  EXPECT_EQ(app_.loaded_settings_name, "dialog.twr");
  EXPECT_TRUE(ask_.failures().empty());
  EXPECT_EQ(ask_.pending(), 0u);
}

}  // namespace
}  // namespace tarnwick
