// The dialogues of copy and move and of rename from a text file, alone and
// from the window's Tools menu, as a user works them.
#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <QTimeEdit>
#include <QTimer>
#include <filesystem>

#include "copy_move_dialog.h"
#include "gui/gui_test_support.h"
#include "main_window.h"
#include "persist/option_store.h"
#include "rename_text_dialog.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
using gui::CopyMoveDialog;
using gui::MainWindow;
using gui::RenameTextDialog;

class ToolDialogsTest : public GuiTest {
 protected:
  ToolDialogsTest() : options(config.path() / "Tarnwick.ini") {
    options.SaveOption("LogFilePath", "Options", (config.path() / "Tarnwick.log").string());
    options.SaveOption("UndoFilePath", "Options", config.str());
    options.SaveOption("ReadySound", "Options", "0");
    for (const char* name : {"a.jpg", "b.jpg", "c.txt"}) dir.WriteFile(std::string("files/") + name, name);
    fs::create_directories(dir.path() / "target");
  }

  std::string Target() const { return (dir.path() / "target").string(); }

  template <typename T>
  static T* Child(QWidget* parent, const char* name) {
    T* child = parent->findChild<T*>(name);
    EXPECT_NE(child, nullptr) << name;
    return child;
  }

  // Runs `work` on the next dialogue of type T once it is open.
  template <typename T>
  static void WhenOpen(const std::function<void(T*)>& work) {
    QTimer::singleShot(0, [work] {
      T* dialog = nullptr;
      ASSERT_TRUE(WaitFor([&] { return (dialog = qobject_cast<T*>(QApplication::activeModalWidget())); }));
      work(dialog);
    });
  }

  std::unique_ptr<MainWindow> Window() {
    auto window = std::make_unique<MainWindow>(options, messages, &interaction);
    window->ShowFolder(QString::fromStdString((dir.path() / "files").string()));
    return window;
  }

  TempDir dir;
  TempDir config;
  OptionStore options;
  ScriptedInteraction interaction;
  const MessageTable& messages = MessageTable::Get(Language::kEnglish);
};

TEST_F(ToolDialogsTest, TheCopyMoveDialogueGivesEveryChoiceAndChecksTheFolder) {
  CopyMoveDialog dialog(options, messages, interaction);
  auto* append = Child<QCheckBox>(&dialog, "chkAppendBatch");
  EXPECT_FALSE(append->isEnabled());
  Child<QCheckBox>(&dialog, "chkCreateBatchOnly")->setChecked(true);
  EXPECT_TRUE(append->isEnabled());
  append->setChecked(true);
  Child<QButtonGroup>(&dialog, "optAction")->button(1)->click();
  Child<QCheckBox>(&dialog, "chkOverwriteFiles")->setChecked(true);
  Child<QCheckBox>(&dialog, "chkSaveTargetDir")->setChecked(true);

  auto* days = Child<QSpinBox>(&dialog, "txtDays");
  Child<QCheckBox>(&dialog, "chkChangeDateTime")->setChecked(true);
  EXPECT_FALSE(days->isEnabled());  // "Set" uses the pickers
  Child<QCheckBox>(&dialog, "chkDate")->setChecked(true);
  Child<QDateEdit>(&dialog, "dtpDate")->setDate(QDate(2019, 5, 4));
  Child<QButtonGroup>(&dialog, "optMinusPlus")->button(2)->click();
  EXPECT_TRUE(days->isEnabled());
  EXPECT_FALSE(Child<QDateEdit>(&dialog, "dtpDate")->isEnabled());
  days->setValue(3);
  Child<QSpinBox>(&dialog, "txtSeconds")->setValue(9);

  // A folder that is not there: said, and the dialogue stays.
  dialog.target_field()->setText(QString::fromStdString(Target() + "/missing"));
  EXPECT_FALSE(dialog.Ok());
  ASSERT_EQ(interaction.asked().size(), 1u);
  EXPECT_NE(interaction.asked()[0].text.find("The target directory does not exist:"),
            std::string::npos);

  dialog.target_field()->setText(QString::fromStdString(Target()));
  EXPECT_TRUE(dialog.Ok());
  const CopyMoveChoices choices = dialog.choices();
  EXPECT_TRUE(choices.move);
  EXPECT_TRUE(choices.overwrite);
  EXPECT_TRUE(choices.batch_only);
  EXPECT_TRUE(choices.append_batch);
  EXPECT_EQ(choices.target_folder, Target());
  EXPECT_TRUE(choices.date.enabled);
  EXPECT_EQ(choices.date.shift, DateShift::kSubtract);
  EXPECT_EQ(choices.date.days, 3);
  EXPECT_EQ(choices.date.seconds, 9);
  EXPECT_EQ(choices.date.date, (vb::DateTime{2019, 5, 4, 0, 0, 0}));

  // "Save path": the next dialogue starts in the same folder.
  CopyMoveDialog next(options, messages, interaction);
  EXPECT_EQ(next.target_field()->text().toStdString(), Target());
  EXPECT_TRUE(Child<QCheckBox>(&next, "chkSaveTargetDir")->isChecked());
}

