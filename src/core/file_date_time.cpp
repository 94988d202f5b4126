#include "core/file_date_time.h"

#include <string>

#include "core/file_date_time_local.h"
#include "platform/file_times.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

void ShowDateError(const FileDateEnv& env, const FileStatus& status) {
  MessageBoxRequest box;
  box.title = std::string(env.messages.Text("filedate.error_in_change"));
  box.text = box.title + "\r\n" + std::string(env.messages.Text("filedate.error_number")) +
             std::to_string(status.number) + " " + status.description;
  box.icon = MessageIcon::kExclamation;
  env.interaction.ShowMessage(box);
}

// One stamp with the date and time put in and its own fraction kept.
std::optional<FileTime> Restamped(FileTime stamp, const vb::DateTime& date) {
  LocalStamp local = ToLocalStamp(stamp);
  local.date = date;
  return FromLocalStamp(local);
}

}  // namespace

FileStatus ChangeFileDateAndTime(const FileDateEnv& env, const std::filesystem::path& path, int day,
                                 int month, int year, int hour, int minute, int second) {
  const FileResult<FileTimes> times = GetFileTimes(path);
  // Kept: no file, no handle, nothing to say.
  if (!times.ok()) return times.status();
  const vb::DateTime date{year, month, day, hour, minute, second};
  const auto last_write = Restamped(times.value().last_write, date);
  const auto last_access = Restamped(times.value().last_access, date);
  FileStatus status{vb_error::kInvalidProcedureCall, "Invalid procedure call or argument"};
  if (last_write && last_access) status = SetFileTimes(path, *last_write, *last_access);
  if (!status.ok()) ShowDateError(env, status);
  return status;
}

}  // namespace tarnwick
