#include "cli_main.h"

#include <exception>
#include <string>

namespace tarnwick::cli {
namespace {

void PrintVersion(std::ostream& out) {
  out << "Tarnwick v" << TW_VERSION << "\n";
  const std::string_view build_type = TW_BUILD_TYPE;
  out << "build " << TW_GIT_REVISION << " (" << (build_type.empty() ? "no build type" : build_type)
      << ")\n";
}

// "help" and "help COMMAND".
int RunHelp(std::span<const std::string> args, CliIo& io) {
  if (args.empty()) {
    PrintProgramHelp(io.out);
    return kExitOk;
  }
  if (args.size() > 1) return UsageError(io, "", "help takes at most one command name");
  const Command* command = FindCommand(args[0]);
  if (command == nullptr) return UsageError(io, "", "no command named '" + args[0] + "'");
  PrintCommandHelp(*command, io.out);
  return kExitOk;
}

int Dispatch(std::span<const std::string> args, CliIo& io) {
  if (args.empty()) return UsageError(io, "", "no command given");
  const std::string& first = args[0];
  if (IsHelpFlag(first)) return RunHelp(args.subspan(1), io);
  if (first == "help") return RunHelp(args.subspan(1), io);
  if (first == "--version") {
    if (args.size() > 1) return UsageError(io, "", "--version takes no arguments");
    PrintVersion(io.out);
    return kExitOk;
  }
  if (first.starts_with("-")) return UsageError(io, "", "unknown option '" + first + "'");
  const Command* command = FindCommand(first);
  if (command == nullptr) return UsageError(io, "", "unknown command '" + first + "'");
  const auto rest = args.subspan(1);
  if (!rest.empty() && IsHelpFlag(rest[0])) {
    PrintCommandHelp(*command, io.out);
    return kExitOk;
  }
  return command->run(rest, io);
}

}  // namespace

int RunCli(std::span<const std::string> args, CliIo& io) {
  int code = kExitFailure;
  try {
    code = Dispatch(args, io);
  } catch (const std::exception& error) {
    code = Failure(io, std::string("internal error: ") + error.what());
  }
  io.out.flush();
  if (!io.out) return Failure(io, "could not write the output");
  return code;
}

}  // namespace tarnwick::cli
