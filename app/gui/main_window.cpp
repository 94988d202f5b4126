#include "main_window.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QDesktopServices>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QFontMetrics>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QShowEvent>
#include <QSplashScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QTableView>
#include <QTreeView>
#include <QUrl>
#include <QVBoxLayout>

#include "control_binding.h"
#include "core/action_order.h"
#include "core/pipeline_actions.h"
#include "core/settings_file.h"
#include "core/start_rename.h"
#include "file_list_model.h"
#include "filelist/change_dir.h"
#include "filelist/column_headings.h"
#include "pattern_picker_dialog.h"
#include "persist/default_paths.h"
#include "persist/option_store.h"
#include "qt_text.h"
#include "rename_controls.h"
#include "sort_order_dialog.h"
#include "startup/startup.h"
#include "window_host.h"

namespace tarnwick::gui {
namespace {

constexpr int kNewNameSlice = 250;

bool NewNamesOption(const OptionStore& options) {
  return options.GetOption("ShowNewNames", "Options", "1") != "0";
}

}  // namespace

MainWindow::MainWindow(OptionStore& options, const MessageTable& messages, Interaction* questions)
    : options_(options),
      messages_(messages),
      own_interaction_(questions == nullptr ? std::make_unique<QtInteraction>(messages, this, this)
                                            : nullptr),
      interaction_(questions != nullptr ? questions : own_interaction_.get()),
      env_{options_, *interaction_, messages_, clock_, app_, log_state_},
      fill_log_(env_),
      loader_(FileListContext{options_, app_, *interaction_, fill_log_, media_, messages_}) {
  setObjectName("frmMain");
  setAcceptDrops(true);
  setWindowTitle(Msg(messages, "run.caption_program"));
  setWindowIcon(QIcon::fromTheme("tarnwick"));
  new_names_shown_ = NewNamesOption(options_);
  BuildWidgets();
  BuildMenus();
  connect(&change_timer_, &QTimer::timeout, this, [this] { SampleTick(); });
  new_name_timer_.setInterval(0);
  connect(&new_name_timer_, &QTimer::timeout, this, &MainWindow::NewNameSlice);
  new_name_restart_.setSingleShot(true);
  new_name_restart_.setInterval(250);
  connect(&new_name_restart_, &QTimer::timeout, this, &MainWindow::RestartNewNames);
  status_flush_.setSingleShot(true);
  status_flush_.setInterval(50);
  connect(&status_flush_, &QTimer::timeout, this, &MainWindow::FlushStatus);
  // The sample's timer keeps this interval where the sample is turned off.
  change_timer_.setInterval(500);
  watch_timer_.setInterval(200);
  connect(&watch_timer_, &QTimer::timeout, this, &MainWindow::WatchTick);
  refill_timer_.setSingleShot(true);
  refill_timer_.setInterval(300);
  connect(&refill_timer_, &QTimer::timeout, this, &MainWindow::RefillFromWatch);
  ShowSettings();
  ShowActionOrder();
  ApplyTooltipOptions();
  RestoreWindowLayout();
}

MainWindow::~MainWindow() {
  change_timer_.stop();
  new_name_timer_.stop();
}

void MainWindow::BuildWidgets() {
  auto* split = new QSplitter(Qt::Horizontal, this);
  folder_model_ = new QFileSystemModel(this);
  folder_model_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
  folder_model_->setRootPath("/");
  folders_ = new QTreeView(split);
  folders_->setObjectName("ctlExplorer1");
  folders_->setModel(folder_model_);
  for (int column = 1; column < folder_model_->columnCount(); ++column)
    folders_->hideColumn(column);
  folders_->setHeaderHidden(true);
  connect(folders_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& index) { FolderChosen(index); });
  connect(folder_model_, &QFileSystemModel::directoryLoaded, this, &MainWindow::FolderLoaded);
  reveal_timeout_.setSingleShot(true);
  reveal_timeout_.setInterval(5000);
  connect(&reveal_timeout_, &QTimer::timeout, this, [this] { folder_to_reveal_.clear(); });
  split->addWidget(folders_);

