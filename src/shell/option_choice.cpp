#include "shell/option_choice.h"

#include "base/text.h"
#include "shell/message_table.h"

namespace tarnwick {

std::optional<std::size_t> FindChoice(std::string_view stored,
                                      std::span<const std::string_view> choice_keys) {
  if (stored.empty()) return std::nullopt;
  for (const Language language : {Language::kEnglish, Language::kGerman}) {
    const MessageTable& messages = MessageTable::Get(language);
    for (std::size_t i = 0; i < choice_keys.size(); ++i) {
      if (EqualsText(stored, messages.Text(choice_keys[i]))) return i;
    }
  }
  return std::nullopt;
}

std::string ChoiceValue(std::string_view choice_key) {
  return std::string(MessageTable::Get(Language::kEnglish).Text(choice_key));
}

}  // namespace tarnwick
