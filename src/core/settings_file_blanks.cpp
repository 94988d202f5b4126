#include <array>
#include <string>

#include "core/settings_file.h"

namespace tarnwick {
namespace {

constexpr std::string_view kSpaceToken = "{{space}}";

}  // namespace

std::string ReplaceEndBlanks(std::string_view text) {
  if (text.empty() || text.back() != ' ') return std::string(text);
  std::size_t blanks = 0;
  for (const char c : text) blanks += c == ' ' ? 1 : 0;
  std::string result(text.substr(0, text.find_last_not_of(' ') + 1));
  if (text.find_first_not_of(' ') == std::string_view::npos) result.clear();
  for (std::size_t i = 0; i < blanks; ++i) result += kSpaceToken;
  return result;
}

bool ReplaceEndBlanksInFields(RenameSettings& settings) {
  const std::array<std::string*, 8> fields = {
      &settings.txtCompleteName,  &settings.txtExtension,      &settings.txtReplaceChars,
      &settings.txtPrefix,        &settings.txtPostfix,        &settings.txtSearchString,
      &settings.txtReplaceString, &settings.txtUsePlaceholder,
  };
  bool changed = false;
  for (std::string* field : fields) {
    std::string replaced = ReplaceEndBlanks(*field);
    if (replaced == *field) continue;
    *field = std::move(replaced);
    changed = true;
  }
  return changed;
}

}  // namespace tarnwick
