// The list of the main window under changes: Esc before a job, a change of
// folder, the folder watch, refills while the user works, and a run started
// while another program changes the folder. The window answers with its own
// dialogues here (no scripted interaction), as it does for a user.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFileSystemModel>
#include <QGroupBox>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <set>
#include <thread>

#include "file_list_model.h"
#include "gui/gui_test_support.h"
#include "main_window.h"
#include "persist/option_store.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
using gui::MainWindow;

std::string NameOf(int number) {
  char name[32];
  std::snprintf(name, sizeof name, "file%05d.txt", number);
  return name;
}

class WindowListTest : public GuiTest {
 protected:
  WindowListTest() : options(config.path() / "Tarnwick.ini") {
    options.SaveOption("LogFilePath", "Options", LogPath().string());
    options.SaveOption("UndoFilePath", "Options", config.str());
    options.SaveOption("PlayFinishSound", "Options", "0");
    options.SaveOption("LogOnlyRename", "Options", "0");  // the fill's lines too
    options.SaveOption("Icons", "Options", "0");          // no notice at a fill with subfolders
    // What a run asks on the way (a file that is gone: go on?) is answered
    // Yes, and the summary after a run is closed.
    yes_to_questions.setInterval(50);
    QObject::connect(&yes_to_questions, &QTimer::timeout, [] {
      QWidget* modal = QApplication::activeModalWidget();
      if (auto* box = qobject_cast<QMessageBox*>(modal)) {
        if (QAbstractButton* yes = box->button(QMessageBox::Yes)) yes->click();
      }
      if (modal != nullptr && modal->objectName() == "frmRunSummary") {
        if (auto* close = modal->findChild<QPushButton*>("cmdClose")) close->click();
      }
    });
    yes_to_questions.start();
  }

  fs::path LogPath() const { return config.path() / "Tarnwick.log"; }

  void Open(int files) {
    for (int i = 0; i < files; ++i) dir.WriteFile(NameOf(i), "x");
    window = std::make_unique<MainWindow>(options, MessageTable::Get(Language::kEnglish));
    window->resize(1100, 760);
    window->show();
    window->ShowFolder(QString::fromStdString(dir.str()));
  }

  // Clicks `button` of the next dialogue that opens, once it is open;
  // `first` runs while the dialogue is open.
  static void AnswerNextDialog(const char* button, const std::function<void()>& first = {}) {
    QTimer::singleShot(0, [button, first] {
      QWidget* dialog = nullptr;
      ASSERT_TRUE(WaitFor([&] { return (dialog = QApplication::activeModalWidget()) != nullptr; }));
      if (first) first();
      QAbstractButton* push = dialog->findChild<QPushButton*>(button);
      ASSERT_NE(push, nullptr) << button;
      push->click();
    });
  }

