// "copy" and "move": the files named, or those of a folder that match a
// pattern, into a target folder; or only a batch script that would do it.
#include <array>
#include <cstdlib>
#include <iostream>

#include "base/path_text.h"
#include "base/vb_date_text.h"
#include "cli_job.h"
#include "platform/files.h"
#include "tools/copy_move.h"

namespace tarnwick::cli {
namespace {

struct CopyMoveArgs {
  CopyMoveChoices choices;
  FileArgs files;
  bool keep_date = false;
  bool shift_seen = false;
};

// "+3d", "-2h", "+90min": one amount of a shift; the sign sets add or subtract.
std::optional<std::string> ParseShift(const std::string& text, CopyMoveArgs& out) {
  DateChange& date = out.choices.date;
  if (text.size() < 3 || (text[0] != '+' && text[0] != '-')) {
    return "--shift takes +N or -N with a unit (d, m, y, h, min, s): '" + text + "'";
  }
  const DateShift shift = text[0] == '+' ? DateShift::kAdd : DateShift::kSubtract;
  if (out.shift_seen && date.shift != shift) {
    return "the shifts of one job all add or all subtract";
  }
  std::size_t digits = 1;
  while (digits < text.size() && std::isdigit(static_cast<unsigned char>(text[digits]))) ++digits;
  const std::string unit = text.substr(digits);
  if (digits == 1 || digits > 10) return "--shift needs a number: '" + text + "'";
  const long amount = std::strtol(text.substr(1, digits - 1).c_str(), nullptr, 10);
  if (amount > 1000000) return "--shift amount too large: '" + text + "'";
  const int value = static_cast<int>(amount);
  if (unit == "d") {
    date.days += value;
  } else if (unit == "m") {
    date.months += value;
  } else if (unit == "y") {
    date.years += value;
  } else if (unit == "h") {
    date.hours += value;
  } else if (unit == "min") {
    date.minutes += value;
  } else if (unit == "s") {
    date.seconds += value;
  } else {
    return "--shift unit must be d, m, y, h, min or s: '" + text + "'";
  }
  date.enabled = true;
  date.shift = shift;
  out.shift_seen = true;
  return std::nullopt;
}

std::optional<std::string> ParseDatePart(const std::string& option, const std::string& text,
                                         CopyMoveArgs& out) {
  const bool is_date = option == "--date";
  const std::optional<vb::DateTime> parsed =
      vb::ParseDateTime(is_date ? text : "30.12.1899 " + text, "dd.mm.yyyy");
  const bool shape_ok = is_date ? text.size() == 10 : (text.size() == 8 || text.size() == 5);
  if (!parsed || !shape_ok) {
    return option + (is_date ? " takes DD.MM.YYYY" : " takes HH:MM:SS") + ": '" + text + "'";
  }
  DateChange& date = out.choices.date;
  date.enabled = true;
  if (is_date) {
    date.set_date = true;
    date.date = *parsed;
  } else {
    date.set_time = true;
    date.time = *parsed;
  }
  return std::nullopt;
}

std::optional<std::string> ParseArgs(std::span<const std::string> args, CopyMoveArgs& out) {
  std::vector<std::string> positional;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    const bool takes_value =
        arg == "--date" || arg == "--time" || arg == "--shift" || arg == "--batch";
    if (takes_value && i + 1 >= args.size()) return arg + " needs a value";
    if (arg == "--overwrite") {
      out.choices.overwrite = true;
    } else if (arg == "--keep-date") {
      out.keep_date = true;
    } else if (arg == "--append") {
      out.choices.append_batch = true;
    } else if (arg == "--date" || arg == "--time") {
      if (auto error = ParseDatePart(arg, args[++i], out)) return error;
    } else if (arg == "--shift") {
      if (auto error = ParseShift(args[++i], out)) return error;
    } else if (arg == "--batch") {
      out.choices.batch_only = true;
      out.choices.batch_path = AbsolutePathName(args[++i], "");
    } else if (std::optional<std::string> error; out.files.Take(args, i, error)) {
      if (error) return error;
    } else if (arg.starts_with("--")) {
      return "unknown option " + arg;
    } else {
      positional.push_back(arg);
    }
  }
  if (positional.empty()) return "the target folder is missing";
  out.choices.target_folder = AbsolutePathName(positional.front(), "");
  out.files.files.assign(positional.begin() + 1, positional.end());
  if (out.shift_seen && (out.choices.date.set_date || out.choices.date.set_time)) {
    return "--date/--time set a date, --shift moves it: use one or the other";
  }
  if (auto error = out.files.Check()) return error;
  if (out.choices.append_batch && !out.choices.batch_only) return "--append needs --batch FILE";
  if (out.choices.batch_only && !out.choices.append_batch && FileExists(out.choices.batch_path)) {
    return out.choices.batch_path + " exists: add --append, or choose another name";
  }
  return std::nullopt;
}

int RunCopyOrMove(std::span<const std::string> raw, CliIo& io, bool move) {
  const std::string_view command = move ? "move" : "copy";
  CopyMoveArgs args;
  args.choices.move = move;
  if (auto error = ParseArgs(raw, args)) return UsageError(io, command, *error);
  CliJob job(io, false);
  if (const std::string problem = CheckCopyMoveTarget(args.choices, job.messages);
      !problem.empty()) {
    std::string text = problem;
    std::erase(text, '\r');
    std::replace(text.begin(), text.end(), '\n', ' ');
    return UsageError(io, command, text);
  }
  if (args.keep_date) job.options.SetOverride("KeepOldFiledate", "Options", "1");
  ToolJobResult result;
  const auto tool = [&](const RenameRunEnv& env) { return CopyMoveFiles(env, args.choices); };
  if (auto status = RunOnFiles(job, io, command, args.files, tool, result)) return *status;
  const std::string_view done_word =
      args.choices.batch_only ? "written to the script" : (move ? "moved" : "copied");
  const int status = EndToolJob(io, result, done_word);
  if (args.choices.batch_only && result.failed == 0) io.out << args.choices.batch_path << '\n';
  return status;
}

int RunCopy(std::span<const std::string> args, CliIo& io) { return RunCopyOrMove(args, io, false); }
int RunMove(std::span<const std::string> args, CliIo& io) { return RunCopyOrMove(args, io, true); }

constexpr std::string_view kOptionsText =
    "Options:\n"
    "  --overwrite          replace a file of the same name in DIR (default:\n"
    "                       such a file is left alone and the file fails)\n"
    "  --keep-date          the copy takes the date the list shows for the\n"
    "                       original (as the option KeepOldFiledate)\n"
    "  --date DD.MM.YYYY    give every file this date, keeping its time\n"
    "  --time HH:MM:SS      give every file this time of day, keeping its date\n"
    "  --shift +N|-N UNIT   move each file's date by N days (d), months (m),\n"
    "                       years (y), hours (h), minutes (min) or seconds (s),\n"
    "                       e.g. --shift +1d --shift +2h; may be repeated, but\n"
    "                       all shifts of one job add or all subtract; a month\n"
    "                       after 31 January ends on the last day of February\n"
    "  --batch OUT.bat      change no file: write a batch script of the job\n"
    "  --append             add the script to OUT.bat, after its own header\n"
    "  --from-list DIR      take the files of DIR instead of FILES...\n"
    "  --select GLOB        with --from-list: only names that match\n"
    "                       (case-insensitive)\n"
    "\n"
    "The date changes apply after the copy or move, in local time; a file\n"
    "cannot get a birth time on Linux, so its last-write and last-access times\n"
    "are set. Nothing is ever replaced without --overwrite, not even a file\n"
    "that appears in DIR while the job runs; with --overwrite the old file is\n"
    "replaced in one step, never deleted first. A move to another file system\n"
    "copies, flushes the copy to disk, and removes the original only then.\n"
    "Each file goes to the log as the options say. Ctrl-C stops after the\n"
    "current file.\n"
    "\n"
    "Exit status: 0 every file done, 1 a file failed (each named on standard\n"
    "error) or the job was cancelled, 2 bad arguments or a target folder that\n"
    "is missing or cannot be written to.\n";

constexpr std::array<CommandForm, 2> kCopyForms = {{
    {"copy DIR FILES... [--overwrite] [--keep-date] [--date DD.MM.YYYY] [--time HH:MM:SS] "
     "[--shift +|-N{d,m,y,h,min,s}]... [--batch OUT.bat [--append]]",
     "copy the files into the folder DIR"},
    {"copy DIR --from-list FOLDER [--select GLOB] [options]",
     "copy the files of FOLDER (those matching GLOB) into DIR"},
}};

constexpr std::array<CommandForm, 2> kMoveForms = {{
    {"move DIR FILES... [--overwrite] [--date DD.MM.YYYY] [--time HH:MM:SS] "
     "[--shift +|-N{d,m,y,h,min,s}]... [--batch OUT.bat [--append]]",
     "move the files into the folder DIR"},
    {"move DIR --from-list FOLDER [--select GLOB] [options]",
     "move the files of FOLDER (those matching GLOB) into DIR"},
}};

}  // namespace

extern const Command kCopyCommand = {
    .name = "copy",
    .summary = "copy files into a folder, setting or shifting their dates",
    .forms = kCopyForms,
    .details = kOptionsText,
    .run = RunCopy,
};

extern const Command kMoveCommand = {
    .name = "move",
    .summary = "move files into a folder, setting or shifting their dates",
    .forms = kMoveForms,
    .details = kOptionsText,
    .run = RunMove,
};

}  // namespace tarnwick::cli
