// "settings": write rename settings files from scripts and show what is in one.
#include <array>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "base/clock.h"
#include "base/vb_error.h"
#include "cli_command.h"
#include "core/rename_settings.h"
#include "core/settings_file.h"
#include "persist/default_paths.h"
#include "persist/log_file.h"
#include "persist/log_options.h"
#include "persist/log_undo_env.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "persist/xml_configuration.h"
#include "platform/files.h"
#include "shell/app_state.h"
#include "shell/cli_interaction.h"
#include "shell/message_table.h"

namespace tarnwick::cli {
namespace {

constexpr std::string_view kCommand = "settings";

// The pieces every settings file operation works with.
struct World {
  OptionStore options = OptionStore::ForCurrentUser();
  AppState app;
  LogUndoState state;
  SystemClock clock;
  CliInteraction interaction{CliOptions{}};
  LogUndoEnv env{options, interaction, MessageTable::Get(SystemLanguage()), clock, app, state};
  // The log line of a save goes where the window's would.
  World() {
    RunLog log(env);
    CreateDefaultPaths(env, log, UserDataBaseFolder(), UserDataFallbackFolder());
  }
};

struct WriteArgs {
  std::string out;
  std::string from;
  std::vector<std::pair<std::string, std::string>> sets;
  std::string save_path;
  bool has_save_path = false;
};

std::optional<std::string> ParseWrite(std::span<const std::string> args, WriteArgs& parsed) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    const bool has_value = i + 1 < args.size();
    if (arg == "--from" || arg == "--set" || arg == "--save-path") {
      if (!has_value) return arg + " needs a value";
      const std::string& value = args[++i];
      if (arg == "--from") {
        parsed.from = value;
      } else if (arg == "--save-path") {
        parsed.save_path = value;
        parsed.has_save_path = true;
      } else {
        const std::size_t equals = value.find('=');
        if (equals == std::string::npos || equals == 0) return "--set needs NAME=VALUE";
        parsed.sets.emplace_back(value.substr(0, equals), value.substr(equals + 1));
      }
      continue;
    }
    if (arg.starts_with("--")) return "unknown option '" + arg + "'";
    if (!parsed.out.empty()) return "only one OUT.twr may be given";
    parsed.out = arg;
  }
  if (parsed.out.empty()) return "missing OUT.twr";
  return std::nullopt;
}

int Write(std::span<const std::string> args, CliIo& io) {
  WriteArgs parsed;
  if (const auto error = ParseWrite(args, parsed)) return UsageError(io, kCommand, *error);
  RenameSettings settings;
  for (const auto& [name, value] : parsed.sets) {
    if (!GetRenameSetting(settings, name)) {
      return UsageError(io, kCommand, "unknown control '" + name + "'");
    }
  }
  World world;
  if (!parsed.from.empty()) {
    if (!FileExists(parsed.from)) return Failure(io, "no settings file " + parsed.from);
    try {
      ApplySettingsFile(world.env, parsed.from, settings);
    } catch (const VbError& error) {
      return Failure(io, "cannot read " + parsed.from + ": " + error.description());
    }
  }
  for (const auto& [name, value] : parsed.sets) SetRenameSetting(settings, name, value);
  if (parsed.has_save_path) world.app.CurrentPath = AbsolutePath(parsed.save_path);
  const SaveSettingsResult result =
      SaveSettingsTo(world.env, settings, parsed.out, parsed.has_save_path);
  if (result.outcome == SaveSettingsResult::Outcome::kFailed) {
    return Failure(io, "cannot write " + result.path + ": " + result.error);
  }
  if (result.outcome == SaveSettingsResult::Outcome::kCancelled) {
    return Failure(io,
                   "not saved: the folder " + parsed.save_path + " does not exist");  // answered No
  }
  return kExitOk;
}

int Show(std::span<const std::string> args, CliIo& io) {
  if (args.size() != 1) return UsageError(io, kCommand, "usage: settings show FILE.twr");
  const std::string& path = args[0];
  if (!FileExists(path)) return Failure(io, "no settings file " + path);
  XMLConfiguration file;
  file.Encryption(true);
  try {
    file.LoadConfigurationFile(path, false);
  } catch (const VbError& error) {
    return Failure(io, "cannot read " + path + ": " + error.description());
  }
  std::ifstream in(path, std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  io.out << ConfigurationBytesToText(ScrambleConfigurationText(bytes, ConfigurationKey()));
  return kExitOk;
}

int RunSettings(std::span<const std::string> args, CliIo& io) {
  if (args.empty()) return UsageError(io, kCommand, "missing what to do: write or show");
  const std::string& action = args[0];
  auto rest = args.subspan(1);
  if (!rest.empty() && IsHelpFlag(rest[0])) {
    PrintCommandHelp(*FindCommand(kCommand), io.out);
    return kExitOk;
  }
  if (action == "write") return Write(rest, io);
  if (action == "show") return Show(rest, io);
  return UsageError(io, kCommand, "unknown settings action '" + action + "'");
}

constexpr std::array<CommandForm, 2> kForms = {{
    {"settings write OUT.twr [--from IN.twr] [--set NAME=VALUE]... [--save-path DIR]",
     "Writes a rename settings file as the save button does."},
    {"settings show FILE.twr", "Prints the file's XML, unscrambled and otherwise unchanged."},
}};

constexpr std::string_view kDetails =
    "Arguments:\n"
    "  OUT.twr, FILE.twr  a rename settings file (scrambled XML)\n"
    "  --from IN.twr      start from the controls of IN.twr instead of the defaults;\n"
    "                     as loading it in the window, its action order goes into\n"
    "                     the options (SortOrderName1..10, SortOrderInternal1..10)\n"
    "  --set NAME=VALUE   set one control, by its name: chkPrefix=1,\n"
    "                     txtPrefix=new_, optCopyRename=2, cboExtension=*.jpg ...\n"
    "                     (names ignore case; ticks and option groups are numbers)\n"
    "  --save-path DIR    save DIR as the folder of the list (CurrentDir), as\n"
    "                     \"Save current selected path\" does\n"
    "\n"
    "write: a text field that ends in blanks is saved with one {{space}} per blank\n"
    "of the whole field, and a note says so on standard error. The action order is\n"
    "taken from the options. The file's folder is stored in SavePathIni and the\n"
    "log gets a line, as when saving from the window. A --save-path folder that\n"
    "does not exist brings the question \"Continue saving without path?\"; its\n"
    "default answer, Yes, writes the file without a folder.\n"
    "\n"
    "show: the text is printed in UTF-8; a file that cannot be unscrambled and\n"
    "parsed is an error.\n"
    "\n"
    "Exit status: 0 done, 1 the file could not be read or written, 2 bad arguments.\n";

}  // namespace

extern const Command kSettingsCommand = {
    .name = kCommand,
    .summary = "write and show rename settings files (.twr)",
    .forms = kForms,
    .details = kDetails,
    .run = RunSettings,
};

}  // namespace tarnwick::cli
