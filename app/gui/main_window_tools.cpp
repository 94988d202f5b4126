// The tools of the Tools menu that work on the selected rows.
#include <QFileDialog>

#include "base/path_text.h"
#include "compress_dialog.h"
#include "copy_move_dialog.h"
#include "core/undo_runner.h"
#include "desktop_integration.h"
#include "log_viewer.h"
#include "main_window.h"
#include "persist/log_options.h"
#include "platform/files.h"
#include "qt_text.h"
#include "rename_text_dialog.h"
#include "report_window.h"
#include "resize_dialog.h"
#include "split_merge_dialogs.h"
#include "tools/copy_move.h"
#include "tools/rename_from_text.h"
#include "tools/secure_delete.h"

namespace tarnwick::gui {
namespace {

constexpr int kFailuresShown = 12;

}  // namespace

void MainWindow::CopyMoveFiles() {
  ViewSelectionToList();
  if (list_.SelectedCount() == 0) return;
  CopyMoveDialog dialog(options_, messages_, *interaction_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  CopyMoveChoices choices = dialog.choices();
  if (choices.batch_only) {
    const QString filter = Msg(messages_, "result_list.filter_batch_file") + " (*.bat)";
    QString path = QFileDialog::getSaveFileName(
        this, Msg(messages_, "result_list.title_save_batch"), Q(choices.target_folder), filter,
        nullptr, choices.append_batch ? QFileDialog::DontConfirmOverwrite : QFileDialog::Options());
    if (path.isEmpty()) return;
    if (!path.endsWith(".bat", Qt::CaseInsensitive)) path += ".bat";
    choices.batch_path = S(path);
  }
  change_timer_.stop();
  new_name_timer_.stop();
  const ToolJobResult result = tarnwick::CopyMoveFiles(RunEnv(), choices);
  AfterJob();
  ShowToolFailures(result, "copymove.title");
}

void MainWindow::RenameFromTextFile() {
  ViewSelectionToList();
  if (list_.SelectedCount() == 0) return;
  RenameTextDialog dialog(list_.SelectedCount(), messages_, *interaction_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  // The file is read again for the run: it may have been edited meanwhile.
  const NameTextFile file = ReadNameTextFile(dialog.path(), messages_);
  const NameTextCheck check = CheckNameTextFile(file, list_.SelectedCount(), messages_);
  if (!check.ok) {
    interaction_->ShowMessage(
        {check.title, check.message, Buttons::kOk, MessageIcon::kExclamation, Topic::kNotice});
    return;
  }
  change_timer_.stop();
  new_name_timer_.stop();
  starting_run_ = true;
  const RenameRunResult result = tarnwick::RenameFromTextFile(RunEnv(), file);
  starting_run_ = false;
  AfterJob();
  ShowRunSummary(result);
}

void MainWindow::SplitSelectedFiles() {
  ViewSelectionToList();
  if (list_.SelectedCount() == 0) return;
  SplitDialog dialog(options_, messages_, *interaction_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  change_timer_.stop();
  new_name_timer_.stop();
  const ToolJobResult result = SplitFiles(RunEnv(), dialog.choices());
  AfterJob();
  ShowToolFailures(result, "split.title");
}

void MainWindow::MergeSelectedFiles() {
  ViewSelectionToList();
  const std::vector<std::size_t> rows = list_.SelectedRows();
  if (rows.empty()) return;
  MergeDialog dialog(std::string(list_.Folder(rows.front())),
                     list_.Text(rows.front(), file_column::kName), messages_, *interaction_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  change_timer_.stop();
  new_name_timer_.stop();
  MergeFiles(RunEnv(), dialog.choices());
  AfterJob();
}

void MainWindow::SecureDeleteSelectedFiles() {
  ViewSelectionToList();
  if (list_.SelectedCount() == 0) return;
  change_timer_.stop();
  new_name_timer_.stop();
  SystemRandom random;
  SecureDeleteFiles(RunEnv(), ShredPasses(options_), random);
  AfterJob();
}

void MainWindow::CompressPictures() {
  ViewSelectionToList();
  const std::vector<std::size_t> rows = list_.SelectedRows();
  if (rows.empty()) return;
  CompressDialog dialog(list_.Path(rows.front()), messages_, *interaction_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  change_timer_.stop();
  new_name_timer_.stop();
  const ToolJobResult result = CompressToJpeg(RunEnv(), dialog.choices());
  AfterJob();
  ShowToolFailures(result, "picture.compress_title");
}

void MainWindow::ResizePictures() {
  ViewSelectionToList();
  if (list_.SelectedCount() == 0) return;
  ResizeDialog dialog(messages_, *interaction_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  change_timer_.stop();
  new_name_timer_.stop();
  const ToolJobResult result = tarnwick::ResizePictures(RunEnv(), dialog.choices());
  AfterJob();
  ShowToolFailures(result, "picture.resize_title");
}

void MainWindow::ShowChecksums(DigestKind kind) {
  ViewSelectionToList();
  if (list_.SelectedCount() == 0) return;
  change_timer_.stop();
  new_name_timer_.stop();
  const ChecksumReport report = BuildChecksumReport(RunEnv(), kind);
  AfterJob();
  ReportWindow window(
      Msg(messages_, kind == DigestKind::kMd5 ? "report.md5_title" : "report.sha256_title"),
      report.text, options_, messages_, *interaction_, this);
  window.exec();
}

namespace {

bool OpenOnDesktop(const std::function<bool(const std::string&)>& opener, const std::string& path) {
  return opener ? opener(path) : OpenWithDesktop(path);
}

}  // namespace

void MainWindow::ShowLogFile() {
  const std::string path = RunLog(env_).LogFilePath();
  if (FileExists(path) && OpenOnDesktop(desktop_opener_, path)) return;
  ShowLogInViewer();
}

LogViewer* MainWindow::ShowLogInViewer() {
  if (log_viewer_ == nullptr) {
    log_viewer_ = new LogViewer(RunLog(env_).LogFilePath(), messages_, this);
    log_viewer_->setAttribute(Qt::WA_DeleteOnClose);
  }
  log_viewer_->show();
  log_viewer_->raise();
  return log_viewer_;
}

void MainWindow::ShowUndoFolder() {
  const std::string folder = UndoFolderPath(options_, log_state_);
  const std::string title(messages_.Text("undo_folder.title"));
  if (!FolderExists(folder)) {
    interaction_->ShowMessage({title,
                               std::string(messages_.Text("undo_folder.missing")) + "\r\n" + folder,
                               Buttons::kOk, MessageIcon::kInformation, Topic::kNotice});
    return;
  }
  if (OpenOnDesktop(desktop_opener_, folder)) return;
  interaction_->ShowMessage(
      {title, std::string(messages_.Text("undo_folder.no_file_manager")) + "\r\n" + folder,
       Buttons::kOk, MessageIcon::kInformation, Topic::kNotice});
}

std::string MainWindow::CurrentUndoBatch() const {
  const std::string name =
      !log_state_.UndoBatchName.empty()
          ? log_state_.UndoBatchName
          : options_.GetOption("BasisNameUndoBatch", "Options", "UndoBatch") + ".bat";
  return JoinPath(UndoFolderPath(options_, log_state_), name);
}

std::vector<TestResultRow> MainWindow::UndoPreview(const std::string& batch) {
  std::vector<TestResultRow> preview;
  RunUndoBatch(batch, {.dry_run = true, .runs = 1}, [&](const UndoStep& step) {
    if (step.outcome != UndoStepOutcome::kWouldDo || step.line.command != "move") return;
    preview.push_back({LastPathElement(step.line.new_path), LastPathElement(step.line.old_path),
                       ParentFolder(step.line.new_path)});
  });
  return preview;
}

void MainWindow::UndoLastRun() {
  const std::string batch = CurrentUndoBatch();
  const std::string title(messages_.Text("main.menu.undo_last_run"));
  if (!FileExists(batch)) {
    interaction_->ShowMessage({title,
                               std::string(messages_.Text("undo.nothing_to_undo")) + "\r\n" + batch,
                               Buttons::kOk, MessageIcon::kInformation, Topic::kNotice});
    return;
  }
  const std::vector<TestResultRow> preview = UndoPreview(batch);
  interaction_->ShowTestResults(preview);
  const Answer answer = interaction_->ShowMessage(
      {title,
       FillMessage(messages_.Text("undo.last_run_question"), {std::to_string(preview.size())}),
       Buttons::kYesNo, MessageIcon::kQuestion, Topic::kRunUndoBatch});
  if (answer != Answer::kYes) return;
  std::vector<std::string> failures;
  const UndoReport report = RunUndoBatch(batch, {.runs = 1}, [&](const UndoStep& step) {
    if (step.outcome == UndoStepOutcome::kFailed) {
      failures.push_back(step.line.new_path + ": " + step.status.description);
    }
  });
  // Taken back whole: the next undo reaches the run before it.
  if (report.failed == 0 && report.runs_done == 1) DropNewestUndoRun(batch);
  std::string text = FillMessage(
      messages_.Text("options.undo_batch_done"),
      {std::to_string(report.done), std::to_string(report.failed), std::to_string(report.skipped)});
  for (std::size_t i = 0; i < failures.size() && i < kFailuresShown; ++i)
    text += "\r\n" + failures[i];
  interaction_->ShowMessage(
      {title, text, Buttons::kOk,
       report.failed > 0 ? MessageIcon::kExclamation : MessageIcon::kInformation, Topic::kNotice});
  FillListFiles();
}

void MainWindow::ShowToolFailures(const ToolJobResult& result, const char* title_key) {
  if (result.failures.empty()) return;
  std::string text =
      FillMessage(messages_.Text("tools.files_failed"), {std::to_string(result.failures.size())});
  for (std::size_t i = 0; i < result.failures.size() && i < kFailuresShown; ++i) {
    text += "\r\n" + result.failures[i];
  }
  if (result.failures.size() > kFailuresShown) text += "\r\n...";
  interaction_->ShowMessage({std::string(messages_.Text(title_key)), text, Buttons::kOk,
                             MessageIcon::kExclamation, Topic::kNotice});
}

}  // namespace tarnwick::gui
