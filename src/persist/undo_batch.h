#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "persist/log_append.h"
#include "persist/log_undo_env.h"
#include "persist/undo_oem_text.h"

namespace tarnwick {

// The undo batch: a command script that takes the last run back, in the
// folder the option `UndoFilePath` names (default DefaultUndoFolder), named
// `BasisNameUndoBatch` (default "UndoBatch") + `UndoTimeStamp` + ".bat".
// Every line ends in CR LF. A run calls, in this order:
//   PrepareUndoBatchName, WriteUndoBatchHeader (through WriteRunHeaders),
//   WriteUndoEntry for each changed file, FinishUndoBatch.
//
// Options read at each call:
//   `WriteUndoList` "1"              master switch
//   `OverwriteUndoBatch` "0"         "1": each run replaces the batch;
//                                    "0": the new run stands in front of the
//                                    older ones, which are undone after it
//   `WriteUndoBatchInSingleFiles` "0" "1" (with "0" above): a file per run,
//                                    named with a time stamp
//   `IndividualUndoBatchName` "0"    "1": ask for the name before each run
//
// The lines of the entries are those of undo_line.h: names that a quoted
// line cannot carry safely are written as escaped comments. Texts go through
// ToOemText for `target`. An entry that cannot be written asks whether to
// switch undo off (log_failure_box.h). Nothing here throws.
class UndoBatch {
 public:
  explicit UndoBatch(const LogUndoEnv& env, UndoBatchTarget target = UndoBatchTarget::kLinux)
      : env_(env), target_(target) {}

  // Absolute path of the current batch: the undo folder + UndoBatchName.
  std::string UndoBatchPath() const;

  // Works out UndoBatchName (and UndoTimeStamp in single-file mode), asking
  // for the name when `IndividualUndoBatchName` is "1": an empty answer or
  // Cancel gives the base name alone, without the stamp. In appending mode an
  // existing batch is first copied to a new temporary file "TWRN..." in the
  // temporary folder.
  void PrepareUndoBatchName();

  // The batch's part of the run headers, when `WriteUndoList` is "1": starts
  // the batch anew (a read-only old one too) with its header, which says
  // what the script does by `copy_rename_index` (0 rename, 1 copy, other
  // test). Failures are left for the first entry to report.
  void WriteUndoBatchHeader(int selected_count, int copy_rename_index);

  // One line per changed file, when `WriteUndoList` is not "0": `command` is
  // "move" for a rename, "del" for a copy, "rem" in a test run.
  void WriteUndoEntry(std::string_view old_path, std::string_view new_path,
                      std::string_view command);

  // In appending mode, puts the older runs saved by PrepareUndoBatchName
  // behind this run's lines. The temporary copy stays where it is.
  void FinishUndoBatch();

  // Keeps the file open between the entries of a run (see HeldAppendFile);
  // false lets it go. Only entries may be written while it is held.
  void HoldFileOpen(bool hold);

 private:
  std::string EchoLine(std::string_view text) const;

  LogUndoEnv env_;
  UndoBatchTarget target_;
  std::shared_ptr<HeldAppendFile> held_;
};

}  // namespace tarnwick
