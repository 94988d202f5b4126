#include "persist/snapshot_rename_settings.h"

#include <string_view>

namespace tarnwick {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string Flag(bool on) { return on ? "True" : "False"; }

std::string Box(int value) { return " [" + std::to_string(value) + "]"; }

void AddLine(std::string& out, const std::string& line) {
  out += line;
  out += kLineEnd;
}

}  // namespace

std::string RenameSettingsSnapshotLines(const RenameSettingsSnapshot& s) {
  std::string out;
  AddLine(out, "CompleteName: " + s.txtCompleteName + Box(s.chkCompleteName));
  AddLine(out, "Extension: " + s.txtExtension + Box(s.chkExtension));
  AddLine(out, "Replace by length: from " + s.txtFromChar + " to " + s.txtToChar + " with " +
                   s.txtReplaceChars + Box(s.chkCutMiddle));
  AddLine(out, "LeftCut: " + s.txtLeftCut + " chars" + Box(s.chkCutLeft));
  AddLine(out, "Prefix: " + s.txtPrefix + Box(s.chkPrefix));
  AddLine(out, "RightCut: " + s.txtRightCut + " chars" + Box(s.chkCutRight));
  AddLine(out, "Postfix: " + s.txtPostfix + Box(s.chkPostfix));
  AddLine(out,
          "ReplaceText: " + s.txtSearchString + " with " + s.txtReplaceString + Box(s.chkReplace));
  AddLine(out, "UsePlaceholder: " + s.txtUsePlaceholder + Box(s.chkOnlyUsePatterns));
  AddLine(out, "Numbering: before Prefix: " + Flag(s.optNumber[0]) + ", after Prefix: " +
                   Flag(s.optNumber[1]) + ", before Postfix: " + Flag(s.optNumber[2]) +
                   ", after Postfix: " + Flag(s.optNumber[3]) + Box(s.chkNumbers));
  AddLine(out, "Operator: Plus: " + Flag(s.optOperator[0]) + ", Minus: " + Flag(s.optOperator[1]) +
                   ", Multi: " + Flag(s.optOperator[2]));
  AddLine(out, "Count options: Start number: " + s.txtStartNumber + ", Steps: " + s.txtStep +
                   ", Limiter: " + s.txtLimiter);
  AddLine(out, "Create options: Renaming: " + Flag(s.optCopyRename[0]) + ", Create copy: " +
                   Flag(s.optCopyRename[1]) + ", Test: " + Flag(s.optCopyRename[2]));
  AddLine(out, "Edit Manual:  [" + std::to_string(s.chkEditManual) + "]" + std::string(kLineEnd));
  return out;
}

}  // namespace tarnwick