  std::set<std::string> NamesOnDisk() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(dir.path())) {
      names.insert(entry.path().filename().string());
    }
    return names;
  }

  std::vector<std::string> SelectedPaths() const {
    std::vector<std::string> paths;
    for (std::size_t row : window->list().SelectedRows()) paths.push_back(window->list().Path(row));
    return paths;
  }

  std::string ReadLog() const {
    std::ifstream in(LogPath(), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  // Selects the rows for which `wanted` holds, in the view, as a user does.
  void SelectRowsWhere(const std::function<bool(std::size_t)>& wanted) {
    QItemSelection selection;
    for (std::size_t row = 0; row < window->list().size(); ++row) {
      if (!wanted(row)) continue;
      const auto index = window->file_view()->model()->index(static_cast<int>(row), 0);
      selection.select(index, index);
    }
    window->file_view()->selectionModel()->select(
        selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }

  TempDir dir;
  TempDir config;
  OptionStore options;
  QTimer yes_to_questions;
  std::unique_ptr<MainWindow> window;
};

TEST_F(WindowListTest, AnEscPressedBeforeAFillOrARunDoesNotStopIt) {
  Open(30);
  // Esc closes a menu, a question, a dialogue: none of them is a fill or a run.
  QTest::keyClick(window->file_view(), Qt::Key_Escape);
  window->FillListFiles();
  EXPECT_EQ(window->list().size(), 30u);

  window->settings().chkPrefix = 1;
  window->settings().txtPrefix = "x_";
  QTest::keyClick(window->file_view(), Qt::Key_Escape);
  window->SelectAll();
  AnswerNextDialog("cmdStart");
  window->StartRenaming();
  int renamed = 0;
  for (const std::string& name : NamesOnDisk()) renamed += name.starts_with("x_") ? 1 : 0;
  EXPECT_EQ(renamed, 30);
}

TEST_F(WindowListTest, ChangingTheFolderSetsTheFilterBackAndLogsTheChange) {
  dir.WriteFile("a.jpg", "x");
  dir.WriteFile("other/b.jpg", "x");
  dir.WriteFile("other/c.txt", "x");
  Open(2);
  auto* extension = window->findChild<QComboBox*>("cboExtension");
  extension->setEditText("*.jpg");
  QTest::keyClick(extension->lineEdit(), Qt::Key_Return);
  ASSERT_EQ(window->list().size(), 1u);

  auto* model = qobject_cast<QFileSystemModel*>(window->folder_view()->model());
  const QString other = QString::fromStdString((dir.path() / "other").string());
  window->folder_view()->setCurrentIndex(model->index(other));

  EXPECT_EQ(window->app().CurrentPath, other.toStdString());
  EXPECT_EQ(window->app().CurrentFilter, "*.*");
  EXPECT_EQ(window->list().size(), 2u);
  EXPECT_EQ(extension->currentText(), "*.*");
  const std::string log = ReadLog();
  EXPECT_NE(log.find("Changed directory to: " + other.toStdString() + " [Changed directory (2 files in "),
            std::string::npos)
      << log;

  // The filter chosen in the new folder survives a refill of that folder.
  extension->setEditText("*.txt");
  QTest::keyClick(extension->lineEdit(), Qt::Key_Return);
  window->FillListFiles();
  EXPECT_EQ(window->list().size(), 1u);
}

TEST_F(WindowListTest, TheWatchSeesSubfoldersAndWritesIntoFiles) {
  dir.WriteFile("sub/deep.txt", "x");
  Open(3);
  window->findChild<QCheckBox*>("chkIncludeSubfolders")->setChecked(true);
  ASSERT_EQ(window->list().size(), 4u);

  dir.WriteFile("sub/new.txt", "x");
  EXPECT_TRUE(WaitFor([&] { return window->list().size() == 5u; }));

  // A program writes into a listed file: its size column follows.
  const auto row_of = [&](const std::string& name) {
    for (std::size_t row = 0; row < window->list().size(); ++row) {
      if (window->list().rows()[row].name == name) return static_cast<int>(row);
    }
    return -1;
  };
  const auto size_text = [&] {
    const auto* files = window->file_view()->model();
    return files->data(files->index(row_of(NameOf(1)), file_column::kSizeBytes)).toString();
  };
  ASSERT_EQ(size_text(), "1");
  {
    std::ofstream(dir.path() / NameOf(1), std::ios::app) << "more";
  }
  EXPECT_TRUE(WaitFor([&] { return size_text() == "5"; }));

  // With the watch switched off in the options, nothing refills.
  options.SaveOption("CheckNotForNewFiles", "Options", "1");
  window->FillListFiles();
  dir.WriteFile("later.txt", "x");
  WaitFor([] { return false; }, 700);
  EXPECT_EQ(window->list().size(), 5u);
}

TEST_F(WindowListTest, WithTheSampleTurnedOffTheTitleStillShowsTheCounts) {
  options.SaveOption("SampleRefreshRate", "Options", "Turn off");
  Open(4);
  EXPECT_FALSE(window->sample_frame()->isVisible());
  EXPECT_TRUE(WaitFor([&] { return window->windowTitle().contains("4"); }))
      << window->windowTitle().toStdString();
  EXPECT_FALSE(window->status_label()->text().startsWith("Please wait"))
      << window->status_label()->text().toStdString();
}

TEST_F(WindowListTest, ARefillKeepsTheSelectionByNameAndARunTheConfirmedRows) {
  Open(20);
  SelectRowsWhere([](std::size_t row) { return row >= 4 && row < 16; });
  ASSERT_EQ(window->list().SelectedCount(), 12u);
  const std::vector<std::string> chosen = SelectedPaths();

  dir.WriteFile("file00000a.txt", "x");  // sorts among the rows, before the selection
  ASSERT_TRUE(WaitFor([&] { return window->list().size() == 21u; }));
  EXPECT_EQ(SelectedPaths(), chosen);
  window->FillListFiles();  // F5 likewise
  EXPECT_EQ(SelectedPaths(), chosen);

  // Another program changes the folder while the start question is open.
  window->settings().chkPrefix = 1;
  window->settings().txtPrefix = "x_";
  AnswerNextDialog("cmdStart", [&] {
    dir.WriteFile("arrived while asking.txt", "x");
    fs::remove(dir.path() / NameOf(5));  // one of the confirmed rows vanishes
    WaitFor([] { return false; }, 800);  // the watch has time to see it
  });
  window->StartRenaming();
  std::set<std::string> renamed;
  for (const std::string& name : NamesOnDisk()) {
    if (name.starts_with("x_")) renamed.insert(name.substr(2));
  }
  std::set<std::string> expected;
  for (int i = 4; i < 16; ++i) {
    if (i != 5) expected.insert(NameOf(i));
  }
  EXPECT_EQ(renamed, expected);
  EXPECT_NE(ReadLog().find(NameOf(5)), std::string::npos);
}

TEST_F(WindowListTest, AClickOnAHeaderSortsABigListAtOnce) {
  Open(20000);
  ASSERT_EQ(window->list().size(), 20000u);
  QHeaderView* header = window->file_view()->horizontalHeader();
  const auto click = [&](int column) {
    const QPoint at(header->sectionViewportPosition(column) + 5, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
  };
  const auto shown = [&](int row) {
    const auto* model = window->file_view()->model();
    return model->data(model->index(row, file_column::kName)).toString().toStdString();
  };
  QAction* descending = window->findChild<QAction*>("mnuSortDescending");
  ASSERT_NE(descending, nullptr);
  click(file_column::kName);
  EXPECT_EQ(shown(0), NameOf(0));
  EXPECT_EQ(header->sortIndicatorOrder(), Qt::AscendingOrder);
  EXPECT_FALSE(descending->isChecked());
  click(file_column::kName);
  EXPECT_EQ(shown(0), NameOf(19999));
  EXPECT_EQ(shown(19999), NameOf(0));
  EXPECT_EQ(header->sortIndicatorOrder(), Qt::DescendingOrder);
  EXPECT_TRUE(descending->isChecked());
  // The menu's tick turns the list round by the same column.
  descending->trigger();
  EXPECT_EQ(shown(0), NameOf(0));
  EXPECT_EQ(header->sortIndicatorOrder(), Qt::AscendingOrder);
}

// The caption names the file in hand and the bar shows how far the run is:
// the two agree while it runs, and the title is not rewritten for every file
// (a window manager draws titles slower than a run renames files).
TEST_F(WindowListTest, TheCaptionAndTheProgressBarAgreeDuringARun) {
  Open(5000);
  window->settings().chkPrefix = 1;
  window->settings().txtPrefix = "x_";
  window->SelectAll();
  auto* bar = window->findChild<QProgressBar*>("prgBar");
  int title_changes = 0;
  QObject::connect(window.get(), &QWidget::windowTitleChanged, [&] { ++title_changes; });
  std::vector<std::pair<double, double>> seen;  // the caption's share, the bar's share
  QTimer sampler;
  sampler.setInterval(20);
  QObject::connect(&sampler, &QTimer::timeout, [&] {
    const QString title = window->windowTitle();
    const auto open = title.indexOf('['), slash = title.indexOf('/', open),
               close = title.indexOf(']', slash);
    if (open < 0 || slash < 0 || close < 0 || !bar->isVisible()) return;
    const double done = title.mid(open + 1, slash - open - 1).toDouble();
    const double total = title.mid(slash + 1, close - slash - 1).toDouble();
    if (total <= 0 || done >= total) return;  // after the last file the list is read again
    seen.emplace_back(done / total, static_cast<double>(bar->value()) / bar->maximum());
  });
  sampler.start();
  AnswerNextDialog("cmdStart");
  window->StartRenaming();
  sampler.stop();
  ASSERT_FALSE(seen.empty());
  for (const auto& [caption, shown] : seen) EXPECT_NEAR(caption, shown, 0.02);
  EXPECT_LT(title_changes, 1000);
}

// Qt counts an emoji as two positions, the core as one character: a
// selection in the sample after an emoji names the characters the user sees.
TEST_F(WindowListTest, ASampleSelectionAfterAnEmojiCountsCharacters) {
  dir.WriteFile("\xF0\x9F\x98\x80 photo.txt", "x");
  Open(0);
  window->SampleTick(true);
  QLineEdit* sample = window->sample_field();
  ASSERT_EQ(sample->text().toStdString(), "\xF0\x9F\x98\x80 photo.txt");
  sample->setSelection(3, 5);  // UTF-16: the emoji is 0 and 1, the blank 2
  const std::string status = window->status_label()->text().toStdString();
  EXPECT_NE(status.find("\"photo\""), std::string::npos) << status;
  EXPECT_NE(status.find(" 3 "), std::string::npos) << status;
  EXPECT_NE(status.find(" 7 "), std::string::npos) << status;
}

TEST_F(WindowListTest, TheTooltipOptionsSwitchTheirTooltipsOnAndOff) {
  Open(1);
  const auto tip = [&] {
    const auto* model = window->file_view()->model();
    return model->data(model->index(0, 0), Qt::ToolTipRole).toString().toStdString();
  };
  EXPECT_NE(tip().find(dir.str() + "/" + NameOf(0)), std::string::npos) << tip();
  auto* prefix = window->findChild<QLineEdit*>("txtPrefix");
  EXPECT_FALSE(prefix->toolTip().isEmpty());
  options.SaveOption("ShowTooltips", "Options", "0");
  options.SaveOption("AdvancedToolTip", "Options", "0");
  window->ApplyTooltipOptions();
  EXPECT_EQ(tip(), "");
  EXPECT_TRUE(prefix->toolTip().isEmpty());
}

TEST_F(WindowListTest, AFolderThatCannotBeReadSaysWhyNotThatItIsEmpty) {
  Open(0);
  window->SampleTick(true);
  EXPECT_EQ(window->status_label()->text().toStdString(), "No files in current selected directory.");
  dir.WriteFile("not a folder", "x");
  window->ShowFolder(QString::fromStdString((dir.path() / "not a folder").string()));
  window->SampleTick(true);
  EXPECT_EQ(window->status_label()->text().toStdString(),
            "Path not found: " + (dir.path() / "not a folder").string());
}

TEST_F(WindowListTest, SizeAndListViewAreKeptBetweenStarts) {
  options.SaveOption("Width", "Options", "700");
  options.SaveOption("Height", "Options", "600");
  options.SaveOption("ListView", "Options", "2");
  window = std::make_unique<MainWindow>(options, MessageTable::Get(Language::kEnglish));
  EXPECT_EQ(window->size(), QSize(700, 600));
  EXPECT_EQ(window->list_view_mode(), MainWindow::ListViewMode::kSymbols);
  window->SetListViewMode(MainWindow::ListViewMode::kList);
  window->resize(720, 610);
  window->show();
  EXPECT_TRUE(window->close());
  EXPECT_EQ(options.GetOption("Width", "Options", ""), "720");
  EXPECT_EQ(options.GetOption("Height", "Options", ""), "610");
  EXPECT_EQ(options.GetOption("ListView", "Options", ""), "0");
  EXPECT_EQ(options.GetOption("Maximized", "Options", ""), "0");
}

// Another thread makes, renames and removes files while the window fills and
// runs: the files that stay put are always all listed, and a run renames
// exactly the rows that were selected when it was confirmed.
TEST_F(WindowListTest, FillsAndARunStayWholeWhileTheFolderChanges) {
  Open(200);
  std::atomic<bool> stop{false};
  std::thread churn([&] {
    for (int i = 0; !stop; ++i) {
      const fs::path made = dir.path() / ("churn_" + std::to_string(i % 50) + ".tmp");
      std::ofstream(made) << i;
      std::error_code ignored;
      fs::rename(made, dir.path() / ("churn_moved_" + std::to_string(i % 50) + ".tmp"), ignored);
      if (i % 3 == 0) fs::remove(dir.path() / ("churn_moved_" + std::to_string(i % 50) + ".tmp"),
                                 ignored);
      std::this_thread::sleep_for(std::chrono::microseconds(300));
    }
  });
  const auto stable_listed = [&] {
    std::size_t count = 0;
    for (std::size_t row = 0; row < window->list().size(); ++row) {
      count += window->list().rows()[row].name.starts_with("file") ? 1 : 0;
    }
    return count;
  };
  for (int round = 0; round < 25; ++round) {
    QTest::keyClick(window->file_view(), Qt::Key_Escape);  // a menu closed, say
    window->FillListFiles();
    ASSERT_EQ(stable_listed(), 200u) << "round " << round;
    QApplication::processEvents(QEventLoop::AllEvents, 30);
    ASSERT_GE(stable_listed(), 200u) << "round " << round;
  }

  // Select the stable files only, then run while the churn goes on.
  SelectRowsWhere([&](std::size_t row) { return window->list().rows()[row].name.starts_with("file"); });
  ASSERT_EQ(window->list().SelectedCount(), 200u);
  window->settings().chkPrefix = 1;
  window->settings().txtPrefix = "x_";
  AnswerNextDialog("cmdStart", [] { WaitFor([] { return false; }, 500); });
  window->StartRenaming();
  stop = true;
  churn.join();

  std::size_t renamed = 0;
  for (const std::string& name : NamesOnDisk()) {
    EXPECT_FALSE(name.starts_with("x_churn")) << name;
    renamed += name.starts_with("x_file") ? 1 : 0;
  }
  EXPECT_EQ(renamed, 200u);
}

}  // namespace
}  // namespace tarnwick::testing
