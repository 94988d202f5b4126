#include "unattended_start.h"

#include "base/clock.h"
#include "base/text.h"
#include "core/rename_settings.h"
#include "persist/log_file.h"
#include "persist/log_undo_env.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "shell/app_state.h"
#include "shell/cancel.h"
#include "shell/cli_interaction.h"
#include "shell/message_table.h"
#include "startup/startup.h"

namespace tarnwick::gui {
namespace {

int ExitStatus(const StartupResult& result, std::ostream& err) {
  using Outcome = StartupResult::Outcome;
  if (result.outcome == Outcome::kFailed || result.outcome == Outcome::kLeft) {
    err << "tarnwick: start-up failed: " << result.error << '\n';
    return kExitBadStart;
  }
  if (result.settings_failed) {
    err << "tarnwick: the settings file " << result.command_line.settings_file
        << " could not be applied; nothing was renamed\n";
    return kExitBadStart;
  }
  if (result.settings_load.folder_gone) {
    err << "tarnwick: the folder saved in " << result.command_line.settings_file
        << " is gone; nothing was renamed\n";
    return kExitBadStart;
  }
  const BatchRunOutcome& batch = result.batch;
  if (batch.stopped) {
    err << "tarnwick: the run was stopped: " << batch.stop_message << '\n';
    return kExitFilesFailed;
  }
  err << "tarnwick: " << batch.done << " done, " << batch.failed << " failed, " << batch.skipped
      << " skipped" << (batch.cancelled ? ", cancelled" : "") << '\n';
  return batch.failed > 0 || batch.cancelled ? kExitFilesFailed : kExitOk;
}

}  // namespace

int RunTarnwick(std::span<const std::string> args, std::ostream& err) {
  const MessageTable& messages = MessageTable::Get(SystemLanguage());
  if (!HasBatchSwitch(args)) {
    err << "tarnwick: " << messages.Text("startup.no_desktop_window") << '\n';
    return kExitBadStart;
  }
  StartupInput input = MachineStartupInput({args.begin(), args.end()});
  const CommandLine parsed = ParseCommandLine(args, input.working_folder);
  if (parsed.settings_file.empty()) {
    err << "tarnwick: an unattended run needs a settings file: tarnwick SETTINGS.twr -d\n";
    return kExitBadStart;
  }
  OptionStore options = OptionStore::ForCurrentUser();
  AppState app;
  LogUndoState state;
  SystemClock clock;
  RenameSettings settings;
  CliOptions cli_options;
  CliInteraction interaction(cli_options);
  const LogUndoEnv env{options, interaction, messages, clock, app, state};
  RunLog log(env);
  interaction.SetAnswerLog([&log, &messages](const AnsweredQuestion& question) {
    log.WriteLogFileTool(messages.Text("batch.log.question_answered"), FormatAnswered(question));
  });
  InstallInterruptCancel(app);
  HeadlessStartupHost host(env, settings, [&](FileList& list, FileListLoader& loader) {
    return RunBatchRename(env, settings, list, loader);
  });
  return ExitStatus(RunStartup(env, settings, host, input), err);
}

}  // namespace tarnwick::gui
