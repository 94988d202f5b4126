#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/product_info.h"
#include "core/rename_settings.h"

namespace tarnwick {

class MessageTable;
class OptionStore;

// The sections and items of a rename settings file, as written in this order:
//   Warnings/Attention, Copyright/by, Tarnwick/Version, File/LastModified,
//   Defaults/CurrentDir, the controls, SortOrderName1, SortOrderInternal1 ...
//   SortOrderName10, SortOrderInternal10, optCopyRename0-2, optNumber0-3,
//   optOperator0-2.
inline constexpr std::string_view kDefaultsSection = "Defaults";

struct SettingsItem {
  std::string section;
  std::string name;
  std::string value;
};

// Everything written to a settings file for `settings`, in file order.
// `current_dir` is written as `CurrentDir` (empty when the path is not
// saved); the action order comes from the options, each name defaulting to
// the action's display text and each code to its own number; `last_modified`
// is the date and time text of the moment.
std::vector<SettingsItem> SettingsFileItems(const RenameSettings& settings,
                                            std::string_view current_dir,
                                            const OptionStore& options,
                                            const MessageTable& messages,
                                            std::string_view last_modified);

// The controls of section `Defaults` that a file carries one to one: the
// check boxes and texts of the record, in file order (not `CurrentDir`, the
// action order or the radio groups).
std::vector<std::string_view> SettingsFileControlNames();

// The radio groups of a settings file: the record's field, the items' stem
// and the number of buttons.
struct RadioGroup {
  std::string_view field;  // "optCopyRename"
  int buttons;
};
std::vector<RadioGroup> SettingsFileRadioGroups();

// The version text written to `Tarnwick/Version`.
inline constexpr std::string_view kSettingsFileVersion = kProductVersion;

}  // namespace tarnwick
