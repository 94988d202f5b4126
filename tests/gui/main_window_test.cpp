// The main window driven as a user would: a folder, ticks and fields, the
// sample, the "New name" column, a run with scripted answers.
#include "main_window.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QFileSystemModel>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <QTreeView>
#include <sys/stat.h>

#include <ctime>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "core/action_order.h"
#include "core/settings_file.h"
#include "desktop_integration.h"
#include "desktop_start.h"
#include "file_list_model.h"
#include "log_viewer.h"
#include "gui/gui_test_support.h"
#include "persist/option_store.h"
#include "rename_controls.h"
#include "shell/scripted_interaction.h"
#include "startup/startup.h"
#include "support/temp_dir.h"
#include "window_host.h"

namespace tarnwick::testing {
namespace {

using gui::FileListModel;
using gui::MainWindow;

class MainWindowTest : public GuiTest {
 protected:
  MainWindowTest() : options(config.path() / "Tarnwick.ini") {
    // The log and the undo batch go to the test's own folder.
    options.SaveOption("LogFilePath", "Options", (config.path() / "Tarnwick.log").string());
    options.SaveOption("UndoFilePath", "Options", config.str());
    for (const char* name : {"a.txt", "b.txt", "c.txt"}) dir.WriteFile(name, name);
    window =
        std::make_unique<MainWindow>(options, MessageTable::Get(Language::kEnglish), &interaction);
    window->resize(1100, 760);
    window->show();
    window->ShowFolder(QString::fromStdString(dir.str()));
  }

  template <typename T>
  T* Control(const char* name) {
    T* control = window->findChild<T*>(name);
    EXPECT_NE(control, nullptr) << name;
    return control;
  }

  // A click on the tick's box, where a user clicks.
  void Tick(const char* name) {
    QCheckBox* box = Control<QCheckBox>(name);
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2));
  }

  void Type(const char* field, const char* text) {
    QLineEdit* edit = Control<QLineEdit>(field);
    edit->setFocus();
    QTest::keyClicks(edit, text);
  }

  QString CellText(int row, int column) {
    const auto* model = window->file_view()->model();
    return model->data(model->index(row, column)).toString();
  }

  bool Exists(const std::string& name) { return std::filesystem::exists(dir.path() / name); }

  TempDir dir;
  TempDir config;
  OptionStore options;
  ScriptedInteraction interaction;
  std::unique_ptr<MainWindow> window;
};

