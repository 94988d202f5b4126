// "wma": the attributes of a Windows Media file.
#include <array>
#include <string>

#include "cli_command.h"
#include "media/asf_tags.h"
#include "platform/files.h"
#include "tsv_text.h"

namespace tarnwick::cli {
namespace {

constexpr std::string_view kCommand = "wma";

constexpr std::array<std::string_view, 7> kTypeNames = {"dword", "string", "binary", "bool",
                                                        "qword", "word",   "guid"};

std::string TypeName(std::uint16_t type) {
  return type < kTypeNames.size() ? std::string(kTypeNames[type]) : std::to_string(type);
}

int RunWma(std::span<const std::string> args, CliIo& io) {
  if (args.empty()) return UsageError(io, kCommand, "FILE is missing");
  if (args.size() > 1) return UsageError(io, kCommand, "only one FILE is expected");
  if (args[0].starts_with("--"))
    return UsageError(io, kCommand, "unknown option '" + args[0] + "'");
  if (!FileExists(args[0])) return Failure(io, "no such file: " + args[0]);
  WmTags tags;
  if (!tags.ReadTags(args[0])) return Failure(io, "not a Windows Media file: " + args[0]);
  for (int i = 0; i < tags.TagCount(); ++i) {
    io.out << TsvField(tags.TagName(i)) << '\t' << TypeName(tags.TagType(i)) << '\t'
           << TsvField(tags.TagValue(i)) << '\n';
  }
  return kExitOk;
}

constexpr std::array<CommandForm, 1> kForms = {{
    {"wma FILE", "print each attribute of a WMA, WMV or ASF file: name, type, value"},
}};

constexpr std::string_view kDetails =
    "One line per attribute, tab-separated: the name, the type (dword,\n"
    "string, binary, bool, qword, word, guid) and the value. Binary values\n"
    "print empty, truth values as True or False, quad words divided by 10000\n"
    "(so a Duration in units of 100 ns reads in milliseconds). The attributes\n"
    "come from the file properties, the content description, the extended\n"
    "content description and the metadata objects of the file's header.\n"
    "\n"
    "Exit status: 0, or 1 when FILE is no Windows Media file.\n";

}  // namespace

extern const Command kWmaCommand = {
    .name = kCommand,
    .summary = "show the attributes of a Windows Media file",
    .forms = kForms,
    .details = kDetails,
    .run = RunWma,
};

}  // namespace tarnwick::cli
