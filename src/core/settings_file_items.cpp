#include "core/settings_file_items.h"

#include <array>
#include <string>

#include "core/action_order.h"
#include "core/product_info.h"
#include "persist/option_store.h"

namespace tarnwick {
namespace {

constexpr std::string_view kOptionsSection = "Options";

constexpr std::array<std::string_view, 29> kControls = {
    "chkCompleteName",   "txtCompleteName", "chkExtension",     "txtExtension",
    "chkCutMiddle",      "txtFromChar",     "txtToChar",        "txtReplaceChars",
    "chkCutLeft",        "txtLeftCut",      "chkPrefix",        "txtPrefix",
    "chkCutRight",       "txtRightCut",     "chkPostfix",       "txtPostfix",
    "chkReplace",        "txtSearchString", "txtReplaceString", "txtStartNumber",
    "txtLimiter",        "chkEditManual",   "chkNumbers",       "chkIncludeSubfolders",
    "cboExtension",      "txtStep",         "txtAddCount",      "chkOnlyUsePatterns",
    "txtUsePlaceholder",
};

constexpr std::string_view kAttention = "PLEASE DO NOT ALTER THESE FILE!!!!";

}  // namespace

std::vector<std::string_view> SettingsFileControlNames() {
  return {kControls.begin(), kControls.end()};
}

std::vector<RadioGroup> SettingsFileRadioGroups() {
  return {{"optCopyRename", 3}, {"optNumber", 4}, {"optOperator", 3}};
}

std::vector<SettingsItem> SettingsFileItems(const RenameSettings& settings,
                                            std::string_view current_dir,
                                            const OptionStore& options,
                                            const MessageTable& messages,
                                            std::string_view last_modified) {
  std::vector<SettingsItem> items;
  const std::string defaults(kDefaultsSection);
  items.push_back({"Warnings", "Attention", std::string(kAttention)});
  items.push_back({"Copyright", "by", std::string(kMakerCopyright)});
  items.push_back({"Tarnwick", "Version", std::string(kSettingsFileVersion)});
  items.push_back({"File", "LastModified", std::string(last_modified)});
  items.push_back({defaults, "CurrentDir", std::string(current_dir)});
  for (const std::string_view name : kControls) {
    items.push_back({defaults, std::string(name), GetRenameSetting(settings, name).value_or("")});
  }
  for (int n = 1; n <= kActionCount; ++n) {
    const std::string number = std::to_string(n);
    const std::string name_key = "SortOrderName" + number;
    const std::string code_key = "SortOrderInternal" + number;
    items.push_back({defaults, name_key,
                     options.GetOption(name_key, kOptionsSection, ActionDisplayName(n, messages))});
    items.push_back({defaults, code_key, options.GetOption(code_key, kOptionsSection, number)});
  }
  for (const RadioGroup& group : SettingsFileRadioGroups()) {
    const int chosen = std::stoi(GetRenameSetting(settings, group.field).value_or("0"));
    for (int i = 0; i < group.buttons; ++i) {
      items.push_back(
          {defaults, std::string(group.field) + std::to_string(i), i == chosen ? "1" : "0"});
    }
  }
  return items;
}

}  // namespace tarnwick
