// The options dialogue: OK stores every shown value, Default asks and shows
// the defaults, Cancel stores nothing; the folder action's desktop entry.
#include "options_dialog.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <filesystem>

#include "base/clock.h"
#include "desktop_integration.h"
#include "filelist/file_date_type.h"
#include "gui/gui_test_support.h"
#include "persist/log_undo_env.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "persist/undo_line.h"
#include "shell/app_state.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {
namespace {

using gui::OptionKind;
using gui::OptionRow;
using gui::OptionRows;
using gui::OptionsDialog;

class OptionsDialogTest : public GuiTest {
 protected:
  OptionsDialogTest() : options(dir.path() / "Tarnwick.ini") {}

  // A value unlike the default, fitting the kind of the row.
  std::string OtherValue(const OptionRow& row) {
    switch (row.kind) {
      case OptionKind::kTick:
      case OptionKind::kRadio:
        return std::string(row.default_value) == "1" ? "0" : "1";
      case OptionKind::kNumber:
        return "42";
      case OptionKind::kChoice:
        return std::string(messages.Text(row.choices.back()));
      case OptionKind::kText:
        break;
    }
    return std::string("x_") + row.key;
  }

  TempDir dir;
  OptionStore options;
  ScriptedInteraction questions;
  const MessageTable& messages = MessageTable::Get(Language::kEnglish);
  const std::map<std::string, std::string> computed{{"LogFilePath", "/logs/Tarnwick.log"}};
};

TEST_F(OptionsDialogTest, OkStoresEveryValueAndDefaultRestoresThem) {
  {
    OptionsDialog dialog(options, messages, questions, computed);
    EXPECT_EQ(dialog.Shown("LogFilePath"), "/logs/Tarnwick.log");
    EXPECT_EQ(dialog.Shown("SampleRefreshRate"), "Normal");
    for (const OptionRow& row : OptionRows()) dialog.SetShown(row.key, OtherValue(row));
    dialog.Ok();
  }
  for (const OptionRow& row : OptionRows()) {
    std::string expected = OtherValue(row);
    if (std::string_view(row.key) == "DateFormat") expected = "x_dateformat";
    EXPECT_EQ(options.GetOption(row.key, "Options", "?"), expected) << row.key;
  }
  // The next start reads the language switched to.
  EXPECT_EQ(LanguageChoice(options.GetOption("Language", "Options", "")), Language::kGerman);

  OptionsDialog dialog(options, messages, questions, computed);
  EXPECT_EQ(dialog.Shown("SampleRefreshRate"), "Special");
  questions.Then(Answer::kNo).Then(Answer::kYes);
  EXPECT_FALSE(dialog.Default());
  EXPECT_EQ(dialog.Shown("WriteLogFile"), "0");
  EXPECT_TRUE(dialog.Default());
  EXPECT_EQ(questions.asked().back().text, "Set all options back to defaults?");
  EXPECT_EQ(dialog.Shown("WriteLogFile"), "1");
  EXPECT_EQ(dialog.Shown("BasisNameUndoBatch"), "UndoBatch");
  EXPECT_EQ(dialog.Shown("LogFilePath"), "/logs/Tarnwick.log");
  EXPECT_EQ(dialog.Shown("FileDateType"), "Last Modified");
  EXPECT_EQ(dialog.Shown("Language"), "System language");
  dialog.reject();  // Cancel: the stored values stay
  EXPECT_EQ(options.GetOption("WriteLogFile", "Options", "?"), "0");
}

// Opened and closed with OK, the dialogue changes nothing: it shows the
// values the program uses and stores only what the user changed, as the
// English word whatever the window's language.
TEST_F(OptionsDialogTest, ShowsWhatTheProgramUsesAndStoresOnlyWhatChanged) {
  {
    OptionsDialog dialog(options, messages, questions, computed);
    EXPECT_EQ(dialog.Shown("FileDateType"), "Last Modified");
    dialog.Ok();
  }
  EXPECT_EQ(options.GetOption("FileDateType", "Options", "?"), "?");
  EXPECT_EQ(options.GetOption("SampleRefreshRate", "Options", "?"), "?");
  EXPECT_EQ(ReadFileDateKind(options), FileDateKind::kLastWrite);
  EXPECT_TRUE(questions.asked().empty());

  const MessageTable& german = MessageTable::Get(Language::kGerman);
  {
    OptionsDialog dialog(options, german, questions, computed);
    auto* date = dialog.findChild<QComboBox*>("FileDateType");
    EXPECT_EQ(date->currentText(), "Zuletzt geändert");
    date->setCurrentIndex(2);  // "Letzter Zugriff"
    dialog.Ok();
  }
  EXPECT_EQ(options.GetOption("FileDateType", "Options", "?"), "Last Access");
  EXPECT_EQ(ReadFileDateKind(options), FileDateKind::kLastAccess);
  EXPECT_EQ(FileDateHeading(options, german), "Letzter Zugriff");
  OptionsDialog english(options, messages, questions, computed);
  EXPECT_EQ(english.findChild<QComboBox*>("FileDateType")->currentText(), "Last Access");
  english.reject();

  // A word a German window of an older build stored still reads right.
  options.SaveOption("FileDateType", "Options", "Zuletzt geändert");
  EXPECT_EQ(ReadFileDateKind(options), FileDateKind::kLastWrite);
  EXPECT_EQ(FileDateHeading(options, messages), "Last Modified");
}

TEST_F(OptionsDialogTest, TheCounterResetIsOneChoiceAndChangesBringTheirNotices) {
  OptionsDialog dialog(options, messages, questions, computed);
  auto* by_folder = dialog.findChild<QRadioButton*>("ResetCounterByDirectory");
  auto* by_date = dialog.findChild<QRadioButton*>("ResetCounterByDate");
  ASSERT_NE(by_folder, nullptr);
  ASSERT_NE(by_date, nullptr);
  EXPECT_TRUE(by_folder->isChecked());
  by_date->click();
  EXPECT_FALSE(by_folder->isChecked());
  dialog.findChild<QCheckBox*>("ShowHiddenFiles")->click();
  dialog.findChild<QCheckBox*>("UseWindowsStyle")->click();
  dialog.Ok();
  EXPECT_EQ(options.GetOption("ResetCounterByDirectory", "Options", "?"), "0");
  EXPECT_EQ(options.GetOption("ResetCounterByDate", "Options", "?"), "1");
  ASSERT_EQ(questions.asked().size(), 2u);
  EXPECT_EQ(questions.asked()[0].text, "You have change the options for the file view.");
  EXPECT_EQ(questions.asked()[0].title, "Information:");
  EXPECT_EQ(questions.asked()[1].text, "The changes apply at the next start of the application.");
}

TEST_F(OptionsDialogTest, TheSettingsFileLoadedAtStartIsChosenWithItsPath) {
  {
    OptionsDialog dialog(options, messages, questions, computed);
    dialog.findChild<QRadioButton*>("optSettingsFile2")->click();
    dialog.findChild<QLineEdit*>("txtSettingsPath")->setText("/home/me/trip.twr");
    dialog.Ok();
  }
  EXPECT_EQ(options.GetOption("SettingsFile", "Options", "?"), "1");
  EXPECT_EQ(options.GetOption("NoSettingsFile", "Options", "?"), "0");
  EXPECT_EQ(options.GetOption("SettingsFilePath", "Options", "?"), "/home/me/trip.twr");
  {
    OptionsDialog dialog(options, messages, questions, computed);
    EXPECT_TRUE(dialog.findChild<QRadioButton*>("optSettingsFile2")->isChecked());
    dialog.findChild<QLineEdit*>("txtSettingsPath")->clear();  // a file without a path
    dialog.Ok();
  }
  EXPECT_EQ(options.GetOption("SettingsFile", "Options", "?"), "0");
  EXPECT_EQ(options.GetOption("NoSettingsFile", "Options", "?"), "1");
}

TEST_F(OptionsDialogTest, TheLogAndUndoButtonsShowDeleteAndRunWhatTheyName) {
  SystemClock clock;
  AppState app;
  LogUndoState state;
  state.DefaultUndoFolder = (dir.path() / "undo").string();
  state.DefaultLogFolder = dir.path().string();
  state.UndoBatchName = "UndoBatch.bat";
  std::filesystem::create_directories(dir.path() / "undo");
  const LogUndoEnv env{options, questions, messages, clock, app, state};
  dir.WriteFile("Tarnwick.log", std::string(2048, 'x'));
  dir.WriteFile("renamed.txt", "mine");
  dir.WriteFile("undo/UndoBatch.bat",
                " \r\n@echo off\r\n" +
                    UndoEntryLine((dir.path() / "original.txt").string(),
                                  (dir.path() / "renamed.txt").string(), "move") +
                    "\r\n");
  OptionsDialog dialog(options, messages, questions, computed, &env);
  auto* size = dialog.findChild<QLabel*>("lblLogSize");
  ASSERT_NE(size, nullptr);
  EXPECT_TRUE(size->text().startsWith("Notice: The logfile has a current file size of 2"))
      << size->text().toStdString();

  questions.Then(Answer::kNo).Then(Answer::kYes);
  dialog.findChild<QPushButton*>("cmdDeleteLog")->click();
  EXPECT_TRUE(std::filesystem::exists(dir.path() / "Tarnwick.log"));
  dialog.findChild<QPushButton*>("cmdDeleteLog")->click();
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "Tarnwick.log"));
  EXPECT_TRUE(size->text().endsWith(" 0 Bytes")) << size->text().toStdString();
  EXPECT_EQ(questions.asked().back().text, "Do you really want to delete the log file?");

  questions.Then(Answer::kYes).Then(Answer::kOk);
  dialog.findChild<QPushButton*>("cmdRunUndoBatch")->click();
  EXPECT_TRUE(std::filesystem::exists(dir.path() / "original.txt"));
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "renamed.txt"));
  EXPECT_EQ(questions.asked().back().text,
            "The undo batch was carried out: 1 done, 0 failed, 0 skipped.");
  dialog.reject();
}

