#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/journal_recovery.h"
#include "core/settings_file.h"
#include "startup/command_line.h"
#include "startup/startup_host.h"

namespace tarnwick {

struct LogUndoEnv;
struct RenameSettings;

// What start-up needs besides the environment: the command line and the
// facts of the machine, given so tests can fix them.
struct StartupInput {
  std::vector<std::string> arguments;  // the arguments after the program's name
  std::string working_folder;
  // Where CreateDefaultPaths makes the program's folders.
  std::string data_base_folder;
  std::string data_fallback_folder;
  // The system's short date form, lower case ("dd.mm.yyyy"); the default of
  // `DateFormat`.
  std::string system_short_date;
  // The folder shown when none is known (the home folder).
  std::string default_root;
  // The folder of the files that come with the program (the finish sound).
  std::string program_folder;
};

// StartupInput with the machine's own facts.
StartupInput MachineStartupInput(std::vector<std::string> arguments);

struct StartupResult {
  enum class Outcome {
    kReady,      // the window is up and the list filled
    kBatchDone,  // an unattended run ended (or could not begin); the process ends
    kLeft,       // an object was missing: start-up was left without a message
    kFailed,     // an error stopped start-up; the process ends
  };
  Outcome outcome = Outcome::kReady;
  bool options_reset = false;             // the last start had failed: the options were reset
  std::vector<JournalRecovery> journals;  // undo batches of killed runs completed
  CommandLine command_line;
  // The settings file of the command line, or the default settings file.
  LoadSettingsResult settings_load;
  // The command line named a settings file that could not be applied.
  bool settings_failed = false;
  BatchRunOutcome batch;
  int error_number = 0;
  std::string error;
};

// Start-up of the main window, in this order: position, start window,
// CreateDefaultPaths and the completion of interrupted runs' undo batches,
// position on the screen, captions, the date format check, the log header,
// crash recovery (`ResetPath`), the folder to show, the default settings
// file, the command line (with the unattended run), the update check, the
// sample, the file association, the window, the folder watch, `ResetPath`
// back to "0", the start log lines.
//
// One handler covers the sequence: any VbError is logged ("!N: text", and
// "!Could not start Tarnwick!" while `ResetPath` is "1"); 91 leaves start-up
// silently; 76 (a folder of the command line, or the stored folder of
// "NTLogMode", is gone) shows the default root and goes on with the statement
// after the failed one, so the list is filled and the controls work; 68
// tells that a drive is locked and goes on; anything else shows the error and
// ends start-up (the process then ends, and the next start resets the
// options). In an unattended run the rest of start-up is skipped after the
// run; a run is not begun when the command line's settings file could not be
// applied or the folder it saved is gone.
StartupResult RunStartup(const LogUndoEnv& env, RenameSettings& settings, StartupHost& host,
                         const StartupInput& input);

// Closing the main window. Returns true for Cancel: the window stays open.
// A running job cancels the closing (the steps below run all the same); with
// `SaveChanges` "0" and changed controls the discard question comes first, and
// No stops there. Then the folder watch stops, `Top` and `Left` are stored
// when the window is in its normal state, the preview windows close, `Path`
// gets the folder shown (empty when it is gone), and the other windows close.
bool CloseMainWindow(const LogUndoEnv& env, StartupHost& host);

// `CompactPath`: a path shortened for display to about `width` characters,
// "/first/.../last" or the last element's end.
std::string CompactPath(std::string_view path, int width);

// The date format check: `DateFormat` (default: the system's short date form)
// in lower case is kept when it is "dd.mm.yyyy", "yyyy.mm.dd" or
// "mm.dd.yyyy"; otherwise "dd.mm.yyyy" is stored.
void CheckDateFormat(OptionStore& options, std::string_view system_short_date);

}  // namespace tarnwick