  auto* right = new QSplitter(Qt::Vertical, split);
  right->addWidget(BuildListPane());
  right->addWidget(BuildLowerPane());
  // The list gives way first: the renaming controls keep their height.
  right->setStretchFactor(0, 1);
  right->setStretchFactor(1, 0);
  right->setCollapsible(1, false);
  split->addWidget(right);
  split->setStretchFactor(0, 1);
  split->setStretchFactor(1, 4);
  split->setSizes({200, 1000});
  folders_->setMinimumWidth(140);
  setCentralWidget(split);

  status_ = new QLabel(this);
  status_->setObjectName("lblStatus");
  progress_ = new QProgressBar(this);
  progress_->setObjectName("prgBar");
  progress_->setMaximumWidth(220);
  progress_->hide();
  conflicts_ = new QLabel(this);
  conflicts_->setObjectName("lblConflicts");
  conflicts_->setTextFormat(Qt::RichText);
  conflicts_->hide();
  connect(conflicts_, &QLabel::linkActivated, this, [this] { RevealFirstConflict(); });
  statusBar()->addWidget(status_, 1);
  statusBar()->addPermanentWidget(conflicts_);
  statusBar()->addPermanentWidget(progress_);
}

QWidget* MainWindow::BuildListPane() {
  auto* pane = new QWidget(this);
  auto* layout = new QVBoxLayout(pane);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* filter = new QHBoxLayout;
  filter->addWidget(new QLabel(Msg(messages_, "main.label.extension_filter"), pane));
  extension_ = new QComboBox(pane);
  extension_->setObjectName("cboExtension");
  extension_->setEditable(true);
  extension_->setMinimumContentsLength(12);
  extension_->setInsertPolicy(QComboBox::NoInsert);
  filter->addWidget(extension_);
  subfolders_ = new QCheckBox(Msg(messages_, "main.label.include_subfolders"), pane);
  subfolders_->setObjectName("chkIncludeSubfolders");
  filter->addWidget(subfolders_);
  filter->addStretch();
  layout->addLayout(filter);

  model_ = new FileListModel(list_, preview_, this);
  model_->SetCollisionTip(Msg(messages_, "main.tip.collision"));
  model_->SetHeadings(ColumnHeadings(options_, messages_),
                      std::string(messages_.Text("result_list.column_new_name")));
  files_ = new QTableView(pane);
  files_->setObjectName("lvwFiles");
  files_->setModel(model_);
  files_->setSelectionBehavior(QAbstractItemView::SelectRows);
  files_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  files_->setShowGrid(false);
  files_->setWordWrap(false);
  files_->setSortingEnabled(false);
  files_->verticalHeader()->hide();
  files_->verticalHeader()->setDefaultSectionSize(files_->fontMetrics().height() + 4);
  files_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  files_->horizontalHeader()->setSectionsClickable(true);
  files_->horizontalHeader()->setSortIndicatorShown(true);
  files_->horizontalHeader()->setHighlightSections(false);
  files_->hideColumn(file_column::kSizeBytes);
  files_->hideColumn(file_column::kExtension);
  files_->setColumnHidden(FileListModel::kNewNameColumn, !new_names_shown_);
  files_->setColumnWidth(file_column::kName, 240);
  files_->setColumnWidth(FileListModel::kNewNameColumn, 240);
  FitColumnsToHeadings();
  files_->horizontalHeader()->moveSection(FileListModel::kNewNameColumn, 1);
  files_->setDragDropMode(QAbstractItemView::NoDragDrop);
  files_->installEventFilter(this);
  connect(files_->horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) {
    const auto sorted = list_.sort_columns();
    const bool descending =
        !sorted.empty() && sorted.front().column == column && !sorted.front().descending;
    SortBy(column, descending);
  });
  connect(files_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { ViewSelectionToList(); });
  connect(files_, &QTableView::doubleClicked, this,
          [this](const QModelIndex& index) { RowActivated(index.row()); });
  layout->addWidget(BuildListViews(pane));

  connect(extension_, &QComboBox::activated, this, [this] {
    ControlChanged("cboExtension", S(extension_->currentText()));
    app_.CurrentFilter = settings_.cboExtension;
    FillListFiles();
  });
  connect(extension_->lineEdit(), &QLineEdit::returnPressed, this, [this] {
    ControlChanged("cboExtension", S(extension_->currentText()));
    app_.CurrentFilter = settings_.cboExtension;
    FillListFiles();
  });
  connect(subfolders_, &QCheckBox::toggled, this, [this](bool on) {
    ControlChanged("chkIncludeSubfolders", on ? "1" : "0");
    FillListFiles();
  });
  return pane;
}

