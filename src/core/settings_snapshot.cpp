#include "core/settings_snapshot.h"

namespace tarnwick {
namespace {

template <std::size_t N>
std::array<bool, N> Buttons(int chosen) {
  std::array<bool, N> buttons{};
  if (chosen >= 0 && chosen < static_cast<int>(N)) buttons[static_cast<std::size_t>(chosen)] = true;
  return buttons;
}

}  // namespace

RenameSettingsSnapshot SnapshotOf(const RenameSettings& s) {
  RenameSettingsSnapshot out;
  out.txtCompleteName = s.txtCompleteName;
  out.chkCompleteName = s.chkCompleteName;
  out.txtExtension = s.txtExtension;
  out.chkExtension = s.chkExtension;
  out.txtFromChar = s.txtFromChar;
  out.txtToChar = s.txtToChar;
  out.txtReplaceChars = s.txtReplaceChars;
  out.chkCutMiddle = s.chkCutMiddle;
  out.txtLeftCut = s.txtLeftCut;
  out.chkCutLeft = s.chkCutLeft;
  out.txtPrefix = s.txtPrefix;
  out.chkPrefix = s.chkPrefix;
  out.txtRightCut = s.txtRightCut;
  out.chkCutRight = s.chkCutRight;
  out.txtPostfix = s.txtPostfix;
  out.chkPostfix = s.chkPostfix;
  out.txtSearchString = s.txtSearchString;
  out.txtReplaceString = s.txtReplaceString;
  out.chkReplace = s.chkReplace;
  out.txtUsePlaceholder = s.txtUsePlaceholder;
  out.chkOnlyUsePatterns = s.chkOnlyUsePatterns;
  out.optNumber = Buttons<4>(s.optNumber);
  out.chkNumbers = s.chkNumbers;
  out.optOperator = Buttons<3>(s.optOperator);
  out.txtStartNumber = s.txtStartNumber;
  out.txtStep = s.txtStep;
  out.txtLimiter = s.txtLimiter;
  out.optCopyRename = Buttons<3>(s.optCopyRename);
  out.chkEditManual = s.chkEditManual;
  return out;
}

}  // namespace tarnwick
