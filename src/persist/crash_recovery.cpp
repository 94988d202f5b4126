#include "persist/crash_recovery.h"

#include <string>

#include "persist/log_date_text.h"
#include "persist/log_file.h"
#include "persist/log_options.h"
#include "persist/log_undo_env.h"
#include "persist/option_store.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kFlag = "ResetPath";
constexpr int kOptionsResetMessage = 1030;

}  // namespace

bool RecoverFromFailedStart(const LogUndoEnv& env, RunLog& log) {
  if (!OptionIsOne(env.options, kFlag, "0")) {
    SaveOptionValue(env.options, kFlag, "1");
    return false;
  }
  std::string text(env.messages.Text(kOptionsResetMessage));
  text += " [" + PresentDateText(env.clock, env.options) + "]";
  log.WriteLogFileTool("Previous Load Error", text);
  env.options.DeleteSection("Options");
  MessageBoxRequest box;
  box.title = env.messages.Text("startup.attention_title");
  box.text = env.messages.Text("options.could_not_start_properly");
  box.buttons = Buttons::kOk;
  box.icon = MessageIcon::kInformation;
  box.topic = Topic::kNotice;
  env.interaction.ShowMessage(box);
  return true;
}

void MarkStartFinished(const LogUndoEnv& env) { SaveOptionValue(env.options, kFlag, "0"); }

}  // namespace tarnwick