QWidget* MainWindow::BuildLowerPane() {
  auto* pane = new QWidget(this);
  auto* layout = new QVBoxLayout(pane);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* settings_frame = new QGroupBox(Msg(messages_, "settings_file.frame_settings"), pane);
  settings_frame->setObjectName("fraSettings");
  auto* frame_layout = new QVBoxLayout(settings_frame);
  controls_ = new RenameControls(messages_, settings_frame);
  auto* scroll = new QScrollArea(settings_frame);
  scroll->setWidget(controls_);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->viewport()->installEventFilter(this);
  settings_scroll_ = scroll;
  // The panel shows all its controls where the window is tall enough.
  scroll->setMinimumHeight(std::min(controls_->sizeHint().height() + 4, 560));
  frame_layout->addWidget(scroll);
  layout->addWidget(settings_frame, 1);
  for (QLineEdit* field : controls_->text_fields()) field->installEventFilter(this);
  connect(controls_, &RenameControls::PatternRequested, this, &MainWindow::OpenPatternPicker);
  connect(controls_, &RenameControls::ActionOrderRequested, this, &MainWindow::EditActionOrder);

  sample_frame_ = new QGroupBox(Msg(messages_, "sample.frame_caption"), pane);
  sample_frame_->setObjectName("fraSample");
  auto* sample_layout = new QHBoxLayout(sample_frame_);
  sample_ = new QLineEdit(sample_frame_);
  sample_->setObjectName("txtSample");
  sample_->setReadOnly(true);
  sample_->setToolTip(Msg(messages_, "sample.char_positions_note"));
  sample_layout->addWidget(sample_);
  connect(sample_, &QLineEdit::selectionChanged, this, [this] {
    const QString text = sample_->text();
    const int start = std::max(0, sample_->selectionStart());
    const std::size_t first = CharPosition(text, start);
    const std::size_t length =
        CharPosition(text, start + sample_->selectedText().size()) - first;
    const std::string status = SampleSelectionStatus(messages_, S(text), first, length);
    if (!status.empty()) status_->setText(Q(status));
  });
  layout->addWidget(sample_frame_);

  auto* buttons = new QHBoxLayout;
  auto* save = new QPushButton(Msg(messages_, "main.button.save_settings"), pane);
  save->setObjectName("cmdSaveSettings");
  start_ = new QPushButton(Msg(messages_, "main.button.start"), pane);
  start_->setObjectName("cmdStart");
  start_->setDefault(true);
  auto* exit = new QPushButton(Msg(messages_, "main.button.exit"), pane);
  exit->setObjectName("cmdExit");
  buttons->addWidget(save);
  buttons->addStretch();
  buttons->addWidget(start_);
  buttons->addWidget(exit);
  layout->addLayout(buttons);
  connect(save, &QPushButton::clicked, this, &MainWindow::SaveSettings);
  connect(start_, &QPushButton::clicked, this, &MainWindow::StartRenaming);
  connect(exit, &QPushButton::clicked, this, &QWidget::close);

  ConnectControls(pane, [this](std::string_view name, const std::string& value) {
    ControlChanged(name, value);
  });
  return pane;
}

PipelineEnv MainWindow::SampleEnv() {
  return PipelineEnv{app_,      settings_, list_,          options_, *interaction_,
                     messages_, clock_,    media_readers_, nullptr,  list_.SelectedCount()};
}

// --- Controls. -------------------------------------------------------------

void MainWindow::ShowSettings() {
  WriteControls(this, settings_);
  {
    const QSignalBlocker block(subfolders_);
    subfolders_->setChecked(Ticked(settings_.chkIncludeSubfolders));
  }
  RefreshControlStates();
}

void MainWindow::RefreshControlStates() {
  if (!start_->isEnabled()) return;
  controls_->RefreshControlStates(settings_);
}

