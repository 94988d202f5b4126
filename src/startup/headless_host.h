#pragma once

#include <functional>

#include "filelist/file_list.h"
#include "filelist/list_loader.h"
#include "filelist/media_column_source.h"
#include "persist/log_file.h"
#include "startup/startup_host.h"

namespace tarnwick {

struct LogUndoEnv;
struct RenameSettings;

// The unattended start's host: no windows, no display. It fills a real file
// list and hands the run to `run_batch` with every row selected.
class HeadlessStartupHost : public StartupHost {
 public:
  using BatchRunner = std::function<BatchRunOutcome(FileList& list, FileListLoader& loader)>;

  HeadlessStartupHost(const LogUndoEnv& env, const RenameSettings& settings, BatchRunner run_batch);

  void FillListFiles() override;
  std::int64_t RowCount() const override { return static_cast<std::int64_t>(list_.size()); }
  BatchRunOutcome RunBatch() override;

  FileList& list() { return list_; }

 private:
  // The log lines of a fill go to the program's log.
  class FillLog : public FileListLog {
   public:
    explicit FillLog(const LogUndoEnv& env) : log_(env) {}
    void WriteLogFileHeader() override { log_.WriteLogFileHeader(0); }
    void WriteLogFileTool(std::string_view subject, std::string_view text) override {
      log_.WriteLogFileTool(subject, text);
    }

   private:
    RunLog log_;
  };

  const LogUndoEnv& env_;
  const RenameSettings& settings_;
  BatchRunner run_batch_;
  FillLog fill_log_;
  MediaColumnSource media_;
  FileList list_;
  FileListLoader loader_;
};

}  // namespace tarnwick
