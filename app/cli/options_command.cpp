// "options": read and change the user's options file from scripts.
#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <string>
#include <string_view>

#include "cli_command.h"
#include "persist/ini_text_codec.h"
#include "persist/option_store.h"

namespace tarnwick::cli {
namespace {

constexpr std::string_view kCommand = "options";
constexpr std::array<std::string_view, 5> kSections = {"Options", "AutoUpdate", "ManualRename",
                                                       "Playlist", "XML"};

// The section in its usual spelling, found without regard to case.
std::optional<std::string_view> KnownSection(std::string_view name) {
  for (const std::string_view section : kSections) {
    const bool same = section.size() == name.size() &&
                      std::equal(section.begin(), section.end(), name.begin(), [](char a, char b) {
                        return std::tolower(static_cast<unsigned char>(a)) ==
                               std::tolower(static_cast<unsigned char>(b));
                      });
    if (same) return section;
  }
  return std::nullopt;
}

int UnknownSection(CliIo& io, std::string_view name) {
  std::string message = "unknown section '" + std::string(name) + "'; the sections are ";
  for (const std::string_view section : kSections) {
    if (section != kSections.front()) message += section == kSections.back() ? " and " : ", ";
    message += section;
  }
  return UsageError(io, kCommand, message);
}

int WrongArgumentCount(CliIo& io, std::string_view usage) {
  return UsageError(io, kCommand,
                    "wrong number of arguments; usage: options " + std::string(usage));
}

int CannotWrite(CliIo& io, const OptionStore& store) {
  return Failure(io, "could not write the options file " + store.file().string());
}

void PrintSection(const OptionStore& store, std::string_view name, CliIo& io) {
  io.out << '[' << EncodeIniText(name, IniTextRole::kSection) << "]\n";
  for (const auto& [key, value] : store.ListSection(name)) {
    io.out << EncodeIniText(key, IniTextRole::kKey) << '='
           << EncodeIniText(value, IniTextRole::kValue) << '\n';
  }
}

int Get(std::span<const std::string> args, CliIo& io) {
  if (args.size() < 2 || args.size() > 3)
    return WrongArgumentCount(io, "get SECTION KEY [DEFAULT]");
  const auto section = KnownSection(args[0]);
  if (!section) return UnknownSection(io, args[0]);
  if (args[1].empty()) return UsageError(io, kCommand, "KEY must not be empty");
  const std::string_view fallback = args.size() == 3 ? std::string_view(args[2]) : "";
  io.out << OptionStore::ForCurrentUser().GetOption(args[1], *section, fallback) << '\n';
  return kExitOk;
}

int Set(std::span<const std::string> args, CliIo& io) {
  if (args.size() != 3) return WrongArgumentCount(io, "set SECTION KEY VALUE");
  const auto section = KnownSection(args[0]);
  if (!section) return UnknownSection(io, args[0]);
  if (args[1].empty()) return UsageError(io, kCommand, "KEY must not be empty");
  OptionStore store = OptionStore::ForCurrentUser();
  if (!store.SaveOption(args[1], *section, args[2])) return CannotWrite(io, store);
  return kExitOk;
}

int List(std::span<const std::string> args, CliIo& io) {
  if (args.size() > 1) return WrongArgumentCount(io, "list [SECTION]");
  const OptionStore store = OptionStore::ForCurrentUser();
  if (args.size() == 1) {
    const auto section = KnownSection(args[0]);
    if (!section) return UnknownSection(io, args[0]);
    PrintSection(store, *section, io);
    return kExitOk;
  }
  bool first = true;
  for (const std::string& section : store.Sections()) {
    if (!first) io.out << '\n';
    first = false;
    PrintSection(store, section, io);
  }
  return kExitOk;
}

int Reset(std::span<const std::string> args, CliIo& io) {
  if (!args.empty()) return WrongArgumentCount(io, "reset");
  OptionStore store = OptionStore::ForCurrentUser();
  if (!store.DeleteSection("Options")) return CannotWrite(io, store);
  io.out << "All options of section Options deleted; their defaults apply from now on.\n";
  return kExitOk;
}

int Path(std::span<const std::string> args, CliIo& io) {
  if (!args.empty()) return WrongArgumentCount(io, "path");
  io.out << OptionStore::DefaultFile().string() << '\n';
  return kExitOk;
}

int RunOptions(std::span<const std::string> args, CliIo& io) {
  if (args.empty())
    return UsageError(io, kCommand, "missing what to do: get, set, list, reset or path");
  const std::string& action = args[0];
  auto rest = args.subspan(1);
  if (!rest.empty() && IsHelpFlag(rest[0])) {
    PrintCommandHelp(*FindCommand(kCommand), io.out);
    return kExitOk;
  }
  if (!rest.empty() && rest[0] == "--") rest = rest.subspan(1);
  if (action == "get") return Get(rest, io);
  if (action == "set") return Set(rest, io);
  if (action == "list") return List(rest, io);
  if (action == "reset") return Reset(rest, io);
  if (action == "path") return Path(rest, io);
  return UsageError(io, kCommand, "unknown options action '" + action + "'");
}

constexpr std::array<CommandForm, 5> kForms = {{
    {"options get SECTION KEY [DEFAULT]",
     "Prints the value of KEY, or DEFAULT (empty when not given) when it is missing or empty."},
    {"options set SECTION KEY VALUE",
     "Stores VALUE exactly as given; an empty VALUE reads as missing."},
    {"options list [SECTION]", "Lists the stored values of SECTION, or of every section."},
    {"options reset", "Deletes the whole section Options: every option goes back to its default."},
    {"options path", "Prints where the options file is."},
}};

constexpr std::string_view kDetails =
    "Arguments:\n"
    "  SECTION  Options, AutoUpdate, ManualRename, Playlist or XML (any case)\n"
    "  KEY      an option name such as WriteLogFile; names ignore case\n"
    "  DEFAULT  printed when KEY holds no value\n"
    "  VALUE    any text, blanks included; \"\" stores an empty value\n"
    "\n"
    "The options live in $XDG_CONFIG_HOME/Oakhollow/Tarnwick.ini (by default\n"
    "~/.config/Oakhollow/Tarnwick.ini), shared with the desktop application; a\n"
    "change is seen by a running copy at its next read. Every value is text: \"1\"\n"
    "and \"0\" stand for on and off.\n"
    "\n"
    "get prints the value followed by one line break. list prints \"[Section]\"\n"
    "headers and \"Key=value\" lines as in the file: a value with a line break,\n"
    "tab or other control character, a blank at either end, a leading double\n"
    "quote or bytes that are not UTF-8 is shown in double quotes with the escapes\n"
    "\\n \\r \\t \\\\ \\\" and \\xHH.\n";

}  // namespace

extern const Command kOptionsCommand = {
    .name = kCommand,
    .summary = "read and change the stored options",
    .forms = kForms,
    .details = kDetails,
    .run = RunOptions,
};

}  // namespace tarnwick::cli