TEST_F(MainWindowTest, PrefixAndNumberingShowInTheSampleAndTheRunRenames) {
  ASSERT_EQ(window->list().size(), 3u);
  EXPECT_EQ(CellText(0, 0), "a.txt");
  EXPECT_TRUE(window->file_view()->isColumnHidden(file_column::kSizeBytes));
  EXPECT_TRUE(window->file_view()->isColumnHidden(file_column::kExtension));

  // The fields follow their ticks.
  EXPECT_FALSE(Control<QLineEdit>("txtPrefix")->isEnabled());
  Tick("chkPrefix");
  EXPECT_TRUE(Control<QLineEdit>("txtPrefix")->isEnabled());
  Type("txtPrefix", "IMG_");
  Tick("chkNumbers");
  Control<QLineEdit>("txtStartNumber")->clear();
  Type("txtStartNumber", "07");
  Type("txtLimiter", "-");
  EXPECT_EQ(window->settings().txtPrefix, "IMG_");
  EXPECT_EQ(window->settings().chkNumbers, 1);
  EXPECT_TRUE(window->app().SettingsDirty);
  window->file_view()->setFocus();  // leave the fields: the sample may change

  window->file_view()->selectRow(1);
  window->activateWindow();
  ASSERT_TRUE(WaitFor([&] { return window->sample_field()->text() == "07-IMG_b.txt"; }))
      << window->sample_field()->text().toStdString();
  EXPECT_EQ(window->sample_frame()->title(), "Sample   [Length: 12 chars]");

  window->SelectAll();
  window->FinishNewNames();
  EXPECT_EQ(CellText(2, FileListModel::kNewNameColumn), "09-IMG_c.txt");
  EXPECT_EQ(window->new_names().collision_count(), 0u);

  interaction.Then(StartRenamingChoice::kRename);
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  QTest::mouseClick(window->start_button(), Qt::LeftButton);
  EXPECT_TRUE(Exists("07-IMG_a.txt"));
  EXPECT_TRUE(Exists("08-IMG_b.txt"));
  EXPECT_TRUE(Exists("09-IMG_c.txt"));
  EXPECT_FALSE(Exists("a.txt"));
  EXPECT_EQ(dir.ReadFile("08-IMG_b.txt"), "b.txt");
  EXPECT_TRUE(interaction.failures().empty());
  // The list was filled again with the new names.
  ASSERT_EQ(window->file_view()->model()->rowCount(), 3);
  EXPECT_EQ(CellText(0, 0), "07-IMG_a.txt");
  EXPECT_TRUE(window->start_button()->isEnabled());
  // The run wrote its undo batch where the options say, naming the old name.
  bool batch_found = false;
  for (const auto& entry : std::filesystem::directory_iterator(config.path())) {
    if (entry.path().extension() != ".bat") continue;
    batch_found =
        config.ReadFile(entry.path().filename().string()).find("a.txt") != std::string::npos;
  }
  EXPECT_TRUE(batch_found);

  // Tools > Undo last run: what it would do in the result list, a question,
  // then every file back under its old name and the list read again.
  interaction.Then(Answer::kNo);
  window->UndoLastRun();
  EXPECT_EQ(interaction.test_results().size(), 3u);
  EXPECT_EQ(interaction.test_results()[0].new_name, "c.txt");  // newest line first
  EXPECT_TRUE(Exists("07-IMG_a.txt"));  // No: nothing moved
  interaction.Then(Answer::kYes).Then(Answer::kOk);
  window->UndoLastRun();
  EXPECT_TRUE(Exists("a.txt"));
  EXPECT_TRUE(Exists("b.txt"));
  EXPECT_TRUE(Exists("c.txt"));
  EXPECT_EQ(CellText(0, 0), "a.txt");
  EXPECT_NE(interaction.asked().back().text.find("3 done, 0 failed"), std::string::npos)
      << interaction.asked().back().text;
  // The run taken back is out of the batch: there is nothing left to undo.
  for (const auto& entry : std::filesystem::directory_iterator(config.path())) {
    EXPECT_NE(entry.path().extension(), ".bat") << entry.path();
  }
}

TEST_F(MainWindowTest, TheSummaryAfterARunCountsItAndItsUndoTakesTheRunBack) {
  Tick("chkPrefix");
  Type("txtPrefix", "x_");
  window->SelectAll();
  interaction.SetRunSummaryChoice(RunSummaryChoice::kUndo);
  interaction.Then(StartRenamingChoice::kRename).Then(Answer::kYes).Then(Answer::kOk);
  window->StartRenaming();
  ASSERT_EQ(interaction.run_summaries().size(), 1u);
  const RunSummary& summary = interaction.run_summaries().front();
  EXPECT_EQ(summary.mode, 0);
  EXPECT_EQ(summary.done, 3);
  EXPECT_EQ(summary.failed, 0);
  EXPECT_FALSE(summary.cancelled);
  // Undo from the summary: every file has its old name again.
  EXPECT_TRUE(Exists("a.txt"));
  EXPECT_TRUE(Exists("c.txt"));
  EXPECT_FALSE(Exists("x_a.txt"));
  EXPECT_TRUE(interaction.failures().empty());

  // A test run has its own list and no summary; a cancelled question none.
  interaction.Then(StartRenamingChoice::kTest);
  window->StartRenaming();
  interaction.Then(StartRenamingChoice::kCancel);
  window->StartRenaming();
  EXPECT_EQ(interaction.run_summaries().size(), 1u);
}

