// "split" and "merge": files cut into numbered pieces, and pieces (or any
// files) joined into one.
#include <array>
#include <cstdlib>

#include "base/path_text.h"
#include "cli_job.h"
#include "platform/files.h"
#include "tools/merge_files.h"
#include "tools/split_file.h"

namespace tarnwick::cli {
namespace {

std::optional<SplitUnit> UnitNamed(const std::string& name) {
  if (name == "megabytes" || name == "mb") return SplitUnit::kMegabytes;
  if (name == "kilobytes" || name == "kb") return SplitUnit::kKilobytes;
  if (name == "bytes" || name == "b") return SplitUnit::kBytes;
  if (name == "count") return SplitUnit::kCount;
  return std::nullopt;
}

std::optional<double> Amount(const std::string& text) {
  char* end = nullptr;
  const double value = std::strtod(text.c_str(), &end);
  if (text.empty() || end != text.c_str() + text.size() || !(value >= 0) || value > 1e15) {
    return std::nullopt;
  }
  return value;
}

struct SplitArgs {
  SplitChoices choices;
  FileArgs files;
  bool size_seen = false;
};

std::optional<std::string> ParseSplit(std::span<const std::string> args, SplitArgs& out) {
  SplitChoices& choices = out.choices;
  choices.extension = "part";
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    const bool takes_value =
        arg == "--size" || arg == "--unit" || arg == "--ext" || arg == "--dest";
    if (takes_value && i + 1 >= args.size()) return arg + " needs a value";
    if (arg == "--size") {
      const std::optional<double> amount = Amount(args[++i]);
      if (!amount) return "--size takes a number: '" + args[i] + "'";
      choices.amount = *amount;
      out.size_seen = true;
    } else if (arg == "--unit") {
      const std::optional<SplitUnit> unit = UnitNamed(args[++i]);
      if (!unit) return "--unit takes megabytes, kilobytes, bytes or count: '" + args[i] + "'";
      choices.unit = *unit;
    } else if (arg == "--ext") {
      choices.extension = args[++i];
    } else if (arg == "--dest") {
      choices.destination = AbsolutePathName(args[++i], "");
    } else if (arg == "--overwrite") {
      choices.overwrite = true;
    } else if (arg == "--sort") {
      choices.sort = true;
    } else if (arg == "--batch") {
      choices.batch = true;
    } else if (arg == "--delete-source") {
      choices.delete_source = true;
    } else if (std::optional<std::string> error; out.files.Take(args, i, error)) {
      if (error) return error;
    } else if (arg.starts_with("--")) {
      return "unknown option " + arg;
    } else {
      out.files.files.push_back(arg);
    }
  }
  if (!out.size_seen) return "--size N is missing";
  if (choices.extension.find('/') != std::string::npos) return "--ext cannot hold a '/'";
  if (!choices.destination.empty() && !FolderExists(choices.destination)) {
    return "--dest names no folder: " + choices.destination;
  }
  return out.files.Check();
}

int RunSplit(std::span<const std::string> raw, CliIo& io) {
  SplitArgs args;
  if (auto error = ParseSplit(raw, args)) return UsageError(io, "split", *error);
  CliJob job(io, false);
  const std::string refused = CheckSplitChoices(args.choices, job.messages);
  if (!refused.empty()) return Refusal(io, refused);
  ToolJobResult result;
  const auto tool = [&](const RenameRunEnv& env) { return SplitFiles(env, args.choices); };
  if (auto status = RunOnFiles(job, io, "split", args.files, tool, result)) return *status;
  return EndToolJob(io, result, "split");
}

struct MergeArgs {
  MergeChoices choices;
  FileArgs files;
};

std::optional<std::string> ParseMerge(std::span<const std::string> args, MergeArgs& out) {
  MergeChoices& choices = out.choices;
  std::vector<std::string> positional;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--filter") {
      if (i + 1 >= args.size()) return "--filter needs a value";
      choices.filter = true;
      choices.filter_text = args[++i];
    } else if (arg == "--overwrite") {
      choices.overwrite = true;
    } else if (arg == "--sort") {
      choices.sort = true;
    } else if (arg == "--delete-source") {
      choices.delete_source = true;
    } else if (std::optional<std::string> error; out.files.Take(args, i, error)) {
      if (error) return error;
    } else if (arg.starts_with("--")) {
      return "unknown option " + arg;
    } else {
      positional.push_back(arg);
    }
  }
  if (positional.empty()) return "the target file is missing";
  choices.target = AbsolutePathName(positional.front(), "");
  out.files.files.assign(positional.begin() + 1, positional.end());
  if (FolderExists(choices.target)) return "the target is a folder: " + choices.target;
  return out.files.Check();
}

