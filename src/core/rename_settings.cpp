// The renaming controls by name.
#include "core/rename_settings.h"

#include <array>
#include <cmath>
#include <variant>

#include "base/text.h"
#include "base/vb_error.h"
#include "base/vb_number.h"

namespace tarnwick {
namespace {

using TextField = std::string RenameSettings::*;
using NumberField = int RenameSettings::*;

struct Field {
  std::string_view name;
  std::variant<TextField, NumberField> member;
};

using R = RenameSettings;

constexpr Field kFields[] = {
    {"chkCompleteName", &R::chkCompleteName},
    {"txtCompleteName", &R::txtCompleteName},
    {"chkExtension", &R::chkExtension},
    {"txtExtension", &R::txtExtension},
    {"chkCutMiddle", &R::chkCutMiddle},
    {"txtFromChar", &R::txtFromChar},
    {"txtToChar", &R::txtToChar},
    {"txtReplaceChars", &R::txtReplaceChars},
    {"chkCutLeft", &R::chkCutLeft},
    {"txtLeftCut", &R::txtLeftCut},
    {"chkCutRight", &R::chkCutRight},
    {"txtRightCut", &R::txtRightCut},
    {"chkPrefix", &R::chkPrefix},
    {"txtPrefix", &R::txtPrefix},
    {"chkPostfix", &R::chkPostfix},
    {"txtPostfix", &R::txtPostfix},
    {"chkReplace", &R::chkReplace},
    {"txtSearchString", &R::txtSearchString},
    {"txtReplaceString", &R::txtReplaceString},
    {"chkOnlyUsePatterns", &R::chkOnlyUsePatterns},
    {"txtUsePlaceholder", &R::txtUsePlaceholder},
    {"chkEditManual", &R::chkEditManual},
    {"chkNumbers", &R::chkNumbers},
    {"optNumber", &R::optNumber},
    {"txtStartNumber", &R::txtStartNumber},
    {"txtLimiter", &R::txtLimiter},
    {"txtStep", &R::txtStep},
    {"optOperator", &R::optOperator},
    {"txtAddCount", &R::txtAddCount},
    {"chkIncludeSubfolders", &R::chkIncludeSubfolders},
    {"cboExtension", &R::cboExtension},
    {"optCopyRename", &R::optCopyRename},
    {"CurrentDir", &R::CurrentDir},
};

constexpr std::size_t kFieldCount = std::size(kFields);

constexpr std::array<std::string_view, kFieldCount> MakeNames() {
  std::array<std::string_view, kFieldCount> names{};
  for (std::size_t i = 0; i < kFieldCount; ++i) names[i] = kFields[i].name;
  return names;
}

constexpr std::array<std::string_view, kFieldCount> kNames = MakeNames();

const Field* FindField(std::string_view name) {
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    if (EqualsText(kFields[i].name, name)) return &kFields[i];
  }
  return nullptr;
}

// The number a text starts with, as a check box reads it: 0 for anything
// that is no number or does not fit.
int NumberOf(std::string_view text) {
  try {
    const double value = vb::RoundHalfEven(vb::Val(text));
    if (!std::isfinite(value) || std::fabs(value) > 2147483647.0) return 0;
    return static_cast<int>(value);
  } catch (const VbError&) {
    return 0;
  }
}

}  // namespace

std::span<const std::string_view> RenameSettingNames() { return kNames; }

std::optional<std::string> GetRenameSetting(const RenameSettings& settings, std::string_view name) {
  const Field* field = FindField(name);
  if (field == nullptr) return std::nullopt;
  if (const auto* text = std::get_if<TextField>(&field->member)) return settings.*(*text);
  return std::to_string(settings.*std::get<NumberField>(field->member));
}

bool SetRenameSetting(RenameSettings& settings, std::string_view name, std::string_view value) {
  const Field* field = FindField(name);
  if (field == nullptr) return false;
  if (const auto* text = std::get_if<TextField>(&field->member)) {
    settings.*(*text) = std::string(value);
    return true;
  }
  settings.*std::get<NumberField>(field->member) = NumberOf(value);
  return true;
}

}  // namespace tarnwick