TEST_F(MainWindowTest, WithoutADesktopApplicationTheLogOpensInOurViewerAndFollowsIt) {
  const std::string log = (config.path() / "Tarnwick.log").string();
  config.WriteFile("Tarnwick.log", "first line\r\nsecond line\r\n");
  std::vector<std::string> opened;
  window->SetDesktopOpener([&opened](const std::string& path) {
    opened.push_back(path);
    return false;  // no application answers
  });
  window->findChild<QAction*>("mnuShowLog")->trigger();
  ASSERT_EQ(opened, std::vector<std::string>{log});
  auto* viewer = window->findChild<gui::LogViewer*>("frmLogViewer");
  ASSERT_NE(viewer, nullptr);
  EXPECT_EQ(viewer->text_field()->toPlainText(), "first line\nsecond line");
  EXPECT_TRUE(viewer->text_field()->isReadOnly());

  // Lines a run adds appear; a half-written line waits for its end.
  std::ofstream(log, std::ios::app) << "third line\r\nfourth";
  viewer->Follow();
  EXPECT_EQ(viewer->text_field()->toPlainText(), "first line\nsecond line\nthird line");
  viewer->search_field()->setText("SECOND");
  EXPECT_TRUE(viewer->FindNext());
  EXPECT_EQ(viewer->text_field()->textCursor().selectedText(), "second");
  viewer->search_field()->setText("nowhere");
  EXPECT_FALSE(viewer->FindNext());

  // A log replaced by a new run is read from its start.
  std::filesystem::remove(log);
  config.WriteFile("Tarnwick.log", "new run\r\n");
  viewer->Follow();
  EXPECT_EQ(viewer->text_field()->toPlainText(), "new run");

  // F8 without a file manager says where the undo folder is.
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  window->findChild<QAction*>("mnuUndoFolder")->trigger();
  EXPECT_NE(interaction.asked().back().text.find(config.str()), std::string::npos)
      << interaction.asked().back().text;
  EXPECT_NE(interaction.asked().back().text.find("No file manager"), std::string::npos);

  // With an application that answers, no viewer of ours is needed.
  viewer->close();
  window->SetDesktopOpener([](const std::string&) { return true; });
  window->findChild<QAction*>("mnuShowLog")->trigger();
  QApplication::processEvents();
  EXPECT_EQ(window->findChild<gui::LogViewer*>("frmLogViewer"), nullptr);
}

TEST_F(MainWindowTest, NewNamesThatCollideAreCountedAndTheTestModeTouchesNothing) {
  dir.WriteFile("same.txt", "taken");
  window->FillListFiles();
  Tick("chkCompleteName");
  Type("txtCompleteName", "same");
  window->SelectAll();
  window->FinishNewNames();
  // a, b, c go to same.txt, taken on disk and by each other; same.txt keeps
  // its name but shares the target with the three.
  EXPECT_EQ(window->new_names().collision_count(), 4u);
  const QVariant colour = window->file_view()->model()->data(
      window->file_view()->model()->index(0, FileListModel::kNewNameColumn), Qt::ForegroundRole);
  EXPECT_EQ(colour.value<QBrush>().color(), QColor(Qt::red));
  // A sign beside the name survives the selection's colours; the status bar
  // links to the first collision; the start question counts them.
  EXPECT_FALSE(window->file_view()
                   ->model()
                   ->data(window->file_view()->model()->index(0, FileListModel::kNewNameColumn),
                          Qt::DecorationRole)
                   .isNull());
  EXPECT_TRUE(window->conflict_link()->isVisibleTo(window.get()));
  EXPECT_TRUE(window->conflict_link()->text().contains("4 new names collide"));
  window->file_view()->scrollToTop();
  emit window->conflict_link()->linkActivated("#conflict");
  EXPECT_EQ(window->file_view()->currentIndex().column(), FileListModel::kNewNameColumn);

  interaction.Then(StartRenamingChoice::kTest);
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kNo);
  interaction.SetDefault(QuestionKind::kFileExists, FileExistsAnswer{FileExistsChoice::kSkip, {}});
  window->StartRenaming();
  EXPECT_EQ(interaction.asked().front().kind, QuestionKind::kStartRenaming);
  EXPECT_EQ(interaction.asked().front().text, "4 selected files, 4 collide");
  EXPECT_TRUE(Exists("a.txt"));
  EXPECT_EQ(dir.ReadFile("same.txt"), "taken");
  EXPECT_TRUE(interaction.failures().empty());
}

