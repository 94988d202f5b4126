// The dialogues `tarnwick --screenshot OUT.png --dialog NAME FILE` can draw:
// one line each, in the order the usage lists them.
#include <QLineEdit>
#include <QTabWidget>
#include <filesystem>
#include <map>

#include "compress_dialog.h"
#include "export_dialogs.h"
#include "media_viewers.h"
#include "tag_editor_dialog.h"
#include "tools/list_export.h"
#include "copy_move_dialog.h"
#include "dialog_screenshot.h"
#include "log_viewer.h"
#include "main_window.h"
#include "options_dialog.h"
#include "pattern_picker_dialog.h"
#include "playlist/playlist_rows.h"
#include "playlist_dialog.h"
#include "qt_text.h"
#include "rename_text_dialog.h"
#include "report_window.h"
#include "resize_dialog.h"
#include "run_dialogs.h"
#include "save_settings_dialog.h"
#include "shell/scripted_interaction.h"
#include "sort_order_dialog.h"
#include "split_merge_dialogs.h"
#include "test_results_dialog.h"
#include "tools/checksum_report.h"

namespace tarnwick::gui {
namespace {

// The name of FILE, or a sample name when no file was given.
std::string FileNameOr(const DialogShotContext& context, std::string_view fallback) {
  if (context.file.empty()) return std::string(fallback);
  return std::filesystem::path(context.file).filename().string();
}

std::string FolderOf(const DialogShotContext& context) {
  if (context.file.empty()) return std::filesystem::current_path().string();
  return std::filesystem::absolute(context.file).parent_path().string();
}

std::unique_ptr<QDialog> MakeOptions(DialogShotContext& c) {
  const std::map<std::string, std::string> defaults = {
      {"LogFilePath", c.window.env().state.DefaultLogFolder + "/Tarnwick.log"},
      {"UndoFilePath", c.window.env().state.DefaultUndoFolder}};
  return std::make_unique<OptionsDialog>(c.options, c.messages, c.window.interaction(), defaults,
                                         &c.window.env(), &c.window);
}

// The options on one of their later pages.
std::unique_ptr<QDialog> MakeOptionsPage(DialogShotContext& c, int page) {
  std::unique_ptr<QDialog> dialog = MakeOptions(c);
  if (auto* tabs = dialog->findChild<QTabWidget*>()) tabs->setCurrentIndex(page);
  return dialog;
}

std::unique_ptr<QDialog> MakeActionOrder(DialogShotContext& c) {
  return std::make_unique<SortOrderDialog>(c.options, c.messages, c.window.interaction(),
                                           &c.window);
}

std::unique_ptr<QDialog> MakePlaceholderPicker(DialogShotContext& c) {
  return std::make_unique<PatternPickerDialog>(c.messages, std::string(), 0, &c.window);
}

std::unique_ptr<QDialog> MakeStartRenaming(DialogShotContext& c) {
  c.window.FinishNewNames();
  return std::make_unique<StartRenamingDialog>(c.messages, c.window.new_names().collision_count(),
                                               &c.window);
}

std::unique_ptr<QDialog> MakeRunSummary(DialogShotContext& c) {
  return std::make_unique<RunSummaryDialog>(RunSummary{0, 118, 3, 1, false}, c.messages, &c.window);
}

std::unique_ptr<QDialog> MakeFileExists(DialogShotContext& c) {
  FileExistsRequest request;
  request.original_name = FileNameOr(c, "holiday.jpg");
  request.proposed_name = "IMG_" + request.original_name;
  request.folder = FolderOf(c);
  return std::make_unique<FileExistsDialog>(request, c.messages, c.window.interaction(), &c.window);
}

std::unique_ptr<QDialog> MakeManualRename(DialogShotContext& c) {
  ManualRenameRequest request;
  request.original_name = FileNameOr(c, "holiday.jpg");
  request.file_name = "IMG_" + request.original_name;
  return std::make_unique<ManualRenameDialog>(request, c.messages, c.window.interaction(),
                                              &c.window);
}

std::unique_ptr<QDialog> MakeSaveSettings(DialogShotContext& c) {
  SaveSettingsRequest request;
  request.preset_path = c.file;
  return std::make_unique<SaveSettingsDialog>(request, c.messages, &c.window);
}

std::unique_ptr<QDialog> MakeTestResults(DialogShotContext& c) {
  const std::string name = FileNameOr(c, "holiday.jpg");
  const std::vector<TestResultRow> rows = {{name, "IMG_" + name, FolderOf(c)}};
  return std::make_unique<TestResultsDialog>(rows, c.messages, c.window.interaction(), &c.window);
}

// What undoing the newest run of the batch FILE would rename, in the test
// result list, as Tools > Undo last run shows it first.
std::unique_ptr<QDialog> MakeUndoPreview(DialogShotContext& c) {
  const std::string batch = c.file.empty() ? c.window.CurrentUndoBatch() : c.file;
  return std::make_unique<TestResultsDialog>(MainWindow::UndoPreview(batch), c.messages,
                                             c.window.interaction(), &c.window);
}

// Compressing to JPEG, with FILE (a picture) in the preview.
std::unique_ptr<QDialog> MakeCompress(DialogShotContext& c) {
  return std::make_unique<CompressDialog>(
      c.file.empty() ? std::string() : std::filesystem::absolute(c.file).string(), c.messages,
      c.window.interaction(), &c.window);
}

std::unique_ptr<QDialog> MakeResize(DialogShotContext& c) {
  return std::make_unique<ResizeDialog>(c.messages, c.window.interaction(), &c.window);
}

// The editor with FILE loaded when it is a playlist; otherwise with FILE's
// folder's music files, or empty.
std::unique_ptr<QDialog> MakePlaylistEditor(DialogShotContext& c) {
  auto editor =
      std::make_unique<PlaylistDialog>(c.options, c.messages, c.window.interaction(), &c.window);
  if (IsPlaylistName(c.file)) {
    editor->LoadFile(std::filesystem::absolute(c.file).string());
  } else if (!c.file.empty()) {
    QStringList files;
    for (const std::string& file : MediaFilesIn(FolderOf(c), false)) files << Q(file);
    editor->AddFiles(files);
  }
  return editor;
}

std::unique_ptr<QDialog> MakeCopyMove(DialogShotContext& c) {
  auto dialog =
      std::make_unique<CopyMoveDialog>(c.options, c.messages, c.window.interaction(), &c.window);
  if (dialog->target_field()->text().isEmpty()) dialog->target_field()->setText(Q(FolderOf(c)));
  return dialog;
}

// FILE as the log, or the window's own log.
std::unique_ptr<QDialog> MakeLogViewer(DialogShotContext& c) {
  const std::string path = c.file.empty() ? RunLog(c.window.env()).LogFilePath()
                                          : std::filesystem::absolute(c.file).string();
  return std::make_unique<LogViewer>(path, c.messages, &c.window);
}

std::unique_ptr<QDialog> MakeSplit(DialogShotContext& c) {
  return std::make_unique<SplitDialog>(c.options, c.messages, c.window.interaction(), &c.window);
}

std::unique_ptr<QDialog> MakeMerge(DialogShotContext& c) {
  const std::string first = FileNameOr(c, "holiday.mp4_00000.part");
  return std::make_unique<MergeDialog>(FolderOf(c), first, c.messages, c.window.interaction(),
                                       &c.window);
}

// The report of SHA256 digests of FILE's folder (the window's selection).
std::unique_ptr<QDialog> MakeChecksumReport(DialogShotContext& c) {
  c.window.SelectAll();
  const ChecksumReport report = BuildChecksumReport(c.window.RunEnv(), DigestKind::kSha256);
  return std::make_unique<ReportWindow>(Msg(c.messages, "report.sha256_title"), report.text,
                                        c.options, c.messages, c.window.interaction(), &c.window);
}

// With FILE, the dialogue has loaded it as the text file of names.
std::unique_ptr<QDialog> MakeRenameFromText(DialogShotContext& c) {
  // What the loading says (a refused file, a count that differs) is not
  // drawn: the dialogue's own fields show it.
  static ScriptedInteraction quiet;
  auto dialog = std::make_unique<RenameTextDialog>(c.window.list().SelectedCount(), c.messages,
                                                   quiet, &c.window);
  if (!c.file.empty()) dialog->Load(std::filesystem::absolute(c.file).string());
  return dialog;
}

std::unique_ptr<QDialog> MakeExportText(DialogShotContext& c) {
  return std::make_unique<SelectTextDialog>(c.options, c.messages, &c.window);
}

std::unique_ptr<QDialog> MakeExportXml(DialogShotContext& c) {
  return std::make_unique<SelectXmlDialog>(c.options, c.messages, &c.window);
}

// The text export of FILE's folder (all columns, semicolons) in the report
// window.
std::unique_ptr<QDialog> MakeReportWindow(DialogShotContext& c) {
  TextExportChoices choices;
  choices.columns.chosen.fill(true);
  choices.only_selected = false;
  choices.delimiter = ExportDelimiter::kSemicolon;
  const TextExportResult result = ExportListText(c.window.RunEnv(), choices);
  return std::make_unique<ReportWindow>(Q(result.title), result.text, c.options, c.messages,
                                        c.window.interaction(), &c.window);
}

std::string AbsoluteFile(const DialogShotContext& c) {
  return c.file.empty() ? std::string() : std::filesystem::absolute(c.file).string();
}

std::unique_ptr<QDialog> MakeTagEditor(DialogShotContext& c) {
  return std::make_unique<TagEditorDialog>(std::vector<std::string>{AbsoluteFile(c)}, c.options,
                                           c.messages, c.window.interaction(), &c.window);
}

std::unique_ptr<QDialog> MakeMp3Info(DialogShotContext& c) {
  return std::make_unique<MediaInfoDialog>(AbsoluteFile(c), c.options, c.messages,
                                           c.window.interaction(), &c.window);
}

std::unique_ptr<QDialog> MakeExifViewer(DialogShotContext& c) {
  return std::make_unique<ExifViewerDialog>(AbsoluteFile(c), c.options, c.messages,
                                            c.window.interaction(), &c.window);
}

}  // namespace

std::span<const DialogShot> DialogShots() {
  static const DialogShot kShots[] = {
      {"options", "the options", MakeOptions},
      {"options-renaming", "the options, their renaming page",
       [](DialogShotContext& c) { return MakeOptionsPage(c, 1); }},
      {"options-log-undo", "the options, their log and undo page",
       [](DialogShotContext& c) { return MakeOptionsPage(c, 2); }},
      {"options-program", "the options, their program page",
       [](DialogShotContext& c) { return MakeOptionsPage(c, 3); }},
      {"action-order", "the order of the renaming actions", MakeActionOrder},
      {"placeholder-picker", "the placeholder list", MakePlaceholderPicker},
      {"start-renaming", "the question before a run", MakeStartRenaming},
      {"run-summary", "the counts after a run", MakeRunSummary},
      {"file-exists", "a new name that is taken (FILE: the row)", MakeFileExists},
      {"manual-rename", "a name edited by hand during a run (FILE: the row)", MakeManualRename},
      {"save-settings", "saving a settings file (FILE: the preset path)", MakeSaveSettings},
      {"test-results", "the result list of a test run (FILE: the row)", MakeTestResults},
      {"undo-preview", "what undoing the newest run would rename (FILE: an undo batch)",
       MakeUndoPreview},
      {"copy-move", "copying or moving the selected files", MakeCopyMove},
      {"rename-from-text", "renaming from a text file (FILE: the text file of names)",
       MakeRenameFromText},
      {"log-viewer", "the log in Tarnwick's own viewer (FILE: a log file)", MakeLogViewer},
      {"split", "splitting the selected files", MakeSplit},
      {"merge", "merging the selected files (FILE: the first of them)", MakeMerge},
      {"checksum-report", "the SHA256 report of FILE's folder", MakeChecksumReport},
      {"compress-jpeg", "compressing pictures to JPEG (FILE: the picture of the preview)",
       MakeCompress},
      {"resize", "resizing pictures", MakeResize},
      {"playlist-editor", "the playlist editor (FILE: a playlist, or a file of a music folder)",
       MakePlaylistEditor},
      {"export-text", "the columns of the text export", MakeExportText},
      {"export-xml", "the columns of the XML export", MakeExportXml},
      {"report-window", "the text export of FILE's folder in the report window",
       MakeReportWindow},
      {"tag-editor", "the MP3 tag editor (FILE: an MP3 file)", MakeTagEditor},
      {"mp3-info", "the MP3 information viewer (FILE: an MP3 or WMA file)", MakeMp3Info},
      {"exif-viewer", "the EXIF viewer (FILE: a JPEG picture)", MakeExifViewer},
  };
  return kShots;
}

}  // namespace tarnwick::gui
