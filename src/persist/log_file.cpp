#include "persist/log_file.h"

#include "persist/log_append.h"
#include "persist/log_date_text.h"
#include "persist/log_failure_box.h"
#include "persist/log_options.h"
#include "persist/option_store.h"
#include "shell/app_state.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr char kQuote = '"';

std::string Quoted(std::string_view path) {
  std::string text;
  text.reserve(path.size() + 2);
  text += kQuote;
  text += path;
  text += kQuote;
  return text;
}

}  // namespace

std::string RunLog::LogFilePath() const { return CurrentLogFilePath(env_.options, env_.state); }

std::string RunLog::NowText() const { return PresentDateTimeText(env_.clock, env_.options); }

bool RunLog::LoggingOn() const { return !OptionIsZero(env_.options, "WriteLogFile", "1"); }

bool RunLog::OutsideRunSkipped() const {
  return OptionIsOne(env_.options, "LogOnlyRename", "1") && !env_.app.run_active;
}

bool RunLog::StartUpLineAllowed(std::string_view option) const {
  return LoggingOn() && !OutsideRunSkipped() && !OptionIsZero(env_.options, option, "0");
}

std::string RunLog::CancelSuffix() const {
  if (!env_.app.CancelRun) return "";
  return std::string(kLineEnd) + std::string(env_.messages.Text("log.cancelled_by_user"));
}

void RunLog::HoldFileOpen(bool hold) {
  held_ = hold ? std::make_shared<HeldAppendFile>() : nullptr;
}

void RunLog::Append(std::string_view bytes) {
  const std::string path = LogFilePath();
  const FileStatus status = held_ ? held_->Append(path, bytes) : AppendToFile(path, bytes);
  if (!status.ok()) OfferToSwitchOff(env_, FailedWriter::kLog, status, path);
}

void RunLog::WriteEntry(std::string_view text) {
  std::string line = "-> [" + NowText() + "] ";
  line += text;
  line += kLineEnd;
  Append(line);
}

void RunLog::WriteLogFile(std::string_view old_path, std::string_view new_path,
                          std::string_view note) {
  if (!LoggingOn()) return;
  const MessageTable& texts = env_.messages;
  std::string text(texts.Text("log.renaming_of"));
  text += ' ' + Quoted(old_path) + ' ';
  text += texts.Text("log.to");
  text += ' ' + Quoted(new_path) + ' ';
  if (!note.empty()) text += "(" + std::string(note) + ")";
  text += CancelSuffix();
  WriteEntry(text);
}

void RunLog::WriteLogFileTool(std::string_view subject, std::string_view text) {
  if (!LoggingOn() || OutsideRunSkipped()) return;
  std::string line(subject);
  line += " [";
  line += text;
  line += "]";
  line += CancelSuffix();
  WriteEntry(line);
}

}  // namespace tarnwick