TEST_F(OptionsDialogTest, ShredderTimesOutsideTheRangeBecomeEight) {
  OptionsDialog dialog(options, messages, questions, computed);
  dialog.SetShown("FSOverwrite", "100");
  dialog.SetShown("DateFormat", "YYYY.MM.DD");
  dialog.Ok();
  EXPECT_EQ(options.GetOption("FSOverwrite", "Options", "?"), "8");
  EXPECT_EQ(options.GetOption("DateFormat", "Options", "?"), "yyyy.mm.dd");
}

TEST_F(OptionsDialogTest, TheFolderActionIsWrittenAndRemoved) {
  TempDir data;
  const QByteArray before = qgetenv("XDG_DATA_HOME");
  qputenv("XDG_DATA_HOME", QByteArray::fromStdString(data.str()));
  ASSERT_TRUE(gui::SetFolderAction(true, "Run Tarnwick"));
  const std::string entry = data.ReadFile("applications/tarnwick-folder.desktop");
  EXPECT_NE(entry.find("Name=Run Tarnwick\n"), std::string::npos);
  EXPECT_NE(entry.find("MimeType=inode/directory;"), std::string::npos);
  ASSERT_TRUE(gui::SetFolderAction(false, "Run Tarnwick"));
  EXPECT_FALSE(QFile::exists(QString::fromStdString(gui::FolderActionPath())));
  EXPECT_TRUE(gui::SetFolderAction(false, "Run Tarnwick"));  // nothing to remove
  qputenv("XDG_DATA_HOME", before);
}

