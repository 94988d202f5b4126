#include "cli_job.h"

#include <fnmatch.h>

#include "base/path_text.h"
#include "persist/default_paths.h"
#include "persist/log_file.h"
#include "platform/files.h"
#include "platform/user_folders.h"
#include "shell/cancel.h"

namespace tarnwick::cli {
namespace {

CliOptions AnswersOf(bool assume_yes, bool ask_on_terminal) {
  CliOptions options;
  options.assume_yes = assume_yes;
  options.interactive = ask_on_terminal;
  return options;
}

}  // namespace

void CliJob::FillLog::WriteLogFileTool(std::string_view subject, std::string_view text) {
  err_ << kProgramName << ": " << subject << ": " << text << '\n';
}

CliJob::CliJob(CliIo& io, bool assume_yes, bool ask_on_terminal)
    : options(OptionStore::ForCurrentUser()),
      ui(AnswersOf(assume_yes, ask_on_terminal)),
      messages(MessageTable::Get(SystemLanguage())),
      io_(io),
      fill_log_(io.err),
      loader_({options, app, ui, fill_log_, media_, messages}) {
  app.BatchMode = true;
  LogUndoEnv log_env{options, ui, messages, clock, app, log_undo};
  RunLog log(log_env);
  CreateDefaultPaths(log_env, log, UserDataBaseFolder(), UserDataFallbackFolder());
  log_undo.ProgramFolder = ProgramFilesFolder().string();
}

std::optional<std::string> CliJob::ListFiles(std::span<const std::string> files) {
  TakeViewFlags(options, app);
  app.ShowHiddenFlag = 1;  // a file named on the command line is meant
  app.CurrentPath = AbsolutePathName(ParentFolder(AbsolutePathName(files.front(), "")), "");
  const std::vector<std::string> missing = loader_.FillListWithFiles(list, files);
  list.SelectAll();
  if (missing.empty()) return std::nullopt;
  std::string message = "no such file:";
  for (const std::string& path : missing) message += " " + path;
  return message;
}

std::optional<std::string> CliJob::ListFolder(const std::string& folder, const std::string& glob) {
  const std::string absolute = AbsolutePathName(folder, "");
  if (!FolderExists(absolute)) return "no such folder: " + absolute;
  TakeViewFlags(options, app);
  app.CurrentPath = absolute;
  {
    ScopedInterruptCancel interrupt(app);
    loader_.FillListView(list, {absolute, false});
    if (app.CancelRun) return std::string("cancelled while reading the folder");
  }
  for (std::size_t r = 0; r < list.size(); ++r) {
    const std::string name = list.Text(r, file_column::kName);
    list.Select(r, glob.empty() || ::fnmatch(glob.c_str(), name.c_str(), FNM_CASEFOLD) == 0);
  }
  return std::nullopt;
}

bool FileArgs::Take(std::span<const std::string> args, std::size_t& i,
                    std::optional<std::string>& error) {
  const std::string& arg = args[i];
  if (arg != "--from-list" && arg != "--select") return false;
  if (i + 1 >= args.size()) {
    error = arg + " needs a value";
    return true;
  }
  (arg == "--from-list" ? from_list : select) = args[++i];
  return true;
}

std::optional<std::string> FileArgs::Check() const {
  if (files.empty() == from_list.empty()) {
    return "name the files, or give --from-list DIR (with --select GLOB), not both";
  }
  if (!select.empty() && from_list.empty()) return "--select needs --from-list DIR";
  return std::nullopt;
}

std::optional<std::string> CliJob::List(const FileArgs& files) {
  return files.from_list.empty() ? ListFiles(files.files)
                                 : ListFolder(files.from_list, files.select);
}

RenameRunEnv CliJob::Env() {
  return {app, settings, list, options, ui, messages, clock, log_undo, readers_};
}

void PrintCounts(CliIo& io, std::int64_t done, std::string_view done_word, std::int64_t skipped,
                 std::int64_t failed, bool cancelled) {
  io.err << kProgramName << ": " << done << " " << done_word << ", " << skipped << " skipped, "
         << failed << " failed" << (cancelled ? ", cancelled" : "") << '\n';
}

std::optional<int> RunOnFiles(CliJob& job, CliIo& io, std::string_view command,
                              const FileArgs& files,
                              const std::function<ToolJobResult(const RenameRunEnv&)>& tool,
                              ToolJobResult& result) {
  if (const auto listed = job.List(files)) return UsageError(io, command, *listed);
  if (job.list.SelectedCount() == 0) return Failure(io, "no file to work on");
  {
    ScopedInterruptCancel interrupt(job.app);
    result = tool(job.Env());
  }
  job.ui.HideProgress();
  return std::nullopt;
}

int RunConfirmedTool(CliJob& job, CliIo& io, std::string_view command, const FileArgs& files,
                     const std::function<ToolJobResult(const RenameRunEnv&)>& tool,
                     std::string_view done_word) {
  ToolJobResult result;
  if (auto status = RunOnFiles(job, io, command, files, tool, result)) return *status;
  if (result.refused) {
    return Refusal(io, "not confirmed, nothing was touched (answer on a terminal, or add --yes)");
  }
  return EndToolJob(io, result, done_word);
}

int Refusal(CliIo& io, std::string_view why) {
  io.err << kProgramName << ": " << why << '\n';
  return kExitRefused;
}

int EndToolJob(CliIo& io, const ToolJobResult& result, std::string_view done_word) {
  for (const std::string& failure : result.failures)
    io.err << kProgramName << ": " << failure << '\n';
  PrintCounts(io, result.done, done_word, result.skipped, result.failed, result.cancelled);
  return result.failed > 0 || result.cancelled ? kExitFailure : kExitOk;
}

}  // namespace tarnwick::cli
