#pragma once

#include <ostream>
#include <span>
#include <string>
#include <string_view>

namespace tarnwick::cli {

// What tarnwick-cli returns to the shell.
inline constexpr int kExitOk = 0;
inline constexpr int kExitFailure = 1;  // the command could not do its work
inline constexpr int kExitUsage = 2;    // unknown command, wrong or missing arguments

inline constexpr std::string_view kProgramName = "tarnwick-cli";

struct CliIo {
  std::ostream& out;
  std::ostream& err;
};

// One way to call a command: the arguments after the program name, and what
// that call does, for the help texts.
struct CommandForm {
  std::string_view usage;  // "options get SECTION KEY [DEFAULT]"
  std::string_view what;
};

// A command group. Each lives in its own file and is listed once in
// command_table.cpp.
struct Command {
  std::string_view name;
  std::string_view summary;  // one line
  std::span<const CommandForm> forms;
  std::string_view details;  // arguments and notes for "COMMAND --help"
  // Runs the command with the arguments after its name. "--help" in first
  // place never reaches it.
  int (*run)(std::span<const std::string> args, CliIo& io);
};

// Every command, in the order the help lists them; nullptr when unknown.
std::span<const Command> AllCommands();
const Command* FindCommand(std::string_view name);

bool IsHelpFlag(std::string_view arg);

// Writes "tarnwick-cli: MESSAGE" and a pointer to the help of `command` (the
// program's help when empty) to stderr; returns kExitUsage.
int UsageError(CliIo& io, std::string_view command, std::string_view message);
// Writes "tarnwick-cli: MESSAGE" to stderr; returns kExitFailure.
int Failure(CliIo& io, std::string_view message);

void PrintProgramHelp(std::ostream& out);
void PrintCommandHelp(const Command& command, std::ostream& out);

}  // namespace tarnwick::cli
