// "run" and "preview": a rename run over the files of a folder, as the
// unattended start does it, with the command line's answers to questions.
#include <fnmatch.h>

#include <array>
#include <filesystem>
#include <iostream>
#include <set>
#include <string>

#include "base/clock.h"
#include "base/path_text.h"
#include "cli_command.h"
#include "core/journal_recovery.h"
#include "core/new_name_preview.h"
#include "core/pipeline_env.h"
#include "core/rename_settings.h"
#include "core/start_rename.h"
#include "filelist/list_loader.h"
#include "filelist/media_column_source.h"
#include "json_text.h"
#include "media/media_readers.h"
#include "patient_interaction.h"
#include "persist/default_paths.h"
#include "persist/log_file.h"
#include "persist/log_options.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "platform/files.h"
#include "platform/user_folders.h"
#include "run_args.h"
#include "run_controls.h"
#include "run_settings_file.h"
#include "shell/app_state.h"
#include "shell/cancel.h"
#include "shell/message_table.h"

namespace tarnwick::cli {
namespace {

// A validation before the first file stopped the run.
constexpr int kExitStopped = 3;

// The fill's log lines go to standard error.
class FillLog : public FileListLog {
 public:
  explicit FillLog(std::ostream& err) : err_(err) {}
  void WriteLogFileHeader() override {}
  void WriteLogFileTool(std::string_view subject, std::string_view text) override {
    err_ << kProgramName << ": " << subject << ": " << text << '\n';
  }

 private:
  std::ostream& err_;
};

bool IsActionOrderName(const std::string& name) {
  constexpr std::string_view kPrefix = "sortorderinternal";
  if (name.size() <= kPrefix.size()) return false;
  for (std::size_t i = 0; i < kPrefix.size(); ++i) {
    if (std::tolower(static_cast<unsigned char>(name[i])) != kPrefix[i]) return false;
  }
  const std::string number = name.substr(kPrefix.size());
  return number == "1" || number == "2" || number == "3" || number == "4" || number == "5" ||
         number == "6" || number == "7" || number == "8" || number == "9" || number == "10";
}

// --set: a field of the controls, or a place of the action order for this
// run only (the stored options stay as they were).
std::optional<std::string> ApplySets(const RunArgs& args, RenameSettings& settings,
                                     OptionStore& options) {
  for (const auto& [name, value] : args.sets) {
    if (IsActionOrderName(name)) {
      options.SetOverride("SortOrderInternal" + name.substr(17), "Options", value);
      continue;
    }
    if (SetRenameSetting(settings, name, value)) continue;
    const std::string nearest = NearestControlNames(name);
    return "no control is called '" + name + "'" +
           (nearest.empty() ? std::string() : "; did you mean " + nearest + "?") +
           " ('tarnwick-cli run --controls' lists them)";
  }
  return std::nullopt;
}

std::string RunFolder(const RunArgs& args, const RenameSettings& settings) {
  if (!args.folder.empty()) return args.folder;
  if (!settings.CurrentDir.empty()) return settings.CurrentDir;
  std::error_code error;
  return std::filesystem::current_path(error).string();
}

void SelectRows(FileList& list, const std::string& glob) {
  if (glob.empty()) return list.SelectAll();
  for (std::size_t r = 0; r < list.size(); ++r) {
    const std::string name = list.Text(r, file_column::kName);
    list.Select(r, ::fnmatch(glob.c_str(), name.c_str(), FNM_CASEFOLD) == 0);
  }
}

// Journals of runs that were killed: their batches are completed before a
// new run saves or replaces them.
void CompleteKilledRuns(const OptionStore& options, const LogUndoState& state, CliIo& io) {
  for (const JournalRecovery& done : CompleteInterruptedRunsAtStart(options, state)) {
    if (done.outcome == JournalRecovery::Outcome::kCompleted) {
      io.err << kProgramName
             << ": completed the undo batch of an interrupted run: " << done.batch_path << '\n';
    }
  }
}

// The command line's interaction; with --json the rows of a test are kept
// for the JSON text instead of printed as lines.
class RowKeepingInteraction : public PatientInteraction {
 public:
  RowKeepingInteraction(CliOptions options, bool keep) : PatientInteraction(options), keep_(keep) {}
  void ShowTestResults(const std::vector<TestResultRow>& rows) override {
    if (!keep_) return PatientInteraction::ShowTestResults(rows);
    rows_ = rows;
  }
  const std::vector<TestResultRow>& rows() const { return rows_; }