TEST_F(MainWindowTest, DigitFieldsRefuseOtherKeysAndTheSpinnerKeepsItsZeros) {
  Tick("chkCutLeft");
  Type("txtLeftCut", "1x2");
  EXPECT_EQ(Control<QLineEdit>("txtLeftCut")->text(), "12");
  EXPECT_EQ(window->settings().txtLeftCut, "12");
  EXPECT_EQ(gui::StepNumberField("009", 1), "010");
  EXPECT_EQ(gui::StepNumberField("5", -1), "4");
  EXPECT_EQ(gui::StepNumberField("0", -1), "0");
  EXPECT_EQ(gui::StepNumberField("abc", 1), "1");
}

TEST_F(MainWindowTest, SelectionSortingAndRemovalWorkOnTheCoreList) {
  window->SortBy(file_column::kName, true);
  EXPECT_EQ(CellText(0, 0), "c.txt");
  window->file_view()->selectRow(0);
  EXPECT_TRUE(window->list().IsSelected(0));
  window->InvertSelection();
  EXPECT_EQ(window->list().SelectedCount(), 2u);
  EXPECT_EQ(window->file_view()->selectionModel()->selectedRows().size(), 2);
  window->RemoveSelectedFromList();
  EXPECT_EQ(window->file_view()->model()->rowCount(), 1);
  EXPECT_EQ(CellText(0, 0), "c.txt");
  EXPECT_TRUE(Exists("a.txt"));  // removed from the list only
}

TEST_F(MainWindowTest, AStartWithASettingsFileShowsItsControls) {
  window->settings().chkPrefix = 1;
  window->settings().txtPrefix = "Trip_";
  window->settings().chkIncludeSubfolders = 1;
  const std::string file = (config.path() / "trip.twr").string();
  ASSERT_EQ(SaveSettingsTo(window->env(), window->settings(), file, true).outcome,
            SaveSettingsResult::Outcome::kSaved);

  MainWindow started(options, MessageTable::Get(Language::kEnglish), &interaction);
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  const StartupResult result =
      RunStartup(started.env(), started.settings(), started.host(), MachineStartupInput({file}));
  ASSERT_EQ(result.outcome, StartupResult::Outcome::kReady) << result.error;
  EXPECT_TRUE(started.findChild<QCheckBox*>("chkPrefix")->isChecked());
  EXPECT_EQ(started.findChild<QLineEdit*>("txtPrefix")->text(), "Trip_");
  EXPECT_TRUE(started.findChild<QLineEdit*>("txtPrefix")->isEnabled());
  EXPECT_TRUE(started.findChild<QCheckBox*>("chkIncludeSubfolders")->isChecked());
  EXPECT_EQ(started.app().CurrentPath, dir.str());
  EXPECT_EQ(started.list().size(), 3u);
  // The first start registered ".twr" for the user and remembers it.
  EXPECT_TRUE(std::filesystem::exists(gui::ProgramDesktopFilePath()));
  EXPECT_TRUE(std::filesystem::exists(gui::SettingsMimeTypePath()));
  EXPECT_EQ(options.GetOption("SetFileAssoc", "Options", "0"), "1");
}

TEST_F(MainWindowTest, AStartWithAFolderThatIsGoneOpensAUsableWindowOnTheHomeFolder) {
  MainWindow started(options, MessageTable::Get(Language::kEnglish), &interaction);
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  StartupInput input = MachineStartupInput({(dir.path() / "no/such/folder").string()});
  input.default_root = dir.str();  // stands in for the home folder
  const StartupResult result = RunStartup(started.env(), started.settings(), started.host(), input);
  ASSERT_EQ(result.outcome, StartupResult::Outcome::kReady) << result.error;
  EXPECT_EQ(result.error_number, 76);
  EXPECT_EQ(started.app().CurrentPath, dir.str());
  EXPECT_EQ(started.list().size(), 3u);
  EXPECT_TRUE(started.findChild<QPushButton*>("cmdStart")->isEnabled());
  EXPECT_TRUE(started.findChild<QCheckBox*>("chkPrefix")->isEnabled());
}

