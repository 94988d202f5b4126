// "list": the rows the file list holds for a folder, all eleven columns.
#include <array>
#include <cstdio>
#include <string>

#include "base/utf8.h"
#include "cli_command.h"
#include "filelist/column_headings.h"
#include "filelist/list_loader.h"
#include "filelist/media_column_source.h"
#include "json_text.h"
#include "patient_interaction.h"
#include "persist/option_store.h"
#include "platform/files.h"
#include "shell/app_state.h"
#include "shell/cancel.h"
#include "shell/cli_interaction.h"
#include "shell/message_table.h"
#include "tsv_text.h"

namespace tarnwick::cli {
namespace {

constexpr std::string_view kCommand = "list";

enum class Format { kTsv, kJson };

struct ListArgs {
  std::string folder;
  bool subfolders = false;
  std::string filter = "*.*";
  Format format = Format::kTsv;
  bool natural = false;
};

// Keys of the columns in JSON, and the headings of the hidden ones in TSV.
constexpr std::array<std::string_view, file_column::kCount> kJsonKeys = {
    "name",      "size",       "type",      "date",  "attributes", "path",
    "mediainfo", "foldername", "exif_date", "bytes", "extension"};

std::optional<std::string> ParseArgs(std::span<const std::string> args, ListArgs& out) {
  bool have_folder = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--subfolders") {
      out.subfolders = true;
    } else if (arg == "--natural") {
      out.natural = true;
    } else if (arg == "--tsv") {
      out.format = Format::kTsv;
    } else if (arg == "--json") {
      out.format = Format::kJson;
    } else if (arg == "--filter") {
      if (i + 1 >= args.size()) return "--filter needs a pattern such as \"*.jpg\"";
      out.filter = args[++i];
    } else if (arg.starts_with("--")) {
      return "unknown option '" + arg + "'";
    } else if (have_folder) {
      return "only one DIR is expected";
    } else {
      out.folder = arg;
      have_folder = true;
    }
  }
  if (!have_folder) return "DIR is missing";
  if (!out.filter.starts_with("*.")) return "--filter takes the form \"*.ext\" or \"*.*\"";
  return std::nullopt;
}

// The fill's log lines go to standard error on the command line.
class StderrLog : public FileListLog {
 public:
  explicit StderrLog(std::ostream& err) : err_(err) {}
  void WriteLogFileHeader() override {}
  void WriteLogFileTool(std::string_view subject, std::string_view text) override {
    err_ << kProgramName << ": " << subject << ": " << text << '\n';
  }

 private:
  std::ostream& err_;
};

void PrintTsv(const FileList& list, const std::array<std::string, file_column::kCount>& headings,
              std::ostream& out) {
  for (int c = 0; c < file_column::kCount; ++c) {
    const std::string heading = headings[c].empty() ? std::string(kJsonKeys[c]) : headings[c];
    out << (c ? "\t" : "") << TsvField(heading);
  }
  out << '\n';
  for (std::size_t r = 0; r < list.size(); ++r) {
    for (int c = 0; c < file_column::kCount; ++c) {
      out << (c ? "\t" : "") << TsvField(list.Text(r, c));
    }
    out << '\n';
  }
}

void PrintJson(const FileList& list, std::ostream& out) {
  out << '[';
  for (std::size_t r = 0; r < list.size(); ++r) {
    out << (r ? ",\n " : "\n ") << '{';
    for (int c = 0; c < file_column::kCount; ++c) {
      out << (c ? ", " : "") << '"' << kJsonKeys[c] << "\": " << JsonString(list.Text(r, c));
    }
    out << '}';
  }
  out << (list.empty() ? "]\n" : "\n]\n");
}

int RunList(std::span<const std::string> args, CliIo& io) {
  ListArgs a;
  if (const auto error = ParseArgs(args, a)) return UsageError(io, kCommand, *error);
  if (!FolderExists(a.folder)) return Failure(io, "no such folder: " + a.folder);
  OptionStore options = OptionStore::ForCurrentUser();
  if (a.natural) options.SetOverride("NaturalNameOrder", "Options", "1");
  AppState state;
  state.CurrentFilter = a.filter;
  TakeViewFlags(options, state);
  PatientInteraction ui(CliOptions{});
  StderrLog log(io.err);
  MediaColumnSource media;
  const MessageTable& messages = MessageTable::Get(SystemLanguage());
  FileListLoader loader({options, state, ui, log, media, messages});
  FileList list;
  bool cancelled = false;
  {
    ScopedInterruptCancel interrupt(state);
    // The fill's Esc test takes the Ctrl-C request; the fill says it stopped.
    cancelled = loader.FillListView(list, {a.folder, a.subfolders});
    cancelled = TakeInterruptRequest() || cancelled;
  }
  ui.HideProgress();
  if (a.format == Format::kJson) {
    PrintJson(list, io.out);
  } else {
    PrintTsv(list, ColumnHeadings(options, messages), io.out);
  }
  return cancelled ? kExitFailure : kExitOk;
}

constexpr std::array<CommandForm, 1> kForms = {{
    {"list DIR [--subfolders] [--filter \"*.ext\"] [--natural] [--tsv|--json]",
     "print the rows the file list holds for DIR, with all eleven columns"},
}};

constexpr std::string_view kDetails =
    "Options:\n"
    "  --subfolders      walk the subfolders too (a folder that is hidden and\n"
    "                    system gives no rows, its subfolders do)\n"
    "  --filter \"*.ext\"  only files with this extension (case-insensitive)\n"
    "  --natural         numbers in names in their natural order (\"photo 2\"\n"
    "                    before \"photo 10\"), as the option NaturalNameOrder\n"
    "  --tsv             tab-separated, one heading line (the default); tabs,\n"
    "                    line ends and backslashes in texts are escaped\n"
    "  --json            an array of objects with the keys name, size, type,\n"
    "                    date, attributes, path, mediainfo, foldername,\n"
    "                    exif_date, bytes, extension\n"
    "\n"
    "Rows come in the name order of your locale (LC_ALL, LC_COLLATE or LANG;\n"
    "\"Ärger\" beside \"Apfel\"), letter case deciding only between names\n"
    "that are otherwise equal, folder after folder, as the window lists them.\n"
    "The options ShowHiddenFiles, ShowSystemFiles, LoadOnlyFileName,\n"
    "NaturalNameOrder, FileDateType and DateFormat apply. On a terminal a\n"
    "progress line shows for fills that take a while; Ctrl-C stops the fill,\n"
    "prints the rows read so far and exits with 1.\n";

}  // namespace

extern const Command kListCommand = {
    .name = kCommand,
    .summary = "list the files of a folder as the file list holds them",
    .forms = kForms,
    .details = kDetails,
    .run = RunList,
};

}  // namespace tarnwick::cli
