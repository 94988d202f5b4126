// "rename-from-text": new names by position from a text file.
#include <array>
#include <iostream>

#include "cli_job.h"
#include "shell/cancel.h"
#include "tools/rename_from_text.h"

namespace tarnwick::cli {
namespace {

struct RenameTextArgs {
  std::string text_file;
  FileArgs files;
  int mode = 0;
  bool yes = false;
};

std::optional<std::string> ParseArgs(std::span<const std::string> args, RenameTextArgs& out) {
  std::vector<std::string> positional;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    const bool takes_value = arg == "--mode";
    if (takes_value && i + 1 >= args.size()) return arg + " needs a value";
    if (arg == "--yes") {
      out.yes = true;
    } else if (arg == "--mode") {
      const std::string& mode = args[++i];
      if (mode == "rename") {
        out.mode = 0;
      } else if (mode == "copy") {
        out.mode = 1;
      } else if (mode == "test") {
        out.mode = 2;
      } else {
        return "--mode is rename, copy or test, not '" + mode + "'";
      }
    } else if (std::optional<std::string> error; out.files.Take(args, i, error)) {
      if (error) return error;
    } else if (arg.starts_with("--")) {
      return "unknown option " + arg;
    } else {
      positional.push_back(arg);
    }
  }
  if (positional.empty()) return "the text file of names is missing";
  out.text_file = positional.front();
  out.files.files.assign(positional.begin() + 1, positional.end());
  if (auto error = out.files.Check()) return error;
  return std::nullopt;
}

// A message of the dialogue's boxes on standard error, its line ends as they
// fall on a terminal.
void PrintBox(CliIo& io, const NameTextCheck& check) {
  std::string text = check.message;
  std::erase(text, '\r');
  io.err << kProgramName << ": " << check.title << "\n" << text << '\n';
}

const char* DoneWord(int mode) {
  if (mode == 0) return "renamed";
  if (mode == 1) return "copied";
  return "tested";
}

int RunRenameText(std::span<const std::string> raw, CliIo& io) {
  RenameTextArgs args;
  if (auto error = ParseArgs(raw, args)) return UsageError(io, "rename-from-text", *error);
  CliJob job(io, args.yes);
  if (const auto listed = job.List(args.files)) return UsageError(io, "rename-from-text", *listed);
  const NameTextFile file = ReadNameTextFile(args.text_file, job.messages);
  const NameTextCheck check = CheckNameTextFile(file, job.list.SelectedCount(), job.messages);
  if (!check.ok) {
    PrintBox(io, check);
    return kExitRefused;
  }
  job.settings.optCopyRename = args.mode;
  if (args.mode != 2 && !ConfirmRenameFromText(job.ui, job.messages)) {
    return Failure(io, "not confirmed: add --yes to proceed");
  }
  RenameRunResult result;
  {
    ScopedInterruptCancel interrupt(job.app);
    result = RenameFromTextFile(job.Env(), file);
  }
  job.ui.HideProgress();
  PrintCounts(io, result.done, DoneWord(result.mode), result.skipped, result.failed,
              result.cancelled);
  return result.failed > 0 || result.cancelled ? kExitFailure : kExitOk;
}

constexpr std::array<CommandForm, 2> kForms = {{
    {"rename-from-text TEXTFILE FILES... [--mode rename|copy|test] [--yes]",
     "give the k-th file the name in row k of TEXTFILE"},
    {"rename-from-text TEXTFILE --from-list DIR [--select GLOB] [--mode ...] [--yes]",
     "the same for the files of DIR (those matching GLOB), in name order"},
}};

constexpr std::string_view kDetails =
    "Options:\n"
    "  --mode MODE        rename (default), copy (the copies take the new\n"
    "                     names) or test (changes nothing; one line per file\n"
    "                     on standard output)\n"
    "  --yes              answer \"Are you sure to proceed?\" with Yes\n"
    "  --from-list DIR    take the files of DIR instead of FILES...\n"
    "  --select GLOB      with --from-list: only names that match\n"
    "\n"
    "TEXTFILE holds one name per row. Its bytes are read as UTF-8 when they\n"
    "are valid UTF-8 (a byte-order mark is dropped), otherwise as Windows-1252.\n"
    "Rows end at CR LF; a file without any CR LF ends its rows at LF, and the\n"
    "LF after its last row starts no new one. A file that ends in CR LF has an\n"
    "empty last row, which counts.\n"
    "\n"
    "First the rows are checked: a row holding a control character or one of\n"
    "\\ / : * ? \" < > | is reported with its row (counted from 0) and its\n"
    "character (from 1), and the number of rows must equal the number of\n"
    "files. Either refusal ends the command with exit status 3 and the report\n"
    "on standard error. Then file k takes row k; a name without a dot keeps\n"
    "the file's own extension; an empty row is not written. A taken name is\n"
    "skipped; nothing is overwritten. The log and the undo batch are written\n"
    "as for a run, so 'tarnwick-cli undo' takes the names back.\n"
    "\n"
    "Exit status: 0 no file failed, 1 a file failed, the run was cancelled or\n"
    "not confirmed, 2 bad arguments, 3 the text file was refused.\n";

}  // namespace

extern const Command kRenameFromTextCommand = {
    .name = "rename-from-text",
    .summary = "rename files by position from a text file of names",
    .forms = kForms,
    .details = kDetails,
    .run = RunRenameText,
};

}  // namespace tarnwick::cli