TEST_F(OptionsDialogTest, StartWithWindowsIsAnAutostartEntryAndTheWindowsOptionsSayTheirLinuxMeaning) {
  TempDir config;
  const QByteArray before = qgetenv("XDG_CONFIG_HOME");
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(config.str()));
  ASSERT_TRUE(gui::SetAutostart(true));
  const std::string entry = config.ReadFile("autostart/tarnwick.desktop");
  EXPECT_NE(entry.find("[Desktop Entry]\nType=Application\n"), std::string::npos);
  EXPECT_NE(entry.find("\nExec=\""), std::string::npos);
  ASSERT_TRUE(gui::SetAutostart(false));
  EXPECT_FALSE(QFile::exists(QString::fromStdString(gui::AutostartPath())));
  qputenv("XDG_CONFIG_HOME", before);

  OptionsDialog dialog(options, messages, questions, computed);
  for (const char* key : {"StartWithWindows", "UseWindowsStyle", "ContextMenu", "SecureWindowsFolder"}) {
    QWidget* editor = dialog.findChild<QWidget*>(key);
    ASSERT_NE(editor, nullptr) << key;
    EXPECT_TRUE(editor->toolTip().startsWith("On Linux: ")) << key;
  }
  // The three preview modes are numbered, not named by their option keys.
  auto* second = dialog.findChild<QAbstractButton*>("View1");
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(second->text(), "Picture preview mode 2");
}

TEST_F(OptionsDialogTest, TheSettingsFileTypeIsRegisteredForTheUser) {
  TempDir data;
  const QByteArray before = qgetenv("XDG_DATA_HOME");
  qputenv("XDG_DATA_HOME", QByteArray::fromStdString(data.str()));
  ASSERT_TRUE(gui::RegisterSettingsFileType("Tarnwick <settings> file", false));
  const std::string mime = data.ReadFile("mime/packages/tarnwick-settings.xml");
  EXPECT_NE(mime.find("<mime-type type=\"application/x-tarnwick-settings\">"), std::string::npos);
  EXPECT_NE(mime.find("<glob pattern=\"*.twr\"/>"), std::string::npos);
  EXPECT_NE(mime.find("<comment>Tarnwick &lt;settings&gt; file</comment>"), std::string::npos);
  const std::string entry = data.ReadFile("applications/tarnwick.desktop");
  EXPECT_NE(entry.find("MimeType=application/x-tarnwick-settings;\n"), std::string::npos);
  EXPECT_NE(entry.find("\" %f\n"), std::string::npos);
  // Written again over the old files, as a second registration does.
  EXPECT_TRUE(gui::RegisterSettingsFileType("Tarnwick settings file", false));
  EXPECT_NE(data.ReadFile("mime/packages/tarnwick-settings.xml").find("<comment>Tarnwick settings"),
            std::string::npos);
  // A data folder that cannot be made gives false.
  data.WriteFile("blocked", "a file, not a folder");
  qputenv("XDG_DATA_HOME", QByteArray::fromStdString((data.path() / "blocked").string()));
  EXPECT_FALSE(gui::RegisterSettingsFileType("Tarnwick settings file", false));
  qputenv("XDG_DATA_HOME", before);
}

}  // namespace
}  // namespace tarnwick::testing
