#pragma once

#include <ostream>
#include <span>
#include <string>

namespace tarnwick::gui {

// `tarnwick`, `tarnwick FOLDER`, `tarnwick SETTINGS.twr`: the window through
// the start-up sequence, then the event loop. Returns the exit status.
int RunDesktop(int& argc, char** argv, std::span<const std::string> args, std::ostream& err);

// `tarnwick --screenshot OUT.png [FOLDER] [--size WxH]`: the main window
// after start-up with the folder, its sample and new names computed, drawn
// into a PNG without showing it on a screen.
int RunScreenshot(int& argc, char** argv, std::span<const std::string> args, std::ostream& err);

}  // namespace tarnwick::gui
