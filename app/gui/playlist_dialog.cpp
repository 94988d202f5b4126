#include "playlist_dialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <filesystem>

#include "base/path_text.h"
#include "base/text.h"
#include "playlist/media_types.h"
#include "playlist/copy_titles.h"
#include "playlist/playlist_file.h"
#include "playlist/playlist_length.h"
#include "playlist/playlist_rows.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

constexpr int kTitleColumn = 0;
constexpr int kLengthColumn = 1;
constexpr int kPathColumn = 2;

// "Name (*.a)|*.a|Other (*.b)|*.b" as the file dialogue's filter list.
std::vector<FileFilter> SplitFilter(std::string_view text) {
  const std::vector<std::string> parts = vb::Split(text, "|");
  std::vector<FileFilter> filters;
  for (std::size_t i = 0; i + 1 < parts.size(); i += 2) filters.push_back({parts[i], parts[i + 1]});
  return filters;
}

// "*.mp3 *.ogg ..." of the media types.
std::string MediaPatterns() {
  std::string patterns;
  for (const std::string& type : vb::Split(kPlaylistMediaTypes, " ")) {
    patterns += (patterns.empty() ? "*." : " *.") + type;
  }
  return patterns;
}

}  // namespace

bool IsPlaylistName(std::string_view name) {
  const std::string extension = GetFileExt(name);
  return extension == "m3u" || extension == "m3u8" || extension == "pls";
}

// The editor's questions go to the questions of the caller; its status texts
// and progress to its own status line and bar.
class PlaylistDialog::StatusInteraction : public Interaction {
 public:
  StatusInteraction(PlaylistDialog& dialog, Interaction& questions)
      : dialog_(dialog), questions_(questions) {}

  Answer ShowMessage(const MessageBoxRequest& r) override { return questions_.ShowMessage(r); }
  StartRenamingChoice AskStartRenaming(const StartRenamingRequest& r) override {
    return questions_.AskStartRenaming(r);
  }
  FileExistsAnswer AskFileExists(const FileExistsRequest& r) override {
    return questions_.AskFileExists(r);
  }
  ManualRenameAnswer AskManualRename(const ManualRenameRequest& r) override {
    return questions_.AskManualRename(r);
  }
  void ShowTestResults(const std::vector<TestResultRow>& rows) override {
    questions_.ShowTestResults(rows);
  }
  std::optional<std::string> AskInput(const InputRequest& r) override {
    return questions_.AskInput(r);
  }
  std::optional<std::string> ChooseFile(const FileChooserRequest& r) override {
    return questions_.ChooseFile(r);
  }
  std::optional<std::string> ChooseFolder(const FolderChooserRequest& r) override {
    return questions_.ChooseFolder(r);
  }
  std::optional<SaveSettingsAnswer> AskSaveSettings(const SaveSettingsRequest& r) override {
    return questions_.AskSaveSettings(r);
  }
  void ShowStatus(StatusArea, std::string_view text) override {
    dialog_.status_->setText(Q(text));
  }
  void SetCaption(std::string_view) override {}
  void ShowProgress(std::int64_t value, std::int64_t max) override {
    dialog_.progress_->setMaximum(static_cast<int>(std::min<std::int64_t>(max, INT32_MAX)));
    dialog_.progress_->setValue(static_cast<int>(std::min(value, max)));
    dialog_.progress_->show();
  }
  void HideProgress() override { dialog_.progress_->hide(); }
  void SetControlsEnabled(bool enabled, bool) override { dialog_.setEnabled(enabled); }
  void PlayWave(const std::string& path) override { questions_.PlayWave(path); }
  bool PollCancel() override { return questions_.PollCancel(); }
  void Yield() override {
    questions_.Yield();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }

 private:
  PlaylistDialog& dialog_;
  Interaction& questions_;
};

