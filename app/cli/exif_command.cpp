// "exif": the EXIF entries of a picture, or one of them.
#include <array>
#include <charconv>
#include <optional>
#include <string>

#include "cli_command.h"
#include "media/exif_reader.h"
#include "platform/files.h"
#include "shell/message_table.h"

namespace tarnwick::cli {
namespace {

constexpr std::string_view kCommand = "exif";

struct ExifArgs {
  std::string file;
  std::optional<std::uint32_t> tag;
};

std::optional<std::string> ParseArgs(std::span<const std::string> args, ExifArgs& out) {
  bool have_file = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--tag") {
      if (i + 1 >= args.size()) return "--tag needs a tag number such as 36867";
      const std::string& text = args[++i];
      std::uint32_t tag = 0;
      const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), tag);
      if (error != std::errc() || end != text.data() + text.size() || tag > 0xFFFF) {
        return "--tag takes a number from 0 to 65535, not '" + text + "'";
      }
      out.tag = tag;
    } else if (arg.starts_with("--")) {
      return "unknown option '" + arg + "'";
    } else if (have_file) {
      return "only one FILE is expected";
    } else {
      out.file = arg;
      have_file = true;
    }
  }
  if (!have_file) return "FILE is missing";
  return std::nullopt;
}

// The reader's CR LF line ends as the terminal's.
std::string PlainLines(std::string text) {
  std::string out;
  for (const char c : text) {
    if (c != '\r') out += c;
  }
  return out;
}

int RunExif(std::span<const std::string> args, CliIo& io) {
  ExifArgs a;
  if (const auto error = ParseArgs(args, a)) return UsageError(io, kCommand, *error);
  if (!FileExists(a.file)) return Failure(io, "no such file: " + a.file);
  ExifReader reader;
  reader.SetImageFile(a.file);
  if (reader.status() != ExifReader::Status::kParsed) {
    return Failure(io, PlainLines(reader.ListInfo()));
  }
  if (!a.tag) {
    io.out << PlainLines(reader.ListInfo());
    return kExitOk;
  }
  std::string text;
  const std::int32_t value = reader.MetaInfo(*a.tag, text, false);
  io.out << text << '\t' << value << '\n';
  return reader.HasTag(*a.tag) ? kExitOk : kExitFailure;
}

constexpr std::array<CommandForm, 2> kForms = {{
    {"exif FILE", "list the EXIF entries of a picture, one \"Name: text\" line each"},
    {"exif FILE --tag N", "print the text of EXIF tag N, a tab, and its numeric value"},
}};

constexpr std::string_view kDetails =
    "Only the first 4096 bytes of FILE are searched for the EXIF block, and of\n"
    "its directories the first one and the EXIF directory are read. The list\n"
    "shows at most 80 entries. Texts are those of the renaming tokens\n"
    "{{get_jpg_exif_...}}: rationals as the reader shows them (\"72.0\" for a\n"
    "resolution, \"125\" for an exposure of 1/125 s), versions as \"2.21\".\n"
    "An exif.ini beside the program or in its data folder translates texts.\n"
    "\n"
    "Exit status: 0, or 1 when the file has no EXIF block, cannot be parsed,\n"
    "or lacks tag N (then the line reads \"Tag N not found.\").\n";

}  // namespace

extern const Command kExifCommand = {
    .name = kCommand,
    .summary = "show the EXIF entries of a picture",
    .forms = kForms,
    .details = kDetails,
    .run = RunExif,
};

}  // namespace tarnwick::cli