TEST_F(ToolDialogsTest, TheTextFileIsCheckedBeforeStartIsOffered) {
  dir.WriteFile("bad.txt", "ok\r\nno?\r\n");
  dir.WriteFile("good.txt", "Ann\r\nBen Hur\r\nCy");
  RenameTextDialog dialog(3, messages, interaction);
  auto* start = Child<QPushButton>(&dialog, "cmdExecute");
  dialog.Load((dir.path() / "bad.txt").string());
  ASSERT_EQ(interaction.asked().size(), 1u);
  EXPECT_EQ(interaction.asked()[0].title, "Failed validation");
  EXPECT_NE(interaction.asked()[0].text.find("Row 1, Char 3:\t-> ? [ASCII: 63]"), std::string::npos);
  EXPECT_TRUE(Child<QLineEdit>(&dialog, "txtFilePath")->text().isEmpty());
  EXPECT_FALSE(start->isEnabled());

  dialog.Load((dir.path() / "good.txt").string());
  EXPECT_EQ(interaction.asked().size(), 1u);
  EXPECT_EQ(Child<QLabel>(&dialog, "lblSize")->text(), "16 Bytes");
  EXPECT_EQ(Child<QLabel>(&dialog, "lblLines")->text(), "3");
  EXPECT_EQ(Child<QLabel>(&dialog, "lblWords")->text(), "4");
  EXPECT_EQ(Child<QLabel>(&dialog, "lblSelectedFilesCount")->text(), "3");
  ASSERT_TRUE(start->isEnabled());

  interaction.Then(Answer::kNo).Then(Answer::kYes);
  EXPECT_FALSE(dialog.Execute());
  EXPECT_EQ(interaction.asked().back().text, "Are you sure to proceed?");
  EXPECT_TRUE(dialog.Execute());
  EXPECT_EQ(dialog.result(), QDialog::Accepted);

  RenameTextDialog fewer(2, messages, interaction);
  fewer.Load((dir.path() / "good.txt").string());
  EXPECT_NE(interaction.asked().back().text.find("must be equal to the rows"), std::string::npos);
  EXPECT_FALSE(Child<QPushButton>(&fewer, "cmdExecute")->isEnabled());
}

TEST_F(ToolDialogsTest, TheToolsMenuCopiesMovesAndRenamesTheSelectedFiles) {
  std::unique_ptr<MainWindow> window = Window();
  window->SelectAll();
  WhenOpen<CopyMoveDialog>([this](CopyMoveDialog* dialog) {
    dialog->target_field()->setText(QString::fromStdString(Target()));
    Child<QPushButton>(dialog, "cmdOK")->click();
  });
  window->findChild<QAction*>("mnuMoveCopyFiles")->trigger();
  EXPECT_TRUE(fs::exists(dir.path() / "target/c.txt"));
  EXPECT_EQ(window->list().size(), 3u);  // a copy leaves the list as it was

  dir.WriteFile("names.txt", "Alpha\r\nBeta\r\nGamma");
  window->SelectAll();
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kYes);
  WhenOpen<RenameTextDialog>([this](RenameTextDialog* dialog) {
    dialog->Load((dir.path() / "names.txt").string());
    Child<QPushButton>(dialog, "cmdExecute")->click();
  });
  window->findChild<QAction*>("mnuRenameFromFile")->trigger();
  EXPECT_TRUE(fs::exists(dir.path() / "files/Alpha.jpg"));
  EXPECT_TRUE(fs::exists(dir.path() / "files/Gamma.txt"));
  EXPECT_EQ(window->list().Text(0, file_column::kName), "Alpha.jpg");  // the list read again

  window->SelectAll();
  WhenOpen<CopyMoveDialog>([this](CopyMoveDialog* dialog) {
    dialog->target_field()->setText(QString::fromStdString(Target()));
    Child<QButtonGroup>(dialog, "optAction")->button(1)->click();
    Child<QPushButton>(dialog, "cmdOK")->click();
  });
  window->findChild<QAction*>("mnuMoveCopyFiles")->trigger();
  EXPECT_EQ(window->list().size(), 0u);  // moved away: the list is read again
  EXPECT_TRUE(fs::exists(dir.path() / "target/Beta.jpg"));
}

}  // namespace
}  // namespace tarnwick::testing
