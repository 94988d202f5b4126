#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/start_rename.h"
#include "persist/log_file.h"
#include "persist/log_undo_env.h"

namespace tarnwick {

// How a tool job went, for the front end's exit code and summary.
struct ToolJobResult {
  std::int64_t done = 0;
  std::int64_t failed = 0;
  std::int64_t skipped = 0;
  bool cancelled = false;  // Esc or Ctrl-C ended the job early
  bool refused = false;    // a check before the first file stopped the job
  // One line per failed file: the path and what went wrong.
  std::vector<std::string> failures;
};

// The frame every tool on the selected rows runs in (copy and move, split,
// merge, secure delete, checksums, exports, picture jobs). It takes the
// selected rows in list order and, while it lives, keeps the window busy:
// controls off, the status "Action in progress ...", the progress bar, the
// caption per file, Esc (Ctrl-C on the command line) read once per file, the
// log's header and the tool's entries. Finish ends it: controls on, the
// caption back, the finish sound, the job's duration, the list refilled
// where the tool says so.
//
// The env is the one a run takes; a tool reads what it needs of it.
class ToolJob {
 public:
  explicit ToolJob(const RenameRunEnv& env);
  // A job over the rows named, in that order, rather than the selection.
  ToolJob(const RenameRunEnv& env, std::vector<std::size_t> rows);
  ~ToolJob();
  ToolJob(const ToolJob&) = delete;
  ToolJob& operator=(const ToolJob&) = delete;

  const RenameRunEnv& env() const { return env_; }
  // The selected rows when the job began, in list order.
  const std::vector<std::size_t>& rows() const { return rows_; }
  std::size_t total() const { return rows_.size(); }

  // Before the file at `index` of rows(): false when Esc or Ctrl-C asked to
  // stop (the job is then cancelled); otherwise the caption names the file.
  // `verb` stands before the name in the caption; empty: "Processing:".
  bool BeginFile(std::size_t index, std::string_view verb = {});
  // Esc or Ctrl-C asked for inside a file (between its parts): true marks
  // the job cancelled.
  bool CancelAsked();
  // After the file: the progress bar moves on.
  void EndFile(std::size_t index);

  // `WriteLogFileTool`.
  void LogTool(std::string_view subject, std::string_view text);
  RunLog& log() { return log_; }

  // The file at `path` failed with `what`: logged, counted and kept for the
  // summary; the job goes on.
  void Failed(const std::string& path, const std::string& what);
  void Done() { ++result_.done; }
  void Skipped() { ++result_.skipped; }
  void Refused() { result_.refused = true; }

  // The end of the job; `refill`: the list is read again.
  void Finish(bool refill);
  const ToolJobResult& result() const { return result_; }
  std::string Text(std::string_view key) const;

 private:
  const RenameRunEnv& env_;
  LogUndoEnv log_env_;
  RunLog log_;
  std::vector<std::size_t> rows_;
  std::chrono::steady_clock::time_point started_;
  ToolJobResult result_;
  bool finished_ = false;
};

}  // namespace tarnwick
