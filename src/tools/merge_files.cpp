// `mnuMergeFiles`: files appended one after the other into a target.
#include "tools/merge_files.h"

#include "base/path_text.h"
#include "base/text.h"
#include "filelist/file_list.h"
#include "platform/file_pieces.h"
#include "platform/files.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

std::string ErrorText(const FileStatus& status) {
  return std::to_string(status.number) + ": " + status.description;
}

void Tell(ToolJob& job, const std::string& title, const std::string& text, MessageIcon icon) {
  job.env().interaction.ShowMessage({title, text, Buttons::kOk, icon, Topic::kNotice});
}

// The checks before the first byte: a target that exists (without
// overwriting) or that is one of the sources stops the job.
bool TargetAllowed(ToolJob& job, const MergeChoices& choices) {
  const std::string title = job.Text("merge.title");
  const std::optional<FileIdentity> target = IdentityOf(choices.target);
  if (!target) return true;
  if (!choices.overwrite) {
    Tell(job, title, job.Text("merge.target_exists"), MessageIcon::kExclamation);
    return false;
  }
  for (const std::size_t row : job.rows()) {
    if (IdentityOf(job.env().list.Path(row)) == target) {
      Tell(job, title, job.Text("merge.target_is_source") + "\r\n" + choices.target,
           MessageIcon::kExclamation);
      return false;
    }
  }
  return true;
}

// `AppendFile` of every row into `staged`; false when the job stops.
bool AppendAll(ToolJob& job, const MergeChoices& choices, StagedFile& staged,
               std::vector<std::string>& appended) {
  const FileList& list = job.env().list;
  const std::string title = job.Text("merge.title");
  for (std::size_t i = 0; i < job.total(); ++i) {
    if (!job.BeginFile(i)) return false;
    const std::size_t row = job.rows()[i];
    const std::string path = list.Path(row);
    const std::string name = list.Text(row, file_column::kName);
    if (choices.filter && !ContainsText(name, choices.filter_text)) {
      job.Skipped();
      job.EndFile(i);
      continue;
    }
    FileStatus status = FileExists(path) ? staged.Append(path)
                                         : FileStatus::Error(vb_error::kFileNotFound);
    if (!status.ok()) {
      job.LogTool(title, job.Text("run.log_error") + " \"" + path + "\" (" + ErrorText(status) + ")");
      job.Failed(path, ErrorText(status));
      // Kept: the merge names its failure with the split tool's words.
      Tell(job, job.Text("run.title_error"),
           job.Text("split.cannot_split") + name + "\r\n" + ErrorText(status), MessageIcon::kCritical);
      return false;
    }
    job.LogTool(title, "\"" + path + "\" -> \"" + choices.target + "\"");
    appended.push_back(path);
    job.EndFile(i);
  }
  return true;
}

}  // namespace

std::string CheckMergeChoices(const MergeChoices& choices, const MessageTable& messages) {
  if (vb::Trim(choices.target).empty()) {
    return std::string(messages.Text("merge.select_destination_first"));
  }
  return {};
}

ToolJobResult MergeFiles(const RenameRunEnv& env, const MergeChoices& choices) {
  if (choices.sort) {
    const SortColumn by_name{file_column::kName, false};
    env.list.MultiSortListView({&by_name, 1});
  }
  ToolJob job(env);
  const std::string title = job.Text("merge.title");
  if (!TargetAllowed(job, choices)) {
    job.Refused();
    job.Finish(false);
    return job.result();
  }
  StagedFile staged;
  FileStatus status = staged.Open(choices.target);
  std::vector<std::string> appended;
  if (status.ok() && !AppendAll(job, choices, staged, appended)) {
    job.Finish(false);
    return job.result();
  }
  // A new file whose sources stay loses nothing in a crash, as `cat` would
  // not; a replaced target or deleted sources need the data on the disk.
  const bool flush = choices.delete_source || IdentityOf(choices.target).has_value();
  if (status.ok()) status = staged.Commit(choices.overwrite, flush);
  if (!status.ok()) {
    job.LogTool(title, job.Text("run.log_error") + " \"" + choices.target + "\" (" +
                           ErrorText(status) + ")");
    job.Failed(choices.target, ErrorText(status));
    Tell(job, job.Text("run.title_error"), choices.target + "\r\n" + ErrorText(status),
         MessageIcon::kCritical);
    job.Finish(false);
    return job.result();
  }
  for (const std::string& path : appended) {
    job.Done();
    if (!choices.delete_source) continue;
    if (const FileStatus deleted = DeleteFile(path); !deleted.ok()) job.Failed(path, ErrorText(deleted));
  }
  job.Finish(true);
  return job.result();
}

}  // namespace tarnwick
