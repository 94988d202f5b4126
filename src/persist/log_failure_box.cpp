#include "persist/log_failure_box.h"

#include <string>

#include "persist/log_options.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {

void OfferToSwitchOff(const LogUndoEnv& env, FailedWriter writer, const FileStatus& status,
                      std::string_view path) {
  const bool log = writer == FailedWriter::kLog;
  const MessageTable& texts = env.messages;
  MessageBoxRequest box;
  box.title = texts.Text("log.title_logfile");
  box.text =
      std::string(texts.Text(log ? "log.cannot_write_logfile" : "undo.cannot_write_undofile"));
  box.text += "\r\n" + std::to_string(status.number) + ": " + status.description + "\r\n";
  box.text += "(" + std::string(path) + ")\r\n\r\n";
  box.text += texts.Text(log ? "log.disable_logging" : "undo.disable_undo");
  box.buttons = Buttons::kYesNo;
  box.icon = MessageIcon::kExclamation;
  box.topic = log ? Topic::kDisableLogging : Topic::kDisableUndo;
  if (env.interaction.ShowMessage(box) != Answer::kYes) return;
  SaveOptionValue(env.options, log ? "WriteLogFile" : "WriteUndoList", "0");
}

}  // namespace tarnwick
