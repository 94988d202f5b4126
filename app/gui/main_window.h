#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <string>

#include "base/clock.h"
#include "core/new_name_preview.h"
#include "tools/checksum_report.h"
#include "core/rename_settings.h"
#include "core/sample.h"
#include "core/start_rename.h"
#include "tools/export_choices.h"
#include "tools/metadata_report_job.h"
#include "tools/tool_job.h"
#include "filelist/file_list.h"
#include "filelist/list_loader.h"
#include "filelist/media_column_source.h"
#include "media/media_readers.h"
#include "persist/log_file.h"
#include "persist/log_undo_env.h"
#include "persist/log_undo_state.h"
#include "platform/folder_watch.h"
#include "qt_interaction.h"
#include "shell/app_state.h"
#include "shell/message_table.h"
#include "startup/startup_host.h"

class QCheckBox;
class QMenu;
class QAction;
class QSplashScreen;
class QComboBox;
class QFileSystemModel;
class QGroupBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QScrollArea;
class QPushButton;
class QTableView;
class QListView;
class QStackedWidget;
class QTreeView;

namespace tarnwick::gui {

class ExifViewerDialog;
class FileListModel;
class LogViewer;
class MediaInfoDialog;
class ReportWindow;
class TagEditorDialog;
class PlaylistDialog;
class RenameControls;
class WindowHost;

// The main window `frmMain`: the folder browser, the list `lvwFiles`, the
// renaming controls, the sample and the start button. It owns the state the
// core works on (AppState, RenameSettings, FileList) and lends it to the
// core's entry points; it holds no renaming logic of its own.
//
// `questions` answers what the core asks; nullptr: the window's own message
// boxes and dialogues. Tests hand in a scripted one.
class MainWindow : public QMainWindow, public ProgressView {
  Q_OBJECT

 public:
  MainWindow(OptionStore& options, const MessageTable& messages, Interaction* questions = nullptr);
  ~MainWindow() override;

  const LogUndoEnv& env() const { return env_; }
  OptionStore& options() { return options_; }
  AppState& app() { return app_; }
  const MessageTable& messages() const { return messages_; }
  RenameSettings& settings() { return settings_; }
  FileList& list() { return list_; }
  const NewNamePreview& new_names() const { return preview_; }
  Interaction& interaction() { return *interaction_; }
  // The window's share of start-up and closing.
  StartupHost& host();

