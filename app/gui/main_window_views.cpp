// The list's three views and the menu of its right mouse button.
#include <QAction>
#include <QCoreApplication>
#include <QActionGroup>
#include <QListView>
#include <QMenu>
#include <QStackedWidget>
#include <QTableView>

#include "file_list_model.h"
#include "main_window.h"
#include "persist/option_store.h"
#include "qt_text.h"
#include "thumbnail_cache.h"

namespace tarnwick::gui {

QWidget* MainWindow::BuildListViews(QWidget* pane) {
  list_views_ = new QStackedWidget(pane);
  names_ = new QListView(list_views_);
  names_->setObjectName("lvwFilesNames");
  names_->setModel(model_);
  names_->setModelColumn(file_column::kName);
  // One selection for both views: what is selected stays selected on a switch.
  names_->setSelectionModel(files_->selectionModel());
  names_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  names_->setUniformItemSizes(true);
  names_->setResizeMode(QListView::Adjust);
  names_->setLayoutMode(QListView::Batched);
  names_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  names_->installEventFilter(this);
  connect(names_, &QListView::doubleClicked, this,
          [this](const QModelIndex& index) { RowActivated(index.row()); });
  list_views_->addWidget(files_);
  list_views_->addWidget(names_);
  list_views_->setCurrentWidget(files_);
  return list_views_;
}

void MainWindow::BuildViewModeMenu(QMenu* view) {
  view->addSeparator();
  auto* group = new QActionGroup(this);
  const std::pair<const char*, ListViewMode> modes[] = {
      {"main.menu.view_list", ListViewMode::kList},
      {"main.menu.view_details", ListViewMode::kDetails},
      {"main.menu.view_symbols", ListViewMode::kSymbols}};
  for (const auto& [key, mode] : modes) {
    QAction* action = view->addAction(Msg(messages_, key));
    action->setCheckable(true);
    action->setChecked(mode == view_mode_);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, mode = mode] { SetListViewMode(mode); });
    view_mode_actions_.append(action);
  }
  view->addSeparator();
}

void MainWindow::BuildListMenu(QAction* refresh, QMenu* select) {
  list_actions_ = select->actions();
  auto* separator = new QAction(this);
  separator->setSeparator(true);
  list_actions_ << separator << refresh;
  auto* media_separator = new QAction(this);
  media_separator->setSeparator(true);
  auto* tag_editor = new QAction(Msg(messages_, "main.menu.tag_editor"), this);
  tag_editor->setObjectName("mnuListTagEditor");
  connect(tag_editor, &QAction::triggered, this, [this] { OpenTagEditor(); });
  auto* media_info = new QAction(Msg(messages_, "main.menu.media_info"), this);
  media_info->setObjectName("mnuListMediaInfo");
  connect(media_info, &QAction::triggered, this, [this] { ShowMediaInfo(); });
  auto* exif_info = new QAction(Msg(messages_, "main.menu.exif_info"), this);
  exif_info->setObjectName("mnuListExifInfo");
  connect(exif_info, &QAction::triggered, this, [this] { ShowExifInfo(); });
  list_actions_ << media_separator << tag_editor << media_info << exif_info;
  for (QAbstractItemView* view :
       {static_cast<QAbstractItemView*>(files_), static_cast<QAbstractItemView*>(names_)}) {
    view->setContextMenuPolicy(Qt::ActionsContextMenu);
    view->addActions(list_actions_);
  }
}

QList<QAction*> MainWindow::list_menu_actions() const { return list_actions_; }

void MainWindow::SetListViewMode(ListViewMode mode) {
  view_mode_ = mode;
  const int index = static_cast<int>(mode);
  if (index < view_mode_actions_.size()) view_mode_actions_[index]->setChecked(true);
  const bool had_focus = files_->hasFocus() || names_->hasFocus();
  // "Show icons in filelist" gives List and Details the type icons; Symbols
  // always shows pictures and icons.
  const bool icons = options_.GetOption("Icons", "Options", "1") != "0";
  const FileListModel::Icons plain = icons ? FileListModel::Icons::kTypes : FileListModel::Icons::kNone;
  if (mode == ListViewMode::kDetails) {
    model_->SetIcons(plain);
    list_views_->setCurrentWidget(files_);
  } else {
    const bool symbols = mode == ListViewMode::kSymbols;
    model_->SetIcons(symbols ? FileListModel::Icons::kThumbnails : plain);
    names_->setViewMode(symbols ? QListView::IconMode : QListView::ListMode);
    // The list mode fills columns from top to bottom, as a folder window does.
    names_->setFlow(symbols ? QListView::LeftToRight : QListView::TopToBottom);
    names_->setWrapping(true);
    names_->setIconSize(symbols ? QSize(ThumbnailCache::kSize, ThumbnailCache::kSize) : QSize());
    names_->setGridSize(symbols ? QSize(120, ThumbnailCache::kSize + 44) : QSize());
    names_->setWordWrap(symbols);
    names_->setMovement(QListView::Static);
    list_views_->setCurrentWidget(names_);
  }
  QAbstractItemView* shown = static_cast<QAbstractItemView*>(list_views_->currentWidget());
  const QModelIndex current = files_->selectionModel()->currentIndex();
  if (current.isValid()) shown->scrollTo(model_->index(current.row(), 0));
  if (had_focus) shown->setFocus();
}

void MainWindow::FinishThumbnails() {
  model_->thumbnails().WaitForAll();
  QCoreApplication::processEvents();
}

}  // namespace tarnwick::gui
