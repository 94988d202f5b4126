#include "window_host.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include "core/start_rename.h"
#include "desktop_integration.h"
#include "main_window.h"
#include "persist/option_store.h"
#include "qt_text.h"
#include "unattended_start.h"

namespace tarnwick::gui {

std::optional<ScreenSize> WindowHost::Screen() const {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return std::nullopt;
  const QRect area = screen->availableGeometry();
  return ScreenSize{area.width(), area.height()};
}

// Start-up has put the corner on the screen; the window moves back as far as
// it must to show its whole frame, but never past the screen's top left.
void WindowHost::PlaceMainWindow(int top, int left) {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) {
    window_.move(left, top);
    return;
  }
  const QRect area = screen->availableGeometry();
  // A size kept from a larger screen gives way to this one.
  window_.resize(std::min(window_.width(), area.width()), std::min(window_.height(), area.height()));
  if (window_.options().GetOption("Maximized", "Options", "0") == "1") {
    window_.setWindowState(window_.windowState() | Qt::WindowMaximized);
  }
  const QSize size = window_.frameGeometry().size();
  const int x = std::max(area.left(), std::min(left, area.right() + 1 - size.width()));
  const int y = std::max(area.top(), std::min(top, area.bottom() + 1 - size.height()));
  window_.move(x, y);
}

bool WindowHost::MainWindowNormal() const {
  return !window_.isMinimized() && !window_.isMaximized() && !window_.isFullScreen();
}

int WindowHost::MainWindowTop() const { return window_.y(); }
int WindowHost::MainWindowLeft() const { return window_.x(); }

void WindowHost::ShowSplash() { window_.ShowSplash(); }
void WindowHost::HideSplash() { window_.CloseSplash(); }
void WindowHost::UnloadSplash() { window_.CloseSplash(); }

void WindowHost::RefreshControlStates() { window_.ShowSettings(); }

// Start-up applies a settings file after the controls were first shown, and
// fills the list after it: the controls show the settings before each fill.
void WindowHost::FillListFiles() {
  window_.ShowSettings();
  window_.ShowFolder(Q(window_.app().CurrentPath));
}

std::int64_t WindowHost::RowCount() const {
  return static_cast<std::int64_t>(window_.list().size());
}

BatchRunOutcome WindowHost::RunBatch() {
  window_.SelectAll();
  window_.StartRenaming();
  BatchRunOutcome outcome;
  outcome.ran = true;
  return outcome;
}

void WindowHost::ApplySampleRate() { window_.ApplySampleRate(); }

void WindowHost::RegisterFileAssociation() {
  RegisterSettingsFileType(std::string(window_.messages().Text("settings_file.filter")));
}
void WindowHost::ShowMainWindow() { window_.show(); }
void WindowHost::StartFolderWatch() { window_.StartFolderWatch(); }
void WindowHost::StopFolderWatch() { window_.StopFolderWatch(); }

}  // namespace tarnwick::gui
