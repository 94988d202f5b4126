// The dialogues of copy and move and of rename from a text file, alone and
// from the window's Tools menu, as a user works them.
#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDateEdit>
#include <QLabel>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <QTimeEdit>
#include <QTableView>
#include <QTimer>
#include <filesystem>

#include "copy_move_dialog.h"
#include "gui/gui_test_support.h"
#include "main_window.h"
#include "persist/option_store.h"
#include "rename_text_dialog.h"
#include "report_window.h"
#include "split_merge_dialogs.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
using gui::CopyMoveDialog;
using gui::MainWindow;
using gui::MergeDialog;
using gui::RenameTextDialog;
using gui::ReportWindow;
using gui::SplitDialog;

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
  // The run ends with its summary, as a run from the Start button does.
  ASSERT_EQ(interaction.run_summaries().size(), 1u);
  EXPECT_EQ(interaction.run_summaries().front().done, 3);

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

TEST_F(ToolDialogsTest, TheSplitDialogueRefusesABadSizeAndKeepsAGoodOne) {
  SplitDialog dialog(options, messages, interaction);
  Child<QLineEdit>(&dialog, "txtUnits")->setText("0,5");
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  EXPECT_FALSE(dialog.Start());
  EXPECT_EQ(interaction.asked().back().text, "You must enter a size => 1!");
  Child<QComboBox>(&dialog, "cboUnits")->setCurrentIndex(3);
  Child<QLineEdit>(&dialog, "txtUnits")->setText("1");
  EXPECT_FALSE(dialog.Start());
  EXPECT_EQ(interaction.asked().back().text, "You must enter a size greater 1 to proceed!");
  Child<QLineEdit>(&dialog, "txtNewFile")->setText(QString::fromStdString(Target() + "/missing"));
  Child<QLineEdit>(&dialog, "txtUnits")->setText("2,5");
  EXPECT_FALSE(dialog.Start());
  Child<QLineEdit>(&dialog, "txtNewFile")->setText(QString::fromStdString(Target()));
  Child<QLineEdit>(&dialog, "txtExtension")->setText("piece");
  Child<QCheckBox>(&dialog, "chkBatch")->setChecked(true);
  EXPECT_TRUE(dialog.Start());
  const SplitChoices choices = dialog.choices();
  EXPECT_EQ(choices.amount, 2.5);
  EXPECT_EQ(choices.unit, SplitUnit::kCount);
  EXPECT_EQ(choices.destination, Target());
  EXPECT_TRUE(choices.batch);

  // The next split starts from these choices.
  SplitDialog again(options, messages, interaction);
  EXPECT_EQ(Child<QLineEdit>(&again, "txtUnits")->text(), "2,5");
  EXPECT_EQ(Child<QComboBox>(&again, "cboUnits")->currentIndex(), 3);
  EXPECT_EQ(Child<QLineEdit>(&again, "txtExtension")->text(), "piece");
}

TEST_F(ToolDialogsTest, TheMergeDialogueProposesTheNameThePiecesCameFrom) {
  EXPECT_EQ(gui::MergeTargetFor("movie.mkv_00000.part"), "movie.mkv");
  EXPECT_EQ(gui::MergeTargetFor("movie.mkv_000123.001"), "movie.mkv");
  EXPECT_EQ(gui::MergeTargetFor("holiday.jpg"), "");
  EXPECT_EQ(gui::MergeTargetFor("_00000.part"), "");

  MergeDialog dialog("/data", "movie.mkv_00000.part", messages, interaction);
  EXPECT_EQ(dialog.target_field()->text(), "/data/movie.mkv");
  EXPECT_FALSE(Child<QLineEdit>(&dialog, "txtExtension")->isEnabled());
  Child<QCheckBox>(&dialog, "chkExtension")->setChecked(true);
  EXPECT_TRUE(Child<QLineEdit>(&dialog, "txtExtension")->isEnabled());
  dialog.target_field()->setText("joined.mkv");  // relative: in the folder
  EXPECT_EQ(dialog.choices().target, "/data/joined.mkv");
  dialog.target_field()->clear();
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  EXPECT_FALSE(dialog.Start());
  EXPECT_EQ(interaction.asked().back().title, "Merge file(s)");
}

TEST_F(ToolDialogsTest, TheToolsMenuSplitsMergesChecksumsAndShreds) {
  dir.WriteFile("files/a.jpg", std::string(2600, 'a'));
  std::unique_ptr<MainWindow> window = Window();
  // Selects in the view, as a user does, the rows whose names `wanted` takes.
  const auto select = [&window](const std::function<bool(const std::string&)>& wanted) {
    QItemSelection selection;
    for (std::size_t row = 0; row < window->list().size(); ++row) {
      if (!wanted(window->list().Text(row, file_column::kName))) continue;
      const auto index = window->file_view()->model()->index(static_cast<int>(row), 0);
      selection.select(index, index);
    }
    window->file_view()->selectionModel()->select(
        selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  };
  select([](const std::string& name) { return name == "a.jpg"; });
  WhenOpen<SplitDialog>([](SplitDialog* dialog) {
    Child<QLineEdit>(dialog, "txtUnits")->setText("1");
    Child<QComboBox>(dialog, "cboUnits")->setCurrentIndex(1);  // kilobytes: 1024
    Child<QPushButton>(dialog, "cmdStart")->click();
  });
  window->findChild<QAction*>("mnuSplitFiles")->trigger();
  EXPECT_EQ(fs::file_size(dir.path() / "files/a.jpg_00000.part"), 1024u);
  EXPECT_EQ(fs::file_size(dir.path() / "files/a.jpg_00002.part"), 2600u - 2048u);
  ASSERT_EQ(window->list().size(), 6u);  // the list read again

  select([](const std::string& name) { return name.ends_with(".part"); });
  WhenOpen<MergeDialog>([](MergeDialog* dialog) {
    dialog->target_field()->setText("back.jpg");
    Child<QPushButton>(dialog, "cmdStart")->click();
  });
  window->findChild<QAction*>("mnuMergeFiles")->trigger();
  EXPECT_EQ(fs::file_size(dir.path() / "files/back.jpg"), 2600u);

  window->SelectAll();
  std::string report;
  WhenOpen<ReportWindow>([&report](ReportWindow* shown) {
    report = shown->text_field()->toPlainText().toStdString();
    Child<QPushButton>(shown, "cmdClose")->click();
  });
  window->findChild<QAction*>("mnuGetMD5Checksums")->trigger();
  EXPECT_NE(report.find("/files/c.txt; MD5: d394994e9541622e8018542d886abaa8"), std::string::npos)
      << report;

  window->SelectAll();
  interaction.Then(Answer::kYes);
  options.SaveOption("FSOverwrite", "Options", "1");
  window->findChild<QAction*>("mnuSecureDelete")->trigger();
  EXPECT_EQ(window->list().size(), 0u);
  EXPECT_TRUE(fs::is_empty(dir.path() / "files"));
}

}  // namespace
}  // namespace tarnwick::testing