PlaylistDialog::PlaylistDialog(OptionStore& options, const MessageTable& messages,
                               Interaction& questions, QWidget* parent)
    : QDialog(parent),
      options_(options),
      messages_(messages),
      questions_(questions),
      status_interaction_(std::make_unique<StatusInteraction>(*this, questions)),
      random_(std::make_unique<SystemRandom>()) {
  setObjectName("frmPlaylistCopy");
  setWindowTitle(Msg(messages, "playlist.title"));
  setWindowFlag(Qt::WindowMinMaxButtonsHint);
  setAcceptDrops(true);
  resize(sizeHint());

  auto* outer = new QVBoxLayout(this);
  auto* middle = new QHBoxLayout();
  outer->addLayout(middle, 1);

  list_ = new QTreeWidget(this);
  list_->setObjectName("lvwFilePreview");
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list_->setHeaderLabels({Msg(messages, "playlist.column.title"),
                          Msg(messages, "playlist.column.length"),
                          Msg(messages, "playlist.column.path")});
  list_->setContextMenuPolicy(Qt::CustomContextMenu);
  middle->addWidget(list_, 1);
  connect(list_, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item, int column) {
    if (column != kTitleColumn) return;
    const int index = list_->indexOfTopLevelItem(item);
    if (index < 0 || static_cast<std::size_t>(index) >= rows_.size()) return;
    rows_[static_cast<std::size_t>(index)].checked = item->checkState(kTitleColumn) == Qt::Checked;
  });

  auto* buttons = new QWidget(this);
  buttons->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  auto* column = new QVBoxLayout(buttons);
  column->setContentsMargins(0, 0, 0, 0);
  middle->addWidget(buttons);
  BuildButtons(column);

  menu_ = new QMenu(Msg(messages, "playlist.menu.list"), this);
  BuildMenu(menu_);
  connect(list_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& at) { menu_->popup(list_->viewport()->mapToGlobal(at)); });

  auto* bottom = new QHBoxLayout();
  outer->addLayout(bottom);
  keep_top_ = new QCheckBox(Msg(messages, "playlist.always_on_top"), this);
  keep_top_->setObjectName("chkKeepTop");
  connect(keep_top_, &QCheckBox::toggled, this, [this](bool on) {
    const bool shown = isVisible();
    setWindowFlag(Qt::WindowStaysOnTopHint, on);
    if (shown) show();
  });
  bottom->addWidget(keep_top_);
  status_ = new QLabel(this);
  status_->setObjectName("lblStatus");
  status_->setMinimumWidth(100);
  status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  bottom->addWidget(status_, 1);
  progress_ = new QProgressBar(this);
  progress_->setObjectName("prgBar");
  progress_->setMaximumWidth(160);
  progress_->hide();
  bottom->addWidget(progress_);
  play_time_ = new QLabel(this);
  play_time_->setObjectName("lblPlayTime");
  bottom->addWidget(play_time_);
  ShowRows();
}

PlaylistDialog::~PlaylistDialog() = default;

void PlaylistDialog::BuildButtons(QVBoxLayout* column) {
  const auto add = [&](const char* name, std::string_view key, auto slot) {
    auto* button = new QPushButton(Msg(messages_, key), this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, slot);
    column->addWidget(button);
    return button;
  };
  add("cmdAddTitle", "playlist.button.add_title", [this] {
    const QStringList files = QFileDialog::getOpenFileNames(
        this, Msg(messages_, "playlist.button.add_title"), QString(),
        Msg(messages_, "playlist.filter_audio") + " (" + Q(MediaPatterns()) + ")");
    AddFiles(files);
  });
  add("cmdDelete", "playlist.button.delete", [this] { DeleteSelected(); });
  add("cmdUp", "playlist.button.up", [this] { MoveSelected(true); });
  add("cmdDown", "playlist.button.down", [this] { MoveSelected(false); });
  column->addSpacing(8);
  add("cmdSelectAll", "playlist.button.select_all", [this] { TickAll(true); });
  add("cmdDeselectAll", "playlist.button.deselect_all", [this] { TickAll(false); });
  add("cmdCheckList", "playlist.button.check_list", [this] { CheckAll(); });
  column->addSpacing(8);
  copy_files_ = add("cmdCopyFiles", "playlist.button.copy_files",
                    [this] { CopyFiles(CopyTitlesMode::kCopy); });
  move_files_ = add("cmdMoveFiles", "playlist.button.move_files",
                    [this] { CopyFiles(CopyTitlesMode::kMove); });
  column->addSpacing(8);
  add("cmdLoad", "playlist.button.load", [this] { Load(); });
  add("cmdSavePLS", "playlist.button.save", [this] { Save(); });
  add("cmdCopyToClipboard", "playlist.button.copy_to_clipboard", [this] { CopyToClipboard(); });
  auto* more = new QPushButton(Msg(messages_, "playlist.menu.list"), this);
  more->setObjectName("cmdMenu");
  connect(more, &QPushButton::clicked, this,
          [this, more] { menu_->popup(more->mapToGlobal(QPoint(0, more->height()))); });
  column->addWidget(more);
  column->addStretch(1);
}

