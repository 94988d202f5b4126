#include "filelist/change_dir.h"

#include <string>

#include "base/vb_date.h"
#include "base/vb_date_names.h"
#include "shell/app_state.h"
#include "shell/message_table.h"

namespace tarnwick {

void BeginChangeDir(AppState& state) { state.CurrentFilter = "*.*"; }

void LogChangedDir(FileListLog& log, const MessageTable& messages, std::string_view folder,
                   std::size_t rows, std::chrono::milliseconds took) {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(took).count() % 86400;
  vb::DateTime duration;
  duration.hour = static_cast<int>(seconds / 3600);
  duration.minute = static_cast<int>(seconds / 60 % 60);
  duration.second = static_cast<int>(seconds % 60);
  const std::string subject =
      std::string(messages.Text("filelist.log.changed_directory_subject")) + std::string(folder);
  const std::string text = std::string(messages.Text("filelist.log.changed_directory_text")) +
                           std::to_string(rows) +
                           std::string(messages.Text("filelist.log.files_in")) +
                           vb::LongTime(duration) + ")";
  log.WriteLogFileHeader();
  log.WriteLogFileTool(subject, text);
}

}  // namespace tarnwick