void MainWindow::ControlChanged(std::string_view name, const std::string& value) {
  SetRenameSetting(settings_, name, value);
  if (!app_.LoadingFlag) app_.SettingsDirty = true;
  RefreshControlStates();
  new_name_restart_.start();
}

void MainWindow::ShowActionOrder() {
  const std::string summary = ActionOrderSummary(
      ReadActionOrder(options_), [this](int code) { return ActionTicked(settings_, code); },
      messages_);
  controls_->action_order_label()->setText(Msg(messages_, "main.label.action_order") + " " +
                                           Q(summary));
}

void MainWindow::OpenPatternPicker(QLineEdit* field) {
  PatternPickerDialog dialog(messages_, S(field->text()),
                             CharPosition(field->text(), field->cursorPosition()), this);
  if (dialog.exec() != QDialog::Accepted) return;
  const FieldUpdate update = dialog.FieldAfter();
  if (update.clipboard) QApplication::clipboard()->setText(Q(*update.clipboard));
  field->setText(Q(update.text));
  field->setCursorPosition(Utf16Offset(field->text(), update.cursor));
  ControlChanged(S(field->objectName()), update.text);
}

void MainWindow::EditActionOrder() {
  SortOrderDialog dialog(options_, messages_, *interaction_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  ShowActionOrder();
  new_name_restart_.start();
}

// --- The list. ---------------------------------------------------------------

void MainWindow::FillListFiles() {
  change_timer_.stop();
  new_name_timer_.stop();
  refill_timer_.stop();
  preview_.Start(SampleEnv());  // no rows are selected while the list is empty
  StopFolderWatch();
  FillRequest request;
  request.folder = app_.CurrentPath;
  request.include_subfolders = Ticked(settings_.chkIncludeSubfolders);
  const bool same_list =
      request.folder == filled_folder_ && request.include_subfolders == filled_subfolders_;
  const std::vector<std::string> selected =
      same_list ? list_.SelectedPaths() : std::vector<std::string>();
  list_.Clear();
  model_->Refresh();
  loader_.FillListFiles(list_, request);
  filled_folder_ = request.folder;
  filled_subfolders_ = request.include_subfolders;
  list_.SelectPaths(selected);
  model_->Refresh();
  UpdateFilterItems();
  ListSelectionToView();
  StartFolderWatch();
  ApplySampleRate();
  RestartNewNames();
}

void MainWindow::UpdateFilterItems() {
  const QSignalBlocker block(extension_);
  const QString text = Q(app_.CurrentFilter);
  extension_->clear();
  for (const std::string& item : loader_.Extensions()) extension_->addItem(Q(item));
  extension_->setEditText(text);
}

void MainWindow::ShowFolder(const QString& folder) {
  app_.CurrentPath = S(folder);
  folder_to_reveal_ = folder;
  reveal_timeout_.start();
  RevealCurrentFolder();
  FillListFiles();
}

// The tree has its size only once the window is shown.
void MainWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  QTimer::singleShot(0, this, &MainWindow::RevealCurrentFolder);
}

void MainWindow::RevealCurrentFolder() {
  const QModelIndex index = folder_model_->index(Q(app_.CurrentPath));
  if (!index.isValid()) return;
  {
    const QSignalBlocker block(folders_->selectionModel());
    folders_->setCurrentIndex(index);
  }
  folders_->scrollTo(index, QAbstractItemView::PositionAtCenter);
}

// Each folder read on the way down can move the rows above the current
// folder; the folder is shown again until the reads reach it or time runs out.
void MainWindow::FolderLoaded(const QString& path) {
  if (folder_to_reveal_.isEmpty()) return;
  const bool on_the_way =
      folder_to_reveal_ == path || path == "/" || folder_to_reveal_.startsWith(path + "/");
  if (!on_the_way) return;
  RevealCurrentFolder();
  if (path == folder_to_reveal_) folder_to_reveal_.clear();
}

void MainWindow::FolderChosen(const QModelIndex& index) {
  if (!index.isValid() || app_.run_active) return;
  const QString path = folder_model_->filePath(index);
  if (S(path) == app_.CurrentPath) return;
  folder_to_reveal_.clear();  // the user chose: the tree stays where it is
  ChangeDir(path);
}