  // --- What start-up and the menus do. ---
  // `FillListFiles` for CurrentPath and CurrentFilter.
  void FillListFiles();
  // Shows the folder in the browser and fills the list with it.
  void ShowFolder(const QString& folder);
  // The renaming controls show `settings()`.
  void ShowSettings();
  void RefreshControlStates();
  void ApplySampleRate();
  // `ShowTooltips` and `AdvancedToolTip`, read anew.
  void ApplyTooltipOptions();
  // One tick of `tmrChange`. `force`: also when the window is not in front.
  void SampleTick(bool force = false);
  // Computes the whole "New name" column now (tests, screenshots).
  void FinishNewNames();
  // `cmdStart`.
  void StartRenaming();
  void LoadSettings();
  void SaveSettings();
  // `mnuMoveCopyFiles` and `mnuRenameFromFile` on the selected rows.
  void CopyMoveFiles();
  void RenameFromTextFile();
  // What a run or a tool job works with.
  RenameRunEnv RunEnv();
  // F7: the log through the desktop's application for text files, or in a
  // viewer of our own when none answers. F8: the undo folder, or where it
  // is when no file manager answers.
  void ShowLogFile();
  void ShowUndoFolder();
  LogViewer* ShowLogInViewer();
  // What opens a file or folder on the desktop (tests put in their own).
  void SetDesktopOpener(std::function<bool(const std::string&)> opener) {
    desktop_opener_ = std::move(opener);
  }
  // Waits until the pictures the list asked for are made and shown.
  void FinishThumbnails();
  void SplitSelectedFiles();
  void MergeSelectedFiles();
  void SecureDeleteSelectedFiles();
  void ShowChecksums(DigestKind kind);
  // Compress picture files to JPEG: the dialogue, then the job.
  void CompressPictures();
  // Resize picture: the dialogue, then the job.
  void ResizePictures();
  // The text export: its dialogue, then the report window with the text
  // (returned, shown without blocking; null when cancelled).
  ReportWindow* ExportListAsText();
  // The XML export: its dialogue, the file name, then the document.
  void ExportListAsXml();
  // The XML export to `path` with `choices`, as the menu does after asking.
  ToolJobResult ExportListAsXmlTo(const XmlExportChoices& choices, const std::string& path);
  // "Create JPEG EXIF Metainfo file" / "Create MP3 info file": the save
  // dialogue, then the report of the selected rows.
  void SaveMetadataReportFile(MetadataReport kind);
  // The tag editor over the selected rows, the first one shown.
  TagEditorDialog* OpenTagEditor();
  // The viewers of the first selected row.
  MediaInfoDialog* ShowMediaInfo();
  ExifViewerDialog* ShowExifInfo();
  // A double click on a row: the viewer of an MP3 or JPEG file when the
  // option `DoubleClickShowsInfo` is on, else the desktop's application.
  void RowActivated(std::size_t row);
  // Takes the newest run of the undo batch back: what it would do first, in
  // the result list, then a question, then the moves, never overwriting.
  void UndoLastRun();
  // The renames the newest run of `batch` would take back: present name,
  // the name it gets back, folder.
  static std::vector<TestResultRow> UndoPreview(const std::string& batch);
  // The undo batch runs are written to now.
  std::string CurrentUndoBatch() const;
  void EditActionOrder();
  void EditOptions();
  // The playlist editor: with `playlist` loaded; without one, with the
  // selected rows: a playlist file is loaded, music files are added.
  PlaylistDialog* OpenPlaylistEditor(const std::string& playlist = {});
  void SelectAll();
  void DeselectAll();
  void InvertSelection();
  void RemoveSelectedFromList();
  void SortBy(int column, bool descending);
  void SetNewNameColumnShown(bool shown);
  // Applies the control `name` as if the user changed it.
  void ControlChanged(std::string_view name, const std::string& value);
  // The watch of the folder (and its subfolders when they are listed):
  // files that come, go, are renamed or written to refill the list.
  void StartFolderWatch();
  void StopFolderWatch();
  // The window's size, maximised state and list view, kept between starts.
  void SaveWindowLayout();
  void RestoreWindowLayout();
  static constexpr int kDefaultWidth = 1120;
  static constexpr int kDefaultHeight = 940;

  // The start window while start-up runs.
  void ShowSplash();
  void CloseSplash();

  // --- ProgressView. ---
  void ShowStatusText(StatusArea area, const QString& text) override;
  void SetWindowCaption(const QString& text) override;
  void ShowProgressBar(std::int64_t value, std::int64_t max) override;
  void HideProgressBar() override;
  void PrepareButtons(bool enable, bool keep_busy_indicator) override;

