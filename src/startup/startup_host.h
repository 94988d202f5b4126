#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tarnwick {

// How an unattended run went, for the exit status of the program.
struct BatchRunOutcome {
  bool ran = false;      // the run was started
  bool stopped = false;  // a check before the first file stopped it
  std::string stop_message;
  int mode = 0;  // 0 rename, 1 copy, 2 test
  std::int64_t done = 0;
  std::int64_t failed = 0;
  std::int64_t skipped = 0;
  bool cancelled = false;
};

struct ScreenSize {
  int width = 0;
  int height = 0;
};

// The front end's share of start-up and closing: the windows, the file list
// and the run. The desktop application draws; the unattended start has no
// windows and only fills the list and runs. Everything the sequence decides
// itself (options, settings files, the log, the order of the steps) stays in
// the sequence. Calls may throw VbError where the window would raise (a fill
// of a folder that is gone raises 76); the sequence's handler deals with it.
class StartupHost {
 public:
  virtual ~StartupHost() = default;

  // The screen the window is placed on; nothing without a display.
  virtual std::optional<ScreenSize> Screen() const { return std::nullopt; }
  // The main window's place (hidden), and whether it is in its normal state.
  virtual void PlaceMainWindow(int top, int left) {}
  virtual bool MainWindowNormal() const { return true; }
  virtual int MainWindowTop() const { return 200; }
  virtual int MainWindowLeft() const { return 200; }

  // The start window.
  virtual void ShowSplash() {}
  virtual void HideSplash() {}
  virtual void UnloadSplash() {}

  // Captions, tooltips, the window style, "*.*" in the filter box.
  virtual void PrepareWindow() {}
  // `RefreshControlStates` of the renaming controls.
  virtual void RefreshControlStates() {}

  // `FillListFiles` for the state's CurrentPath and CurrentFilter.
  virtual void FillListFiles() = 0;
  // Rows of the list.
  virtual std::int64_t RowCount() const = 0;
  // The unattended run: select all rows, `StartRename` in batch mode.
  virtual BatchRunOutcome RunBatch() = 0;

  // The update check when daily checks are due (its question included).
  virtual void CheckForUpdates() {}
  // `ApplySampleRate` and the sample frame.
  virtual void ApplySampleRate() {}
  // Registers ".twr" with the program (a desktop file and MIME type).
  virtual void RegisterFileAssociation() {}

  virtual void ShowMainWindow() {}
  virtual void UnloadMainWindow() {}
  // Closing: the preview windows, then every other window.
  virtual void UnloadPreviewWindows() {}
  virtual void UnloadOtherWindows() {}

  virtual void StartFolderWatch() {}
  virtual void StopFolderWatch() {}
};

}  // namespace tarnwick
