// The options dialogue: OK stores every shown value, Default asks and shows
// the defaults, Cancel stores nothing; the folder action's desktop entry.
#include "options_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>

#include "desktop_integration.h"
#include "gui/gui_test_support.h"
#include "persist/option_store.h"
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
  EXPECT_EQ(dialog.Shown("FileDateType"), "Created");
  EXPECT_EQ(dialog.Shown("Language"), "System language");
  dialog.reject();  // Cancel: the stored values stay
  EXPECT_EQ(options.GetOption("WriteLogFile", "Options", "?"), "0");
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
