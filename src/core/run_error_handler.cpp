#include "core/run_error_handler.h"

#include <string>

#include "shell/app_state.h"
#include "shell/interaction.h"

namespace tarnwick {

void HandleRunError(RunContext& run, const VbError& error, std::string_view old_path,
                    std::string_view new_path, std::string_view note) {
  const std::string number = std::to_string(error.number());
  const std::string description = error.description();
  run.log.WriteLogFile(run.Text("run.log_error") + " " + std::string(old_path), new_path,
                       number + ": " + description + "; " + std::string(note));
  Interaction& ui = run.env.interaction;
  if (error.number() == vb_error::kOverflow || error.number() == vb_error::kOutOfMemory) {
    MessageBoxRequest box;
    box.title = run.Text("run.title_error_number") + number;
    box.text = run.Text("run.overflow") + "\r\n" + description;
    box.icon = MessageIcon::kExclamation;
    ui.ShowMessage(box);
  }
  MessageBoxRequest ask;
  ask.title = run.Text("run.title_error");
  ask.text = run.Text("run.error_while_renaming") + "\r\n\r\n" + number + ": " + description +
             " (" + std::string(old_path) + " -> " + std::string(new_path) + ")\r\n\r\n" +
             run.Text("run.continue_with_next_file");
  ask.buttons = Buttons::kYesNo;
  ask.icon = MessageIcon::kExclamation;
  ask.topic = Topic::kContinueAfterError;
  if (ui.ShowMessage(ask) == Answer::kNo) run.env.app.CancelRun = true;
}

}  // namespace tarnwick
