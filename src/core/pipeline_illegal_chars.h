#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

struct RenameSettings;
class Interaction;
class MessageTable;
class OptionStore;

// What illegal characters of a name are replaced by: the text of
// `IllegalCharReplacer` when `IllegalCharReplacerActive` is not "0", the
// empty text (removal) otherwise.
struct IllegalCharRule {
  std::string replacer;
};

// The rule as the options hold it now.
IllegalCharRule ReadIllegalCharRule(const OptionStore& options);

// `ReplaceIllegalChars`: replaces, case-sensitive and in this order, "/",
// "\", ":", "*", "?", the double quote, "<", ">", "|", character 127 and the
// characters 1 to 31 by the rule's replacer. Kept: the replacer itself is not
// tested, so a replacer with an illegal character puts that character back.
std::string ReplaceIllegalChars(std::string_view text, const IllegalCharRule& rule);
// The same with the rule read from the options.
std::string ReplaceIllegalChars(std::string_view text, const OptionStore& options);

// Whether `text` holds one of the characters a user may not type into a name
// field: the double quote, "?", "/", "\", "*" or ":".
bool HasForbiddenNameChar(std::string_view text);

// `CheckIllegalNames`, at the start of a run: the raw texts of
// `txtCompleteName`, `txtExtension`, `txtReplaceChars`, `txtPrefix` and
// `txtPostfix` (each only when its action is ticked) and of
// `txtReplaceString` and `txtSearchString` (only with `chkReplace`) are
// searched in that order for those characters. At the first hit the box
// "You have entered an not allowed char for the filename. ..." is shown and
// the result is true; `focus_field`, when given, receives the field's control
// name. "<", ">" and "|" are left to ReplaceIllegalChars.
bool CheckIllegalNames(const RenameSettings& settings, Interaction& interaction,
                       const MessageTable& messages, std::string* focus_field = nullptr);

// The box shown for a forbidden character, also by the manual dialogue.
void ShowNotAllowedCharBox(Interaction& interaction, const MessageTable& messages);

}  // namespace tarnwick
