#include "run_controls.h"

#include <algorithm>
#include <map>
#include <vector>

#include "base/text.h"
#include "core/action_order.h"
#include "core/pipeline_actions.h"
#include "core/rename_settings.h"

namespace tarnwick::cli {
namespace {

// What a control means: an action of the pipeline (by its code), or a text
// of the message table.
struct ControlMeaning {
  int action = 0;
  std::string_view key;
  std::string_view values;
};

const std::map<std::string_view, ControlMeaning>& Meanings() {
  static const std::map<std::string_view, ControlMeaning> meanings = {
      {"chkCompleteName", {1, {}, "0|1"}},
      {"txtCompleteName", {1, {}, "text with {{...}}"}},
      {"chkExtension", {2, {}, "0|1"}},
      {"txtExtension", {2, {}, "text with {{...}}"}},
      {"chkCutMiddle", {3, {}, "0|1"}},
      {"txtFromChar", {3, {}, "number"}},
      {"txtToChar", {3, {}, "number"}},
      {"txtReplaceChars", {3, {}, "text with {{...}}"}},
      {"chkCutLeft", {4, {}, "0|1"}},
      {"txtLeftCut", {4, {}, "number"}},
      {"chkPrefix", {5, {}, "0|1"}},
      {"txtPrefix", {5, {}, "text with {{...}}"}},
      {"chkCutRight", {6, {}, "0|1"}},
      {"txtRightCut", {6, {}, "number"}},
      {"chkPostfix", {7, {}, "0|1"}},
      {"txtPostfix", {7, {}, "text with {{...}}"}},
      {"chkReplace", {8, {}, "0|1"}},
      {"txtSearchString", {8, {}, "text"}},
      {"txtReplaceString", {8, {}, "text with {{...}}"}},
      {"chkOnlyUsePatterns", {9, {}, "0|1"}},
      {"txtUsePlaceholder", {9, {}, "text with {{...}}"}},
      {"chkEditManual", {10, {}, "0|1 (window only)"}},
      {"chkNumbers", {0, "numbering.caption", "0|1"}},
      {"optNumber",
       {0, "numbering.before_prefix",
        "0 before prefix|1 after prefix|2 before postfix|3 after postfix"}},
      {"txtStartNumber", {0, "main.numbering.start", "number"}},
      {"txtLimiter", {0, "numbering.separator", "text"}},
      {"txtStep", {0, "numbering.steps", "number"}},
      {"optOperator", {0, "numbering.add_steps", "0 add|1 subtract|2 multiply"}},
      {"txtAddCount", {0, "main.numbering.files_per_number", "number"}},
      {"chkIncludeSubfolders", {0, "main.label.include_subfolders", "0|1"}},
      {"cboExtension", {0, "main.label.extension_filter", "*.* or *.ext"}},
      {"optCopyRename", {0, "run.button_rename", "0 rename|1 copy|2 test"}},
      {"CurrentDir", {0, "report.column_path", "folder"}},
  };
  return meanings;
}

std::size_t Distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t above = row[j];
      const bool same = std::tolower(static_cast<unsigned char>(a[i - 1])) ==
                        std::tolower(static_cast<unsigned char>(b[j - 1]));
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (same ? 0 : 1)});
      diagonal = above;
    }
  }
  return row[b.size()];
}

}  // namespace

void PrintControls(std::ostream& out, const MessageTable& messages) {
  const RenameSettings defaults;
  for (const std::string_view name : RenameSettingNames()) {
    const auto found = Meanings().find(name);
    std::string meaning;
    std::string_view values = "text";
    if (found != Meanings().end()) {
      const ControlMeaning& m = found->second;
      meaning =
          m.action != 0 ? ActionDisplayName(m.action, messages) : std::string(messages.Text(m.key));
      if (!meaning.empty() && meaning.back() == ':') meaning.pop_back();
      values = m.values;
    }
    out << name << '\t' << meaning << '\t' << GetRenameSetting(defaults, name).value_or("") << '\t'
        << values << '\n';
  }
}

std::string NearestControlNames(std::string_view name) {
  std::vector<std::pair<std::size_t, std::string_view>> scored;
  for (const std::string_view control : RenameSettingNames()) {
    scored.emplace_back(Distance(name, control), control);
  }
  std::sort(scored.begin(), scored.end());
  std::string nearest;
  for (const auto& [distance, control] : scored) {
    if (distance > 3 || distance > scored.front().first) break;
    if (!nearest.empty()) nearest += ", ";
    nearest += control;
  }
  return nearest;
}

}  // namespace tarnwick::cli
