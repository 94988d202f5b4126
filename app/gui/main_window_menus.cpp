// The menus of the main window, and closing it.
#include <QCloseEvent>
#include <QDesktopServices>
#include <QMenuBar>
#include <QTableView>
#include <QUrl>
#include <algorithm>
#include <cstdlib>

#include "desktop_integration.h"
#include "file_list_model.h"
#include "filelist/column_headings.h"
#include "main_window.h"
#include "options_dialog.h"
#include "pattern_picker_dialog.h"
#include "persist/log_file.h"
#include "persist/log_options.h"
#include "persist/option_store.h"
#include "platform/files.h"
#include "playlist_dialog.h"
#include "qt_text.h"
#include "startup/startup.h"
#include "window_host.h"

namespace tarnwick::gui {

StartupHost& MainWindow::host() {
  if (!host_) host_ = std::make_unique<WindowHost>(*this);
  return *host_;
}

void MainWindow::BuildMenus() {
  QMenu* file = menuBar()->addMenu(Msg(messages_, "main.menu.file"));
  file->addAction(Msg(messages_, "main.menu.load_settings"), QKeySequence::Open, this,
                  &MainWindow::LoadSettings);
  file->addAction(Msg(messages_, "main.menu.save_settings"), QKeySequence::Save, this,
                  &MainWindow::SaveSettings);
  file->addSeparator();
  file->addAction(Msg(messages_, "main.menu.export_text"), this,
                  [this] { ExportListAsText(); })
      ->setObjectName("mnuExportText");
  file->addAction(Msg(messages_, "main.menu.export_xml"), this, &MainWindow::ExportListAsXml)
      ->setObjectName("mnuExportXML");
  file->addSeparator();
  file->addAction(Msg(messages_, "main.button.exit"), QKeySequence::Quit, this, &QWidget::close);

  QMenu* view = menuBar()->addMenu(Msg(messages_, "main.menu.view"));
  QAction* refresh = view->addAction(Msg(messages_, "main.menu.refresh"), QKeySequence(Qt::Key_F5),
                                     this, &MainWindow::FillListFiles);
  BuildViewModeMenu(view);
  QAction* new_names = view->addAction(Msg(messages_, "main.menu.new_name_column"));
  new_names->setCheckable(true);
  new_names->setChecked(new_names_shown_);
  new_names_action_ = new_names;
  connect(new_names, &QAction::toggled, this, &MainWindow::SetNewNameColumnShown);

  QMenu* sort = menuBar()->addMenu(Msg(messages_, "main.menu.sort"));
  QAction* descending = new QAction(Msg(messages_, "main.menu.sort_descending"), this);
  descending->setObjectName("mnuSortDescending");
  descending->setCheckable(true);
  sort_descending_action_ = descending;
  // The tick turns the list round by the column it is sorted by.
  connect(descending, &QAction::triggered, this, [this](bool checked) {
    const auto sorted = list_.sort_columns();
    if (!sorted.empty()) SortBy(sorted.front().column, checked);
  });
  const auto headings = ColumnHeadings(options_, messages_);
  for (int column = 0; column <= file_column::kFolderName + 1; ++column) {
    if (headings[column].empty()) continue;
    sort->addAction(Q(headings[column]), this,
                    [this, column, descending] { SortBy(column, descending->isChecked()); });
  }
  sort->addSeparator();
  sort->addAction(descending);

  QMenu* select = menuBar()->addMenu(Msg(messages_, "main.menu.select"));
  select->addAction(Msg(messages_, "main.button.select_all"), QKeySequence::SelectAll, this,
                    &MainWindow::SelectAll);
  select->addAction(Msg(messages_, "main.button.deselect_all"), this, &MainWindow::DeselectAll);
  select->addAction(Msg(messages_, "main.button.invert"), QKeySequence(Qt::CTRL | Qt::Key_I), this,
                    &MainWindow::InvertSelection);
  select->addSeparator();
  select->addAction(Msg(messages_, "main.menu.remove_from_list"), this,
                    &MainWindow::RemoveSelectedFromList);
  BuildListMenu(refresh, select);

  QMenu* tools = menuBar()->addMenu(Msg(messages_, "main.menu.tools"));
  tools->addAction(Msg(messages_, "main.menu.options") + " ...", this, &MainWindow::EditOptions);
  tools->addAction(Msg(messages_, "main.menu.action_order"), this, &MainWindow::EditActionOrder);
  tools->addAction(Msg(messages_, "playlist.menu.open_editor"), this,
                   [this] { OpenPlaylistEditor(); });
  tools->addSeparator();
  tools->addAction(Msg(messages_, "main.menu.move_copy_files"), this, &MainWindow::CopyMoveFiles)
      ->setObjectName("mnuMoveCopyFiles");
  tools
      ->addAction(Msg(messages_, "main.menu.rename_from_file"), this,
                  &MainWindow::RenameFromTextFile)
      ->setObjectName("mnuRenameFromFile");
  tools->addAction(Msg(messages_, "main.menu.split_files"), this, &MainWindow::SplitSelectedFiles)
      ->setObjectName("mnuSplitFiles");
  tools->addAction(Msg(messages_, "main.menu.merge_files"), this, &MainWindow::MergeSelectedFiles)
      ->setObjectName("mnuMergeFiles");
  tools
      ->addAction(Msg(messages_, "main.menu.secure_delete"), this,
                  &MainWindow::SecureDeleteSelectedFiles)
      ->setObjectName("mnuSecureDelete");
  tools
      ->addAction(Msg(messages_, "main.menu.md5_checksums"), this,
                  [this] { ShowChecksums(DigestKind::kMd5); })
      ->setObjectName("mnuGetMD5Checksums");
  tools
      ->addAction(Msg(messages_, "main.menu.sha256_checksums"), this,
                  [this] { ShowChecksums(DigestKind::kSha256); })
      ->setObjectName("mnuGetSHA256Checksums");
  tools->addAction(Msg(messages_, "main.menu.compress_to_jpg"), this, &MainWindow::CompressPictures)
      ->setObjectName("mnuCompressToJPG");
  tools->addAction(Msg(messages_, "main.menu.resize_pictures"), this, &MainWindow::ResizePictures)
      ->setObjectName("mnuResizeJPEG");
  tools->addSeparator();
  tools->addAction(Msg(messages_, "main.menu.tag_editor"), this, [this] { OpenTagEditor(); })
      ->setObjectName("mnuMP3Tagger");
  tools
      ->addAction(Msg(messages_, "report.menu_exif"), this,
                  [this] { SaveMetadataReportFile(MetadataReport::kExif); })
      ->setObjectName("mnuSaveJPEGEXIFInfo");
  tools
      ->addAction(Msg(messages_, "report.menu_mp3"), this,
                  [this] { SaveMetadataReportFile(MetadataReport::kMp3); })
      ->setObjectName("mnuSaveMP3InfosToFile");
  tools->addSeparator();
  QAction* undo = tools->addAction(Msg(messages_, "main.menu.undo_last_run"), QKeySequence::Undo,
                                   this, &MainWindow::UndoLastRun);
  undo->setObjectName("mnuUndoLastRun");
  // Offered while runs write an undo batch and the batch is there.
  connect(tools, &QMenu::aboutToShow, this, [this, undo] {
    undo->setEnabled(options_.GetOption("WriteUndoList", "Options", "1") != "0" &&
                     FileExists(CurrentUndoBatch()));
  });
  tools
      ->addAction(Msg(messages_, "main.menu.show_log"), QKeySequence(Qt::Key_F7), this,
                  &MainWindow::ShowLogFile)
      ->setObjectName("mnuShowLog");
  tools
      ->addAction(Msg(messages_, "main.menu.undo_folder"), QKeySequence(Qt::Key_F8), this,
                  &MainWindow::ShowUndoFolder)
      ->setObjectName("mnuUndoFolder");

  QMenu* help = menuBar()->addMenu(Msg(messages_, "main.menu.help"));
  help->addAction(Msg(messages_, "main.menu.placeholder_list"), this, [this] {
    PatternPickerDialog dialog(messages_, {}, 0, this);
    dialog.exec();
  });
}

void MainWindow::EditOptions() {
  const std::string context_menu = options_.GetOption("ContextMenu", "Options", "0");
  const std::string autostart = options_.GetOption("StartWithWindows", "Options", "0");
  const std::map<std::string, std::string> defaults = {
      {"LogFilePath", log_state_.DefaultLogFolder + "/Tarnwick.log"},
      {"UndoFilePath", log_state_.DefaultUndoFolder}};
  OptionsDialog dialog(options_, messages_, *interaction_, defaults, &env_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  const std::string now = options_.GetOption("ContextMenu", "Options", "0");
  if (now != context_menu) {
    SetFolderAction(now == "1", std::string(messages_.Text("options.context_menu_entry")));
  }
  const std::string autostart_now = options_.GetOption("StartWithWindows", "Options", "0");
  if (autostart_now != autostart) SetAutostart(autostart_now == "1");
  model_->SetHeadings(ColumnHeadings(options_, messages_),
                      std::string(messages_.Text("result_list.column_new_name")));
  FitColumnsToHeadings();
  SetNewNameColumnShown(options_.GetOption("ShowNewNames", "Options", "1") != "0");
  SetListViewMode(view_mode_);  // "Show icons in filelist" may have changed
  ApplyTooltipOptions();
  FillListFiles();
}

PlaylistDialog* MainWindow::OpenPlaylistEditor(const std::string& playlist) {
  auto* editor = new PlaylistDialog(options_, messages_, *interaction_, this);
  editor->setAttribute(Qt::WA_DeleteOnClose);
  if (!playlist.empty()) {
    editor->LoadFile(playlist);
  } else {
    const std::vector<std::size_t> selected = list_.SelectedRows();
    if (selected.size() == 1 && IsPlaylistName(list_.Path(selected.front()))) {
      editor->LoadFile(list_.Path(selected.front()));
    } else {
      QStringList files;
      for (std::size_t row : selected) files << Q(list_.Path(row));
      editor->AddFiles(files);
    }
  }
  editor->show();
  return editor;
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (CloseMainWindow(env_, host())) {
    event->ignore();
    return;
  }
  change_timer_.stop();
  new_name_timer_.stop();
  SaveWindowLayout();
  event->accept();
}

// Beside `Top` and `Left`: the size (of the normal window), whether it was
// maximised, and the list's view.
void MainWindow::SaveWindowLayout() {
  if (!isMaximized() && !isMinimized() && !isFullScreen()) {
    options_.SaveOption("Width", "Options", std::to_string(width()));
    options_.SaveOption("Height", "Options", std::to_string(height()));
  }
  options_.SaveOption("Maximized", "Options", isMaximized() ? "1" : "0");
  options_.SaveOption("ListView", "Options", std::to_string(static_cast<int>(view_mode_)));
}

void MainWindow::RestoreWindowLayout() {
  const auto number = [this](const char* key, int fallback) {
    const long value = std::strtol(options_.GetOption(key, "Options", "").c_str(), nullptr, 10);
    return value > 0 ? static_cast<int>(value) : fallback;
  };
  // The default shows the whole panel of renaming controls.
  resize(std::max(640, number("Width", kDefaultWidth)),
         std::max(480, number("Height", kDefaultHeight)));
  const long mode =
      std::strtol(options_.GetOption("ListView", "Options", "1").c_str(), nullptr, 10);
  if (mode >= 0 && mode <= 2) SetListViewMode(static_cast<ListViewMode>(mode));
}

}  // namespace tarnwick::gui
