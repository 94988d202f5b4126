#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <functional>

#include "finish_sound.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

class QWidget;

namespace tarnwick::gui {

// What the main window shows of a job's progress; the window implements it.
class ProgressView {
 public:
  virtual ~ProgressView() = default;
  virtual void ShowStatusText(StatusArea area, const QString& text) = 0;
  virtual void SetWindowCaption(const QString& text) = 0;
  virtual void ShowProgressBar(std::int64_t value, std::int64_t max) = 0;
  virtual void HideProgressBar() = 0;
  virtual void PrepareButtons(bool enable, bool keep_busy_indicator) = 0;
};

// The Interaction of the desktop window: message boxes, the run's dialogues,
// file choosers, the status line, the progress bar. Esc is caught by an
// event filter on the application and read once per PollCancel; Yield lets
// the window handle its events during a long job.
//
// Only an Esc pressed while a job runs counts, and not one pressed in a
// dialogue the job opened: the Esc that closed a question or a menu before
// the job must not stop it after its first file.
class QtInteraction : public QObject, public Interaction {
  Q_OBJECT

 public:
  QtInteraction(const MessageTable& messages, QWidget* window, ProgressView* view);

  Answer ShowMessage(const MessageBoxRequest& request) override;
  StartRenamingChoice AskStartRenaming(const StartRenamingRequest& request) override;
  FileExistsAnswer AskFileExists(const FileExistsRequest& request) override;
  ManualRenameAnswer AskManualRename(const ManualRenameRequest& request) override;
  void ShowTestResults(const std::vector<TestResultRow>& rows) override;
  RunSummaryChoice ShowRunSummary(const RunSummary& summary) override;
  std::optional<std::string> AskInput(const InputRequest& request) override;
  std::optional<std::string> ChooseFile(const FileChooserRequest& request) override;
  std::optional<std::string> ChooseFolder(const FolderChooserRequest& request) override;
  std::optional<SaveSettingsAnswer> AskSaveSettings(const SaveSettingsRequest& request) override;

  void ShowStatus(StatusArea area, std::string_view text) override;
  void SetCaption(std::string_view text) override;
  void ShowProgress(std::int64_t value, std::int64_t max) override;
  void HideProgress() override;
  void SetControlsEnabled(bool enabled, bool keep_busy_indicator) override;
  void PlayWave(const std::string& path) override;
  bool PollCancel() override;
  void Yield() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const MessageTable& messages_;
  QPointer<QWidget> window_;
  ProgressView* view_;
  // Events are handled at most every few milliseconds: a fill or run polls
  // once per file, and handling events for each of 100,000 files would cost
  // more than the work itself.
  void HandleEvents();
  QElapsedTimer since_events_;
  bool esc_pressed_ = false;
  // Between SetControlsEnabled(false) and SetControlsEnabled(true).
  bool job_running_ = false;
  FinishSound sound_;
};

}  // namespace tarnwick::gui
