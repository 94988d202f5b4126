// "shred": files overwritten in passes and deleted.
#include <array>
#include <cstdlib>

#include "cli_job.h"
#include "tools/secure_delete.h"

namespace tarnwick::cli {
namespace {

struct ShredArgs {
  FileArgs files;
  int passes = 0;  // 0: the option FSOverwrite
  bool yes = false;
};

std::optional<std::string> ParseShred(std::span<const std::string> args, ShredArgs& out) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--passes") {
      if (i + 1 >= args.size()) return "--passes needs a value";
      char* end = nullptr;
      const long passes = std::strtol(args[++i].c_str(), &end, 10);
      if (*end != '\0' || passes < 1 || passes > 99)
        return "--passes takes 1 to 99: '" + args[i] + "'";
      out.passes = static_cast<int>(passes);
    } else if (arg == "--yes" || arg == "-y") {
      out.yes = true;
    } else if (std::optional<std::string> error; out.files.Take(args, i, error)) {
      if (error) return error;
    } else if (arg.starts_with("--")) {
      return "unknown option " + arg;
    } else {
      out.files.files.push_back(arg);
    }
  }
  return out.files.Check();
}

int RunShred(std::span<const std::string> raw, CliIo& io) {
  ShredArgs args;
  if (auto error = ParseShred(raw, args)) return UsageError(io, "shred", *error);
  CliJob job(io, args.yes, true);
  const int passes = args.passes > 0 ? args.passes : ShredPasses(job.options);
  SystemRandom random;
  const auto tool = [&](const RenameRunEnv& env) { return SecureDeleteFiles(env, passes, random); };
  return RunConfirmedTool(job, io, "shred", args.files, tool, "shredded");
}

constexpr std::string_view kShredDetails =
    "Options:\n"
    "  --passes N           passes of each series, 1 to 99 (default: the option\n"
    "                       FSOverwrite, 8)\n"
    "  --yes, -y            answer every question Yes: the confirmation, and\n"
    "                       \"delete it anyway?\" for a write-protected file\n"
    "  --from-list DIR      take the files of DIR instead of FILES...\n"
    "  --select GLOB        with --from-list: only names that match\n"
    "\n"
    "Each file is renamed to random digits in its folder (the log names it),\n"
    "then overwritten: N passes of three sweeps (bytes 0, 255, 255; the last\n"
    "partial block 90, 255, 140), then N passes of random block values 1 to\n"
    "255, each sweep flushed to the disk (fdatasync) before the next; then it\n"
    "is deleted. Folders are refused; a symbolic link is never followed (name\n"
    "the file itself); a file open in another program is not touched.\n"
    "\n"
    "What overwriting cannot promise: on SSDs, USB sticks and SD cards the\n"
    "controller may keep the old blocks elsewhere, and copy-on-write or\n"
    "journalling file systems (btrfs, ZFS, ext4 with data=journal) and\n"
    "snapshots may hold older copies. There, use full-disk encryption.\n"
    "\n"
    "The question is asked on a terminal; elsewhere, without --yes, nothing is\n"
    "touched. Ctrl-C stops after the current sweep; the file in work, already\n"
    "overwritten, is still deleted.\n"
    "\n"
    "Exit status: 0 done (a write-protected file answered No is skipped), 1 a\n"
    "file failed or Ctrl-C, 2 bad arguments, 3 not confirmed.\n";

constexpr std::array<CommandForm, 2> kShredForms = {{
    {"shred FILES... [--passes N] [--yes]", "overwrite the files and delete them"},
    {"shred --from-list FOLDER [--select GLOB] [--passes N] [--yes]",
     "the same for the files of FOLDER (those matching GLOB)"},
}};

}  // namespace

extern const Command kShredCommand = {
    .name = "shred",
    .summary = "secure delete: overwrite files in passes, then delete them",
    .forms = kShredForms,
    .details = kShredDetails,
    .run = RunShred,
};

}  // namespace tarnwick::cli
