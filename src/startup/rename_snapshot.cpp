#include "startup/rename_snapshot.h"

namespace tarnwick {
namespace {

template <std::size_t N>
std::array<bool, N> Chosen(int index) {
  std::array<bool, N> flags{};
  if (index >= 0 && static_cast<std::size_t>(index) < N) flags[index] = true;
  return flags;
}

}  // namespace

RenameSettingsSnapshot SnapshotOf(const RenameSettings& s) {
  RenameSettingsSnapshot snapshot;
  snapshot.txtCompleteName = s.txtCompleteName;
  snapshot.chkCompleteName = s.chkCompleteName;
  snapshot.txtExtension = s.txtExtension;
  snapshot.chkExtension = s.chkExtension;
  snapshot.txtFromChar = s.txtFromChar;
  snapshot.txtToChar = s.txtToChar;
  snapshot.txtReplaceChars = s.txtReplaceChars;
  snapshot.chkCutMiddle = s.chkCutMiddle;
  snapshot.txtLeftCut = s.txtLeftCut;
  snapshot.chkCutLeft = s.chkCutLeft;
  snapshot.txtPrefix = s.txtPrefix;
  snapshot.chkPrefix = s.chkPrefix;
  snapshot.txtRightCut = s.txtRightCut;
  snapshot.chkCutRight = s.chkCutRight;
  snapshot.txtPostfix = s.txtPostfix;
  snapshot.chkPostfix = s.chkPostfix;
  snapshot.txtSearchString = s.txtSearchString;
  snapshot.txtReplaceString = s.txtReplaceString;
  snapshot.chkReplace = s.chkReplace;
  snapshot.txtUsePlaceholder = s.txtUsePlaceholder;
  snapshot.chkOnlyUsePatterns = s.chkOnlyUsePatterns;
  snapshot.optNumber = Chosen<4>(s.optNumber);
  snapshot.chkNumbers = s.chkNumbers;
  snapshot.optOperator = Chosen<3>(s.optOperator);
  snapshot.txtStartNumber = s.txtStartNumber;
  snapshot.txtStep = s.txtStep;
  snapshot.txtLimiter = s.txtLimiter;
  snapshot.optCopyRename = Chosen<3>(s.optCopyRename);
  snapshot.chkEditManual = s.chkEditManual;
  return snapshot;
}

}  // namespace tarnwick
