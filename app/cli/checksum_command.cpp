// "checksum": MD5 or SHA-256 digests of files, as the report writes them or
// as md5sum / sha256sum do; and the check of such a list.
#include <array>
#include <fstream>
#include <sstream>

#include "cli_job.h"
#include "shell/cancel.h"
#include "tools/checksum_list.h"
#include "tools/checksum_report.h"

namespace tarnwick::cli {
namespace {

constexpr std::uintmax_t kLargestList = 256u << 20;

struct ChecksumArgs {
  DigestKind kind = DigestKind::kSha256;
  bool coreutils = false;
  std::string check_file;
  FileArgs files;
};

std::optional<std::string> ParseChecksum(std::span<const std::string> args, ChecksumArgs& out) {
  if (args.empty() || (args[0] != "md5" && args[0] != "sha256")) {
    return "name the digest first: md5 or sha256";
  }
  out.kind = args[0] == "md5" ? DigestKind::kMd5 : DigestKind::kSha256;
  for (std::size_t i = 1; i < args.size(); ++i) {
    const std::string& arg = args[i];
    const bool takes_value = arg == "--format" || arg == "--check";
    if (takes_value && i + 1 >= args.size()) return arg + " needs a value";
    if (arg == "--format") {
      const std::string& format = args[++i];
      if (format != "report" && format != "coreutils") {
        return "--format takes report or coreutils: '" + format + "'";
      }
      out.coreutils = format == "coreutils";
    } else if (arg == "--check") {
      out.check_file = args[++i];
    } else if (std::optional<std::string> error; out.files.Take(args, i, error)) {
      if (error) return error;
    } else if (arg.starts_with("--")) {
      return "unknown option " + arg;
    } else {
      out.files.files.push_back(arg);
    }
  }
  if (!out.check_file.empty()) {
    if (!out.files.files.empty() || !out.files.from_list.empty()) {
      return "--check FILE reads the files from FILE; name no others";
    }
    return std::nullopt;
  }
  return out.files.Check();
}

int WriteDigests(const ChecksumArgs& args, CliIo& io) {
  CliJob job(io, false);
  ChecksumReport report;
  const auto tool = [&](const RenameRunEnv& env) {
    report = BuildChecksumReport(env, args.kind);
    return report.result;
  };
  ToolJobResult result;
  if (auto status = RunOnFiles(job, io, "checksum", args.files, tool, result)) return *status;
  for (const ChecksumLine& line : report.lines) {
    if (!line.status.ok()) continue;
    if (args.coreutils) {
      io.out << CoreutilsLine(line.digest, line.path);
    } else {
      io.out << line.path << "; " << DigestName(args.kind) << ": " << line.digest << '\n';
    }
  }
  return EndToolJob(io, report.result, "read");
}

// The lines of a checksum file verified as `sha256sum -c` does: "path: OK"
// or "path: FAILED" on standard output, problems on standard error.
int CheckDigests(const ChecksumArgs& args, CliIo& io) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(args.check_file, error);
  if (error) return Failure(io, args.check_file + ": " + error.message());
  if (size > kLargestList) return Failure(io, args.check_file + ": too large for a checksum list");
  std::ifstream in(args.check_file, std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  const ChecksumList list = ParseChecksumList(text.str(), args.kind);
  AppState app;
  ScopedInterruptCancel interrupt(app);
  int failed = 0;
  int unreadable = 0;
  for (const ChecksumListEntry& entry : list.entries) {
    if (app.CancelRun) break;
    const FileResult<std::string> digest =
        FileDigest(entry.path, args.kind, [&app] { return app.CancelRun.load(); });
    if (app.CancelRun) break;
    if (!digest.ok()) {
      ++unreadable;
      io.out << entry.path << ": FAILED open or read\n";
      io.err << kProgramName << ": " << entry.path << ": " << digest.status().number << ": "
             << digest.status().description << '\n';
    } else if (digest.value() != entry.digest) {
      ++failed;
      io.out << entry.path << ": FAILED\n";
    } else {
      io.out << entry.path << ": OK\n";
    }
  }
  if (!list.bad_lines.empty()) {
    io.err << kProgramName << ": " << args.check_file << ": " << list.bad_lines.size()
           << " line(s) are not " << DigestName(args.kind) << " checksum lines (first: line "
           << list.bad_lines.front() << ")\n";
  }
  if (list.entries.empty()) return Failure(io, args.check_file + ": no checksum lines found");
  if (failed > 0)
    io.err << kProgramName << ": " << failed << " computed checksum(s) did NOT match\n";
  if (unreadable > 0)
    io.err << kProgramName << ": " << unreadable << " file(s) could not be read\n";
  if (app.CancelRun) io.err << kProgramName << ": cancelled\n";
  return failed + unreadable > 0 || app.CancelRun ? kExitFailure : kExitOk;
}

int RunChecksum(std::span<const std::string> raw, CliIo& io) {
  ChecksumArgs args;
  if (auto error = ParseChecksum(raw, args)) return UsageError(io, "checksum", *error);
  return args.check_file.empty() ? WriteDigests(args, io) : CheckDigests(args, io);
}

constexpr std::string_view kChecksumDetails =
    "Options:\n"
    "  --format report      \"PATH; MD5: digest\" per file, as the window's report\n"
    "                       (default)\n"
    "  --format coreutils   \"digest  PATH\" per file, as md5sum / sha256sum write\n"
    "                       it (names with a backslash or a line end escaped)\n"
    "  --check FILE         verify the files a checksum list names (either form,\n"
    "                       and \"SHA256 (PATH) = digest\"): \"PATH: OK\" or\n"
    "                       \"PATH: FAILED\" each; relative paths are taken from\n"
    "                       the current folder, as coreutils does\n"
    "  --from-list DIR      take the files of DIR instead of FILES...\n"
    "  --select GLOB        with --from-list: only names that match\n"
    "\n"
    "Digests are lower-case hexadecimal. Files are read in blocks, never whole.\n"
    "Each file goes to the log as the options say. A file that cannot be read\n"
    "is named on standard error and the others go on. Ctrl-C stops, also\n"
    "inside a large file.\n"
    "\n"
    "Exit status: 0 every file read (or matched), 1 a file could not be read or\n"
    "did not match, or Ctrl-C, 2 bad arguments.\n";

constexpr std::array<CommandForm, 3> kChecksumForms = {{
    {"checksum md5|sha256 FILES... [--format report|coreutils]", "print the digest of each file"},
    {"checksum md5|sha256 --from-list FOLDER [--select GLOB] [--format ...]",
     "the same for the files of FOLDER"},
    {"checksum md5|sha256 --check FILE", "verify the files a checksum list names"},
}};

}  // namespace

extern const Command kChecksumCommand = {
    .name = "checksum",
    .summary = "MD5 or SHA-256 digests of files, and the check of a checksum list",
    .forms = kChecksumForms,
    .details = kChecksumDetails,
    .run = RunChecksum,
};

}  // namespace tarnwick::cli
