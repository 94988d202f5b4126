// "catalogue": the placeholder catalogue as the picker lists it, with
// samples and descriptions, optionally narrowed by the picker's search.
#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "base/utf8.h"
#include "cli_command.h"
#include "placeholders/catalogue_rows.h"
#include "shell/message_table.h"

namespace tarnwick::cli {
namespace {

constexpr std::string_view kCommand = "catalogue";

struct CatalogueArgs {
  std::optional<std::string> search;
  std::optional<CatalogueLanguage> language;
  bool aligned = false;
};

std::optional<CatalogueLanguage> LanguageNamed(std::string_view name) {
  if (name == "en") return CatalogueLanguage::kEnglish;
  if (name == "de") return CatalogueLanguage::kGerman;
  return std::nullopt;
}

std::optional<std::string> ParseArgs(std::span<const std::string> args, CatalogueArgs& out) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--aligned") {
      out.aligned = true;
      continue;
    }
    if (arg == "--search") {
      if (i + 1 >= args.size()) return "--search needs a text";
      if (out.search) return "only one --search is expected";
      out.search = args[++i];
      continue;
    }
    if (arg == "--language") {
      if (i + 1 >= args.size()) return "--language needs en or de";
      out.language = LanguageNamed(args[++i]);
      if (!out.language) return "--language needs en or de, not '" + args[i] + "'";
      continue;
    }
    if (arg.starts_with("--")) return "unknown option '" + arg + "'";
    return "unexpected argument '" + arg + "' (search with --search TEXT)";
  }
  return std::nullopt;
}

CatalogueLanguage InterfaceLanguage() {
  return SystemLanguage() == Language::kGerman ? CatalogueLanguage::kGerman
                                               : CatalogueLanguage::kEnglish;
}

std::string PaddedTo(const std::string& text, std::size_t width) {
  const std::size_t chars = utf8::CountChars(text);
  return chars >= width ? text : text + std::string(width - chars, ' ');
}

void PrintAligned(const std::vector<CatalogueRow>& rows, const std::vector<std::size_t>& shown,
                  std::ostream& out) {
  std::size_t tag_width = 0;
  std::size_t sample_width = 0;
  for (const std::size_t i : shown) {
    tag_width = std::max(tag_width, utf8::CountChars(rows[i].tag));
    sample_width = std::max(sample_width, utf8::CountChars(rows[i].sample));
  }
  for (const std::size_t i : shown) {
    out << PaddedTo(rows[i].tag, tag_width) << "  " << PaddedTo(rows[i].sample, sample_width)
        << "  " << rows[i].description << '\n';
  }
}

int RunCatalogue(std::span<const std::string> args, CliIo& io) {
  CatalogueArgs a;
  if (const auto error = ParseArgs(args, a)) return UsageError(io, kCommand, *error);
  const std::vector<CatalogueRow> rows =
      BuildCatalogueRows(a.language.value_or(InterfaceLanguage()),
                         LocalCatalogueMoment(std::chrono::system_clock::now()));
  std::vector<std::size_t> shown;
  if (a.search) {
    shown = FindCatalogueRows(rows, *a.search);
  } else {
    for (std::size_t i = 0; i < rows.size(); ++i) shown.push_back(i);
  }
  if (shown.empty()) return Failure(io, "no placeholder matches '" + a.search.value_or("") + "'");
  if (a.aligned) {
    PrintAligned(rows, shown, io.out);
    return kExitOk;
  }
  for (const std::size_t i : shown) {
    io.out << rows[i].tag << '\t' << rows[i].sample << '\t' << rows[i].description << '\n';
  }
  return kExitOk;
}

constexpr std::array<CommandForm, 1> kForms = {{
    {"catalogue [--search TEXT] [--language en|de] [--aligned]",
     "list the placeholders (name, sample, meaning), or those the picker's search finds"},
}};

constexpr std::string_view kDetails =
    "Prints one row per placeholder: name, sample and meaning, separated by tabs.\n"
    "\n"
    "Options:\n"
    "  --search TEXT     only the rows the placeholder picker's search finds: a\n"
    "                    row matches when its name (without the braces) starts\n"
    "                    with TEXT; when none does, or TEXT starts with \"*\", the\n"
    "                    text is looked for anywhere in the name, the sample and\n"
    "                    the meaning. Case does not matter.\n"
    "  --language en|de  the language of samples and meanings; by default the\n"
    "                    system's (LC_ALL, LC_MESSAGES, LANG)\n"
    "  --aligned         columns padded with blanks for reading, not tabs\n"
    "\n"
    "Samples of the current-date rows show today. Exit status 1 when nothing\n"
    "matches.\n";

}  // namespace

extern const Command kCatalogueCommand = {
    .name = kCommand,
    .summary = "list the {{...}} placeholders",
    .forms = kForms,
    .details = kDetails,
    .run = RunCatalogue,
};

}  // namespace tarnwick::cli
