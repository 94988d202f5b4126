// `mnuMoveCopyFiles`: copy or move the selected rows into a folder.
#include "tools/copy_move.h"

#include <unistd.h>

#include "base/path_text.h"
#include "base/vb_date_text.h"
#include "core/file_date_time.h"
#include "core/file_date_time_local.h"
#include "filelist/file_list.h"
#include "persist/option_store.h"
#include "platform/file_times.h"
#include "platform/files.h"
#include "shell/message_table.h"
#include "tools/copy_move_batch.h"

namespace tarnwick {
namespace {

constexpr std::string_view kOptions = "Options";
// The amounts are shifted through the date text in this fixed form, so that
// no `DateFormat` can leave a file unchanged.
constexpr std::string_view kShiftFormat = "dd.mm.yyyy";

std::string ErrorText(const FileStatus& status) {
  return std::to_string(status.number) + ": " + status.description;
}

// The date step of one file that is in place under `path`.
FileStatus ChangeDate(ToolJob& job, const DateChange& change, const std::string& path) {
  const FileResult<FileTimes> times = GetFileTimes(path);
  if (!times.ok()) return times.status();
  const std::optional<vb::DateTime> date =
      ChangedDate(change, ToLocalStamp(times.value().last_write).date);
  if (!date) return FileStatus::Error(vb_error::kOverflow);
  const RenameRunEnv& env = job.env();
  const FileDateEnv dates{env.options, env.interaction, env.messages, env.media};
  return ChangeFileDateAndTime(dates, path, date->day, date->month, date->year, date->hour,
                               date->minute, date->second);
}

// The dates of the file in its new place: first the old file's date for a
// copy with `KeepOldFiledate`, then the change of the dialogue, which so
// starts from the date the copy shows.
FileStatus SetDates(ToolJob& job, const CopyMoveChoices& choices, std::size_t row,
                    const std::string& target) {
  const RenameRunEnv& env = job.env();
  if (!choices.move && env.options.GetOption("KeepOldFiledate", kOptions, "0") == "1") {
    const FileDateEnv dates{env.options, env.interaction, env.messages, env.media};
    const FileStatus kept =
        ChangeFileDateAndTimeKeepOld(dates, target, env.list.Text(row, file_column::kDate));
    if (!kept.ok()) return kept;
  }
  if (!choices.date.enabled) return FileStatus::Success();
  return ChangeDate(job, choices.date, target);
}

FileStatus CopyOrMove(const CopyMoveChoices& choices, const std::string& source,
                      const std::string& target) {
  if (!choices.move) {
    return CopyFile(source, target, choices.overwrite, CopyFlush::kWhenReplacing);
  }
  // Kept: an existing target goes only with the overwrite tick; it is
  // replaced in one step instead of being deleted before the move.
  if (choices.overwrite) return MoveFileReplacing(source, target);
  return MoveFileNoReplace(source, target);
}

void DoFile(ToolJob& job, const CopyMoveChoices& choices, std::size_t row) {
  const FileList& list = job.env().list;
  const std::string name = list.Text(row, file_column::kName);
  const std::string source = JoinPath(list.Folder(row), name);
  const std::string target = JoinPath(choices.target_folder, name);
  const std::string subject =
      job.Text(choices.move ? "copymove.batch.rename_file" : "copymove.batch.copying_file") +
      " \"" + source + "\"";
  FileStatus status = CopyOrMove(choices, source, target);
  if (status.ok()) status = SetDates(job, choices, row, target);
  if (!status.ok()) {
    job.LogTool(subject, job.Text("run.log_error") + " \"" + target + "\" (" + ErrorText(status) +
                             ")");
    job.Failed(source, ErrorText(status));
    return;
  }
  job.LogTool(subject, "\"" + target + "\"");
  job.Done();
}

}  // namespace

std::optional<vb::DateTime> ChangedDate(const DateChange& change, const vb::DateTime& current) {
  if (change.shift == DateShift::kSet) {
    vb::DateTime date = current;
    if (change.set_date) {
      date.year = change.date.year;
      date.month = change.date.month;
      date.day = change.date.day;
    }
    if (change.set_time) {
      date.hour = change.time.hour;
      date.minute = change.time.minute;
      date.second = change.time.second;
    }
    if (!vb::IsValidDate(date)) return std::nullopt;
    return date;
  }
  const bool add = change.shift == DateShift::kAdd;
  std::optional<std::string> text = vb::FormatDateByOption(current, kShiftFormat);
  text = AddDateOffset(add, *text, change.days, change.months, change.years, kShiftFormat);
  if (text) text = AddTimeOffset(add, *text, change.hours, change.minutes, change.seconds, kShiftFormat);
  if (!text) return std::nullopt;
  return vb::ParseDateTime(*text, kShiftFormat);
}

std::string SavedCopyMoveFolder(const OptionStore& options) {
  if (options.GetOption("SaveCopyMoveDir", kOptions, "0") != "1") return {};
  return options.GetOption("SaveCopyMoveDirPath", kOptions, "");
}

void SaveCopyMoveFolder(OptionStore& options, const CopyMoveChoices& choices) {
  options.SaveOption("SaveCopyMoveDir", kOptions, choices.save_target ? "1" : "0");
  if (choices.save_target) options.SaveOption("SaveCopyMoveDirPath", kOptions, choices.target_folder);
}

std::string CheckCopyMoveTarget(const CopyMoveChoices& choices, const MessageTable& messages) {
  const std::string& folder = choices.target_folder;
  if (folder.empty() || !FolderExists(folder)) {
    return std::string(messages.Text("copymove.target_missing")) + "\r\n" + folder;
  }
  // A script only names the folder; the files need one they can go into.
  if (!choices.batch_only && ::access(folder.c_str(), W_OK | X_OK) != 0) {
    return std::string(messages.Text("copymove.target_not_writable")) + "\r\n" + folder;
  }
  return {};
}

ToolJobResult CopyMoveFiles(const RenameRunEnv& env, const CopyMoveChoices& choices) {
  if (choices.batch_only) return WriteCopyMoveBatch(env, choices);
  ToolJob job(env);
  for (std::size_t i = 0; i < job.total(); ++i) {
    if (!job.BeginFile(i)) break;
    DoFile(job, choices, job.rows()[i]);
    job.EndFile(i);
  }
  job.Finish(choices.move);
  return job.result();
}

}  // namespace tarnwick
