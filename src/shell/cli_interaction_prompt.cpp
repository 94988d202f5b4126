#include <cctype>

#include "shell/cli_interaction.h"
#include "shell/interaction_defaults.h"
#include "shell/message_table.h"

// The questions as a person at the terminal answers them.
namespace tarnwick {
namespace {

constexpr int kAttempts = 3;

char ButtonLetter(Answer answer) {
  switch (answer) {
    case Answer::kOk:
      return 'o';
    case Answer::kCancel:
      return 'c';
    case Answer::kYes:
      return 'y';
    case Answer::kNo:
      return 'n';
    case Answer::kRetry:
      return 'r';
    case Answer::kAbort:
      return 'a';
    case Answer::kIgnore:
      return 'i';
  }
  return '?';
}

constexpr Answer kAllAnswers[] = {Answer::kOk,    Answer::kCancel, Answer::kYes,   Answer::kNo,
                                  Answer::kRetry, Answer::kAbort,  Answer::kIgnore};

std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string::npos) return {};
  const auto last = text.find_last_not_of(" \t");
  return text.substr(first, last - first + 1);
}

}  // namespace

std::optional<std::string> CliInteraction::ReadLine(const std::string& prompt) {
  if (input_ended_) return std::nullopt;
  progress_.Erase();
  *streams_.err << prompt << std::flush;
  std::string line;
  if (!std::getline(*streams_.in, line)) {
    input_ended_ = true;
    *streams_.err << "\n";
    return std::nullopt;
  }
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return line;
}

std::optional<char> CliInteraction::ReadChoice(const std::string& prompt,
                                               std::string_view letters) {
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    const std::optional<std::string> line = ReadLine(prompt);
    if (!line) return std::nullopt;
    const std::string typed = Trimmed(*line);
    if (typed.empty()) return std::nullopt;
    const char letter = static_cast<char>(std::tolower(static_cast<unsigned char>(typed.front())));
    if (letters.find(letter) != std::string_view::npos) return letter;
    *streams_.err << "Please answer with one of the letters in brackets.\n";
  }
  return std::nullopt;
}

Answer CliInteraction::PromptMessage(const MessageBoxRequest& request, Answer fallback) {
  std::string prompt;
  std::string letters;
  for (Answer answer : kAllAnswers) {
    if (!HasButton(request.buttons, answer)) continue;
    const std::string_view name = AnswerName(answer);
    if (!prompt.empty()) prompt += " / ";
    prompt += "[" + std::string(1, name.front()) + "]" + std::string(name.substr(1));
    letters += ButtonLetter(answer);
  }
  prompt += " (Enter = " + std::string(AnswerName(fallback)) + "): ";
  const std::optional<char> letter = ReadChoice(prompt, letters);
  if (!letter) return fallback;
  for (Answer answer : kAllAnswers) {
    if (HasButton(request.buttons, answer) && ButtonLetter(answer) == *letter) return answer;
  }
  return fallback;
}

std::optional<FileExistsAnswer> CliInteraction::PromptFileExists(const FileExistsRequest& request) {
  std::string where = request.folder;
  if (!where.empty() && where.back() != '/') where += '/';
  PrintQuestion(
      std::string(QuestionKindName(QuestionKind::kFileExists)),
      where + request.proposed_name + " exists already (renaming " + request.original_name + ")");
  const std::optional<char> letter = ReadChoice(
      "[S]kip / skip [A]ll further / [R]ename to another name / [C]ancel the run (Enter = Skip): ",
      "sarc");
  if (!letter) return std::nullopt;
  FileExistsAnswer answer = DefaultAnswer(request);
  if (*letter == 'a') answer.skip_all_others = true;
  if (*letter == 'c') answer.choice = FileExistsChoice::kCancel;
  if (*letter != 'r') return answer;
  while (true) {
    const std::optional<std::string> name = ReadLine("New name: ");
    if (!name || name->empty()) return std::nullopt;
    if (IsAcceptedNewName(request, *name)) {
      answer.choice = FileExistsChoice::kOk;
      answer.file_name = *name;
      return answer;
    }
    const MessageTable& table = MessageTable::Get(SystemLanguage());
    *streams_.err << table.Text("file_exists.must_enter_other_name") << "\n";
  }
}

std::optional<std::string> CliInteraction::PromptPath(const std::string& title) {
  PrintQuestion(title, "");
  const std::optional<std::string> line = ReadLine("Path (Enter = Cancel): ");
  if (!line || line->empty()) return std::nullopt;
  return line;
}

}  // namespace tarnwick