TEST_F(MainWindowTest, ARunFromTheWindowGivesAJpegItsExifDateWhenTheOptionSaysSo) {
  std::filesystem::copy_file(std::filesystem::path(TW_FIXTURE_DIR) / "exif/full_intel.jpg",
                             dir.path() / "photo.jpg");
  options.SaveOption("UseEXIFDate", "Options", "1");
  window->ShowFolder(QString::fromStdString(dir.str()));
  Tick("chkPrefix");
  Type("txtPrefix", "p_");
  window->SelectAll();
  interaction.Then(StartRenamingChoice::kRename);
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  QTest::mouseClick(window->start_button(), Qt::LeftButton);
  ASSERT_TRUE(Exists("p_photo.jpg"));
  // DateTimeOriginal of the picture is 2004:04:12 11:38:00, local time.
  struct stat info {};
  ASSERT_EQ(::stat((dir.path() / "p_photo.jpg").c_str(), &info), 0);
  std::tm taken{};
  taken.tm_year = 2004 - 1900;
  taken.tm_mon = 3;
  taken.tm_mday = 12;
  taken.tm_hour = 11;
  taken.tm_min = 38;
  taken.tm_isdst = -1;
  EXPECT_EQ(info.st_mtime, std::mktime(&taken));
  // A text file is left as it was.
  ASSERT_EQ(::stat((dir.path() / "p_a.txt").c_str(), &info), 0);
  EXPECT_GT(info.st_mtime, std::mktime(&taken));
}

TEST_F(MainWindowTest, TheFinishSoundByDefaultIsTheOneBuiltBesideTheProgram) {
  const char* binary_dir = std::getenv("TW_BINARY_DIR");
  ASSERT_NE(binary_dir, nullptr);
  MainWindow started(options, MessageTable::Get(Language::kEnglish), &interaction);
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  StartupInput input = MachineStartupInput({dir.str()});
  // The window's own executable, not this test's, sits beside the sound.
  input.program_folder = (std::filesystem::path(binary_dir) / "app/gui").string();
  ASSERT_EQ(RunStartup(started.env(), started.settings(), started.host(), input).outcome,
            StartupResult::Outcome::kReady);
  options.SaveOption("ReadySound", "Options", "1");
  started.settings().chkPrefix = 1;
  started.settings().txtPrefix = "p_";
  started.SelectAll();
  interaction.Then(StartRenamingChoice::kRename);
  started.StartRenaming();
  ASSERT_EQ(interaction.waves_played().size(), 1u);
  const std::string sound = interaction.waves_played()[0];
  EXPECT_EQ(sound, input.program_folder + "/Media/notify.wav");
  std::ifstream file(sound, std::ios::binary);
  std::string head(12, '\0');
  ASSERT_TRUE(file.read(head.data(), 12)) << sound;
  EXPECT_EQ(head.substr(0, 4), "RIFF");
  EXPECT_EQ(head.substr(8, 4), "WAVE");
}

TEST_F(MainWindowTest, TheOrderLabelNamesTheTickedActionsInTheirOrder) {
  QLabel* label = Control<QLabel>("lblActionOrder");
  window->activateWindow();
  ASSERT_TRUE(WaitFor([&] { return label->text() == "Order: Default order"; }))
      << label->text().toStdString();
  Tick("chkPrefix");
  Tick("chkPostfix");
  ASSERT_TRUE(WaitFor([&] { return label->text() == "Order: Default order: Prefix > Postfix"; }))
      << label->text().toStdString();

  // Postfix moved before Prefix: only the ticked ones are named, in run order.
  StoreActionOrder(options, {1, 2, 3, 4, 7, 6, 5, 8, 9, 10});
  ASSERT_TRUE(WaitFor([&] { return label->text() == "Order: Own order: Postfix > Prefix"; }))
      << label->text().toStdString();

  // A double click still opens the order dialogue.
  QString opened;
  QTimer::singleShot(50, [&] {
    if (QWidget* dialog = QApplication::activeModalWidget()) {
      opened = dialog->windowTitle();
      static_cast<QDialog*>(dialog)->reject();
    }
  });
  QTest::mouseDClick(label, Qt::LeftButton);
  EXPECT_EQ(opened, "Edit sort order");
}

