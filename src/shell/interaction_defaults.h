#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "shell/interaction.h"

namespace tarnwick {

// The answers given when nobody can be asked. Every implementation of
// Interaction that cannot ask uses these, so the command line, a batch run
// and the tests behave alike.

// One row of the table of message-box topics and their default answers.
struct TopicDefault {
  Topic topic;
  std::string_view description;  // what is asked, for the help text
  Answer answer;                 // the answer given without asking
};

// Every topic of a message box with its default answer, in a fixed order.
std::span<const TopicDefault> TopicDefaults();

// The default of `buttons` for a question of no known topic: the answer that
// goes no further (OK, Cancel, No, Cancel, Cancel, Abort).
Answer CautiousAnswer(Buttons buttons);

// The default answer of a message box: the one of its topic when that is one
// of its buttons, otherwise CautiousAnswer of its buttons.
Answer DefaultAnswer(const MessageBoxRequest& request);

StartRenamingChoice DefaultAnswer(const StartRenamingRequest& request);
FileExistsAnswer DefaultAnswer(const FileExistsRequest& request);
ManualRenameAnswer DefaultAnswer(const ManualRenameRequest& request);
std::optional<std::string> DefaultAnswer(const InputRequest& request);
std::optional<std::string> DefaultAnswer(const FileChooserRequest& request);
std::optional<std::string> DefaultAnswer(const FolderChooserRequest& request);
std::optional<SaveSettingsAnswer> DefaultAnswer(const SaveSettingsRequest& request);

// Whether `answer` is a button of `buttons`.
bool HasButton(Buttons buttons, Answer answer);
// Whether `buttons` asks Yes or No (with or without Cancel).
bool IsYesNo(Buttons buttons);

// The English word of a button: "OK", "Cancel", "Yes", "No", "Retry",
// "Abort", "Ignore".
std::string_view AnswerName(Answer answer);
// "Rename", "Test", "Cancel".
std::string_view ChoiceName(StartRenamingChoice choice);
// "OK", "Skip", "Cancel".
std::string_view ChoiceName(FileExistsChoice choice);

// A text for `tarnwick-cli --help` that lists every default answer: each
// topic of the table above, each dialogue, and what --yes changes.
std::string DefaultAnswersHelp();

}  // namespace tarnwick
