#include "core/journal_recovery.h"

#include <errno.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/journal.h"
#include "core/journal_format.h"
#include "persist/log_append.h"
#include "persist/log_options.h"
#include "persist/log_undo_state.h"
#include "persist/undo_line.h"
#include "platform/files.h"

namespace tarnwick {
namespace {

using Outcome = JournalRecovery::Outcome;

constexpr std::string_view kLineEnd = "\r\n";

// Whether any entry (a file, a folder, a dangling link) has this name.
bool NameTaken(const std::string& path) {
  struct stat info;
  return ::lstat(path.c_str(), &info) == 0;
}

std::string ReadAll(int fd) {
  std::string bytes;
  char buffer[64 * 1024];
  for (;;) {
    const ssize_t got = ::read(fd, buffer, sizeof buffer);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return bytes;
    bytes.append(buffer, static_cast<std::size_t>(got));
  }
}

std::string ReadFileBytes(const std::string& path) {
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return {};
  std::string bytes = ReadAll(fd);
  ::close(fd);
  return bytes;
}

// The name at which the moves of one file left it. A step whose source is
// gone was carried out: the file went to its target, and perhaps on from
// there by the next step (the second move of a change of case). A source
// still there means the file stopped at it. Where the chain ends at a name
// nothing has, the file's place is unknown and the old name is given, so no
// line is made up.
const std::string& WhereMovesLeftIt(const std::vector<JournalStep>& steps) {
  const std::string* at = &steps.front().from;
  for (const JournalStep& step : steps) {
    if (step.from != *at || NameTaken(step.from)) break;
    at = &step.to;
  }
  return NameTaken(*at) ? *at : steps.front().from;
}

// Whether `copy` is the copy the run made of `source`: a copy keeps the
// size and the last-write time of its source. A file of that name that some
// other program put there in the meantime is not deleted by the undo.
bool LooksLikeCopyOf(const std::string& copy, const std::string& source) {
  struct stat a, b;
  if (::lstat(copy.c_str(), &a) != 0 || ::stat(source.c_str(), &b) != 0) return false;
  return S_ISREG(a.st_mode) && a.st_size == b.st_size && a.st_mtim.tv_sec == b.st_mtim.tv_sec;
}

// The undo line the file the run stopped at still needs, if any.
std::optional<std::string> MissingLine(const std::vector<JournalStep>& steps) {
  if (steps.empty()) return std::nullopt;
  const JournalStep& first = steps.front();
  if (first.kind == JournalStepKind::kCopy) {
    if (!LooksLikeCopyOf(first.to, first.from)) return std::nullopt;
    return UndoEntryLine(first.from, first.to, "del");
  }
  const std::string& now = WhereMovesLeftIt(steps);
  if (now == first.from) return std::nullopt;
  return UndoEntryLine(first.from, now, "move");
}

// The last line of a batch, without its line end.
std::string_view LastLine(std::string_view batch) {
  if (batch.ends_with(kLineEnd)) batch.remove_suffix(kLineEnd.size());
  const std::size_t end = batch.rfind(kLineEnd);
  return end == std::string_view::npos ? batch : batch.substr(end + kLineEnd.size());
}

FileStatus AddMissingLine(const JournalContent& content, JournalRecovery& result) {
  const std::optional<std::string> line = MissingLine(content.open_steps);
  if (!line) return FileStatus::Success();
  const std::string batch = ReadFileBytes(content.batch_path);
  if (LastLine(batch) == *line) return FileStatus::Success();
  const FileStatus status = AppendToFile(content.batch_path, *line + std::string(kLineEnd));
  if (status.ok()) result.lines_added.push_back(*line);
  return status;
}

// A run killed before it started its batch anew left the batch as the
// older runs' copy has it: nothing is to be put behind it.
bool BatchIsOlderRuns(const JournalContent& content, std::string_view batch_bytes) {
  return !content.finish_size && batch_bytes == ReadFileBytes(content.older_copy);
}

FileStatus AppendOlderRuns(const JournalContent& content, JournalRecovery& result) {
  if (content.older_copy.empty() || !FileExists(content.older_copy)) return FileStatus::Success();
  if (BatchIsOlderRuns(content, ReadFileBytes(content.batch_path))) return FileStatus::Success();
  if (content.finish_size &&
      ::truncate(content.batch_path.c_str(), static_cast<off_t>(*content.finish_size)) != 0) {
    return FileStatus::Error(vb_error::kPermissionDenied);
  }
  const FileStatus status = AppendFileToFile(content.older_copy, content.batch_path);
  result.older_runs_appended = status.ok();
  return status;
}

// Opens and locks a journal; -1 when it cannot be opened or a live run
// holds it (`active` tells which).
int LockJournal(const std::filesystem::path& journal, bool& active) {
  active = false;
  const int fd = ::open(journal.c_str(), O_RDWR | O_CLOEXEC);
  if (fd < 0) return -1;
  if (::flock(fd, LOCK_EX | LOCK_NB) == 0) return fd;
  ::close(fd);
  active = true;
  return -1;
}

}  // namespace

std::string PreviewCompletedBatch(const std::filesystem::path& journal, std::string batch_bytes) {
  bool active = false;
  const int fd = LockJournal(journal, active);
  if (fd < 0) return batch_bytes;
  const JournalContent content = ParseJournal(ReadAll(fd));
  ::close(fd);
  if (!content.valid) return batch_bytes;
  const std::optional<std::string> line = MissingLine(content.open_steps);
  if (line && LastLine(batch_bytes) != *line) batch_bytes += *line + std::string(kLineEnd);
  if (content.older_copy.empty() || !FileExists(content.older_copy)) return batch_bytes;
  if (BatchIsOlderRuns(content, batch_bytes)) return batch_bytes;
  if (content.finish_size && *content.finish_size < batch_bytes.size()) {
    batch_bytes.resize(*content.finish_size);
  }
  return batch_bytes + ReadFileBytes(content.older_copy);
}

JournalRecovery CompleteInterruptedRun(const std::filesystem::path& journal) {
  JournalRecovery result;
  result.journal = journal;
  bool active = false;
  const int fd = LockJournal(journal, active);
  if (fd < 0) {
    result.outcome = active ? Outcome::kRunStillActive : Outcome::kUnreadable;
    return result;
  }
  const JournalContent content = ParseJournal(ReadAll(fd));
  result.batch_path = content.batch_path;
  if (!content.valid || content.batch_path.empty()) {
    ::close(fd);
    result.outcome = Outcome::kUnreadable;
    return result;
  }
  result.status = AddMissingLine(content, result);
  if (result.status.ok()) result.status = AppendOlderRuns(content, result);
  if (result.status.ok()) {
    ::unlink(journal.c_str());
  } else {
    result.outcome = Outcome::kFailed;
  }
  ::close(fd);
  return result;
}

std::vector<JournalRecovery> CompleteInterruptedRuns(
    const std::vector<std::filesystem::path>& journals) {
  std::vector<JournalRecovery> results;
  for (const auto& journal : journals) results.push_back(CompleteInterruptedRun(journal));
  return results;
}

std::vector<JournalRecovery> CompleteInterruptedRunsAtStart(const OptionStore& options,
                                                            const LogUndoState& state) {
  const std::string undo_folder = UndoFolderPath(options, state);
  std::vector<std::filesystem::path> journals = JournalsInFolder(undo_folder);
  // A run whose undo folder could not take its journal kept it in ours.
  if (!state.DefaultUndoFolder.empty() && state.DefaultUndoFolder != undo_folder) {
    for (std::filesystem::path& journal : JournalsInFolder(state.DefaultUndoFolder)) {
      journals.push_back(std::move(journal));
    }
  }
  return CompleteInterruptedRuns(journals);
}

}  // namespace tarnwick
