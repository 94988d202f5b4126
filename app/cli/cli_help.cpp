// The help texts and the messages of usage errors.
#include <algorithm>
#include <string>

#include "cli_command.h"
#include "shell/interaction_defaults.h"

namespace tarnwick::cli {
namespace {

constexpr std::string_view kExitCodes =
    "Exit codes:\n"
    "  0  success\n"
    "  1  the command could not do its work (for example, a file could not be written)\n"
    "  2  usage error: unknown command or option, wrong or missing arguments\n";

void PrintForm(const CommandForm& form, std::ostream& out) {
  out << "  " << kProgramName << " " << form.usage << "\n      " << form.what << "\n";
}

}  // namespace

bool IsHelpFlag(std::string_view arg) { return arg == "--help" || arg == "-h"; }

int UsageError(CliIo& io, std::string_view command, std::string_view message) {
  io.err << kProgramName << ": " << message << "\n";
  io.err << "Try '" << kProgramName << " " << command << (command.empty() ? "" : " ")
         << "--help' for more information.\n";
  return kExitUsage;
}

int Failure(CliIo& io, std::string_view message) {
  io.err << kProgramName << ": " << message << "\n";
  return kExitFailure;
}

const Command* FindCommand(std::string_view name) {
  const auto commands = AllCommands();
  const auto found = std::find_if(commands.begin(), commands.end(),
                                  [name](const Command& command) { return command.name == name; });
  return found == commands.end() ? nullptr : &*found;
}

void PrintProgramHelp(std::ostream& out) {
  out << "Usage: " << kProgramName << " COMMAND [ARGUMENTS]\n"
      << "       " << kProgramName << " COMMAND --help\n"
      << "       " << kProgramName << " help [COMMAND] | --help | -h | --version\n\n"
      << "The scriptable front end of Tarnwick, the bulk file renamer.\n\n"
      << "Commands:\n";
  for (const Command& command : AllCommands()) {
    out << "\n " << command.name << ": " << command.summary << "\n";
    for (const CommandForm& form : command.forms) PrintForm(form, out);
  }
  out << "\nOptions:\n"
      << "  -h, --help  show this help; after a command, the help of that command\n"
      << "  --version   show the program version and build\n\n"
      << kExitCodes << "\n"
      << "Questions and their default answers (commands that run jobs):\n"
      << DefaultAnswersHelp() << "\n"
      << "Run '" << kProgramName << " COMMAND --help' for the details of one command.\n";
}

void PrintCommandHelp(const Command& command, std::ostream& out) {
  out << "Usage:\n";
  for (const CommandForm& form : command.forms) PrintForm(form, out);
  out << "\n" << command.summary << "\n";
  if (!command.details.empty()) out << "\n" << command.details;
  out << "\n" << kExitCodes;
}

}  // namespace tarnwick::cli
