#include "shell/interaction_record.h"

#include "shell/interaction_defaults.h"

namespace tarnwick {
namespace {

AnsweredQuestion Dialogue(QuestionKind kind, std::string text, std::string answer) {
  AnsweredQuestion record;
  record.kind = kind;
  record.title = std::string(QuestionKindName(kind));
  record.text = std::move(text);
  record.answer = std::move(answer);
  return record;
}

std::string TextOrCancel(const std::optional<std::string>& answer) {
  return answer ? *answer : std::string("Cancel");
}

std::string JoinPath(const std::string& folder, const std::string& name) {
  if (folder.empty() || folder.back() == '/') return folder + name;
  return folder + "/" + name;
}

std::string_view SourceName(AnswerSource source) {
  switch (source) {
    case AnswerSource::kUser:
      return "answered";
    case AnswerSource::kScript:
      return "scripted";
    case AnswerSource::kDefault:
      return "default answer";
    case AnswerSource::kAssumeYes:
      return "--yes";
  }
  return "?";
}

void AppendOneLine(std::string& out, std::string_view text) {
  for (char c : text) {
    if (c == '\r') continue;
    out += c == '\n' ? ' ' : c;
  }
}

}  // namespace

std::string_view QuestionKindName(QuestionKind kind) {
  switch (kind) {
    case QuestionKind::kMessageBox:
      return "Message";
    case QuestionKind::kStartRenaming:
      return "Start renaming";
    case QuestionKind::kFileExists:
      return "File exists";
    case QuestionKind::kManualRename:
      return "Manual renaming";
    case QuestionKind::kTestResults:
      return "Test result list";
    case QuestionKind::kInput:
      return "Input";
    case QuestionKind::kChooseFile:
      return "Choose file";
    case QuestionKind::kChooseFolder:
      return "Choose folder";
    case QuestionKind::kSaveSettings:
      return "Save settings";
  }
  return "?";
}

AnsweredQuestion Describe(const MessageBoxRequest& request, Answer answer) {
  AnsweredQuestion record;
  record.kind = QuestionKind::kMessageBox;
  record.topic = request.topic;
  record.title = request.title;
  record.text = request.text;
  record.buttons = request.buttons;
  record.icon = request.icon;
  record.answer = std::string(AnswerName(answer));
  return record;
}

AnsweredQuestion Describe(const StartRenamingRequest& request, StartRenamingChoice answer) {
  std::string text = std::to_string(request.selected_count) + " selected files";
  if (request.collisions > 0) text += ", " + std::to_string(request.collisions) + " collide";
  return Dialogue(QuestionKind::kStartRenaming, text, std::string(ChoiceName(answer)));
}

AnsweredQuestion Describe(const FileExistsRequest& request, const FileExistsAnswer& answer) {
  std::string text =
      JoinPath(request.folder, request.proposed_name) + " (for " + request.original_name + ")";
  std::string words(ChoiceName(answer.choice));
  if (answer.choice == FileExistsChoice::kOk) words += ": " + answer.file_name;
  if (answer.choice != FileExistsChoice::kCancel && answer.skip_all_others) {
    words += ", skip all further";
  }
  return Dialogue(QuestionKind::kFileExists, std::move(text), std::move(words));
}

AnsweredQuestion Describe(const ManualRenameRequest& request, const ManualRenameAnswer& answer) {
  return Dialogue(QuestionKind::kManualRename,
                  request.file_name + " (for " + request.original_name + ")",
                  answer.cancelled ? std::string("Cancel") : answer.file_name);
}

AnsweredQuestion DescribeTestResults(std::size_t row_count) {
  return Dialogue(QuestionKind::kTestResults, std::to_string(row_count) + " files", "Shown");
}

AnsweredQuestion Describe(const InputRequest& request, const std::optional<std::string>& answer) {
  AnsweredQuestion record = Dialogue(QuestionKind::kInput, request.prompt, TextOrCancel(answer));
  record.title = request.title;
  return record;
}

AnsweredQuestion Describe(const FileChooserRequest& request,
                          const std::optional<std::string>& answer) {
  AnsweredQuestion record =
      Dialogue(QuestionKind::kChooseFile, request.start_folder, TextOrCancel(answer));
  record.title = request.title;
  return record;
}

AnsweredQuestion Describe(const FolderChooserRequest& request,
                          const std::optional<std::string>& answer) {
  AnsweredQuestion record =
      Dialogue(QuestionKind::kChooseFolder, request.start_folder, TextOrCancel(answer));
  record.title = request.title;
  return record;
}

AnsweredQuestion Describe(const SaveSettingsRequest& request,
                          const std::optional<SaveSettingsAnswer>& answer) {
  std::string words = answer ? answer->path : std::string("Cancel");
  if (answer && answer->save_path) words += ", with the folder";
  return Dialogue(QuestionKind::kSaveSettings, request.preset_path, std::move(words));
}

std::string FormatAnswered(const AnsweredQuestion& question) {
  std::string line = "[";
  AppendOneLine(line, question.title);
  line += "] ";
  AppendOneLine(line, question.text);
  line += " -> ";
  AppendOneLine(line, question.answer);
  line += " (";
  line += SourceName(question.source);
  line += ")";
  return line;
}

}  // namespace tarnwick
