// `mnuSplitFiles`: files cut into numbered pieces, with the script that joins them.
#include "tools/split_file.h"

#include <cfenv>
#include <cmath>
#include <cstdio>

#include "base/path_text.h"
#include "filelist/file_list.h"
#include "persist/log_append.h"
#include "platform/file_pieces.h"
#include "platform/files.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

// A whole number the way the program's integer conversion makes one:
// nearest, ties to even.
std::int64_t Whole(double value) {
  std::fesetround(FE_TONEAREST);
  return static_cast<std::int64_t>(std::nearbyint(value));
}

std::string PieceName(const std::string& folder, const std::string& name, std::int64_t number,
                      const std::string& extension) {
  char digits[24];
  std::snprintf(digits, sizeof digits, "%05lld", static_cast<long long>(number));
  return folder + name + "_" + digits + "." + extension;
}

std::string ErrorText(const FileStatus& status) {
  return std::to_string(status.number) + ": " + status.description;
}

// A box that stops the job: the tool's title or "Error".
void StopWith(ToolJob& job, const std::string& title, const std::string& text, MessageIcon icon) {
  job.env().interaction.ShowMessage({title, text, Buttons::kOk, icon, Topic::kNotice});
}

enum class FileOutcome { kSplit, kNotSplit, kPiecesExist, kFailed, kCancelled };

struct PieceWriter {
  ToolJob& job;
  const SplitChoices& choices;
  FileStatus error;

  FileOutcome Write(const std::string& source, const SplitPlan& plan) {
    for (std::size_t i = 0; i < plan.pieces.size(); ++i) {
      const SplitPiece& piece = plan.pieces[i];
      error = CopyByteRange(source, piece.first, piece.length, piece.path, choices.overwrite);
      if (error.number == vb_error::kFileAlreadyExists) return FileOutcome::kPiecesExist;
      if (!error.ok()) return FileOutcome::kFailed;
      // Esc is read between the pieces of a file, not only between files.
      const bool last = i + 1 == plan.pieces.size();
      if (!last && job.CancelAsked()) return FileOutcome::kCancelled;
    }
    if (!choices.batch) return FileOutcome::kSplit;
    error = ReplaceFileWith(plan.script_path, plan.script + "\r\n");
    return error.ok() ? FileOutcome::kSplit : FileOutcome::kFailed;
  }
};

struct SplitOutcome {
  FileOutcome outcome = FileOutcome::kSplit;
  FileStatus error;
  std::size_t pieces = 0;
};

// `SplitFile` of one row.
SplitOutcome SplitOne(ToolJob& job, const SplitChoices& choices, const std::string& path) {
  if (!FileExists(path)) return {FileOutcome::kFailed, FileStatus::Error(vb_error::kFileNotFound), 0};
  const FileResult<std::uint64_t> size = FileSize64(path);
  if (!size.ok()) return {FileOutcome::kFailed, size.status(), 0};
  const SplitPlan plan = PlanSplit(path, size.value(), choices);
  if (plan.pieces.empty()) return {FileOutcome::kNotSplit, {}, 0};
  // Kept as it stands: the test looks for "_0.", which the pieces
  // ("_00000.") never are; the pieces themselves are not replaced unless
  // overwriting was asked for.
  if (!choices.overwrite &&
      FileExists(plan.folder + LastPathElement(path) + "_0." + choices.extension)) {
    return {FileOutcome::kPiecesExist, {}, 0};
  }
  PieceWriter writer{job, choices, {}};
  const FileOutcome outcome = writer.Write(path, plan);
  return {outcome, writer.error, plan.pieces.size()};
}

}  // namespace

std::string CheckSplitChoices(const SplitChoices& choices, const MessageTable& messages) {
  if (choices.amount < 1) return std::string(messages.Text("split.size_at_least_one"));
  if (choices.unit == SplitUnit::kCount && !(choices.amount > 1)) {
    return std::string(messages.Text("split.count_greater_one"));
  }
  return {};
}