  // Widgets, for tests and screenshots.
  QTableView* file_view() const { return files_; }
  // The list's views: `mnuLVList`, `mnuLVDetails` (the table) and
  // `mnuLVSymbols`; the first and the last show the names in a QListView
  // over the same rows and the same selection.
  enum class ListViewMode { kList, kDetails, kSymbols };
  void SetListViewMode(ListViewMode mode);
  ListViewMode list_view_mode() const { return view_mode_; }
  QListView* name_view() const { return names_; }
  // Select all/none/invert, remove from the list and refresh: the menu of
  // the list's right mouse button.
  QList<QAction*> list_menu_actions() const;
  QLineEdit* sample_field() const { return sample_; }
  QGroupBox* sample_frame() const { return sample_frame_; }
  QLabel* status_label() const { return status_; }
  QPushButton* start_button() const { return start_; }
  QLabel* conflict_link() const { return conflicts_; }
  QTreeView* folder_view() const { return folders_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  class FillLog : public FileListLog {
   public:
    explicit FillLog(const LogUndoEnv& env) : log_(env) {}
    void WriteLogFileHeader() override { log_.WriteLogFileHeader(0); }
    void WriteLogFileTool(std::string_view subject, std::string_view text) override {
      log_.WriteLogFileTool(subject, text);
    }

   private:
    RunLog log_;
  };

  void BuildWidgets();
  void BuildMenus();
  QWidget* BuildListPane();
  // The names view of the list and symbols modes, beside the table.
  QWidget* BuildListViews(QWidget* pane);
  void BuildViewModeMenu(QMenu* view);
  void FitColumnsToHeadings();
  void BuildListMenu(QAction* refresh, QMenu* select);
  QWidget* BuildLowerPane();
  PipelineEnv SampleEnv();
  // The window after a run or a tool job: the list, its selection, the
  // sample and the new names shown anew.
  void AfterJob();
  void ShowRunSummary(const RenameRunResult& result);
  // The files a tool failed on, in a box; nothing when none failed.
  // The failed files of a tool job, named, under the title of `title_key`.
  void ShowToolFailures(const ToolJobResult& result, const char* title_key);
  void ViewSelectionToList();
  void ListSelectionToView();
  void RestartNewNames();
  void NewNameSlice();
  QString NewNameStatus() const;
  // The status bar's link to the new names that collide, shown while any do.
  void ShowConflictLink();
  void RevealFirstConflict();
  void ShowActionOrder();
  void OpenPatternPicker(QLineEdit* field);
  void OpenPath(const std::string& path);
  std::function<bool(const std::string&)> desktop_opener_;
  QPointer<LogViewer> log_viewer_;
  void FolderChosen(const QModelIndex& index);
  // `ChangeDir`: the list of a newly chosen folder, with the filter back to
  // "*.*" and the change in the log.
  void ChangeDir(const QString& folder);
  void WatchTick();
  // A refill asked for by the watch waits while a job runs or a dialogue
  // is open: the rows a user confirmed are the rows a run works on.
  void RefillFromWatch();
  // Selects the current folder in the tree and scrolls it into view; the
  // tree reads folders in the background, so this runs again as they load.
  void RevealCurrentFolder();
  void FolderLoaded(const QString& path);
  void QueueStatusFlush();
  void FlushStatus();
  void UpdateFilterItems();

  OptionStore& options_;
  const MessageTable& messages_;
  AppState app_;
  LogUndoState log_state_;
  SystemClock clock_;
  RenameSettings settings_;
  std::unique_ptr<QtInteraction> own_interaction_;
  Interaction* interaction_ = nullptr;
  LogUndoEnv env_;
  FillLog fill_log_;
  MediaColumnSource media_;     // the media and EXIF-date columns
  MediaReaders media_readers_;  // tags, lengths and EXIF for names
  FileList list_;
  FileListLoader loader_;
  NewNamePreview preview_;
  bool new_names_shown_ = true;

  FileListModel* model_ = nullptr;
  QFileSystemModel* folder_model_ = nullptr;
  FolderWatch folder_watch_;
  QTreeView* folders_ = nullptr;
  QTableView* files_ = nullptr;
  QListView* names_ = nullptr;
  QStackedWidget* list_views_ = nullptr;
  ListViewMode view_mode_ = ListViewMode::kDetails;
  QList<QAction*> view_mode_actions_;  // list, details, symbols
  QList<QAction*> list_actions_;
  QComboBox* extension_ = nullptr;
  QCheckBox* subfolders_ = nullptr;
  RenameControls* controls_ = nullptr;
  QScrollArea* settings_scroll_ = nullptr;
  QGroupBox* sample_frame_ = nullptr;
  QLineEdit* sample_ = nullptr;
  QPushButton* start_ = nullptr;
  QLabel* status_ = nullptr;
  QLabel* conflicts_ = nullptr;  // "3 new names collide", a link to the first
  QProgressBar* progress_ = nullptr;
  QTimer change_timer_;      // tmrChange
  QTimer new_name_timer_;    // the slices of the "New name" column
  QTimer new_name_restart_;  // a change starts the column anew after a pause
  QTimer watch_timer_;       // polls the folder watch
  QTimer refill_timer_;      // the folder watch's fill, a moment after a change
  // The folder and subfolder tick of the last fill: a refill of the same
  // list keeps the selection by name.
  std::string filled_folder_;
  bool filled_subfolders_ = false;
  bool starting_run_ = false;
  QTimer status_flush_;
  QElapsedTimer status_clock_;
  QString pending_status_;
  QString folder_to_reveal_;  // shown in the tree once its parents are read
  QTimer reveal_timeout_;     // stops following the tree's loads
  QString pending_frame_;
  QString pending_caption_;
  std::optional<std::pair<int, int>> pending_progress_;  // value, maximum
  SampleRate rate_ = SampleRate::kNormal;
  int sample_length_ = 0;
  bool syncing_selection_ = false;
  std::unique_ptr<WindowHost> host_;
  QSplashScreen* splash_ = nullptr;
  QAction* new_names_action_ = nullptr;
  QAction* sort_descending_action_ = nullptr;
};

}  // namespace tarnwick::gui
