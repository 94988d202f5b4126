#include "core/job_end.h"

#include <cstdio>
#include <string>
#include <thread>

#include "base/path_text.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {

void PlayFinishSound(const RenameRunEnv& env) {
  if (env.options.GetOption("ReadySound", "Options", "1") != "1") return;
  const std::string fallback = JoinPath(JoinPath(env.log_undo.ProgramFolder, "Media"), "notify.wav");
  env.interaction.PlayWave(env.options.GetOption("ReadySoundPath", "Options", fallback));
  // The sound's moment; a batch run has nobody to hear it.
  if (!env.app.BatchMode) std::this_thread::sleep_for(std::chrono::milliseconds(500));
}

void ShowJobDuration(const RenameRunEnv& env, std::chrono::steady_clock::time_point started) {
  if (env.options.GetOption("TimeMeasuring", "Options", "0") != "1") return;
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(
                           std::chrono::steady_clock::now() - started)
                           .count();
  char text[32];
  std::snprintf(text, sizeof text, "%02lld:%02lld:%02lld", static_cast<long long>(seconds / 3600),
                static_cast<long long>(seconds / 60 % 60), static_cast<long long>(seconds % 60));
  MessageBoxRequest box;
  box.title = std::string(env.messages.Text(736));
  box.text = std::string(env.messages.Text(735)) + "\r\n" + text +
             std::string(env.messages.Text("run.time_format_hint"));
  box.icon = MessageIcon::kInformation;
  env.interaction.ShowMessage(box);
}

}  // namespace tarnwick
