// `StartRename`: checks, set-up, the loop and the end of a run.
#include "core/start_rename.h"

#include "core/run_context.h"
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
  run.result.mode = static_cast<int>(run.mode);
  SetUpRun(run);
  if (!env.app.CancelRun) RunFiles(run);
  if (env.app.CancelRun) run.result.cancelled = true;
  FinishRun(run);
  return run.result;
}

}  // namespace tarnwick
