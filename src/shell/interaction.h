#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/interaction_dialogs.h"
#include "shell/interaction_message.h"

namespace tarnwick {

// Where a status text goes.
enum class StatusArea {
  kStatusLine,   // the status line of the main window (lblStatus)
  kSampleFrame,  // the caption of the sample frame (fraSample)
  kSplash,       // the status line of the start window (frmSplash)
};

// Everything a person is asked or shown goes through this interface. The core
// calls it; the desktop application, the command line and the tests answer.
//
// Each question has a documented default answer, given when nobody can be
// asked (the command line without a terminal, a batch run). The functions of
// interaction_defaults.h compute them, so every implementation agrees.
// No call throws.
class Interaction {
 public:
  virtual ~Interaction() = default;

  // --- Questions. ---

  // A message box; returns the button pressed, always one of `request.buttons`.
  // Default: the default of `request.topic` (DefaultAnswer).
  virtual Answer ShowMessage(const MessageBoxRequest& request) = 0;

  // "Start renaming": rename, test or cancel.
  // Default: kRename, that is, the run goes on in the mode the settings chose.
  virtual StartRenamingChoice AskStartRenaming(const StartRenamingRequest& request) = 0;

  // "The file exists already". Default: kSkip, the tick as it came.
  virtual FileExistsAnswer AskFileExists(const FileExistsRequest& request) = 0;

  // "Manual renaming". Default: the offered name unchanged, not cancelled,
  // the cursor choices as they came.
  virtual ManualRenameAnswer AskManualRename(const ManualRenameRequest& request) = 0;

  // The result list of a test run, shown until closed.
  // Default: shown without waiting (the command line prints it).
  virtual void ShowTestResults(const std::vector<TestResultRow>& rows) = 0;

  // The counts of a finished rename or copy run, with the way to its log
  // and to its undo. Default: nothing is shown (the command line prints its
  // own counts).
  virtual RunSummaryChoice ShowRunSummary(const RunSummary& summary) {
    return RunSummaryChoice::kClose;
  }

  // An input box; the text entered, or nothing for Cancel.
  // Default: the preset, as if OK was pressed at once.
  virtual std::optional<std::string> AskInput(const InputRequest& request) = 0;

  // A file chooser; the path chosen, or nothing for Cancel. Default: Cancel.
  virtual std::optional<std::string> ChooseFile(const FileChooserRequest& request) = 0;

  // A folder chooser; the folder chosen, or nothing for Cancel. Default: Cancel.
  virtual std::optional<std::string> ChooseFolder(const FolderChooserRequest& request) = 0;

  // "Save as:" for rename settings; nothing for Cancel. Default: Cancel.
  virtual std::optional<SaveSettingsAnswer> AskSaveSettings(const SaveSettingsRequest& request) = 0;

  // --- What the user sees while work goes on. ---

  virtual void ShowStatus(StatusArea area, std::string_view text) = 0;
  // The caption of the main window.
  virtual void SetCaption(std::string_view text) = 0;
  // The progress bar at `value` of `max`; shown by the first call.
  virtual void ShowProgress(std::int64_t value, std::int64_t max) = 0;
  virtual void HideProgress() = 0;
  // The window's share of PrepareButtons: all controls enabled or disabled,
  // and the busy indicator stopped or started unless `keep_busy_indicator`.
  virtual void SetControlsEnabled(bool enabled, bool keep_busy_indicator) = 0;
  // Plays a wave file (the finish sound); nothing happens when it cannot.
  virtual void PlayWave(const std::string& path) = 0;

  // --- Keeping alive and cancelling. ---

  // True when Esc (or Ctrl-C) was pressed since the last poll. Callers poll
  // once per file and set AppState::CancelRun on true. Default: false.
  virtual bool PollCancel() = 0;
  // Lets the window handle its events during a long job. Default: nothing.
  virtual void Yield() = 0;
};

}  // namespace tarnwick
