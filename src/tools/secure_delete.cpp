// Secure delete: files overwritten in two series of passes, then removed.
#include "tools/secure_delete.h"

#include <array>
#include <cstdlib>

#include "base/path_text.h"
#include "filelist/file_list.h"
#include "persist/option_store.h"
#include "platform/file_attributes.h"
#include "platform/file_in_use.h"
#include "platform/file_overwrite.h"
#include "platform/files.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

using Block = std::array<unsigned char, kShredBlock>;

std::string ErrorText(const FileStatus& status) {
  return std::to_string(status.number) + ": " + status.description;
}

enum class ShredOutcome { kDeleted, kSkipped, kStopJob, kFailed };

class Shredder {
 public:
  Shredder(ToolJob& job, int passes, Random& random, const ShredWatch& watch)
      : job_(job), ui_(job.env().interaction), passes_(passes), random_(random), watch_(watch) {}

  ShredOutcome Shred(const std::string& path, const std::string& name) {
    ui_.ShowStatus(StatusArea::kStatusLine, job_.Text("shredder.checking_file") + "   [" + name + "]");
    if (IsSymbolicLink(path)) return Refuse(path, job_.Text("shredder.symbolic_link"));
    if (!FileExists(path)) return Fail(path, FileStatus::Error(vb_error::kFileNotFound));
    if (IsFileInUse(path)) return Refuse(path, job_.Text("shredder.in_use"));
    if (const std::optional<ShredOutcome> protection = LiftWriteProtection(path)) return *protection;
    const std::string working = RandomName(path);
    if (working.empty()) return Fail(path, last_error_);
    // Logged before the first byte changes: a process that dies now leaves
    // the file under this name, and the log says which it was.
    job_.LogTool(job_.Text("shredder.log_subject"),
                 "\"" + path + "\" " + job_.Text("shredder.renamed_to") + " \"" + working + "\"");
    ui_.ShowStatus(StatusArea::kStatusLine, job_.Text("shredder.loading_file"));
    if (const FileStatus status = Overwrite(working); !status.ok()) return Fail(working, status);
    if (const FileStatus status = DeleteFile(working); !status.ok()) return Fail(working, status);
    return ShredOutcome::kDeleted;
  }

 private:
  ShredOutcome Refuse(const std::string& path, const std::string& why) {
    job_.Failed(path, why);
    job_.LogTool(job_.Text("shredder.log_subject"), job_.Text("run.log_error") + " \"" + path + "\" (" + why + ")");
    ui_.ShowMessage({job_.Text("run.title_error"), why + "\r\n" + path, Buttons::kOk,
                     MessageIcon::kCritical, Topic::kNotice});
    return ShredOutcome::kFailed;
  }

  ShredOutcome Fail(const std::string& path, const FileStatus& status) {
    return Refuse(path, ErrorText(status));
  }

  // Nothing when the file may be overwritten now.
  std::optional<ShredOutcome> LiftWriteProtection(const std::string& path) {
    const FileResult<int> attributes = GetFileAttributes(path);
    if (!attributes.ok() || (attributes.value() & file_attribute::kReadOnly) == 0) return std::nullopt;
    const Answer answer = ui_.ShowMessage(
        {job_.Text("shredder.write_protected_title"),
         job_.Text("shredder.write_protected_text") + "\r\n" + path, Buttons::kYesNoCancel,
         MessageIcon::kQuestion, Topic::kRemoveWriteProtection});
    if (answer == Answer::kNo) return ShredOutcome::kSkipped;
    if (answer != Answer::kYes) return ShredOutcome::kStopJob;
    if (const FileStatus status = SetFileAttributes(path, file_attribute::kArchive); !status.ok()) {
      return Fail(path, status);
    }
    return std::nullopt;
  }

  // The file under a name of random digits in its folder; empty on failure.
  std::string RandomName(const std::string& path) {
    const std::string folder = ParentFolder(path);
    for (int attempt = 0; attempt < 100; ++attempt) {
      const auto first = static_cast<long long>(random_.Rnd() * 2001);
      const auto second = static_cast<long long>(random_.Rnd() * 1973);
      const std::string working =
          JoinPath(folder, std::to_string(first) + "." + std::to_string(second));
      last_error_ = MoveFileNoReplace(path, working);
      if (last_error_.ok()) return working;
      if (last_error_.number != vb_error::kFileAlreadyExists) return {};
    }
    return {};
  }

