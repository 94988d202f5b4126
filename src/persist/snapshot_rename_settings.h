#pragma once

#include <array>
#include <string>

namespace tarnwick {

// The values of the renaming controls that the log's settings snapshot
// prints, by the controls' names. The rename settings of the main window
// fill it; it is a plain record so that this layer needs nothing of them.
// Check boxes hold 0 or 1; option button groups hold one flag per button.
struct RenameSettingsSnapshot {
  std::string txtCompleteName;
  int chkCompleteName = 0;
  std::string txtExtension;
  int chkExtension = 0;
  std::string txtFromChar;
  std::string txtToChar;
  std::string txtReplaceChars;
  int chkCutMiddle = 0;
  std::string txtLeftCut;
  int chkCutLeft = 0;
  std::string txtPrefix;
  int chkPrefix = 0;
  std::string txtRightCut;
  int chkCutRight = 0;
  std::string txtPostfix;
  int chkPostfix = 0;
  std::string txtSearchString;
  std::string txtReplaceString;
  int chkReplace = 0;
  std::string txtUsePlaceholder;
  int chkOnlyUsePatterns = 0;
  // Where the number goes: before prefix, after prefix, before postfix,
  // after postfix.
  std::array<bool, 4> optNumber{};
  int chkNumbers = 0;
  // Plus, minus, multi.
  std::array<bool, 3> optOperator{};
  std::string txtStartNumber;
  std::string txtStep;
  std::string txtLimiter;
  // Renaming, create copy, test.
  std::array<bool, 3> optCopyRename{};
  int chkEditManual = 0;
};

// The text of the snapshot after its heading line: one line per control
// group, each ended by CR LF, the last followed by one more CR LF. Option
// buttons print as "True" or "False".
std::string RenameSettingsSnapshotLines(const RenameSettingsSnapshot& settings);

}  // namespace tarnwick