TEST_F(MainWindowTest, TheWindowStaysOnTheScreenAndTheTreeShowsTheCurrentFolder) {
  const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
  gui::WindowHost host(*window);
  window->resize(area.width() / 2, area.height() / 2);
  host.PlaceMainWindow(area.top() + 10, area.left() + 20);
  EXPECT_EQ(window->frameGeometry().topLeft(), QPoint(area.left() + 20, area.top() + 10));
  // A corner near the far edge moves back until the whole frame shows.
  host.PlaceMainWindow(area.bottom() - 5, area.right() - 5);
  EXPECT_TRUE(area.contains(window->frameGeometry())) << window->x() << "," << window->y();
  EXPECT_EQ(window->frameGeometry().right(), area.right());
  // A window larger than the screen keeps its top left corner visible.
  window->resize(area.width() + 300, area.height() + 300);
  host.PlaceMainWindow(area.top() + 40, area.left() + 40);
  EXPECT_EQ(window->frameGeometry().topLeft(), area.topLeft());

  // A folder deep below the test folder is current and visible in the tree.
  window->resize(1100, 760);
  std::filesystem::path deep = dir.path();
  for (const char* part : {"one", "two", "three", "four"}) deep /= part;
  std::filesystem::create_directories(deep);
  window->ShowFolder(QString::fromStdString(deep.string()));
  QTreeView* tree = window->folder_view();
  const auto* model = static_cast<const QFileSystemModel*>(tree->model());
  ASSERT_TRUE(WaitFor([&] {
    const QModelIndex current = tree->currentIndex();
    return model->filePath(current).toStdString() == deep.string() &&
           tree->viewport()->rect().contains(tree->visualRect(current));
  }));
}

TEST_F(MainWindowTest, SymbolsShowPicturesMadeInTheBackgroundAndTypeIconsForTheRest) {
  QImage picture(128, 64, QImage::Format_RGB32);
  picture.fill(Qt::darkGreen);
  ASSERT_TRUE(picture.save(QString::fromStdString((dir.path() / "wide.png").string())));
  dir.WriteFile("broken.jpg", "not a picture");
  window->FillListFiles();
  window->SetListViewMode(MainWindow::ListViewMode::kSymbols);
  auto* model = static_cast<gui::FileListModel*>(window->name_view()->model());
  int wide = -1;
  int broken = -1;
  for (std::size_t row = 0; row < window->list().size(); ++row) {
    const std::string name = window->list().Text(row, file_column::kName);
    if (name == "wide.png") wide = static_cast<int>(row);
    if (name == "broken.jpg") broken = static_cast<int>(row);
  }
  ASSERT_GE(wide, 0);
  ASSERT_GE(broken, 0);
  // First the type's icon, then, once made, the picture at its proportions.
  const QIcon first = qvariant_cast<QIcon>(model->data(model->index(wide, 0), Qt::DecorationRole));
  EXPECT_FALSE(first.isNull());
  model->data(model->index(broken, 0), Qt::DecorationRole);
  bool redrawn = false;
  QObject::connect(model, &QAbstractItemModel::dataChanged,
                   [&](const QModelIndex& from, const QModelIndex&) { redrawn |= from.row() == wide; });
  model->thumbnails().WaitForAll();
  ASSERT_TRUE(WaitFor([&] { return redrawn; }));
  const QIcon made = qvariant_cast<QIcon>(model->data(model->index(wide, 0), Qt::DecorationRole));
  ASSERT_FALSE(made.availableSizes().isEmpty());
  EXPECT_EQ(made.availableSizes().front(), QSize(64, 32));
  // A file that is no picture keeps its type's icon.
  EXPECT_FALSE(model->data(model->index(broken, 0), Qt::DecorationRole).isNull());
}

