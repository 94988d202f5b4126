#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tarnwick {

// The renaming controls of the main window as a plain record. The field names
// are the controls' names, which are also the keys of settings files (section
// `Defaults`). Ticks hold the check box's value: only exactly 1 counts as
// ticked (a greyed box stores 2). Option groups hold the index of the chosen
// button. Number fields stay texts: they are read with `Val` at each use, so
// what the user typed is never lost.
//
// The action order is not part of the record: `SortOrderInternal1` to
// `SortOrderInternal10` live in the options and are read at each use
// (action_order.h).
struct RenameSettings {
  int chkCompleteName = 0;
  std::string txtCompleteName;

  int chkExtension = 0;
  std::string txtExtension;

  int chkCutMiddle = 0;
  std::string txtFromChar;
  std::string txtToChar;
  std::string txtReplaceChars;

  int chkCutLeft = 0;
  std::string txtLeftCut;

  int chkCutRight = 0;
  std::string txtRightCut;

  int chkPrefix = 0;
  std::string txtPrefix;

  int chkPostfix = 0;
  std::string txtPostfix;

  int chkReplace = 0;
  std::string txtSearchString;
  std::string txtReplaceString;

  int chkOnlyUsePatterns = 0;
  std::string txtUsePlaceholder;

  int chkEditManual = 0;

  // Numbering.
  int chkNumbers = 0;
  int optNumber = 0;  // 0 before prefix, 1 after prefix, 2 before postfix, 3 after postfix
  std::string txtStartNumber = "1";
  std::string txtLimiter;
  std::string txtStep = "1";
  int optOperator = 0;  // 0 add, 1 subtract, 2 multiply
  std::string txtAddCount = "1";

  // The list.
  int chkIncludeSubfolders = 0;
  std::string cboExtension = "*.*";

  int optCopyRename = 0;  // 0 rename, 1 create a copy, 2 test

  // Folder of the list; kept in settings files only.
  std::string CurrentDir;
};

// Whether a check box value counts as ticked: exactly 1.
inline bool Ticked(int value) { return value == 1; }

// The values of `optNumber`.
inline constexpr int kNumberBeforePrefix = 0;
inline constexpr int kNumberAfterPrefix = 1;
inline constexpr int kNumberBeforePostfix = 2;
inline constexpr int kNumberAfterPostfix = 3;

// The values of `optOperator`.
inline constexpr int kOperatorAdd = 0;
inline constexpr int kOperatorSubtract = 1;
inline constexpr int kOperatorMultiply = 2;

// The values of `optCopyRename`.
inline constexpr int kModeRename = 0;
inline constexpr int kModeCopy = 1;
inline constexpr int kModeTest = 2;

// --- Access by control name, for settings files and front ends. ----------

// The control names of the record, in the order of the table above.
std::span<const std::string_view> RenameSettingNames();

// The value of the field `name` (compared without regard to case) as text:
// ticks and option groups as their decimal number. Nothing for an unknown name.
std::optional<std::string> GetRenameSetting(const RenameSettings& settings, std::string_view name);

// Sets the field `name` from a text. Ticks and option groups take the number
// the text starts with (`Val`, rounded); a text that is not a number gives 0.
// Returns false, and changes nothing, for an unknown name.
bool SetRenameSetting(RenameSettings& settings, std::string_view name, std::string_view value);

}  // namespace tarnwick
