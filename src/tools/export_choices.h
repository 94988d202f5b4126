#pragma once

#include <array>
#include <string>

namespace tarnwick {

class OptionStore;

// The columns an export can write, in the order it writes them: name, size,
// type, the date of `FileDateType`, attributes, path, media information and
// folder name. Index i is the list's column i.
struct ExportColumns {
  std::array<bool, 8> chosen = {true, true, false, false, false, false, false, false};
  bool any() const;
};

enum class ExportDelimiter { kTabs, kSemicolon, kOther };

// `frmSelectText`, kept in section `Options`.
struct TextExportChoices {
  ExportColumns columns;
  bool only_selected = true;
  bool include_subfolders = false;
  bool number_of_files = true;  // the closing "File(s):" line
  bool date_time = true;        // the closing date line
  ExportDelimiter delimiter = ExportDelimiter::kTabs;
  int tabs = 1;  // 1 to 10
  std::string other;

  // The text between two columns.
  std::string DelimiterText() const;
};

// `frmSelectXML`, kept in section `XML`.
struct XmlExportChoices {
  ExportColumns columns;
  bool only_selected = false;
  // `setParseUmlauts`: what XML cannot hold is written as visible escapes
  // rather than replaced (see XmlValueText).
  bool convert_invalid = true;
};

// The option keys of the eight columns, in column order.
inline constexpr std::array<const char*, 8> kExportColumnKeys = {
    "setName", "setSize", "setType", "setModified", "setAttribut", "setPath", "setPlaytime",
    "setFolder"};
inline constexpr int kMaxDelimiterTabs = 10;

TextExportChoices ReadTextExportChoices(const OptionStore& options);
void SaveTextExportChoices(OptionStore& options, const TextExportChoices& choices);
XmlExportChoices ReadXmlExportChoices(const OptionStore& options);
void SaveXmlExportChoices(OptionStore& options, const XmlExportChoices& choices);

}  // namespace tarnwick
