// "report": the metadata report files for a list of files.
#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "cli_command.h"
#include "filelist/file_size_text.h"
#include "media/exif_reader.h"
#include "media/exif_report.h"
#include "media/mp3_report.h"
#include "platform/files.h"
#include "shell/message_table.h"

namespace tarnwick::cli {
namespace {

constexpr std::string_view kCommand = "report";

int RunReport(std::span<const std::string> args, CliIo& io) {
  std::vector<std::string> rest;
  bool overwrite = false;
  for (const std::string& arg : args) {
    if (arg == "--overwrite") {
      overwrite = true;
    } else if (arg.starts_with("--")) {
      return UsageError(io, kCommand, "unknown option '" + arg + "'");
    } else {
      rest.push_back(arg);
    }
  }
  if (rest.size() < 2) return UsageError(io, kCommand, "KIND and OUT.txt are needed");
  const std::string& kind = rest[0];
  if (kind != "exif" && kind != "mp3") return UsageError(io, kCommand, "KIND is exif or mp3");
  const std::filesystem::path out = rest[1];
  if (std::filesystem::exists(out) && !overwrite) {
    return Failure(io, out.string() + " exists; add --overwrite to replace it");
  }
  std::vector<ReportRow> rows;
  for (std::size_t i = 2; i < rest.size(); ++i) {
    const std::filesystem::path file = std::filesystem::absolute(rest[i]);
    const auto size = FileSize64(file);
    if (!size.ok()) return Failure(io, rest[i] + ": no such file");
    rows.push_back(
        {file.filename().string(), FormatFileSize(size.value()), file.parent_path().string()});
  }
  ExifReader exif;
  const MessageTable& messages = MessageTable::Get(SystemLanguage());
  const auto message = [&messages](int id) { return std::string(messages.Text(id)); };
  const bool written = kind == "mp3" ? WriteMP3Report(out, rows, message)
                                     : WriteExifReport(out, rows, exif, messages);
  if (!written) return Failure(io, out.string() + ": cannot write");
  return kExitOk;
}

constexpr std::array<CommandForm, 1> kForms = {{
    {"report exif|mp3 OUT.txt FILES... [--overwrite]",
     "write the EXIF or MP3 report of the files, one line each"},
}};

constexpr std::string_view kDetails =
    "The report is a text file with a header line and one line for each file,\n"
    "fields joined by \";\", lines ended by CR LF. An existing OUT.txt is only\n"
    "replaced with --overwrite.\n";

}  // namespace

extern const Command kReportCommand = {
    .name = kCommand,
    .summary = "write a metadata report file",
    .forms = kForms,
    .details = kDetails,
    .run = RunReport,
};

}  // namespace tarnwick::cli
