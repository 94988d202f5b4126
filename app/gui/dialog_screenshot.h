#pragma once

#include <QDialog>
#include <functional>
#include <memory>
#include <ostream>
#include <span>
#include <string>
#include <string_view>

#include "persist/option_store.h"
#include "shell/message_table.h"

namespace tarnwick::gui {

class MainWindow;

// What a dialogue needs to be drawn on its own: the options, the texts, the
// main window (its interaction, list and state; also the parent), and the
// FILE of the command line (empty when none was given). The window has gone
// through start-up on FILE's folder, with FILE's row selected.
struct DialogShotContext {
  OptionStore& options;
  const MessageTable& messages;
  MainWindow& window;
  std::string file;
};

// One dialogue that `--dialog NAME` can draw.
struct DialogShot {
  std::string_view name;
  std::string_view what;  // one line for the usage text
  std::function<std::unique_ptr<QDialog>(DialogShotContext&)> make;
};

// Every dialogue that can be drawn, in the order the usage lists them.
// One line per dialogue in dialog_screenshot_table.cpp.
std::span<const DialogShot> DialogShots();

// `tarnwick --screenshot OUT.png --dialog NAME [FILE] [--size WxH]`: one
// dialogue drawn into a PNG offscreen, in the language of the options or the
// locale. `args` starts with "--screenshot".
int RunDialogScreenshot(int& argc, char** argv, std::span<const std::string> args,
                        std::ostream& err);

}  // namespace tarnwick::gui
