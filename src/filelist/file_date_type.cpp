#include "filelist/file_date_type.h"

#include "persist/option_store.h"
#include "shell/message_table.h"
#include "shell/option_choice.h"

namespace tarnwick {

FileDateKind ReadFileDateKind(const OptionStore& options) {
  const std::string stored = options.GetOption("FileDateType", "Options", "");
  if (stored.empty()) return FileDateKind::kLastWrite;
  const auto choice = FindChoice(stored, kFileDateChoices);
  if (!choice) return FileDateKind::kCreated;
  return static_cast<FileDateKind>(*choice);
}

std::string FileDateHeading(const OptionStore& options, const MessageTable& messages) {
  const std::string stored = options.GetOption("FileDateType", "Options", "");
  if (stored.empty()) return std::string(messages.Text(kFileDateChoices[0]));
  const auto choice = FindChoice(stored, kFileDateChoices);
  return choice ? std::string(messages.Text(kFileDateChoices[*choice])) : stored;
}

}  // namespace tarnwick
