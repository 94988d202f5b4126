#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "shell/interaction.h"

namespace tarnwick {

// The kinds of question an Interaction is asked.
enum class QuestionKind {
  kMessageBox,
  kStartRenaming,
  kFileExists,
  kManualRename,
  kTestResults,
  kInput,
  kChooseFile,
  kChooseFolder,
  kSaveSettings,
};

// Who gave an answer.
enum class AnswerSource {
  kUser,       // a person at a terminal or a window
  kScript,     // the queue or a default set by a test
  kDefault,    // the documented default answer, nobody asked
  kAssumeYes,  // --yes
};

// One question and its answer, as a test asserts it or a batch run logs it.
struct AnsweredQuestion {
  QuestionKind kind = QuestionKind::kMessageBox;
  Topic topic = Topic::kOther;  // message boxes only
  std::string title;            // the box's title, or the dialogue's name
  std::string text;             // the box's text, or what the dialogue shows
  Buttons buttons = Buttons::kOk;
  MessageIcon icon = MessageIcon::kNone;
  // The answer in words: "Yes", "Rename", "Skip", "OK: new.txt", the text
  // entered, "Cancel" ...
  std::string answer;
  AnswerSource source = AnswerSource::kDefault;
};

// The English name of a kind: "Message", "Start renaming", "File exists" ...
std::string_view QuestionKindName(QuestionKind kind);

// A record of each question with its answer in words, filled in but for
// `answer` and `source` where the answer is not passed.
AnsweredQuestion Describe(const MessageBoxRequest& request, Answer answer);
AnsweredQuestion Describe(const StartRenamingRequest& request, StartRenamingChoice answer);
AnsweredQuestion Describe(const FileExistsRequest& request, const FileExistsAnswer& answer);
AnsweredQuestion Describe(const ManualRenameRequest& request, const ManualRenameAnswer& answer);
AnsweredQuestion DescribeTestResults(std::size_t row_count);
AnsweredQuestion Describe(const InputRequest& request, const std::optional<std::string>& answer);
AnsweredQuestion Describe(const FileChooserRequest& request,
                          const std::optional<std::string>& answer);
AnsweredQuestion Describe(const FolderChooserRequest& request,
                          const std::optional<std::string>& answer);
AnsweredQuestion Describe(const SaveSettingsRequest& request,
                          const std::optional<SaveSettingsAnswer>& answer);

// One line for a log: "[title] text -> answer (how)", line ends as blanks.
std::string FormatAnswered(const AnsweredQuestion& question);

}  // namespace tarnwick
