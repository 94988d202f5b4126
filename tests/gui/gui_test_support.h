#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <functional>

namespace tarnwick::testing {

// The one QApplication of the test binary, on the offscreen platform.
inline QApplication& Application() {
  static int argc = 1;
  static char name[] = "gui_test";
  static char* argv[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static QApplication* app = new QApplication(argc, argv);
  return *app;
}

// Lets the event loop run until `done` holds or `ms` milliseconds pass.
inline bool WaitFor(const std::function<bool()>& done, int ms = 5000) {
  QElapsedTimer timer;
  timer.start();
  while (!done()) {
    if (timer.elapsed() > ms) return false;
    QApplication::processEvents(QEventLoop::AllEvents, 20);
  }
  return true;
}

class GuiTest : public ::testing::Test {
 protected:
  GuiTest() { Application(); }
};

}  // namespace tarnwick::testing
