#pragma once

#include <string_view>

#include "filelist/file_list_context.h"
#include "persist/log_file.h"
#include "placeholders/expansion_context.h"

namespace tarnwick {

// The program's log as the name pipeline and the fill of the list see it.
class RunLogBridge : public ExpansionLog, public FileListLog {
 public:
  explicit RunLogBridge(RunLog& log) : log_(log) {}

  void WriteLogFileTool(std::string_view subject, std::string_view text) override {
    log_.WriteLogFileTool(subject, text);
  }
  void WriteLogFileHeader() override { log_.WriteLogFileHeader(selected_count); }

  int selected_count = 0;

 private:
  RunLog& log_;
};

}  // namespace tarnwick
