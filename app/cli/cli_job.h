#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "base/clock.h"
#include "cli_command.h"
#include "core/rename_settings.h"
#include "core/start_rename.h"
#include "filelist/file_list.h"
#include "filelist/list_loader.h"
#include "filelist/media_column_source.h"
#include "media/media_readers.h"
#include "patient_interaction.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "shell/app_state.h"
#include "shell/message_table.h"
#include "tools/tool_job.h"

namespace tarnwick::cli {

// FILES... or --from-list DIR [--select GLOB]: the files a command works on.
struct FileArgs {
  std::vector<std::string> files;
  std::string from_list;
  std::string select;

  // Takes `--from-list DIR` or `--select GLOB` at args[i], moving i past the
  // value; false for any other argument. A missing value sets `error`.
  bool Take(std::span<const std::string> args, std::size_t& i, std::optional<std::string>& error);
  // The mistake in how the files were named, or nothing.
  std::optional<std::string> Check() const;
};

// Everything a command needs that works on files as the window's tools do:
// the user's options, the log and undo folders set up as at start-up, the
// command line's answers to questions, and the list of the files named.
class CliJob {
 public:
  // `ask_on_terminal`: questions are put to the user when standard input
  // and standard error are a terminal (else each gets its default answer).
  CliJob(CliIo& io, bool assume_yes, bool ask_on_terminal = false);

  // The rows of FILES, in the order named; every row selected. The message
  // of the files that are no files, or nothing.
  std::optional<std::string> ListFiles(std::span<const std::string> files);
  // The rows of a folder's files whose names match `glob` (case-insensitive;
  // empty: all), every row selected. The message of a missing folder.
  std::optional<std::string> ListFolder(const std::string& folder, const std::string& glob);

  // ListFiles or ListFolder, as the arguments name the files.
  std::optional<std::string> List(const FileArgs& files);

  RenameRunEnv Env();
  // The loader the list was filled by, for a job that reads folders anew.
  FileListLoader& loader() { return loader_; }

  OptionStore options;
  AppState app;
  PatientInteraction ui;
  const MessageTable& messages;
  SystemClock clock;
  LogUndoState log_undo;
  RenameSettings settings;
  FileList list;

 private:
  class FillLog : public FileListLog {
   public:
    explicit FillLog(std::ostream& err) : err_(err) {}
    void WriteLogFileHeader() override {}
    void WriteLogFileTool(std::string_view subject, std::string_view text) override;

   private:
    std::ostream& err_;
  };

  CliIo& io_;
  FillLog fill_log_;
  MediaColumnSource media_;
  MediaReaders readers_;
  FileListLoader loader_;
};

// A run's or a tool's counts on standard error: "3 copied, 0 skipped, 1 failed".
void PrintCounts(CliIo& io, std::int64_t done, std::string_view done_word, std::int64_t skipped,
                 std::int64_t failed, bool cancelled);

// The files of `files` listed and `tool` run on them, Ctrl-C standing for
// Esc; the job's result goes to `result`. The exit status when the files
// could not be listed (2) or there were none (1); nothing when the tool ran.
std::optional<int> RunOnFiles(CliJob& job, CliIo& io, std::string_view command,
                              const FileArgs& files,
                              const std::function<ToolJobResult(const RenameRunEnv&)>& tool,
                              ToolJobResult& result);

// The end of a tool job on the command line: each failure named on standard
// error, then the counts; the exit status (1 when a file failed or the job
// was cancelled).
int EndToolJob(CliIo& io, const ToolJobResult& result, std::string_view done_word);

// RunOnFiles, then the end of the job, for a tool that asks before it
// starts (shred, jpeg --replace, resize --replace): a question answered No
// (or not asked, off a terminal, without --yes) exits 3 with
// "not confirmed, nothing was touched".
int RunConfirmedTool(CliJob& job, CliIo& io, std::string_view command, const FileArgs& files,
                     const std::function<ToolJobResult(const RenameRunEnv&)>& tool,
                     std::string_view done_word);

// Exit status of a command whose choices a check of its dialogue refused.
inline constexpr int kExitRefused = 3;

// Writes "tarnwick-cli: WHY" to standard error; returns kExitRefused.
int Refusal(CliIo& io, std::string_view why);

}  // namespace tarnwick::cli
