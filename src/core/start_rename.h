#pragma once

// Called by tarnwick-cli (run, preview) and by the unattended start "-d";
// the desktop application's start button calls it the same way.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "persist/undo_oem_text.h"
#include "placeholders/media_provider.h"

namespace tarnwick {

struct AppState;
struct LogUndoState;
struct RenameSettings;
class Clock;
class FileList;
class FileListLoader;
class Interaction;
class MessageTable;
class OptionStore;

// What a run works with, all owned by the front end and lent for the call.
// The options and the controls are read at each use, as the main window
// does; nothing is cached across files.
struct RenameRunEnv {
  AppState& app;             // CancelRun, counters, BatchMode, CurrentPath
  RenameSettings& settings;  // the renaming controls; a run may correct
                             // `txtAddCount` as the window would
  FileList& list;            // the selected rows are the run's files
  OptionStore& options;      // read at each use
  Interaction& interaction;  // every question, progress, caption, status
  const MessageTable& messages;
  const Clock& clock;
  LogUndoState& log_undo;  // the folders and the batch name of the log and undo
  const MediaInfoProvider& media = MediaInfoProvider::None();  // tags, EXIF
  // Refills the list at the end of a rename or copy run; absent: the list
  // keeps its rows (a front end that exits after the run needs no refill).
  FileListLoader* loader = nullptr;
  // The dialect of the undo batch's text.
  UndoBatchTarget undo_target = UndoBatchTarget::kLinux;
  // The new names that collide, as the front end's "New name" column counts
  // them; the start question mentions them.
  std::size_t new_name_collisions = 0;
};

// How a run went, for the front end's exit code and summary.
struct RenameRunResult {
  // A check before the first file stopped the run: no file was touched.
  bool stopped = false;
  std::string stop_title;    // the box's title
  std::string stop_message;  // the box's text
  std::string focus_field;   // the control the box puts the focus on; may be empty

  bool ran = false;          // the checks and the question passed: files were gone through
  int mode = 0;              // the mode the run took: 0 rename, 1 copy, 2 test
  std::int64_t done = 0;     // renamed, copied, or listed by a test
  std::int64_t failed = 0;   // an error of the file was reported
  std::int64_t skipped = 0;  // left as they were (a taken name, an open file ...)
  bool cancelled = false;    // Esc, Ctrl-C or a dialogue's Cancel ended the run early
};

// `StartRename`: the checks, the confirmation, then for each selected row in
// list order the name pipeline and the rename, copy or test, with log, undo
// batch, journal, dates and progress, and the end of the run. Nothing is
// thrown. No file is ever overwritten.
RenameRunResult StartRename(const RenameRunEnv& env);

// A run of given names (`mnuRenameFromFile`): the k-th selected row, in list
// order, takes `names[k]` instead of the name the renaming controls build;
// by `optCopyRename` it is renamed, copied or only tested, with everything
// else of a run: a taken name as `SkipExistingFiles` says, a change of case
// through a free name, the log, the undo batch, the journal, the dates, the
// end. The controls are not checked and no start question is asked: the
// caller has asked its own. A name that keeps nothing before its extension
// is not written ("<Could not be written, filename is empty>"). Rows beyond
// the names keep their name.
RenameRunResult RenameWithGivenNames(const RenameRunEnv& env, const std::vector<std::string>& names);

}  // namespace tarnwick