TEST_F(MainWindowTest, NoColumnHeadingIsCutInGerman) {
  MainWindow german(options, MessageTable::Get(Language::kGerman), &interaction);
  QTableView* view = german.file_view();
  const QFontMetrics metrics(view->horizontalHeader()->font());
  for (int column = 0; column < view->model()->columnCount(); ++column) {
    if (view->isColumnHidden(column)) continue;
    const QString heading = view->model()->headerData(column, Qt::Horizontal).toString();
    EXPECT_GE(view->columnWidth(column), metrics.horizontalAdvance(heading) + 20)
        << heading.toStdString();
  }
}

TEST_F(MainWindowTest, ViewModesShareTheSelectionAndTheListMenuActs) {
  ASSERT_EQ(window->list().size(), 3u);
  window->file_view()->selectRow(1);
  window->SetListViewMode(MainWindow::ListViewMode::kSymbols);
  QListView* names = window->name_view();
  ASSERT_TRUE(names->isVisible());
  EXPECT_FALSE(window->file_view()->isVisible());
  EXPECT_EQ(names->viewMode(), QListView::IconMode);
  const QModelIndex b = names->model()->index(1, 0);
  EXPECT_TRUE(names->selectionModel()->isSelected(b));
  EXPECT_FALSE(names->model()->data(b, Qt::DecorationRole).isNull());

  // A selection made in the list mode is the core list's selection.
  window->SetListViewMode(MainWindow::ListViewMode::kList);
  EXPECT_EQ(names->viewMode(), QListView::ListMode);
  EXPECT_FALSE(names->model()->data(b, Qt::DecorationRole).isNull());  // the type's icon
  options.SaveOption("Icons", "Options", "0");  // "Show icons in filelist" off
  window->SetListViewMode(MainWindow::ListViewMode::kList);
  EXPECT_TRUE(names->model()->data(b, Qt::DecorationRole).isNull());
  names->selectionModel()->select(names->model()->index(2, 0), QItemSelectionModel::Select);
  EXPECT_TRUE(window->list().IsSelected(1));
  EXPECT_TRUE(window->list().IsSelected(2));
  EXPECT_FALSE(window->list().IsSelected(0));

  // The right mouse button's menu: invert, then remove from the list.
  const auto action = [&](const char* text) -> QAction* {
    for (QAction* a : names->actions()) {
      if (a->text() == text) return a;
    }
    ADD_FAILURE() << text;
    return nullptr;
  };
  EXPECT_EQ(names->contextMenuPolicy(), Qt::ActionsContextMenu);
  EXPECT_EQ(window->file_view()->actions(), names->actions());
  action("Invert selection")->trigger();
  EXPECT_TRUE(window->list().IsSelected(0));
  EXPECT_FALSE(window->list().IsSelected(1));
  action("Remove from list")->trigger();
  EXPECT_EQ(window->list().size(), 2u);
  EXPECT_TRUE(Exists("a.txt"));
  action("Refresh file list")->trigger();
  EXPECT_EQ(window->list().size(), 3u);

  window->SetListViewMode(MainWindow::ListViewMode::kDetails);
  EXPECT_TRUE(window->file_view()->isVisible());
  EXPECT_FALSE(names->isVisible());
}

// Qt's own texts follow the window's language: a German window says
// "Abbrechen" on Qt's standard buttons, not "Cancel".
TEST(QtTranslationsTest, AGermanWindowGetsQtsOwnGermanTexts) {
  QApplication& app = Application();
  gui::InstallQtTranslations(app, Language::kEnglish);
  EXPECT_TRUE(app.findChildren<QTranslator*>().isEmpty());
  gui::InstallQtTranslations(app, Language::kGerman);
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Abbrechen");
  for (QTranslator* translator : app.findChildren<QTranslator*>()) {
    QCoreApplication::removeTranslator(translator);
    delete translator;
  }
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancel");
}

}  // namespace
}  // namespace tarnwick::testing