void PlaylistDialog::BuildMenu(QMenu* menu) {
  const auto add = [&](const char* name, std::string_view key, auto slot) {
    QAction* action = menu->addAction(Msg(messages_, key), this, slot);
    action->setObjectName(name);
    return action;
  };
  add("mnuCorrectList", "playlist.menu.correct_list", [this] { CorrectAll(); });
  add("mnuCorrectItem", "playlist.menu.correct_item", [this] { CorrectSelected(); });
  add("mnuCheckItem", "playlist.menu.check_item", [this] { CheckSelected(); });
  add("mnuChangePath", "playlist.menu.change_path", [this] { ChangePath(); });
  menu->addSeparator();
  add("mnuGetOprhanFiles", "playlist.menu.lost_files", [this] { SearchLost(); });
  add("mnuRandomizeList", "playlist.menu.randomize_list", [this] { Shuffle(); });
  menu->addSeparator();
  QAction* tags = add("mnuEditMP3Tags", "playlist.menu.edit_mp3_tags", [] {});
  // The tag editor does not exist yet.
  tags->setEnabled(false);
  tags->setToolTip(Msg(messages_, "playlist.tag_editor_missing"));
  menu->addSeparator();
  add("mnuClearAll", "playlist.menu.clear_all", [this] { ClearAll(); });
}

QList<QAction*> PlaylistDialog::menu_actions() const { return menu_->actions(); }

PlaylistUi PlaylistDialog::ui() { return {*status_interaction_, messages_}; }

void PlaylistDialog::ShowRows() {
  const QSignalBlocker blocker(list_);
  const int current = list_->currentIndex().row();
  list_->clear();
  QList<QTreeWidgetItem*> items;
  items.reserve(static_cast<qsizetype>(rows_.size()));
  for (const PlaylistRow& row : rows_) {
    auto* item = new QTreeWidgetItem({Q(row.title), Q(row.length), Q(row.path)});
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(kTitleColumn, row.checked ? Qt::Checked : Qt::Unchecked);
    item->setTextAlignment(kLengthColumn, Qt::AlignRight | Qt::AlignVCenter);
    if (row.red) {
      for (int c = 0; c < 3; ++c) item->setForeground(c, Qt::red);
    }
    items.append(item);
  }
  list_->addTopLevelItems(items);
  // `ColumnAutoSize`: title and length fit their texts, the path takes the rest.
  list_->resizeColumnToContents(kTitleColumn);
  list_->resizeColumnToContents(kLengthColumn);
  list_->setColumnWidth(kTitleColumn, std::min(list_->columnWidth(kTitleColumn), 360));
  if (current >= 0 && current < list_->topLevelItemCount()) {
    list_->setCurrentItem(list_->topLevelItem(current));
  }
  play_time_->setText(Msg(messages_, "playlist.time") + " " + Q(LengthText(TotalSeconds(rows_))));
}

int PlaylistDialog::CurrentIndex() const {
  QTreeWidgetItem* item = list_->currentItem();
  if (item == nullptr) return -1;
  return list_->indexOfTopLevelItem(item);
}

std::vector<std::size_t> PlaylistDialog::SelectedIndexes() const {
  std::vector<std::size_t> indexes;
  for (QTreeWidgetItem* item : list_->selectedItems()) {
    const int index = list_->indexOfTopLevelItem(item);
    if (index >= 0) indexes.push_back(static_cast<std::size_t>(index));
  }
  std::sort(indexes.begin(), indexes.end());
  return indexes;
}

void PlaylistDialog::Changed(bool changed) {
  if (changed) dirty_ = true;
  ShowRows();
}

void PlaylistDialog::Tell(std::string_view title_key, const std::string& text, MessageIcon icon) {
  questions_.ShowMessage(
      {std::string(messages_.Text(title_key)), text, Buttons::kOk, icon, Topic::kNotice});
}

