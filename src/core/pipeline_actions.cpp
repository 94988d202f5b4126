// The actions 1 to 9 of the name pipeline.
#include "core/pipeline_actions.h"

#include <cstdint>

#include "base/text.h"
#include "base/vb_number.h"
#include "core/action_order.h"
#include "core/expansion_setup.h"
#include "core/numbering.h"
#include "core/pipeline_name_parts.h"
#include "core/pipeline_resume_next.h"
#include "core/pipeline_search_span.h"
#include "core/rename_settings.h"

namespace tarnwick {
namespace {

// A count of characters worked out from a field's value, as the runtime
// passes it to Left and Right: rounded half to even, 32 bits.
std::int64_t CharCount(double value) { return vb::CLng(value); }

std::string WithExtension(std::string text, std::string_view extension) {
  return text.append(".").append(extension);
}

bool NumberAtPrefix(const RenameSettings& s) {
  return Ticked(s.chkNumbers) &&
         (s.optNumber == kNumberBeforePrefix || s.optNumber == kNumberAfterPrefix);
}

bool NumberAtPostfix(const RenameSettings& s) {
  return Ticked(s.chkNumbers) &&
         (s.optNumber == kNumberBeforePostfix || s.optNumber == kNumberAfterPostfix);
}

}  // namespace

bool ActionTicked(const RenameSettings& s, int code) {
  switch (code) {
    case kActionCompleteName:
      return Ticked(s.chkCompleteName);
    case kActionExtension:
      return Ticked(s.chkExtension);
    case kActionReplaceRange:
      return Ticked(s.chkCutMiddle);
    case kActionCutLeft:
      return Ticked(s.chkCutLeft);
    case kActionPrefix:
      return Ticked(s.chkPrefix);
    case kActionCutRight:
      return Ticked(s.chkCutRight);
    case kActionPostfix:
      return Ticked(s.chkPostfix);
    case kActionReplaceText:
      return Ticked(s.chkReplace);
    case kActionUsePlaceholder:
      return Ticked(s.chkOnlyUsePatterns);
    case kActionEditManual:
      return Ticked(s.chkEditManual);
    default:
      return false;
  }
}

std::string ApplyAction(int code, const ActionInputs& in, std::string_view name) {
  switch (code) {
    case kActionCompleteName:
      return ActionCompleteName(in, name);
    case kActionExtension:
      return ActionExtension(in, name);
    case kActionReplaceRange:
      return ActionReplaceRange(in, name);
    case kActionCutLeft:
      return ActionCutLeft(in, name);
    case kActionPrefix:
      return ActionPrefix(in, name);
    case kActionCutRight:
      return ActionCutRight(in, name);
    case kActionPostfix:
      return ActionPostfix(in, name);
    case kActionReplaceText:
      return ActionReplaceText(in, name);
    case kActionUsePlaceholder:
      return ActionUsePlaceholder(in, name);
    default:
      return std::string(name);
  }
}

std::string ActionCompleteName(const ActionInputs& in, std::string_view name) {
  const NameParts parts = SplitName(name);
  // Without extension the field goes in as typed: its tokens are expanded by
  // the clean-up step behind the action.
  if (!parts.has_extension()) return in.settings.txtCompleteName;
  return WithExtension(in.expander.ExpandOrKeep(in.settings.txtCompleteName), parts.extension);
}

std::string ActionExtension(const ActionInputs& in, std::string_view name) {
  const NameParts parts = SplitName(name);
  const std::string& extension = in.settings.txtExtension;
  std::string result;
  if (!parts.has_extension()) {
    result = extension.empty() ? std::string(name) : WithExtension(std::string(name), extension);
  } else {
    result = extension.empty() ? parts.base : WithExtension(parts.base, extension);
  }
  return in.expander.ExpandOrKeep(result);
}

std::string ActionReplaceRange(const ActionInputs& in, std::string_view name) {
  const NameParts parts = SplitName(name);
  const std::int64_t length = vb::Len(name);
  std::int64_t from = 0;
  std::int64_t to = 0;
  ResumeNext([&] { from = vb::CLng(vb::Val(in.settings.txtFromChar)); });
  ResumeNext([&] { to = vb::CLng(vb::Val(in.settings.txtToChar)); });
  if (to > length - vb::Len(parts.extension)) to = length;
  std::string left;
  std::string right;
  ResumeNext([&] { left = vb::Left(name, from - 1); });
  ResumeNext([&] { right = vb::Mid(name, to + 1); });
  const std::string replacement = in.expander.ExpandOrKeep(in.settings.txtReplaceChars);
  if (!parts.has_extension()) return left + replacement + right;
  if (right.empty()) return WithExtension(left + replacement, parts.extension);
  // Kept: the fixed 4 assumes a dot and three letters. A longer extension
  // leaves some of itself behind; a shorter rest fails the statement, and the
  // name comes out empty.
  std::string result;
  ResumeNext([&] {
    result =
        WithExtension(left + replacement + vb::Left(right, vb::Len(right) - 4), parts.extension);
  });
  return result;
}

std::string ActionCutLeft(const ActionInputs& in, std::string_view name) {
  return vb::Right(name, CharCount(vb::Len(name) - vb::Val(in.settings.txtLeftCut)));
}

std::string ActionPrefix(const ActionInputs& in, std::string_view name) {
  const RenameSettings& s = in.settings;
  const std::string prefix = in.expander.ExpandOrKeep(s.txtPrefix);
  if (!NumberAtPrefix(s)) return prefix + std::string(name);
  return PlaceNumberAtPrefix(s.optNumber, NumberText(in.current_count, s.txtStartNumber),
                             s.txtLimiter, prefix, name);
}

std::string ActionCutRight(const ActionInputs& in, std::string_view name) {
  const NameParts parts = SplitName(name);
  const double cut = vb::Val(in.settings.txtRightCut);
  if (!parts.has_extension()) return vb::Left(name, CharCount(vb::Len(name) - cut));
  return WithExtension(vb::Left(parts.base, CharCount(vb::Len(parts.base) - cut)), parts.extension);
}

std::string ActionPostfix(const ActionInputs& in, std::string_view name) {
  const RenameSettings& s = in.settings;
  const NameParts parts = SplitName(name);
  const std::string postfix = in.expander.ExpandOrKeep(s.txtPostfix);
  if (NumberAtPostfix(s)) {
    return PlaceNumberAtPostfix(s.optNumber, NumberText(in.current_count, s.txtStartNumber),
                                s.txtLimiter, postfix, name, parts.extension);
  }
  if (!parts.has_extension()) return std::string(name) + postfix;
  return WithExtension(parts.base + postfix, parts.extension);
}

std::string ActionReplaceText(const ActionInputs& in, std::string_view name) {
  const NameParts parts = SplitName(name);
  std::string search = in.settings.txtSearchString;
  if (vb::InStr(search, "{{-}}") > 0) search = SearchSpan(search, parts.base);
  const std::string replacement = in.expander.ExpandOrKeep(in.settings.txtReplaceString);
  std::string result = vb::Replace(parts.base, search, replacement, 1, -1, vb::Compare::kText);
  if (!parts.has_extension()) return result;
  return WithExtension(std::move(result), parts.extension);
}

std::string ActionUsePlaceholder(const ActionInputs& in, std::string_view name) {
  return in.expander.ExpandOrKeep(in.settings.txtUsePlaceholder) + std::string(name);
}

}  // namespace tarnwick
