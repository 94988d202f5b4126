// `StartRename`: checks, set-up, the loop and the end of a run.
#include "core/start_rename.h"

#include "base/path_text.h"
#include "core/rename_settings.h"
#include "core/run_context.h"
#include "filelist/file_list.h"
#include "persist/option_store.h"
#include "core/start_rename_steps.h"
#include "shell/app_state.h"
#include "shell/message_table.h"

namespace tarnwick {

RunContext::RunContext(const RenameRunEnv& run_env)
    : env(run_env),
      log_env{run_env.options, run_env.interaction, run_env.messages,
              run_env.clock,   run_env.app,         run_env.log_undo},
      log(log_env),
      undo(log_env, run_env.undo_target),
      log_bridge(log) {}

std::string RunContext::Text(std::string_view key) const {
  return std::string(env.messages.Text(key));
}

PipelineEnv RunContext::Pipeline() {
  return PipelineEnv{env.app,         env.settings,   env.list,    env.options,
                     env.interaction, env.messages,   env.clock,   env.media,
                     &log_bridge,     selected_count, &open_files, mode != RunMode::kTest};
}

RenameRunResult StartRename(const RenameRunEnv& env) {
  RunContext run(env);
  try {
    if (!RunPreamble(run)) return run.result;
  } catch (const std::exception& error) {
    // The checks raise nothing of their own; a failure of the platform here
    // stops the run before any file is touched.
    run.result.stopped = true;
    run.result.stop_message = error.what();
    return run.result;
  }
  run.result.ran = true;
  run.result.mode = static_cast<int>(run.mode);
  SetUpRun(run);
  if (!env.app.CancelRun) RunFiles(run);
  if (env.app.CancelRun) run.result.cancelled = true;
  FinishRun(run);
  return run.result;
}

RenameRunResult RenameWithGivenNames(const RenameRunEnv& env,
                                     const std::vector<std::string>& names) {
  RunContext run(env);
  std::unordered_map<std::string, std::string> by_path;
  const std::vector<std::size_t> rows = env.list.SelectedRows();
  for (std::size_t k = 0; k < rows.size() && k < names.size(); ++k) {
    by_path.emplace(env.list.Path(rows[k]), names[k]);
  }
  run.given_names = &by_path;
  AppState& app = env.app;
  app.CancelRun = false;
  app.FileLockSeen = false;
  run.selected_count = rows.size();
  run.log_bridge.selected_count = static_cast<int>(run.selected_count);
  app.RunFileCount = static_cast<std::int32_t>(run.selected_count);
  env.options.SaveOption("SkipExistingFiles", "Options", "0");
  run.undo.PrepareUndoBatchName();
  run.mode = ModeOf(env.settings.optCopyRename);
  run.result.ran = true;
  run.result.mode = static_cast<int>(run.mode);
  run.started = std::chrono::steady_clock::now();
  SetUpRun(run);
  if (!app.CancelRun) RunFiles(run);
  if (app.CancelRun) run.result.cancelled = true;
  FinishRun(run);
  return run.result;
}

}  // namespace tarnwick