int RunMerge(std::span<const std::string> raw, CliIo& io) {
  MergeArgs args;
  if (auto error = ParseMerge(raw, args)) return UsageError(io, "merge", *error);
  CliJob job(io, false);
  const std::string refused = CheckMergeChoices(args.choices, job.messages);
  if (!refused.empty()) return Refusal(io, refused);
  ToolJobResult result;
  const auto tool = [&](const RenameRunEnv& env) { return MergeFiles(env, args.choices); };
  if (auto status = RunOnFiles(job, io, "merge", args.files, tool, result)) return *status;
  const int status = EndToolJob(io, result, "merged");
  if (result.refused) return kExitRefused;
  if (status == kExitOk) io.out << args.choices.target << '\n';
  return status;
}

constexpr std::string_view kSplitDetails =
    "Options:\n"
    "  --size N             the size of a piece in the unit, or the number of\n"
    "                       pieces with --unit count (N with up to four decimals)\n"
    "  --unit U             megabytes (default), kilobytes, bytes or count\n"
    "  --ext EXT            the extension of the pieces (default: part)\n"
    "  --dest DIR           where the pieces go (default: beside each file)\n"
    "  --overwrite          write over pieces that exist (default: a piece that\n"
    "                       exists stops the job and is left as it was)\n"
    "  --sort               take the files in name order\n"
    "  --batch              also write NAME.bat: one line, copy /b with the\n"
    "                       pieces joined by \" + \", that joins them again\n"
    "  --delete-source      delete each file after its split\n"
    "  --from-list DIR      take the files of DIR instead of FILES...\n"
    "  --select GLOB        with --from-list: only names that match\n"
    "\n"
    "Pieces are named NAME_00000.EXT, NAME_00001.EXT, ...; a file of 2.4 pieces\n"
    "gives two, the last of 1.4 pieces, and one of 2.6 pieces gives three. A\n"
    "file no larger than one piece is not split, and never deleted. Files of\n"
    "any size are split. Megabytes are 1024 x 1024 bytes; --unit count 3 of a\n"
    "10-byte file gives pieces of 4, 4 and 2 bytes. A piece that does not fit\n"
    "on the disk is removed again, and its file is kept. Ctrl-C stops after the\n"
    "current piece; the pieces written so far stay.\n"
    "\n"
    "Exit status: 0 every file split, 1 a file failed or the job was stopped\n"
    "(pieces that exist, Ctrl-C), 2 bad arguments, 3 a size the dialogue refuses\n"
    "(below 1, or a count of 1).\n";

constexpr std::string_view kMergeDetails =
    "Options:\n"
    "  --filter TEXT        only files whose name holds TEXT (any case)\n"
    "  --overwrite          replace TARGET when it exists (default: refused)\n"
    "  --sort               take the files in name order (default: as named)\n"
    "  --delete-source      delete the files once TARGET is complete\n"
    "  --from-list DIR      take the files of DIR instead of FILES...\n"
    "  --select GLOB        with --from-list: only names that match\n"
    "\n"
    "TARGET is built under a hidden name beside it and takes its name only when\n"
    "every file is in it (flushed to the disk first when it replaces a file or\n"
    "the files are to be deleted); an old TARGET is then replaced in one step.\n"
    "A failure or Ctrl-C leaves every file as it was. A TARGET that is one of\n"
    "the files is refused. The files are streamed, never held in memory.\n"
    "\n"
    "Exit status: 0 done (TARGET printed), 1 a file failed or Ctrl-C, 2 bad\n"
    "arguments, 3 refused (no TARGET, TARGET exists without --overwrite, or is\n"
    "one of the files).\n";

constexpr std::array<CommandForm, 2> kSplitForms = {{
    {"split FILES... --size N [--unit megabytes|kilobytes|bytes|count] [--ext EXT] [--dest DIR] "
     "[--overwrite] [--sort] [--batch] [--delete-source]",
     "cut each file into numbered pieces"},
    {"split --from-list FOLDER [--select GLOB] --size N [options]",
     "cut the files of FOLDER (those matching GLOB)"},
}};

constexpr std::array<CommandForm, 2> kMergeForms = {{
    {"merge TARGET FILES... [--filter TEXT] [--overwrite] [--sort] [--delete-source]",
     "join the files, in order, into TARGET"},
    {"merge TARGET --from-list FOLDER [--select GLOB] [options]",
     "join the files of FOLDER (those matching GLOB)"},
}};

}  // namespace

extern const Command kSplitCommand = {
    .name = "split",
    .summary = "cut files into numbered pieces, with a script that joins them",
    .forms = kSplitForms,
    .details = kSplitDetails,
    .run = RunSplit,
};

extern const Command kMergeCommand = {
    .name = "merge",
    .summary = "join files into one",
    .forms = kMergeForms,
    .details = kMergeDetails,
    .run = RunMerge,
};

}  // namespace tarnwick::cli