void MainWindow::ChangeDir(const QString& folder) {
  QElapsedTimer took;
  took.start();
  status_->setText(Msg(messages_, "filelist.wait_reading_directory"));
  BeginChangeDir(app_);
  settings_.cboExtension = app_.CurrentFilter;
  app_.CurrentPath = S(folder);
  sample_->clear();
  FillListFiles();
  LogChangedDir(fill_log_, messages_, app_.CurrentPath, list_.size(),
                std::chrono::milliseconds(took.elapsed()));
}

void MainWindow::ViewSelectionToList() {
  if (syncing_selection_) return;
  list_.DeselectAll();
  const QItemSelection selection = files_->selectionModel()->selection();
  for (const QItemSelectionRange& range : selection) {
    for (int row = range.top(); row <= range.bottom(); ++row) list_.Select(row);
  }
  new_name_restart_.start();
}

void MainWindow::ListSelectionToView() {
  syncing_selection_ = true;
  QItemSelection selection;
  const auto rows = list_.rows();
  const int shown = model_->rowCount();
  const int last_column = model_->columnCount() - 1;
  int first = -1;
  for (int row = 0; row <= shown; ++row) {
    const bool selected =
        row < shown && static_cast<std::size_t>(row) < rows.size() && rows[row].selected;
    if (selected && first < 0) first = row;
    if (!selected && first >= 0) {
      selection.select(model_->index(first, 0), model_->index(row - 1, last_column));
      first = -1;
    }
  }
  files_->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  const std::vector<std::size_t> selected = list_.SelectedRows();
  if (!selected.empty()) {
    files_->selectionModel()->setCurrentIndex(model_->index(static_cast<int>(selected.back()), 0),
                                              QItemSelectionModel::NoUpdate);
  }
  syncing_selection_ = false;
  new_name_restart_.start();
}

void MainWindow::SelectAll() {
  list_.SelectAll();
  ListSelectionToView();
}

void MainWindow::DeselectAll() {
  list_.DeselectAll();
  ListSelectionToView();
}

void MainWindow::InvertSelection() {
  list_.InvertSelection();
  ListSelectionToView();
}

void MainWindow::RemoveSelectedFromList() {
  if (list_.RemoveSelected() == 0) return;
  model_->Refresh();
  ListSelectionToView();
}

void MainWindow::SortBy(int column, bool descending) {
  const SortColumn sort{column, descending};
  list_.MultiSortListView(std::span<const SortColumn>(&sort, 1));
  model_->Refresh();
  files_->horizontalHeader()->setSortIndicator(
      column, descending ? Qt::DescendingOrder : Qt::AscendingOrder);
  if (sort_descending_action_ != nullptr) {
    const QSignalBlocker block(sort_descending_action_);
    sort_descending_action_->setChecked(descending);
  }
  ListSelectionToView();
}

void MainWindow::OpenPath(const std::string& path) {
  if (path.empty()) return;
  if (desktop_opener_) {
    desktop_opener_(path);
    return;
  }
  QDesktopServices::openUrl(QUrl::fromLocalFile(Q(path)));
}

// --- "New name". --------------------------------------------------------------

void MainWindow::SetNewNameColumnShown(bool shown) {
  new_names_shown_ = shown;
  options_.SaveOption("ShowNewNames", "Options", shown ? "1" : "0");
  files_->setColumnHidden(FileListModel::kNewNameColumn, !shown);
  if (new_names_action_ != nullptr) {
    const QSignalBlocker block(new_names_action_);
    new_names_action_->setChecked(shown);
  }
  RestartNewNames();
}

void MainWindow::RestartNewNames() {
  new_name_restart_.stop();
  if (!new_names_shown_ || app_.run_active) {
    new_name_timer_.stop();
    ShowConflictLink();
    return;
  }
  preview_.Start(SampleEnv());
  ShowConflictLink();
  model_->NewNamesChanged(0, model_->rowCount() - 1);
  new_name_timer_.start();
}