bool PlaylistDialog::MayDiscard() {
  if (!dirty_ || rows_.empty()) return true;
  return questions_.ShowMessage({std::string(messages_.Text("playlist.discard_title")),
                                 std::string(messages_.Text("playlist.discard_question")),
                                 Buttons::kYesNo, MessageIcon::kQuestion,
                                 Topic::kDiscardChanges}) == Answer::kYes;
}

bool PlaylistDialog::LoadFile(const std::string& path) {
  const PlaylistLoad load = LoadPlaylist(path);
  if (!load.status.ok()) {
    Tell("playlist.button.load",
         std::string(messages_.Text("playlist.load_failed")) + "\n" + path + "\n" +
             load.status.description,
         MessageIcon::kCritical);
    return false;
  }
  if (!load.ok()) {
    Tell("playlist.button.load", std::string(messages_.Text("playlist.not_supported")),
         MessageIcon::kExclamation);
    return false;
  }
  rows_ = load.rows;
  file_ = path;
  dirty_ = false;
  setWindowTitle(Msg(messages_, "playlist.title") + " - " + Q(LastPathElement(path)));
  ShowRows();
  return true;
}

void PlaylistDialog::AddFiles(const QStringList& paths) {
  const bool correct = options_.GetOption("CorrectPlaylistFiles", "Options", "1") == "1";
  bool added = false;
  int done = 0;
  for (const QString& path : paths) {
    status_interaction_->ShowProgress(++done, paths.size());
    const std::string file = S(QFileInfo(path).absoluteFilePath());
    if (!FilterMedia(file) || !QFileInfo(path).isFile()) continue;
    rows_.push_back(RowForFile(file, correct));
    added = true;
  }
  status_interaction_->HideProgress();
  Changed(added);
}

void PlaylistDialog::DeleteSelected() {
  const std::vector<std::size_t> selected = SelectedIndexes();
  if (selected.empty()) return;
  if (questions_.ShowMessage({std::string(messages_.Text("playlist.remove_entry_title")),
                              std::string(messages_.Text("playlist.remove_entry_question")),
                              Buttons::kYesNo, MessageIcon::kQuestion}) != Answer::kYes) {
    return;
  }
  for (auto it = selected.rbegin(); it != selected.rend(); ++it) {
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(*it));
  }
  Changed(true);
}

void PlaylistDialog::MoveSelected(bool up) {
  const int index = CurrentIndex();
  if (index < 0 || !MoveRow(rows_, static_cast<std::size_t>(index), up)) return;
  Changed(true);
  QTreeWidgetItem* moved = list_->topLevelItem(index + (up ? -1 : 1));
  list_->setCurrentItem(moved);
}

void PlaylistDialog::TickAll(bool ticked) {
  for (PlaylistRow& row : rows_) row.checked = ticked;
  ShowRows();
}

void PlaylistDialog::CopyToClipboard() {
  QApplication::clipboard()->setText(Q(RowsAsText(rows_)));
}

void PlaylistDialog::Load() {
  if (!MayDiscard()) return;
  FileChooserRequest request;
  request.title = messages_.Text("playlist.button.load");
  request.filters = {{std::string(messages_.Text("playlist.filter_playlists")) +
                          " (*.m3u *.m3u8 *.pls)",
                      "*.m3u *.m3u8 *.pls"}};
  request.start_folder = file_.empty() ? std::string() : ParentFolder(file_);
  const std::optional<std::string> path = questions_.ChooseFile(request);
  if (path && !path->empty()) LoadFile(*path);
}

bool PlaylistDialog::Save() {
  if (rows_.empty()) {
    Tell("playlist.button.save", std::string(messages_.Text("playlist.cannot_save_empty")),
         MessageIcon::kExclamation);
    return false;
  }
  FileChooserRequest request;
  request.title = messages_.Text("playlist.button.save");
  request.filters = SplitFilter(messages_.Text("playlist.save_filter"));
  request.default_extension = "m3u";
  request.for_saving = true;
  if (!file_.empty()) {
    request.start_folder = ParentFolder(file_);
    request.preset_name = LastPathElement(file_);
  }
  std::optional<std::string> path = questions_.ChooseFile(request);
  if (!path || path->empty()) return false;
  // The default extension; the file dialogue asked about the name without it.
  if (ExtensionName(LastPathElement(*path)).empty()) {
    *path += ".m3u";
    if (std::filesystem::exists(*path) &&
        questions_.ShowMessage({std::string(messages_.Text("playlist.button.save")),
                                std::string(messages_.Text("playlist.replace_question")) + "\n" +
                                    *path,
                                Buttons::kYesNo, MessageIcon::kQuestion}) != Answer::kYes) {
      return false;
    }
  }
  return SaveTo(*path);
}

