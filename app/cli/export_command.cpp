// "export": the list of a folder as the text or the XML document the window's
// exports write.
#include <array>
#include <fstream>
#include <sstream>

#include "base/text.h"
#include "cli_job.h"
#include "persist/log_append.h"
#include "platform/files.h"
#include "platform/temp_files.h"
#include "shell/cancel.h"
#include "tools/list_export.h"

namespace tarnwick::cli {
namespace {

constexpr std::string_view kCommand = "export";

constexpr std::array<std::string_view, 8> kColumnNames = {
    "name", "size", "type", "modified", "attributes", "path", "media", "folder"};

struct ExportArgs {
  bool xml = false;
  std::string folder;
  std::string select;
  std::string out;
  bool overwrite = false;
  std::optional<ExportColumns> columns;
  std::optional<std::string> delimiter;
  std::optional<int> tabs;
  bool subfolders = false;
  bool no_closing = false;
  std::optional<bool> convert_invalid;
};

std::optional<std::string> ParseColumns(const std::string& list, ExportColumns& out) {
  out.chosen.fill(false);
  for (const std::string& name : vb::Split(list, ",")) {
    const auto* found = std::find(kColumnNames.begin(), kColumnNames.end(), vb::LCase(name));
    if (found == kColumnNames.end()) {
      return "unknown column '" + name + "' (name, size, type, modified, attributes, path, "
             "media, folder)";
    }
    out.chosen[static_cast<std::size_t>(found - kColumnNames.begin())] = true;
  }
  if (!out.any()) return std::string("--columns names no column");
  return std::nullopt;
}

std::optional<std::string> TakeOption(std::span<const std::string> args, std::size_t& i,
                                      ExportArgs& out) {
  const std::string& arg = args[i];
  if (i + 1 >= args.size()) return arg + " needs a value";
  const std::string& value = args[++i];
  if (arg == "--columns") {
    ExportColumns columns;
    if (auto error = ParseColumns(value, columns)) return error;
    out.columns = columns;
  } else if (arg == "--delimiter") {
    out.delimiter = value;
  } else if (arg == "--tabs") {
    const int tabs = std::atoi(value.c_str());
    if (tabs < 1 || tabs > kMaxDelimiterTabs || value.find_first_not_of("0123456789") != std::string::npos) {
      return "--tabs takes a number from 1 to " + std::to_string(kMaxDelimiterTabs);
    }
    out.tabs = tabs;
  } else if (arg == "--selected") {
    out.select = value;
  } else if (arg == "--out") {
    out.out = value;
  } else if (arg == "--convert-invalid") {
    if (value != "on" && value != "off") return std::string("--convert-invalid takes on or off");
    out.convert_invalid = value == "on";
  }
  return std::nullopt;
}

std::optional<std::string> ParseArgs(std::span<const std::string> args, ExportArgs& out) {
  if (args.empty() || (args[0] != "text" && args[0] != "xml")) {
    return "name the kind first: text or xml";
  }
  out.xml = args[0] == "xml";
  for (std::size_t i = 1; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--subfolders") {
      out.subfolders = true;
    } else if (arg == "--overwrite") {
      out.overwrite = true;
    } else if (arg == "--no-closing") {
      out.no_closing = true;
    } else if (arg == "--columns" || arg == "--delimiter" || arg == "--tabs" ||
               arg == "--selected" || arg == "--out" || arg == "--convert-invalid") {
      if (auto error = TakeOption(args, i, out)) return error;
    } else if (arg.starts_with("--")) {
      return "unknown option " + arg;
    } else if (out.folder.empty()) {
      out.folder = arg;
    } else {
      return "one folder only: '" + arg + "'";
    }
  }
  if (out.folder.empty()) return std::string("DIR is needed");
  if (out.xml && (out.delimiter || out.tabs || out.subfolders || out.no_closing)) {
    return std::string("--delimiter, --tabs, --subfolders and --no-closing belong to text");
  }
  if (!out.xml && out.convert_invalid) return std::string("--convert-invalid belongs to xml");
  return std::nullopt;
}

TextExportChoices TextChoices(const ExportArgs& args, const OptionStore& options) {
  TextExportChoices choices = ReadTextExportChoices(options);
  if (args.columns) choices.columns = *args.columns;
  choices.only_selected = !args.select.empty();
  choices.include_subfolders = args.subfolders;
  if (args.no_closing) choices.number_of_files = choices.date_time = false;
  if (args.tabs) {
    choices.delimiter = ExportDelimiter::kTabs;
    choices.tabs = *args.tabs;
  }
  if (args.delimiter) {
    const std::string& d = *args.delimiter;
    choices.delimiter = d == "tab"         ? ExportDelimiter::kTabs
                        : d == "semicolon" ? ExportDelimiter::kSemicolon
                                           : ExportDelimiter::kOther;
    if (choices.delimiter == ExportDelimiter::kOther) choices.other = d;
    if (d == "tab" && !args.tabs) choices.tabs = 1;
  }
  return choices;
}

XmlExportChoices XmlChoices(const ExportArgs& args, const OptionStore& options) {
  XmlExportChoices choices = ReadXmlExportChoices(options);
  if (args.columns) choices.columns = *args.columns;
  choices.only_selected = !args.select.empty();
  if (args.convert_invalid) choices.convert_invalid = *args.convert_invalid;
  return choices;
}

int WriteOut(CliIo& io, const ExportArgs& args, const std::string& text) {
  if (args.out.empty()) {
    io.out << text;
    return kExitOk;
  }
  const FileStatus status = ReplaceFileWith(args.out, text);
  if (!status.ok()) return Failure(io, args.out + ": " + status.description);
  return kExitOk;
}

int ExportXml(CliIo& io, const ExportArgs& args, CliJob& job, RenameRunEnv& env) {
  // Without --out the document is made in a temporary file and printed.
  std::string path = args.out;
  std::optional<FileResult<std::filesystem::path>> temp;
  if (path.empty()) {
    temp = CreateUniqueTempFile(TempFolder(), "tarnwick-export-");
    if (!temp->ok()) return Failure(io, "no temporary file: " + temp->status().description);
    path = temp->value().string();
  }
  const ToolJobResult result = ExportListXml(env, XmlChoices(args, job.options), path);
  int status = result.failed > 0 ? kExitFailure : kExitOk;
  if (temp) {
    std::ifstream in(path, std::ios::binary);
    io.out << in.rdbuf();
    std::remove(path.c_str());
  }
  if (result.cancelled) status = kExitFailure;
  return status;
}

int RunExport(std::span<const std::string> argv, CliIo& io) {
  ExportArgs args;
  if (auto error = ParseArgs(argv, args)) return UsageError(io, kCommand, *error);
  if (!args.out.empty() && (FileExists(args.out) || FolderExists(args.out)) && !args.overwrite) {
    return Failure(io, args.out + " exists; add --overwrite to replace it");
  }
  CliJob job(io, false);
  if (auto error = job.ListFolder(args.folder, args.select)) return Failure(io, *error);
  RenameRunEnv env = job.Env();
  env.loader = &job.loader();
  ScopedInterruptCancel interrupt(job.app);
  if (args.xml) return ExportXml(io, args, job, env);
  const TextExportResult result = ExportListText(env, TextChoices(args, job.options));
  if (result.result.refused) return kExitFailure;
  const int status = WriteOut(io, args, result.text);
  return result.result.cancelled ? kExitFailure : status;
}

constexpr std::array<CommandForm, 2> kForms = {{
    {"export text DIR [--columns LIST] [--delimiter tab|semicolon|TEXT] [--tabs N] "
     "[--subfolders] [--selected GLOB] [--no-closing] [--out FILE [--overwrite]]",
     "the folder's files as the window's text export writes them"},
    {"export xml DIR [--columns LIST] [--selected GLOB] [--convert-invalid on|off] "
     "[--out FILE [--overwrite]]",
     "the folder's files as the window's XML export writes them"},
}};

constexpr std::string_view kDetails =
    "LIST names columns, in any order, joined by commas: name, size, type,\n"
    "modified (the date the option FileDateType chooses), attributes, path,\n"
    "media (playing length or picture size) and folder. Columns are written in\n"
    "that fixed order. Without --columns, the choices of the window's last\n"
    "export are used (at first: name and size); so are the delimiter and the\n"
    "closing lines.\n"
    "\n"
    "--selected GLOB exports only the files whose names match (case-insensitive);\n"
    "without it every file of DIR. --subfolders reads DIR and its subfolders\n"
    "anew and puts each folder's files under a \"[Folder]\" line.\n"
    "--no-closing leaves out the date and the count at the end of a text export.\n"
    "\n"
    "The XML document is UTF-8. With --convert-invalid on (the default), what\n"
    "XML cannot hold - control characters, bytes that are no UTF-8 - is written\n"
    "as \\xNN; off, it becomes U+FFFD. Without --out the document goes to\n"
    "standard output; an existing FILE is only replaced with --overwrite.\n";

}  // namespace

extern const Command kExportCommand = {
    .name = kCommand,
    .summary = "export a folder's file list as text or XML",
    .forms = kForms,
    .details = kDetails,
    .run = RunExport,
};

}  // namespace tarnwick::cli