void MainWindow::NewNameSlice() {
  const std::size_t before = preview_.rows().size();
  const bool done = preview_.Step(SampleEnv(), kNewNameSlice);
  const auto& rows = preview_.rows();
  if (rows.size() > before) {
    model_->NewNamesChanged(static_cast<int>(rows[before].row), static_cast<int>(rows.back().row));
  }
  if (done) {
    new_name_timer_.stop();
    ShowConflictLink();
  }
}

void MainWindow::FinishNewNames() {
  RestartNewNames();
  while (new_name_timer_.isActive()) NewNameSlice();
}

void MainWindow::ShowConflictLink() {
  const std::size_t count = new_names_shown_ ? preview_.collision_count() : 0;
  conflicts_->setVisible(count > 0);
  if (count == 0) return;
  conflicts_->setText("<a href=\"#conflict\" style=\"color:#b00000\">" +
                      Q(CollisionText(messages_, count)).toHtmlEscaped() + "</a>");
}

void MainWindow::RevealFirstConflict() {
  for (const NewNameRow& row : preview_.rows()) {
    if (!row.collides) continue;
    const QModelIndex index = model_->index(static_cast<int>(row.row), FileListModel::kNewNameColumn);
    files_->scrollTo(index, QAbstractItemView::PositionAtCenter);
    files_->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    return;
  }
}

QString MainWindow::NewNameStatus() const {
  if (!new_names_shown_ || preview_.collision_count() == 0) return {};
  return "    " + Q(CollisionText(messages_, preview_.collision_count()));
}

// --- The sample. ----------------------------------------------------------------

void MainWindow::ApplySampleRate() {
  rate_ = ReadSampleRate(options_, messages_);
  sample_frame_->setVisible(rate_ != SampleRate::kTurnOff);
  // "Turn off" keeps the interval: the timer still shows the counts.
  const int interval = SampleIntervalMilliseconds(rate_);
  if (interval > 0) change_timer_.setInterval(interval);
  change_timer_.start();
}

void MainWindow::ApplyTooltipOptions() {
  model_->SetFileTooltips(options_.GetOption("ShowTooltips", "Options", "1") != "0");
  const bool help = options_.GetOption("AdvancedToolTip", "Options", "1") != "0";
  const QString tip = help ? Msg(messages_, "main.tip.text_field") : QString();
  for (QLineEdit* field : controls_->text_fields()) field->setToolTip(tip);
}

void MainWindow::SampleTick(bool force) {
  if (status_flush_.isActive()) {
    status_flush_.stop();
    FlushStatus();
  }
  ShowActionOrder();
  setWindowTitle(
      Msg(messages_, "run.caption_program") + "  [" + Msg(messages_, "sample.status_file_count") +
      " " + QString::number(list_.size()) + ", " + Msg(messages_, "sample.status_selected") + " " +
      QString::number(list_.SelectedCount()) + ", " + Msg(messages_, "sample.status_path") + " " +
      Q(CompactPath(app_.CurrentPath, 55)) + "]");
  if (list_.empty()) {
    // A folder that could not be read says why, not that it is empty.
    const FileStatus& error = loader_.folder_error();
    status_->setText(error.ok() ? Msg(messages_, "sample.no_files_in_folder")
                                : Q(error.description) + ": " + Q(app_.CurrentPath));
    sample_->clear();
    return;
  }
  if (!sample_->hasSelectedText()) {
    status_->setText(Msg(messages_, "sample.status_file_count") + " " +
                     QString::number(list_.size()) + "    " +
                     Msg(messages_, "sample.status_selected") + " " +
                     QString::number(list_.SelectedCount()) + NewNameStatus());
  }
  const SampleConditions conditions{force || isActiveWindow(), false, app_.FieldHasFocus};
  if (SampleKeepsItsText(conditions, rate_)) return;
  const std::vector<std::size_t> selected = list_.SelectedRows();
  const std::size_t row = selected.empty() ? 0 : selected.front();
  const std::optional<Sample> sample = ComputeSample(SampleEnv(), row, list_.Folder(row), rate_);
  if (!sample) return;
  const QString caption = Q(SampleFrameCaption(messages_, sample->text));
  if (sample_frame_->title() != caption) sample_frame_->setTitle(caption);
  const QString text = Q(sample->text);
  if (sample_->text() != text) {
    sample_->setText(text);
    if (text.size() > sample_length_) sample_->setCursorPosition(static_cast<int>(text.size()));
    sample_length_ = static_cast<int>(text.size());
  }
  QPalette palette = sample_->palette();
  palette.setColor(QPalette::Text, sample->illegal_chars_replaced
                                       ? QColor(Qt::red)
                                       : QApplication::palette().color(QPalette::ButtonText));
  sample_->setPalette(palette);
}

