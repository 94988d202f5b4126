#include "tools/export_choices.h"

#include <algorithm>
#include <cstdlib>

#include "persist/option_store.h"

namespace tarnwick {
namespace {

constexpr std::string_view kTextSection = "Options";
constexpr std::string_view kXmlSection = "XML";

bool Flag(const OptionStore& options, std::string_view key, std::string_view section,
          bool fallback) {
  return options.GetOption(key, section, fallback ? "1" : "0") == "1";
}

void SaveFlag(OptionStore& options, std::string_view key, std::string_view section, bool on) {
  options.SaveOption(key, section, on ? "1" : "0");
}

ExportColumns ReadColumns(const OptionStore& options, std::string_view section) {
  ExportColumns columns;
  for (std::size_t i = 0; i < kExportColumnKeys.size(); ++i) {
    columns.chosen[i] = Flag(options, kExportColumnKeys[i], section, columns.chosen[i]);
  }
  return columns;
}

void SaveColumns(OptionStore& options, std::string_view section, const ExportColumns& columns) {
  for (std::size_t i = 0; i < kExportColumnKeys.size(); ++i) {
    SaveFlag(options, kExportColumnKeys[i], section, columns.chosen[i]);
  }
}

}  // namespace

bool ExportColumns::any() const {
  return std::any_of(chosen.begin(), chosen.end(), [](bool on) { return on; });
}

std::string TextExportChoices::DelimiterText() const {
  switch (delimiter) {
    case ExportDelimiter::kSemicolon:
      return ";";
    case ExportDelimiter::kOther:
      return other;
    case ExportDelimiter::kTabs:
      break;
  }
  return std::string(static_cast<std::size_t>(std::clamp(tabs, 1, kMaxDelimiterTabs)), '\t');
}

TextExportChoices ReadTextExportChoices(const OptionStore& options) {
  TextExportChoices choices;
  choices.columns = ReadColumns(options, kTextSection);
  choices.only_selected = Flag(options, "setOnlySelected", kTextSection, true);
  choices.include_subfolders = Flag(options, "setIncludeSubdirs", kTextSection, false);
  choices.number_of_files = Flag(options, "setNumberOfFiles", kTextSection, true);
  choices.date_time = Flag(options, "setDateTime", kTextSection, true);
  // The last of the three radio buttons stored as on wins, as the dialogue
  // set them in this order.
  if (Flag(options, "setTabstop", kTextSection, true)) choices.delimiter = ExportDelimiter::kTabs;
  if (Flag(options, "setSemicolon", kTextSection, false)) {
    choices.delimiter = ExportDelimiter::kSemicolon;
  }
  if (Flag(options, "setOther", kTextSection, false)) choices.delimiter = ExportDelimiter::kOther;
  const long tabs = std::strtol(options.GetOption("setTabsValue", kTextSection, "1").c_str(),
                                nullptr, 10);
  choices.tabs = static_cast<int>(std::clamp<long>(tabs, 1, kMaxDelimiterTabs));
  choices.other = options.GetOption("setOtherText", kTextSection, "");
  return choices;
}

void SaveTextExportChoices(OptionStore& options, const TextExportChoices& choices) {
  SaveColumns(options, kTextSection, choices.columns);
  SaveFlag(options, "setOnlySelected", kTextSection, choices.only_selected);
  SaveFlag(options, "setIncludeSubdirs", kTextSection, choices.include_subfolders);
  SaveFlag(options, "setNumberOfFiles", kTextSection, choices.number_of_files);
  SaveFlag(options, "setDateTime", kTextSection, choices.date_time);
  SaveFlag(options, "setTabstop", kTextSection, choices.delimiter == ExportDelimiter::kTabs);
  SaveFlag(options, "setSemicolon", kTextSection,
           choices.delimiter == ExportDelimiter::kSemicolon);
  SaveFlag(options, "setOther", kTextSection, choices.delimiter == ExportDelimiter::kOther);
  options.SaveOption("setTabsValue", kTextSection,
                     std::to_string(std::clamp(choices.tabs, 1, kMaxDelimiterTabs)));
  options.SaveOption("setOtherText", kTextSection, choices.other);
}

XmlExportChoices ReadXmlExportChoices(const OptionStore& options) {
  XmlExportChoices choices;
  choices.columns = ReadColumns(options, kXmlSection);
  choices.only_selected = Flag(options, "setOnlySelected", kXmlSection, false);
  choices.convert_invalid = Flag(options, "setParseUmlauts", kXmlSection, true);
  return choices;
}

void SaveXmlExportChoices(OptionStore& options, const XmlExportChoices& choices) {
  SaveColumns(options, kXmlSection, choices.columns);
  SaveFlag(options, "setOnlySelected", kXmlSection, choices.only_selected);
  SaveFlag(options, "setParseUmlauts", kXmlSection, choices.convert_invalid);
}

}  // namespace tarnwick
