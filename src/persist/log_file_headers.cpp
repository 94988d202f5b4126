#include <string>

#include "base/path_text.h"
#include "persist/log_append.h"
#include "persist/log_file.h"
#include "persist/log_options.h"
#include "persist/option_store.h"
#include "platform/files.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kVersionText = "v2.97";
constexpr std::size_t kRuleWidth = 61;

void AddLine(std::string& out, std::string_view line) {
  out += line;
  out += kLineEnd;
}

}  // namespace

void RunLog::WriteRunLogHeader(int selected_count) {
  if (!OptionIsOne(env_.options, "WriteLogFile", "1")) return;
  WriteHeader(selected_count, Header::kRun);
}

void RunLog::WriteLogFileHeader(int selected_count) {
  if (!OptionIsOne(env_.options, "WriteLogFile", "1")) return;
  if (!OptionIsZero(env_.options, "LogOnlyRename", "1")) return;
  WriteHeader(selected_count, Header::kTool);
}

// Failures are left for the next entry to report.
void RunLog::WriteHeader(int selected_count, Header kind) {
  if (!FolderExists(ParentFolder(LogFilePath()))) {
    SaveOptionValue(env_.options, "LogFilePath", DefaultLogFilePath(env_.state));
  }
  const std::string path = LogFilePath();
  const bool last_run_only = OptionIsZero(env_.options, "LogFilePathMulti", "0");
  if (last_run_only && FileExists(path)) DeleteFile(path);

  const MessageTable& texts = env_.messages;
  std::string out;
  AddLine(out, "");
  AddLine(out, "");
  AddLine(out, std::string(kRuleWidth, '#'));
  AddLine(out, "");
  AddLine(out, "");
  AddLine(out, std::string(texts.Text("log.created_by")) + " " + std::string(kVersionText) + " " +
                   std::string(texts.Text("log.on")) + " " + NowText());
  AddLine(out,
          std::string(texts.Text("log.selected_files")) + " " + std::to_string(selected_count));
  // The tool's header repeats the reminder with its blank line.
  const int blocks = last_run_only && kind == Header::kTool ? 2 : 1;
  for (int block = 0; block < blocks; ++block) {
    if (last_run_only) AddLine(out, texts.Text("log.only_last_action"));
    AddLine(out, " ");
  }
  AppendToFile(path, out);
}

}  // namespace tarnwick
