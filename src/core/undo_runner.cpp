#include "core/undo_runner.h"

#include <sys/stat.h>

#include <fstream>
#include <sstream>

#include "base/path_text.h"
#include "core/journal.h"
#include "persist/log_append.h"
#include "platform/files.h"

namespace tarnwick {
namespace {

bool NameTaken(const std::string& path) {
  struct stat info;
  return ::lstat(path.c_str(), &info) == 0;
}

// A path the batch may act on: absolute, and naming an entry of a folder.
bool Acceptable(const std::string& path) {
  if (path.empty() || path.front() != kPathSeparator) return false;
  const std::string last = LastPathElement(path);
  return !last.empty() && last != "." && last != ".." && !path.ends_with(kPathSeparator);
}

FileResult<std::string> ReadBatchBytes(const std::filesystem::path& batch) {
  std::ifstream in(batch, std::ios::binary);
  if (!in) return FileStatus::Error(vb_error::kPermissionDenied);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  if (in.bad()) return FileStatus::Error(vb_error::kDeviceIoError);
  return bytes.str();
}

FileStatus Refused() { return FileStatus::Error(vb_error::kBadFileName); }

// What a dry run finds: whether the step could be done now.
FileStatus Check(const UndoLine& line) {
  if (!NameTaken(line.new_path)) return FileStatus::Error(vb_error::kFileNotFound);
  if (line.command == "del") {
    return FileExists(line.new_path) ? FileStatus::Success()
                                     : FileStatus::Error(vb_error::kPermissionDenied);
  }
  if (NameTaken(line.old_path)) return FileStatus::Error(vb_error::kFileAlreadyExists);
  if (!FolderExists(ParentFolder(line.old_path))) return FileStatus::Error(vb_error::kPathNotFound);
  return FileStatus::Success();
}

FileStatus Carry(const UndoLine& line) {
  if (line.command == "del") return DeleteFile(line.new_path);
  return MoveFileNoReplace(line.new_path, line.old_path);
}

UndoStep Step(int run, const UndoBatchEntry& entry, bool dry_run) {
  UndoStep step{run, entry.line_number, entry.line, UndoStepOutcome::kSkipped, {}};
  const UndoLine& line = entry.line;
  if (line.command == "rem") return step;
  // A skipped file's line names the same file twice: nothing to take back.
  if (line.command != "del" && line.new_path == line.old_path) return step;
  step.outcome = UndoStepOutcome::kFailed;
  if (line.command != "move" && line.command != "del") {
    step.status = {vb_error::kInvalidProcedureCall, "Unknown command"};
    return step;
  }
  const bool two_paths = line.command == "move";
  if (!Acceptable(line.new_path) || (two_paths && !Acceptable(line.old_path))) {
    step.status = Refused();
    return step;
  }
  step.status = dry_run ? Check(line) : Carry(line);
  if (step.status.ok()) step.outcome = dry_run ? UndoStepOutcome::kWouldDo : UndoStepOutcome::kDone;
  return step;
}

void Count(UndoReport& report, UndoStepOutcome outcome) {
  if (outcome == UndoStepOutcome::kFailed) {
    ++report.failed;
  } else if (outcome == UndoStepOutcome::kSkipped) {
    ++report.skipped;
  } else {
    ++report.done;
  }
}

// The batch's bytes once the journals of interrupted runs are completed:
// really, or in a dry run only in memory.
FileResult<std::string> CompletedBatch(const std::filesystem::path& batch, bool dry_run,
                                       UndoReport& report) {
  const std::vector<std::filesystem::path> journals = JournalsOfBatch(batch);
  if (!dry_run) report.recoveries = CompleteInterruptedRuns(journals);
  if (!FileExists(batch)) return FileStatus::Error(vb_error::kFileNotFound);
  FileResult<std::string> bytes = ReadBatchBytes(batch);
  if (!bytes.ok() || !dry_run) return bytes;
  std::string text = bytes.value();
  for (const auto& journal : journals) text = PreviewCompletedBatch(journal, std::move(text));
  return text;
}

}  // namespace

UndoReport RunUndoBatch(const std::filesystem::path& batch, const UndoRunOptions& options,
                        const std::function<void(const UndoStep&)>& on_step) {
  UndoReport report;
  const FileResult<std::string> bytes = CompletedBatch(batch, options.dry_run, report);
  if (!bytes.ok()) {
    report.status = bytes.status();
    return report;
  }
  const UndoBatchText text = ReadUndoBatchText(bytes.value());
  report.runs_in_batch = static_cast<int>(text.runs.size());
  for (std::size_t r = 0; r < text.runs.size(); ++r) {
    if (options.runs > 0 && static_cast<int>(r) >= options.runs) break;
    const auto& entries = text.runs[r];
    for (auto it = entries.rbegin(); it != entries.rend(); ++it) {
      const UndoStep step = Step(static_cast<int>(r) + 1, *it, options.dry_run);
      Count(report, step.outcome);
      if (on_step) on_step(step);
    }
    ++report.runs_done;
  }
  return report;
}

FileStatus DropNewestUndoRun(const std::filesystem::path& batch) {
  const FileResult<std::string> bytes = ReadBatchBytes(batch);
  if (!bytes.ok()) return bytes.status();
  const std::string_view rest = WithoutNewestRun(bytes.value());
  if (ReadUndoBatchText(rest).runs.empty()) return DeleteFile(batch);
  return ReplaceFileWith(batch, rest);
}

}  // namespace tarnwick