std::int64_t ChunkSize(double amount, SplitUnit unit, std::int64_t file_size) {
  switch (unit) {
    case SplitUnit::kBytes:
      return Whole(amount);
    case SplitUnit::kKilobytes:
      return Whole(amount * 1024);
    case SplitUnit::kMegabytes:
      return Whole(amount * 1024) * 1024;
    case SplitUnit::kCount:
      break;
  }
  const std::int64_t pieces = Whole(amount);
  if (pieces <= 0) return file_size;
  std::int64_t chunk = file_size / pieces;
  // Deliberate: the rest is tested against pieces × 1024, so a small rest
  // does not always add the extra byte.
  const double scaled = static_cast<double>(file_size) / (static_cast<double>(pieces) * 1024);
  if (scaled > static_cast<double>(file_size / (pieces * 1024))) ++chunk;
  return chunk;
}

SplitPlan PlanSplit(const std::string& path, std::uint64_t size, const SplitChoices& choices) {
  SplitPlan plan;
  const std::string name = LastPathElement(path);
  plan.folder = EnsureTrailingSeparator(choices.destination.empty() ? ParentFolder(path)
                                                                    : choices.destination);
  plan.script_path = plan.folder + name + ".bat";
  const auto file_size = static_cast<std::int64_t>(size);
  const std::int64_t chunk = ChunkSize(choices.amount, choices.unit, file_size);
  // Files of 2,143,223,809 bytes and more are split like any other.
  if (chunk <= 0 || chunk >= file_size) return plan;
  const std::int64_t full =
      Whole(static_cast<double>(file_size) / static_cast<double>(chunk) - 1);
  plan.script = "copy /b ";
  for (std::int64_t i = 0; i < full; ++i) {
    const std::string piece = PieceName(plan.folder, name, i, choices.extension);
    plan.pieces.push_back({piece, static_cast<std::uint64_t>(chunk * i),
                           static_cast<std::uint64_t>(chunk)});
    plan.script += "\"" + piece + "\" + ";
  }
  // The last piece takes the rest: up to half a chunk more than the others.
  const std::string last = PieceName(plan.folder, name, full, choices.extension);
  plan.pieces.push_back({last, static_cast<std::uint64_t>(chunk * full),
                         static_cast<std::uint64_t>(file_size - chunk * full)});
  plan.script += "\"" + last + "\" \"" + plan.folder + name + "\"";
  return plan;
}

ToolJobResult SplitFiles(const RenameRunEnv& env, const SplitChoices& choices) {
  if (choices.sort) {
    const SortColumn by_name{file_column::kName, false};
    env.list.MultiSortListView({&by_name, 1});
  }
  ToolJob job(env);
  const std::string title = job.Text("split.title");
  for (std::size_t i = 0; i < job.total(); ++i) {
    if (!job.BeginFile(i)) break;
    const std::size_t row = job.rows()[i];
    const std::string path = env.list.Path(row);
    const std::string name = env.list.Text(row, file_column::kName);
    const auto [outcome, error, pieces] = SplitOne(job, choices, path);
    if (outcome == FileOutcome::kPiecesExist) {
      job.LogTool(title, job.Text("split.pieces_exist") + path);
      job.Failed(path, job.Text("split.pieces_exist"));
      StopWith(job, title, job.Text("split.pieces_exist"), MessageIcon::kExclamation);
      break;
    }
    if (outcome == FileOutcome::kFailed) {
      job.LogTool(title, job.Text("run.log_error") + " \"" + path + "\" (" + ErrorText(error) + ")");
      job.Failed(path, ErrorText(error));
      StopWith(job, job.Text("run.title_error"),
               job.Text("split.cannot_split") + name + "\r\n" + ErrorText(error),
               MessageIcon::kCritical);
      break;
    }
    if (outcome == FileOutcome::kCancelled) {
      job.LogTool(title, job.Text("split.cancelled_in_file") + " \"" + path + "\"");
      break;
    }
    if (outcome == FileOutcome::kNotSplit) {
      // A file no larger than one piece is not split, and so never deleted:
      // deleting it would lose it.
      job.LogTool(title, job.Text("split.not_split") + " \"" + path + "\"");
      job.Skipped();
      job.EndFile(i);
      continue;
    }
    if (choices.delete_source) {
      if (const FileStatus deleted = DeleteFile(path); !deleted.ok()) {
        job.Failed(path, ErrorText(deleted));
      }
    }
    job.LogTool(title, "\"" + path + "\" -> " +
                           FillMessage(job.Text("split.pieces_written"), {std::to_string(pieces)}));
    job.Done();
    job.EndFile(i);
  }
  job.Finish(true);
  return job.result();
}

}  // namespace tarnwick