bool PlaylistDialog::SaveTo(const std::string& path) {
  const PlaylistSave save = SavePlaylist(path, rows_);
  if (save.unstorable_row >= 0) {
    Tell("playlist.button.save",
         std::string(messages_.Text("playlist.unstorable_path")) + "\n" +
             rows_[static_cast<std::size_t>(save.unstorable_row)].path,
         MessageIcon::kExclamation);
    return false;
  }
  if (!save.status.ok()) {
    Tell("playlist.button.save",
         std::string(messages_.Text("playlist.save_failed")) + "\n" + path + "\n" +
             save.status.description,
         MessageIcon::kCritical);
    return false;
  }
  file_ = path;
  dirty_ = false;
  setWindowTitle(Msg(messages_, "playlist.title") + " - " + Q(LastPathElement(path)));
  return true;
}

void PlaylistDialog::CheckAll() { Changed(CheckList(rows_, ui())); }

void PlaylistDialog::CheckSelected() {
  const int index = CurrentIndex();
  if (index >= 0) Changed(CheckItem(rows_, static_cast<std::size_t>(index), ui()));
}

void PlaylistDialog::CorrectAll() {
  setEnabled(false);
  const bool changed = CorrectList(rows_, ui());
  setEnabled(true);
  Changed(changed);
}

void PlaylistDialog::CorrectSelected() {
  const int index = CurrentIndex();
  if (index >= 0) Changed(CorrectItem(rows_, static_cast<std::size_t>(index), ui()));
}

void PlaylistDialog::Shuffle() { Changed(ShuffleList(rows_, ui(), *random_)); }

void PlaylistDialog::SearchLost() {
  setEnabled(false);
  const bool changed = SearchLostFiles(rows_, ui());
  setEnabled(true);
  Changed(changed);
}

void PlaylistDialog::CopyFiles(CopyTitlesMode mode) {
  setEnabled(false);
  CopyTitles(rows_, mode, options_, ui());
  setEnabled(true);
}

void PlaylistDialog::ChangePath() {
  const int index = CurrentIndex();
  if (index < 0) return;
  PlaylistRow& row = rows_[static_cast<std::size_t>(index)];
  FileChooserRequest request;
  request.title = messages_.Text("playlist.menu.change_path");
  request.filters = {{std::string(messages_.Text("playlist.filter_audio")), MediaPatterns()}};
  request.start_folder = ParentFolder(row.path);
  const std::optional<std::string> path = questions_.ChooseFile(request);
  if (!path || path->empty()) return;
  row.path = *path;
  row.red = false;
  row.tag.clear();
  Changed(true);
}

void PlaylistDialog::ClearAll() {
  if (rows_.empty()) return;
  if (questions_.ShowMessage({std::string(messages_.Text("playlist.clear_all_title")),
                              std::string(messages_.Text("playlist.clear_all_question")),
                              Buttons::kYesNo, MessageIcon::kQuestion}) != Answer::kYes) {
    return;
  }
  rows_.clear();
  Changed(true);
}

void PlaylistDialog::closeEvent(QCloseEvent* event) {
  if (!MayDiscard()) {
    event->ignore();
    return;
  }
  dirty_ = false;
  event->accept();
}

void PlaylistDialog::reject() {
  // Esc and the window's close button both ask first.
  if (MayDiscard()) {
    dirty_ = false;
    QDialog::reject();
  }
}

void PlaylistDialog::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void PlaylistDialog::dropEvent(QDropEvent* event) {
  QStringList files;
  for (const QUrl& url : event->mimeData()->urls()) {
    if (url.isLocalFile()) files << url.toLocalFile();
  }
  // A playlist dropped alone is loaded; music files are added.
  if (files.size() == 1 && IsPlaylistName(S(files.front()))) {
    if (MayDiscard()) LoadFile(S(files.front()));
  } else {
    AddFiles(files);
  }
  event->acceptProposedAction();
}

}  // namespace tarnwick::gui
