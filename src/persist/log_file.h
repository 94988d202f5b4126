#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "persist/log_append.h"
#include "persist/log_undo_env.h"

namespace tarnwick {

struct RenameSettingsSnapshot;
struct OptionSnapshotDefaults;
struct SystemFacts;

// The log: a running diary of what the program did, in the file the option
// `LogFilePath` names (default: DefaultLogFolder + "/Tarnwick.log"). Every
// line ends in CR LF. Each entry opens the file, appends and closes it again,
// so that a crash loses nothing already written. The log is UTF-8, the
// program's own text; it is never converted.
//
// The options are read at each call: `WriteLogFile` (master switch, "1"),
// `LogOnlyRename` ("1": lines outside a run are left out), `LogFilePathMulti`
// ("0": each run starts the file anew), `LogSystemInfo`, `LogOptionSettings`,
// `LogRenameSettings` (the start-up lines, "0").
//
// An entry that cannot be written asks whether to switch logging off (see
// log_failure_box.h); header writers never ask, the next entry reports.
// Nothing here throws.
class RunLog {
 public:
  explicit RunLog(const LogUndoEnv& env) : env_(env) {}

  // The log's path now: `LogFilePath` read with its default, made absolute.
  std::string LogFilePath() const;
  // The present date and time as the log prints it.
  std::string NowText() const;

  // One entry of a run, when `WriteLogFile` is not "0":
  //   "-> [DATE TIME] Renaming of "OLD" to "NEW" (NOTE)"
  // An empty note leaves a blank at the end. After a cancel the entry has a
  // second line "Operation cancelled by user!".
  void WriteLogFile(std::string_view old_path, std::string_view new_path, std::string_view note);

  // One line for anything outside a run: "-> [DATE TIME] SUBJECT [TEXT]".
  // Left out when `WriteLogFile` is "0", and when `LogOnlyRename` is "1"
  // while no run is under way (AppState::run_active).
  void WriteLogFileTool(std::string_view subject, std::string_view text);

  // The log's part of the run headers, when `WriteLogFile` is "1": fixes a
  // `LogFilePath` whose folder is gone, starts the file anew unless
  // `LogFilePathMulti` says to let it grow, and writes the header with
  // `selected_count`.
  void WriteRunLogHeader(int selected_count);

  // The header of a tool's or start-up action's section; only when
  // `WriteLogFile` is "1" and `LogOnlyRename` is "0". As the run's header,
  // but its reminder line (with its blank line) stands there twice.
  void WriteLogFileHeader(int selected_count);

  // The start-up lines, each only when `WriteLogFile` is not "0", lines
  // outside a run are allowed (see WriteLogFileTool) and its own option is
  // not "0": `LogSystemInfo`, `LogOptionSettings`, `LogRenameSettings` (which
  // is written at each run too).
  void LogSystemInfoLine(const SystemFacts& facts);
  void LogOptionSettingsSnapshot(const OptionSnapshotDefaults& defaults);
  void LogRenameSettingsSnapshot(const RenameSettingsSnapshot& settings);

  // Keeps the file open between the entries of a run (see HeldAppendFile);
  // false lets it go. Only entries may be written while it is held.
  void HoldFileOpen(bool hold);

 private:
  enum class Header { kRun, kTool };

  bool LoggingOn() const;
  bool OutsideRunSkipped() const;
  bool StartUpLineAllowed(std::string_view option) const;
  std::string CancelSuffix() const;
  void WriteEntry(std::string_view text);
  void Append(std::string_view bytes);
  void WriteHeader(int selected_count, Header kind);

  LogUndoEnv env_;
  std::shared_ptr<HeldAppendFile> held_;
};

}  // namespace tarnwick
