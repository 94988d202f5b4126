#pragma once

#include "startup/startup_host.h"

namespace tarnwick::gui {

class MainWindow;

// The desktop window's share of start-up and closing: the window's place on
// the screen, the list, the sample rate, the folder watch.
class WindowHost : public StartupHost {
 public:
  explicit WindowHost(MainWindow& window) : window_(window) {}

  std::optional<ScreenSize> Screen() const override;
  void PlaceMainWindow(int top, int left) override;
  bool MainWindowNormal() const override;
  int MainWindowTop() const override;
  int MainWindowLeft() const override;
  void ShowSplash() override;
  void HideSplash() override;
  void UnloadSplash() override;
  void RefreshControlStates() override;
  void FillListFiles() override;
  std::int64_t RowCount() const override;
  BatchRunOutcome RunBatch() override;
  void ApplySampleRate() override;
  void RegisterFileAssociation() override;
  void ShowMainWindow() override;
  void StartFolderWatch() override;
  void StopFolderWatch() override;

 private:
  MainWindow& window_;
};

}  // namespace tarnwick::gui