// --- The run and the settings files. --------------------------------------------

void MainWindow::StartRenaming() {
  change_timer_.stop();
  new_name_timer_.stop();
  ViewSelectionToList();
  starting_run_ = true;
  RenameRunEnv env = RunEnv();
  if (new_names_shown_) {
    // The start question says how many new names collide.
    FinishNewNames();
    env.new_name_collisions = preview_.collision_count();
  }
  const RenameRunResult result = StartRename(env);
  starting_run_ = false;
  AfterJob();
  ShowRunSummary(result);
  if (result.stopped && !result.focus_field.empty()) {
    if (QWidget* field = findChild<QWidget*>(Q(result.focus_field))) field->setFocus();
  }
}

// Every rename or copy run that touched files ends with its counts; a test
// has its own question and list.
void MainWindow::ShowRunSummary(const RenameRunResult& result) {
  if (!result.ran || result.mode == kModeTest) return;
  const RunSummaryChoice choice = interaction_->ShowRunSummary(
      {result.mode, result.done, result.skipped, result.failed, result.cancelled});
  if (choice == RunSummaryChoice::kShowLog) ShowLogFile();
  if (choice == RunSummaryChoice::kUndo) UndoLastRun();
}

// No heading is cut ("JPEG-EXIF-Datum"): each column is at least as wide as
// its heading and the sort arrow.
void MainWindow::FitColumnsToHeadings() {
  const QFontMetrics metrics(files_->horizontalHeader()->font());
  for (int column = 0; column < model_->columnCount(); ++column) {
    const QString heading = model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    const int wanted = metrics.horizontalAdvance(heading) + 32;
    if (files_->columnWidth(column) < wanted) files_->setColumnWidth(column, wanted);
  }
}

RenameRunEnv MainWindow::RunEnv() {
  return {app_,   settings_, list_,     options_,       *interaction_, messages_,
          clock_, log_state_, media_readers_, &loader_};
}

void MainWindow::AfterJob() {
  model_->Refresh();
  UpdateFilterItems();
  ListSelectionToView();
  if (const std::vector<std::size_t> rows = list_.SelectedRows();
      !rows.empty() && options_.GetOption("JumpToLastSelectedFile", "Options", "1") == "1") {
    files_->scrollTo(model_->index(static_cast<int>(rows.back()), 0));
  }
  ShowSettings();
  ApplySampleRate();
  RestartNewNames();
}

void MainWindow::LoadSettings() {
  const LoadSettingsResult result = LoadIniSettings(env_, settings_);
  if (result.outcome != LoadSettingsResult::Outcome::kLoaded) return;
  ShowSettings();
  ShowActionOrder();
  app_.CurrentFilter = settings_.cboExtension;
  ShowFolder(Q(app_.CurrentPath));
}

void MainWindow::SaveSettings() {
  SaveSettingsResult result =
      tarnwick::SaveSettings(env_, settings_, ProgramFoldersUnder(UserDataBaseFolder()).settings);
  if (result.outcome == SaveSettingsResult::Outcome::kSaved) app_.SettingsDirty = false;
  ShowSettings();
}

// --- ProgressView. ------------------------------------------------------------------

void MainWindow::ShowStatusText(StatusArea area, const QString& text) {
  if (area == StatusArea::kSplash && splash_ != nullptr) {
    splash_->showMessage(text, Qt::AlignBottom | Qt::AlignHCenter);
    return;
  }
  QString& pending = area == StatusArea::kSampleFrame ? pending_frame_ : pending_status_;
  pending = text;
  QueueStatusFlush();
}

