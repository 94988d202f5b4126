// "expand": a text with placeholders expanded for one file, as a rename would.
#include <array>
#include <charconv>
#include <ctime>
#include <filesystem>
#include <optional>
#include <string>

#include "cli_command.h"
#include "filelist/file_date_type.h"
#include "media/media_readers.h"
#include "persist/option_store.h"
#include "placeholders/date_tokens.h"
#include "placeholders/engine.h"
#include "platform/file_times.h"
#include "shell/message_table.h"

namespace tarnwick::cli {
namespace {

constexpr std::string_view kCommand = "expand";

struct ExpandArgs {
  std::string expression;
  std::string file;
  std::optional<std::string> date;
  std::optional<std::string> count;
  std::string start = "1";
  std::string separator;
  std::string step = "1";
  std::string selected = "1";
  std::optional<std::string> now;
};

ClockReading ReadingOf(const std::tm& t) {
  return {t.tm_year + 1900,
          t.tm_mon + 1,
          t.tm_mday,
          t.tm_hour,
          t.tm_min,
          t.tm_sec,
          t.tm_hour * 3600.0 + t.tm_min * 60 + t.tm_sec};
}

ClockReading LocalReading(std::time_t seconds) {
  std::tm t{};
  localtime_r(&seconds, &t);
  return ReadingOf(t);
}

// The date text the file list shows for the file (`FileDateType`, `DateFormat`).
std::string ListDate(const OptionStore& options, const std::filesystem::path& path) {
  const auto times = GetFileTimes(path);
  if (!times.ok()) return {};
  const FileDateKind kind = ReadFileDateKind(options);
  FileTime stamp = times.value().created;
  if (kind == FileDateKind::kLastWrite) stamp = times.value().last_write;
  if (kind == FileDateKind::kLastAccess) stamp = times.value().last_access;
  const ClockReading r = LocalReading(std::chrono::system_clock::to_time_t(
      std::chrono::time_point_cast<std::chrono::system_clock::duration>(stamp)));
  const DateValue date{r.year, r.month, r.day, r.hour, r.minute, r.second};
  return FormatDatePattern(date,
                           options.GetOption("DateFormat", "Options", "dd.mm.yyyy") + " hh:mm:ss");
}

bool ReadInt(std::string_view text, long long& out) {
  const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), out);
  return ec == std::errc() && end == text.data() + text.size();
}

std::optional<std::string> ParseArgs(std::span<const std::string> args, ExpandArgs& out) {
  bool have_expression = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    const auto value = [&]() -> std::optional<std::string> {
      if (i + 1 >= args.size()) return std::nullopt;
      return args[++i];
    };
    std::optional<std::string>* optional_target = nullptr;
    std::string* target = nullptr;
    if (arg == "--file")
      target = &out.file;
    else if (arg == "--date")
      optional_target = &out.date;
    else if (arg == "--count")
      optional_target = &out.count;
    else if (arg == "--start")
      target = &out.start;
    else if (arg == "--separator")
      target = &out.separator;
    else if (arg == "--step")
      target = &out.step;
    else if (arg == "--selected")
      target = &out.selected;
    else if (arg == "--now")
      optional_target = &out.now;
    else if (arg.starts_with("--"))
      return "unknown option '" + arg + "'";
    if (target == nullptr && optional_target == nullptr) {
      if (have_expression) return "only one EXPRESSION is expected";
      out.expression = arg;
      have_expression = true;
      continue;
    }
    const auto v = value();
    if (!v) return arg + " needs a value";
    if (target != nullptr)
      *target = *v;
    else
      *optional_target = *v;
  }
  if (!have_expression) return "EXPRESSION is missing";
  return std::nullopt;
}

int RunExpand(std::span<const std::string> args, CliIo& io) {
  ExpandArgs a;
  if (const auto error = ParseArgs(args, a)) return UsageError(io, kCommand, *error);
  long long count = 0;
  long long selected = 0;
  if (!ReadInt(a.count.value_or(a.start), count) || count < INT32_MIN || count > INT32_MAX) {
    return UsageError(io, kCommand, "--count and --start need a whole number");
  }
  if (!ReadInt(a.selected, selected) || selected < 0) {
    return UsageError(io, kCommand, "--selected needs a number of rows");
  }
  std::optional<ClockReading> fixed;
  if (a.now) {
    const auto date = ParseDateText(*a.now, "yyyy-mm-dd");
    if (!date) return UsageError(io, kCommand, "--now needs \"YYYY-MM-DD hh:mm:ss\"");
    fixed = ClockReading{date->year,
                         date->month,
                         date->day,
                         date->hour,
                         date->minute,
                         date->second,
                         date->hour * 3600.0 + date->minute * 60 + date->second};
  }
  const OptionStore options = OptionStore::ForCurrentUser();
  const std::filesystem::path path = std::filesystem::absolute(a.file.empty() ? "." : a.file);
  PlaceholderState state;
  ExpansionContext context;
  static const MediaReaders media;
  context.media = &media;
  context.options = &options;
  context.state = &state;
  const MessageTable& messages = MessageTable::Get(SystemLanguage());
  context.message_text = [&messages](int id) { return std::string(messages.Text(id)); };
  context.now = [fixed] { return fixed ? *fixed : LocalReading(std::time(nullptr)); };
  const std::string folder = path.parent_path().string();
  const std::string folder_name =
      folder.size() < 4 ? folder : path.parent_path().filename().string();
  context.row = {folder, path.filename().string(), "", folder_name};
  context.current_count = static_cast<std::int32_t>(count);
  context.numbering = {a.separator, a.start, a.step, static_cast<std::size_t>(selected)};
  const std::string date = a.date.value_or(ListDate(options, path));
  io.out << ConvertExpressionMultiple(context, a.expression, date, path.string()) << '\n';
  return kExitOk;
}

constexpr std::array<CommandForm, 1> kForms = {{
    {"expand EXPRESSION [--file PATH] [--date TEXT] [--count N] [--start TEXT] "
     "[--separator TEXT] [--step N] [--selected N] [--now \"YYYY-MM-DD hh:mm:ss\"]",
     "print EXPRESSION with its {{...}} placeholders expanded for one file"},
}};

constexpr std::string_view kDetails =
    "Options:\n"
    "  --file PATH       the file the placeholders describe (need not exist)\n"
    "  --date TEXT       the file date text; by default the date the file list\n"
    "                    shows (options FileDateType and DateFormat)\n"
    "  --count N         the numbering counter; by default the value of --start\n"
    "  --start TEXT      the start number field; its length is the number width\n"
    "  --separator TEXT  the numbering separator\n"
    "  --step N          the numbering step\n"
    "  --selected N      the number of selected rows (default 1)\n"
    "  --now TEXT        a fixed current date and time\n"
    "\n"
    "Prints the result and one line break.\n";

}  // namespace

extern const Command kExpandCommand = {
    .name = kCommand,
    .summary = "expand placeholders for one file",
    .forms = kForms,
    .details = kDetails,
    .run = RunExpand,
};

}  // namespace tarnwick::cli
