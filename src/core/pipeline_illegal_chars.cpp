// Characters a file name cannot hold.
#include "core/pipeline_illegal_chars.h"

#include <array>
#include <utility>

#include "core/rename_settings.h"
#include "persist/option_store.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

// The characters in the order they are replaced. All are single bytes below
// 128, which never occur inside a longer UTF-8 sequence, so the text can be
// walked byte by byte.
constexpr std::array<char, 41> MakeReplaceOrder() {
  std::array<char, 41> order{'/', '\\', ':', '*', '?', '"', '<', '>', '|', '\x7f'};
  for (int c = 1; c <= 31; ++c) order[9 + c] = static_cast<char>(c);
  return order;
}

constexpr std::array<char, 41> kReplaceOrder = MakeReplaceOrder();

bool IsIllegal(char c) {
  const auto byte = static_cast<unsigned char>(c);
  if (byte >= 1 && byte <= 31) return true;
  switch (c) {
    case '/':
    case '\\':
    case ':':
    case '*':
    case '?':
    case '"':
    case '<':
    case '>':
    case '|':
    case '\x7f':
      return true;
    default:
      return false;
  }
}

std::string ReplaceAll(std::string_view text, char find, std::string_view with) {
  std::string result;
  result.reserve(text.size());
  for (char c : text) {
    if (c == find) {
      result.append(with);
    } else {
      result.push_back(c);
    }
  }
  return result;
}

struct CheckedField {
  std::string_view name;
  const std::string& text;
  bool checked;
};

}  // namespace

IllegalCharRule ReadIllegalCharRule(const OptionStore& options) {
  if (options.GetOption("IllegalCharReplacerActive", "Options", "0") == "0") return {};
  return {options.GetOption("IllegalCharReplacer", "Options", "")};
}

std::string ReplaceIllegalChars(std::string_view text, const IllegalCharRule& rule) {
  bool any = false;
  for (char c : text) any = any || IsIllegal(c);
  if (!any) return std::string(text);
  // One character after the other, so that a replacer holding an illegal
  // character is itself replaced by the steps behind it.
  std::string result(text);
  for (char find : kReplaceOrder) {
    if (result.find(find) != std::string::npos) result = ReplaceAll(result, find, rule.replacer);
  }
  return result;
}

std::string ReplaceIllegalChars(std::string_view text, const OptionStore& options) {
  return ReplaceIllegalChars(text, ReadIllegalCharRule(options));
}

bool HasForbiddenNameChar(std::string_view text) {
  return text.find_first_of("\"?/\\*:") != std::string_view::npos;
}

void ShowNotAllowedCharBox(Interaction& interaction, const MessageTable& messages) {
  MessageBoxRequest box;
  box.title = std::string(messages.Text("pipeline.title_filename"));
  box.text = std::string(messages.Text("pipeline.not_allowed_char"));
  box.buttons = Buttons::kOk;
  box.icon = MessageIcon::kExclamation;
  box.topic = Topic::kNotice;
  interaction.ShowMessage(box);
}

bool CheckIllegalNames(const RenameSettings& s, Interaction& interaction,
                       const MessageTable& messages, std::string* focus_field) {
  const bool replace = Ticked(s.chkReplace);
  const CheckedField fields[] = {
      {"txtCompleteName", s.txtCompleteName, Ticked(s.chkCompleteName)},
      {"txtExtension", s.txtExtension, Ticked(s.chkExtension)},
      {"txtReplaceChars", s.txtReplaceChars, Ticked(s.chkCutMiddle)},
      {"txtPrefix", s.txtPrefix, Ticked(s.chkPrefix)},
      {"txtPostfix", s.txtPostfix, Ticked(s.chkPostfix)},
      {"txtReplaceString", s.txtReplaceString, replace},
      {"txtSearchString", s.txtSearchString, replace},
  };
  for (const CheckedField& field : fields) {
    if (!field.checked || !HasForbiddenNameChar(field.text)) continue;
    ShowNotAllowedCharBox(interaction, messages);
    if (focus_field != nullptr) *focus_field = std::string(field.name);
    return true;
  }
  return false;
}

}  // namespace tarnwick