// A fill or a run reports each file: the status line, the caption and the
// bar are drawn together at most every few milliseconds, and the last state
// of a burst a moment later. Drawn together, the caption's "[n/total]" and
// the bar always tell the same; a window manager would lag far behind a
// title written per file.
void MainWindow::QueueStatusFlush() {
  if (status_clock_.isValid() && status_clock_.elapsed() < 40) {
    if (!status_flush_.isActive()) status_flush_.start();
    return;
  }
  FlushStatus();
}

void MainWindow::FlushStatus() {
  status_clock_.start();
  if (!pending_status_.isNull()) status_->setText(pending_status_);
  if (!pending_frame_.isNull()) sample_frame_->setTitle(pending_frame_);
  if (!pending_caption_.isNull()) setWindowTitle(pending_caption_);
  pending_status_ = QString();
  pending_frame_ = QString();
  pending_caption_ = QString();
  if (!pending_progress_) return;
  const auto [now, top] = *pending_progress_;
  pending_progress_.reset();
  if (progress_->maximum() != top) progress_->setRange(0, top);
  progress_->setValue(now);
  if (!progress_->isVisible()) progress_->show();
}

void MainWindow::SetWindowCaption(const QString& text) {
  pending_caption_ = text;
  QueueStatusFlush();
}

void MainWindow::ShowProgressBar(std::int64_t value, std::int64_t max) {
  // The bar counts in int; big lists are scaled.
  const double scale = max > 1000000 ? 1000000.0 / static_cast<double>(max) : 1.0;
  const int top = static_cast<int>(static_cast<double>(max) * scale);
  const int now = static_cast<int>(static_cast<double>(value) * scale);
  pending_progress_ = std::pair(now, top);
  QueueStatusFlush();
}

void MainWindow::HideProgressBar() {
  pending_progress_.reset();
  progress_->hide();
}

void MainWindow::PrepareButtons(bool enable, bool keep_busy_indicator) {
  app_.run_active = !enable;
  centralWidget()->setEnabled(enable);
  menuBar()->setEnabled(enable);
  start_->setEnabled(enable);
  if (enable) {
    StartFolderWatch();
  } else {
    StopFolderWatch();
  }
  if (keep_busy_indicator) return;
  if (enable) {
    while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
  } else {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  }
}

void MainWindow::StartFolderWatch() {
  if (folder_watch_.IsRunning()) return;
  if (options_.GetOption("CheckNotForNewFiles", "Options", "0") == "1") return;
  if (app_.CurrentPath.empty()) return;
  // A folder that cannot be watched is listed all the same.
  if (!folder_watch_.Start(app_.CurrentPath, Ticked(settings_.chkIncludeSubfolders)).ok()) return;
  watch_timer_.start();
}

void MainWindow::StopFolderWatch() {
  folder_watch_.Stop();
  watch_timer_.stop();
}

void MainWindow::WatchTick() {
  if (!folder_watch_.Poll()) return;
  if (!refill_timer_.isActive()) refill_timer_.start();
}

void MainWindow::RefillFromWatch() {
  const bool busy = app_.run_active || starting_run_ || !start_->isEnabled() ||
                    QApplication::activeModalWidget() != nullptr;
  if (busy) {
    refill_timer_.start();
    return;
  }
  FillListFiles();
}

// --- Events. -------------------------------------------------------------------------

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (settings_scroll_ != nullptr && watched == settings_scroll_->viewport() &&
      event->type() == QEvent::Resize) {
    controls_->FitWidth(settings_scroll_->viewport()->width());
  }
  if (event->type() == QEvent::FocusIn && qobject_cast<QLineEdit*>(watched) != nullptr &&
      watched != sample_) {
    app_.FieldHasFocus = true;
    auto* field = static_cast<QLineEdit*>(watched);
    QTimer::singleShot(0, field, [field] { field->selectAll(); });
  } else if (event->type() == QEvent::FocusOut && qobject_cast<QLineEdit*>(watched) != nullptr) {
    app_.FieldHasFocus = false;
  } else if ((watched == files_ || watched == names_) && event->type() == QEvent::KeyPress &&
             static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete) {
    RemoveSelectedFromList();
    return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

}  // namespace tarnwick::gui
