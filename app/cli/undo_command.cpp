// "undo": carries out an undo batch, newest run first, never overwriting.
#include <array>
#include <charconv>
#include <string>

#include "cli_command.h"
#include "core/undo_runner.h"

namespace tarnwick::cli {
namespace {

constexpr std::string_view kCommand = "undo";

struct UndoArgs {
  std::string batch;
  UndoRunOptions options;
};

std::optional<std::string> ParseArgs(std::span<const std::string> args, UndoArgs& out) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--dry-run") {
      out.options.dry_run = true;
    } else if (arg == "--runs") {
      if (i + 1 >= args.size()) return "--runs needs a number";
      const std::string& value = args[++i];
      int runs = 0;
      const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), runs);
      if (error != std::errc() || end != value.data() + value.size() || runs < 1) {
        return "--runs takes a whole number from 1 up, not '" + value + "'";
      }
      out.options.runs = runs;
    } else if (arg.starts_with("--")) {
      return "unknown option '" + arg + "'";
    } else if (!out.batch.empty()) {
      return "only one BATCH is expected";
    } else {
      out.batch = arg;
    }
  }
  if (out.batch.empty()) return "BATCH is missing";
  return std::nullopt;
}

std::string_view OutcomeWord(UndoStepOutcome outcome) {
  switch (outcome) {
    case UndoStepOutcome::kDone:
      return "done";
    case UndoStepOutcome::kWouldDo:
      return "would do";
    case UndoStepOutcome::kFailed:
      return "FAILED";
    case UndoStepOutcome::kSkipped:
      return "skipped";
  }
  return "";
}

// "done: move NEW -> OLD" or "FAILED: del NEW (58: File already exists)".
void PrintStep(const UndoStep& step, std::ostream& out) {
  out << OutcomeWord(step.outcome) << ": line " << step.line_number << ": " << step.line.command
      << ' ' << step.line.new_path;
  if (step.line.command != "del") out << " -> " << step.line.old_path;
  if (step.outcome == UndoStepOutcome::kFailed) {
    out << " (" << step.status.number << ": " << step.status.description << ')';
  }
  out << '\n';
}

void PrintRecoveries(const UndoReport& report, std::ostream& err) {
  for (const JournalRecovery& r : report.recoveries) {
    if (r.outcome == JournalRecovery::Outcome::kCompleted) {
      err << kProgramName << ": completed from the journal of an interrupted run ("
          << r.lines_added.size() << " line(s) added)\n";
    } else if (r.outcome == JournalRecovery::Outcome::kRunStillActive) {
      err << kProgramName << ": a run is still writing this batch: " << r.journal.string() << '\n';
    } else if (r.outcome == JournalRecovery::Outcome::kFailed) {
      err << kProgramName << ": could not complete the batch from " << r.journal.string() << ": "
          << r.status.description << '\n';
    }
  }
}

int RunUndo(std::span<const std::string> raw, CliIo& io) {
  UndoArgs args;
  if (const auto error = ParseArgs(raw, args)) return UsageError(io, kCommand, *error);
  const UndoReport report = RunUndoBatch(args.batch, args.options,
                                         [&](const UndoStep& step) { PrintStep(step, io.out); });
  PrintRecoveries(report, io.err);
  if (!report.status.ok()) {
    return Failure(io, "cannot read " + args.batch + ": " + report.status.description);
  }
  io.err << kProgramName << ": " << report.runs_done << " of " << report.runs_in_batch
         << " run(s), " << report.done << (args.options.dry_run ? " possible, " : " done, ")
         << report.failed << " failed, " << report.skipped << " skipped\n";
  return report.failed > 0 ? kExitFailure : kExitOk;
}

constexpr std::array<CommandForm, 1> kForms = {{
    {"undo BATCH.bat [--dry-run] [--runs N]",
     "take runs back by the move and del lines of their undo batch, newest run first"},
}};

constexpr std::string_view kDetails =
    "Options:\n"
    "  --dry-run   only tell what would be done; nothing is changed\n"
    "  --runs N    the newest N runs of the batch only (default: all)\n"
    "\n"
    "Each run's lines are carried out from its last to its first. A move never\n"
    "replaces a file: when the old name is taken again, the line fails and both\n"
    "files stay. Lines of test runs (rem) are skipped. Where a run was killed,\n"
    "its journal beside the batch completes the batch first. One line per step\n"
    "goes to standard output, a summary to standard error.\n"
    "\n"
    "Exit status: 0 every line done, 1 a line failed or the batch cannot be\n"
    "read, 2 bad arguments.\n";

}  // namespace

extern const Command kUndoCommand = {
    .name = kCommand,
    .summary = "take runs back by their undo batch",
    .forms = kForms,
    .details = kDetails,
    .run = RunUndo,
};

}  // namespace tarnwick::cli
