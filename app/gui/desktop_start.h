#pragma once

#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "persist/option_store.h"
#include "shell/message_table.h"

class QApplication;

namespace tarnwick::gui {

class MainWindow;

// Start-up of the window with `arguments` as the command line. False when
// start-up ended the process (the reason on `err`).
bool StartWindow(MainWindow& window, std::vector<std::string> arguments, std::ostream& err);

// The language the options name, read once at start: a switch in the
// options applies from the next start.
Language ChosenLanguage(const OptionStore& options);

// Qt's own texts (Yes and No, the file dialogues) in the window's language.
void InstallQtTranslations(QApplication& application, Language language);

// `tarnwick`, `tarnwick FOLDER`, `tarnwick SETTINGS.twr`: the window through
// the start-up sequence, then the event loop. Returns the exit status.
int RunDesktop(int& argc, char** argv, std::span<const std::string> args, std::ostream& err);

// `tarnwick --screenshot OUT.png [FOLDER] [--size WxH]`: the main window
// after start-up with the folder, its sample and new names computed, drawn
// into a PNG without showing it on a screen.
int RunScreenshot(int& argc, char** argv, std::span<const std::string> args, std::ostream& err);

}  // namespace tarnwick::gui