 private:
  bool keep_;
  std::vector<TestResultRow> rows_;
};

// The rows whose new names collide, as the window's "New name" column marks
// them: a target that another file holds, or that two rows share.
std::set<std::pair<std::string, std::string>> FindConflicts(const PipelineEnv& env) {
  NewNamePreview preview;
  preview.Start(env);
  while (!preview.Step(env, 1000)) {
  }
  std::set<std::pair<std::string, std::string>> conflicts;
  for (const NewNameRow& row : preview.rows()) {
    if (!row.collides) continue;
    conflicts.emplace(std::string(env.list.Folder(row.row)), env.list.rows()[row.row].name);
  }
  return conflicts;
}

void PrintRowsAsJson(std::ostream& out, const std::vector<TestResultRow>& rows,
                     const std::set<std::pair<std::string, std::string>>& conflicts) {
  out << "[";
  for (std::size_t i = 0; i < rows.size(); ++i) {
    JsonObject object;
    object.Text("present", rows[i].present_name);
    object.Text("new", rows[i].new_name);
    object.Text("folder", rows[i].folder);
    object.Bool("conflict", conflicts.contains({rows[i].folder, rows[i].present_name}));
    out << (i == 0 ? "" : ",\n ") << object.str();
  }
  out << "]\n";
}

const char* ModeWord(int mode) {
  if (mode == 0) return "renamed";
  if (mode == 1) return "copied";
  return "tested";
}

int RunCommand(std::span<const std::string> raw, CliIo& io, bool preview) {
  const std::string_view command = preview ? "preview" : "run";
  RunArgs args;
  if (const auto error = ParseRunArgs(raw, preview, args)) return UsageError(io, command, *error);
  if (args.list_controls) {
    PrintControls(io.out, MessageTable::Get(SystemLanguage()));
    return kExitOk;
  }
  OptionStore options = OptionStore::ForCurrentUser();
  RenameSettings settings;
  if (!args.settings_file.empty()) {
    if (const auto error = LoadRunSettingsFile(args.settings_file, settings, options)) {
      return UsageError(io, command, *error);
    }
  }
  if (const auto error = ApplySets(args, settings, options)) return UsageError(io, command, *error);
  if (args.mode) settings.optCopyRename = *args.mode;
  if (Ticked(settings.chkEditManual)) {
    return UsageError(io, command,
                      "the manual edit (chkEditManual) asks for every file and needs the window; "
                      "untick it for a run from the command line");
  }
  const std::string folder = AbsolutePathName(RunFolder(args, settings), "");
  if (!FolderExists(folder)) return UsageError(io, command, "no such folder: " + folder);

  AppState app;
  app.BatchMode = true;
  app.CurrentPath = folder;
  app.CurrentFilter = settings.cboExtension;
  TakeViewFlags(options, app);
  CliOptions cli_options;
  cli_options.assume_yes = args.yes;
  RowKeepingInteraction ui(cli_options, args.json);
  const MessageTable& messages = MessageTable::Get(SystemLanguage());
  SystemClock clock;
  LogUndoState log_undo;
  LogUndoEnv log_env{options, ui, messages, clock, app, log_undo};
  RunLog log(log_env);
  CreateDefaultPaths(log_env, log, UserDataBaseFolder(), UserDataFallbackFolder());
  log_undo.ProgramFolder = ProgramFilesFolder().string();
  CompleteKilledRuns(options, log_undo, io);

  FillLog fill_log(io.err);
  MediaColumnSource media;
  const MediaReaders readers;
  FileListLoader loader({options, app, ui, fill_log, media, messages});
  FileList list;
  RenameRunResult result;
  std::set<std::pair<std::string, std::string>> conflicts;  // folder, present name
  {
    ScopedInterruptCancel interrupt(app);
    loader.FillListView(list, {folder, args.subfolders || Ticked(settings.chkIncludeSubfolders)});
    if (app.CancelRun) return Failure(io, "cancelled while reading the folder");
    SelectRows(list, args.select);
    if (settings.optCopyRename == kModeTest) {
      conflicts = FindConflicts({app, settings, list, options, ui, messages, clock, readers,
                                 nullptr, list.SelectedCount()});
    }
    result = StartRename({app, settings, list, options, ui, messages, clock, log_undo, readers});
  }
  ui.HideProgress();
  if (result.mode == kModeTest && !result.stopped) {
    if (args.json) PrintRowsAsJson(io.out, ui.rows(), conflicts);
    io.err << kProgramName << ": "
           << (conflicts.size() == 1 ? std::string("1 new name collides")
                                     : std::to_string(conflicts.size()) + " new names collide")
           << '\n';
  }
  if (result.stopped && !result.cancelled) return kExitStopped;
  io.err << kProgramName << ": " << result.done << " " << ModeWord(result.mode) << ", "
         << result.skipped << " skipped, " << result.failed << " failed"
         << (result.cancelled ? ", cancelled" : "") << '\n';
  return result.failed > 0 || result.cancelled ? kExitFailure : kExitOk;
}

int RunRun(std::span<const std::string> args, CliIo& io) { return RunCommand(args, io, false); }
int RunPreview(std::span<const std::string> args, CliIo& io) { return RunCommand(args, io, true); }

constexpr std::array<CommandForm, 2> kRunForms = {{
    {"run [SETTINGS.twr] [--folder DIR] [--set NAME=VALUE]... [ACTION FLAGS] "
     "[--mode rename|copy|test] [--select GLOB] [--subfolders] [--yes]",
     "rename, copy or test the files of a folder with the given renaming settings"},
    {"run --controls", "every renaming control --set takes, with its meaning and values"},
}};

constexpr std::array<CommandForm, 1> kPreviewForms = {{
    {"preview [SETTINGS.twr] [--folder DIR] [--set NAME=VALUE]... [ACTION FLAGS] "
     "[--select GLOB] [--subfolders] [--yes] [--json]",
     "show what a run would do: the same as run --mode test"},
}};

constexpr std::string_view kRunDetails =
    "Options:\n"
    "  --folder DIR        the folder whose files are renamed (default: the\n"
    "                      settings file's folder, else the current folder)\n"
    "  --set NAME=VALUE    a renaming control by its name, e.g. chkPrefix=1,\n"
    "                      txtPrefix=IMG_, chkNumbers=1, optNumber=1,\n"
    "                      txtStartNumber=001, optCopyRename=1; also\n"
    "                      SortOrderInternal1..10 for this run only (the stored\n"
    "                      options stay as they were). May be repeated.\n"
    "  --controls          list every control name with its meaning, default\n"
    "                      and values, and exit\n"
    "\n"
    "Action flags, each the controls the window ticks and fills for it:\n"
    "  --prefix TEXT       chkPrefix, txtPrefix\n"
    "  --postfix TEXT      chkPostfix, txtPostfix\n"
    "  --name TEXT         chkCompleteName, txtCompleteName (replace the name)\n"
    "  --ext TEXT          chkExtension, txtExtension\n"
    "  --replace FROM TO   chkReplace, txtSearchString, txtReplaceString\n"
    "  --cut-left N        chkCutLeft, txtLeftCut\n"
    "  --cut-right N       chkCutRight, txtRightCut\n"
    "  --range FROM TO TEXT  chkCutMiddle, txtFromChar, txtToChar, txtReplaceChars\n"
    "  --pattern EXPR      chkOnlyUsePatterns, txtUsePlaceholder\n"
    "  --number START      chkNumbers, txtStartNumber; with --step N (txtStep) and\n"
    "                      --place before-prefix|after-prefix|before-postfix|\n"
    "                      after-postfix (optNumber)\n"
    "TEXT may hold {{...}} placeholders (see 'tarnwick-cli catalogue'). The\n"
    "manual edit (chkEditManual) needs the window and is refused here. A\n"
    "control name --set does not know is refused with the nearest names.\n"
    "\n"
    "  --mode MODE         rename, copy or test (default: optCopyRename)\n"
    "  --select GLOB       only the files whose names match (case-insensitive);\n"
    "                      default: every file the list shows\n"
    "  --subfolders        take the files of the subfolders too\n"
    "  --yes               answer Yes to every Yes/No question\n"
    "\n"
    "SETTINGS.twr: a rename settings file (see 'tarnwick-cli settings'): its\n"
    "controls, filter, folder and action order are applied first (the order\n"
    "goes into the options, as loading it in the window does), then --set and\n"
    "--mode. A file that cannot be read, or whose saved folder is gone, is\n"
    "refused with exit status 2.\n"
    "\n"
    "The run is unattended: no confirmation is asked, and questions get the\n"
    "default answers listed by 'tarnwick-cli --help' (a taken name: skip the\n"
    "file; \"Continue with next file?\": yes). A test prints one line per file:\n"
    "present name, a tab, new name, a tab, folder. A one-line summary goes to\n"
    "standard error. The log and the undo batch are written as the options\n"
    "say; 'tarnwick-cli undo' takes a run back. On a terminal a progress line\n"
    "shows for runs that take a while; Ctrl-C stops after the current file.\n"
    "\n"
    "Exit status: 0 no file failed, 1 a file failed or the run was cancelled,\n"
    "2 bad arguments, 3 a check before the first file stopped the run (its\n"
    "message on standard error).\n";

constexpr std::string_view kPreviewDetails =
    "Takes the arguments of run except --mode (see 'tarnwick-cli run --help').\n"
    "--json prints the rows as a JSON array of {present, new, folder, conflict};\n"
    "conflict marks a new name that another file holds or that two rows share,\n"
    "as the window's \"New name\" column does. Every test run counts those\n"
    "collisions on standard error.\n"
    "No file is changed; the log and the undo batch get the test's entries\n"
    "(comment lines) as the options say. One line per file on standard\n"
    "output: present name, a tab, new name, a tab, folder. Exit status as for\n"
    "run.\n";

}  // namespace

extern const Command kRunCommand = {
    .name = "run",
    .summary = "rename, copy or test the files of a folder",
    .forms = kRunForms,
    .details = kRunDetails,
    .run = RunRun,
};

extern const Command kPreviewCommand = {
    .name = "preview",
    .summary = "show the new names a run would give, changing nothing",
    .forms = kPreviewForms,
    .details = kPreviewDetails,
    .run = RunPreview,
};

}  // namespace tarnwick::cli