  FileStatus Overwrite(const std::string& working) {
    OverwriteFile file;
    if (FileStatus status = file.Open(working); !status.ok()) return status;
    Block zeros;
    Block ones;
    zeros.fill(0);
    ones.fill(255);
    for (int pass = 1; pass <= passes_; ++pass) {
      ShowPass(pass);
      const struct {
        const Block& block;
        unsigned char rest;
      } sweeps[] = {{zeros, 90}, {ones, 255}, {ones, 140}};
      for (int sweep = 0; sweep < 3; ++sweep) {
        if (FileStatus status = FixedSweep(file, sweeps[sweep].block, sweeps[sweep].rest);
            !status.ok()) {
          return status;
        }
        if (FileStatus status = Flushed(file, {1, pass, sweep + 1, working}); !status.ok()) {
          return status;
        }
        if (job_.CancelAsked()) return FileStatus::Success();
      }
    }
    for (int pass = 1; pass <= passes_; ++pass) {
      ShowPass(pass);
      if (FileStatus status = RandomSweep(file); !status.ok()) return status;
      if (FileStatus status = Flushed(file, {2, pass, 1, working}); !status.ok()) return status;
      if (job_.CancelAsked()) return FileStatus::Success();
    }
    return FileStatus::Success();
  }

  void ShowPass(int pass) {
    ui_.ShowStatus(StatusArea::kSampleFrame, job_.Text("shredder.overwritten") + " " +
                                                 std::to_string(pass) + "/" +
                                                 std::to_string(passes_) + "]");
  }

  FileStatus Flushed(OverwriteFile& file, const ShredSweep& sweep) {
    if (FileStatus status = file.Flush(); !status.ok()) return status;
    if (watch_) watch_(sweep);
    return FileStatus::Success();
  }

  // The full blocks from `block`, then the rest of the file as `rest`.
  FileStatus FixedSweep(OverwriteFile& file, const Block& block, unsigned char rest) {
    const std::uint64_t blocks = file.size() / kShredBlock;
    for (std::uint64_t i = 0; i < blocks; ++i) {
      if (FileStatus status = file.WriteAt(i * kShredBlock, block); !status.ok()) return status;
      ui_.Yield();
    }
    const auto remainder = static_cast<std::size_t>(file.size() % kShredBlock);
    if (remainder == 0) return FileStatus::Success();
    Block tail;
    tail.fill(rest);
    return file.WriteAt(blocks * kShredBlock, std::span(tail.data(), remainder));
  }

  // Each full block one random value from 1 to 255; the rest one more.
  FileStatus RandomSweep(OverwriteFile& file) {
    Block block;
    const std::uint64_t blocks = file.size() / kShredBlock;
    const auto remainder = static_cast<std::size_t>(file.size() % kShredBlock);
    for (std::uint64_t i = 0; i <= blocks; ++i) {
      const std::size_t length = i < blocks ? kShredBlock : remainder;
      if (length == 0) break;
      block.fill(static_cast<unsigned char>(static_cast<int>(random_.Rnd() * 255) + 1));
      if (FileStatus status = file.WriteAt(i * kShredBlock, std::span(block.data(), length));
          !status.ok()) {
        return status;
      }
      ui_.Yield();
    }
    return FileStatus::Success();
  }

  ToolJob& job_;
  Interaction& ui_;
  int passes_;
  Random& random_;
  const ShredWatch& watch_;
  FileStatus last_error_;
};

}  // namespace

int ShredPasses(const OptionStore& options) {
  const std::string text = options.GetOption("FSOverwrite", "Options", "8");
  char* end = nullptr;
  const long passes = std::strtol(text.c_str(), &end, 10);
  if (end == text.c_str() || passes < 1 || passes > 99) return 8;
  return static_cast<int>(passes);
}

ToolJobResult SecureDeleteFiles(const RenameRunEnv& env, int passes, Random& random,
                                const ShredWatch& watch) {
  const std::size_t count = env.list.SelectedCount();
  const MessageTable& messages = env.messages;
  const Answer answer = env.interaction.ShowMessage(
      {std::string(messages.Text("shredder.confirm_title")),
       FillMessage(messages.Text("shredder.confirm_text"), {std::to_string(count)}) + "\r\n\r\n" +
           std::string(messages.Text("shredder.what_overwriting_cannot_do")),
       Buttons::kYesNo, MessageIcon::kExclamation, Topic::kConfirmSecureDelete});
  if (answer != Answer::kYes) {
    ToolJobResult not_confirmed;
    not_confirmed.refused = true;
    return not_confirmed;
  }
  ToolJob job(env);
  Shredder shredder(job, passes, random, watch);
  for (std::size_t i = 0; i < job.total(); ++i) {
    const std::size_t row = job.rows()[i];
    const std::string name = env.list.Text(row, file_column::kName);
    if (!job.BeginFile(i, job.Text("shredder.deleting") + " ")) break;
    env.interaction.ShowStatus(StatusArea::kStatusLine,
                               std::to_string(passes) + " " + job.Text("shredder.passes") +
                                   "   [" + name + "]");
    const ShredOutcome outcome = shredder.Shred(env.list.Path(row), name);
    if (outcome == ShredOutcome::kDeleted) {
      job.LogTool(job.Text("shredder.log_subject"), "\"" + env.list.Path(row) + "\"");
      job.Done();
    }
    if (outcome == ShredOutcome::kSkipped) job.Skipped();
    job.EndFile(i);
    if (outcome == ShredOutcome::kStopJob || job.result().cancelled) break;
  }
  job.Finish(true);
  return job.result();
}

}  // namespace tarnwick
