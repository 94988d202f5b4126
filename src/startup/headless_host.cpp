#include "startup/headless_host.h"

#include "core/rename_settings.h"
#include "persist/log_undo_env.h"
#include "shell/app_state.h"

namespace tarnwick {

HeadlessStartupHost::HeadlessStartupHost(const LogUndoEnv& env, const RenameSettings& settings,
                                         BatchRunner run_batch)
    : env_(env),
      settings_(settings),
      run_batch_(std::move(run_batch)),
      fill_log_(env),
      loader_(FileListContext{env.options, env.app, env.interaction, fill_log_, media_,
                              env.messages}) {}

void HeadlessStartupHost::FillListFiles() {
  FillRequest request;
  request.folder = env_.app.CurrentPath;
  request.include_subfolders = Ticked(settings_.chkIncludeSubfolders);
  loader_.FillListFiles(list_, request);
}

BatchRunOutcome HeadlessStartupHost::RunBatch() {
  list_.SelectAll();
  if (!run_batch_) return {};
  return run_batch_(list_, loader_);
}

}  // namespace tarnwick
