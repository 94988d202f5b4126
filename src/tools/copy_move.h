#pragma once

#include <optional>
#include <string>

#include "base/vb_date.h"
#include "tools/tool_job.h"

namespace tarnwick {

class OptionStore;

// `optMinusPlus`: what the amounts of a date change do.
enum class DateShift { kSet = 0, kAdd = 1, kSubtract = 2 };

// The date step of `frmCopyMoveFiles` (`chkChangeDateTime`).
//
// With kSet the file takes the date of `dtpDate` where `chkDate` is ticked
// and the time of `dtpTime` where `chkTime` is ticked, each part alone; the
// part not ticked stays the file's own. With kAdd or kSubtract the file's
// own date and time move by the amounts: days, months, years, then hours,
// minutes, seconds, each unit of the calendar (a month after 31 January is
// the last day of February); the ticks and pickers are not used.
struct DateChange {
  bool enabled = false;  // chkChangeDateTime
  bool set_date = false;  // chkDate
  vb::DateTime date;      // dtpDate, its date
  bool set_time = false;  // chkTime
  vb::DateTime time;      // dtpTime, its time of day
  DateShift shift = DateShift::kSet;
  int days = 0, months = 0, years = 0;
  int hours = 0, minutes = 0, seconds = 0;
};

// The date a file of date `current` (local) takes; nothing when the change
// leaves the range of dates.
std::optional<vb::DateTime> ChangedDate(const DateChange& change, const vb::DateTime& current);

// The choices of `frmCopyMoveFiles`.
struct CopyMoveChoices {
  bool move = false;          // optAction 1
  std::string target_folder;  // txtNewFile
  bool overwrite = false;     // chkOverwriteFiles
  bool save_target = false;   // chkSaveTargetDir
  bool batch_only = false;    // chkCreateBatchOnly
  std::string batch_path;     // asked after the dialogue ("Save batch file")
  bool append_batch = false;  // chkAppendBatch
  DateChange date;
};

// The folder of the last job when `SaveCopyMoveDir` is "1", else empty.
std::string SavedCopyMoveFolder(const OptionStore& options);
// Stores `SaveCopyMoveDir` and, when ticked, `SaveCopyMoveDirPath`.
void SaveCopyMoveFolder(OptionStore& options, const CopyMoveChoices& choices);

// What is wrong with the target folder before a job starts: it is missing,
// no folder, or cannot be written to. Empty when the job may start.
std::string CheckCopyMoveTarget(const CopyMoveChoices& choices, const MessageTable& messages);

// `mnuMoveCopyFiles`: the selected rows copied or moved into the target
// folder, or, with `batch_only`, a batch script written that would do it.
// A file is never replaced unless `overwrite` is on; a file that fails is
// logged and the job goes on; after a move the list is read again.
ToolJobResult CopyMoveFiles(const RenameRunEnv& env, const CopyMoveChoices& choices);

}  // namespace tarnwick
