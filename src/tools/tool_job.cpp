#include "tools/tool_job.h"

#include "core/job_end.h"
#include "core/rename_settings.h"
#include "filelist/file_list.h"
#include "filelist/list_loader.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {

ToolJob::ToolJob(const RenameRunEnv& env) : ToolJob(env, env.list.SelectedRows()) {}

ToolJob::ToolJob(const RenameRunEnv& env, std::vector<std::size_t> rows)
    : env_(env),
      log_env_{env.options, env.interaction, env.messages, env.clock, env.app, env.log_undo},
      log_(log_env_),
      rows_(std::move(rows)),
      started_(std::chrono::steady_clock::now()) {
  env_.app.CancelRun = false;
  env_.app.run_active = true;
  env_.interaction.SetControlsEnabled(false, false);
  env_.interaction.ShowStatus(StatusArea::kStatusLine, Text("run.status_in_progress"));
  env_.interaction.ShowStatus(StatusArea::kSampleFrame, Text("run.please_wait"));
  env_.interaction.ShowProgress(0, static_cast<std::int64_t>(rows_.size()));
  log_.WriteLogFileHeader(static_cast<int>(rows_.size()));
  log_.HoldFileOpen(true);
}

ToolJob::~ToolJob() {
  if (!finished_) Finish(false);
}

std::string ToolJob::Text(std::string_view key) const { return std::string(env_.messages.Text(key)); }

bool ToolJob::BeginFile(std::size_t index, std::string_view verb) {
  if (index % 5 == 4) env_.interaction.Yield();
  if (env_.interaction.PollCancel()) env_.app.CancelRun = true;
  if (env_.app.CancelRun) {
    result_.cancelled = true;
    return false;
  }
  // "Tarnwick - [007/120] Processing:name  [To cancel use "Esc" key]".
  const std::string total = std::to_string(rows_.size());
  std::string number = std::to_string(index + 1);
  if (number.size() < total.size()) number.insert(0, total.size() - number.size(), '0');
  const std::size_t row = rows_[index];
  env_.interaction.SetCaption(Text("run.caption_prefix") + "[" + number + "/" + total + "] " +
                              (verb.empty() ? Text("tools.processing") : std::string(verb)) +
                              env_.list.Text(row, file_column::kName) +
                              "  " + Text("run.caption_cancel_hint"));
  return true;
}

bool ToolJob::CancelAsked() {
  if (env_.interaction.PollCancel()) env_.app.CancelRun = true;
  if (env_.app.CancelRun) result_.cancelled = true;
  return result_.cancelled;
}

void ToolJob::EndFile(std::size_t index) {
  env_.interaction.ShowProgress(static_cast<std::int64_t>(index + 1),
                                static_cast<std::int64_t>(rows_.size()));
}

void ToolJob::LogTool(std::string_view subject, std::string_view text) {
  log_.WriteLogFileTool(subject, text);
}

void ToolJob::Failed(const std::string& path, const std::string& what) {
  ++result_.failed;
  result_.failures.push_back(path + ": " + what);
}

void ToolJob::Finish(bool refill) {
  if (finished_) return;
  finished_ = true;
  log_.HoldFileOpen(false);
  env_.app.CancelRun = false;
  env_.app.run_active = false;
  env_.interaction.SetControlsEnabled(true, false);
  if (refill && env_.loader != nullptr) {
    env_.loader->FillListFiles(env_.list,
                               {env_.app.CurrentPath, Ticked(env_.settings.chkIncludeSubfolders)});
  }
  env_.interaction.SetCaption(Text("run.caption_program"));
  env_.interaction.ShowStatus(StatusArea::kSampleFrame, Text("sample.frame_caption"));
  env_.interaction.HideProgress();
  PlayFinishSound(env_);
  ShowJobDuration(env_, started_);
}

}  // namespace tarnwick
