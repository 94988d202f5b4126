#include "shell/scripted_interaction.h"

#include "shell/interaction_defaults.h"

namespace tarnwick {
namespace {

template <typename T>
const T* Fit(const std::optional<ScriptedAnswer>& next) {
  return next ? std::get_if<T>(&*next) : nullptr;
}

std::string What(QuestionKind kind, const std::string& title) {
  std::string what(QuestionKindName(kind));
  if (!title.empty()) what += " \"" + title + "\"";
  return what;
}

constexpr char kNotFitting[] = "the scripted answer does not fit this question";

}  // namespace

ScriptedInteraction& ScriptedInteraction::Then(ScriptedAnswer answer) {
  queue_.push_back(std::move(answer));
  return *this;
}

void ScriptedInteraction::SetDefault(QuestionKind kind, ScriptedAnswer answer) {
  defaults_.insert_or_assign(kind, std::move(answer));
}

std::optional<ScriptedAnswer> ScriptedInteraction::Next(QuestionKind kind,
                                                        const std::string& what) {
  if (!queue_.empty()) {
    ScriptedAnswer answer = std::move(queue_.front());
    queue_.pop_front();
    return answer;
  }
  auto found = defaults_.find(kind);
  if (found != defaults_.end()) return found->second;
  Fail(what, "asked without a scripted answer");
  return std::nullopt;
}

void ScriptedInteraction::Fail(const std::string& what, const std::string& why) {
  failures_.push_back(what + ": " + why);
}

void ScriptedInteraction::Record(AnsweredQuestion record, bool scripted) {
  record.source = scripted ? AnswerSource::kScript : AnswerSource::kDefault;
  asked_.push_back(std::move(record));
}

Answer ScriptedInteraction::ShowMessage(const MessageBoxRequest& request) {
  const std::string what = What(QuestionKind::kMessageBox, request.title);
  const std::optional<ScriptedAnswer> next = Next(QuestionKind::kMessageBox, what);
  Answer answer = DefaultAnswer(request);
  bool scripted = false;
  if (const Answer* given = Fit<Answer>(next); given && HasButton(request.buttons, *given)) {
    answer = *given;
    scripted = true;
  } else if (Fit<Cancelled>(next) && HasButton(request.buttons, Answer::kCancel)) {
    answer = Answer::kCancel;
    scripted = true;
  } else if (next) {
    Fail(what, "the scripted answer is not one of its buttons");
  }
  Record(Describe(request, answer), scripted);
  return answer;
}

StartRenamingChoice ScriptedInteraction::AskStartRenaming(const StartRenamingRequest& request) {
  const std::string what = What(QuestionKind::kStartRenaming, "");
  const std::optional<ScriptedAnswer> next = Next(QuestionKind::kStartRenaming, what);
  StartRenamingChoice answer = DefaultAnswer(request);
  bool scripted = true;
  if (const auto* given = Fit<StartRenamingChoice>(next)) {
    answer = *given;
  } else if (Fit<Cancelled>(next)) {
    answer = StartRenamingChoice::kCancel;
  } else {
    scripted = false;
    if (next) Fail(what, kNotFitting);
  }
  Record(Describe(request, answer), scripted);
  return answer;
}

FileExistsAnswer ScriptedInteraction::AskFileExists(const FileExistsRequest& request) {
  const std::string what = What(QuestionKind::kFileExists, request.proposed_name);
  // The dialogue stays open on OK with a name that differs only in case: the
  // next scripted answer decides then.
  while (true) {
    const std::optional<ScriptedAnswer> next = Next(QuestionKind::kFileExists, what);
    FileExistsAnswer answer = DefaultAnswer(request);
    bool scripted = true;
    if (const auto* given = Fit<FileExistsAnswer>(next)) {
      answer = *given;
    } else if (Fit<Cancelled>(next)) {
      answer.choice = FileExistsChoice::kCancel;
    } else {
      scripted = false;
      if (next) Fail(what, kNotFitting);
    }
    if (answer.choice == FileExistsChoice::kOk && !IsAcceptedNewName(request, answer.file_name)) {
      Fail(what, "OK with \"" + answer.file_name + "\", which is the same name; asked again");
      if (!next || queue_.empty()) {
        answer = DefaultAnswer(request);
        scripted = false;
      } else {
        continue;
      }
    }
    Record(Describe(request, answer), scripted);
    return answer;
  }
}

ManualRenameAnswer ScriptedInteraction::AskManualRename(const ManualRenameRequest& request) {
  const std::string what = What(QuestionKind::kManualRename, request.file_name);
  const std::optional<ScriptedAnswer> next = Next(QuestionKind::kManualRename, what);
  ManualRenameAnswer answer = DefaultAnswer(request);
  bool scripted = true;
  if (const auto* given = Fit<ManualRenameAnswer>(next)) {
    answer = *given;
  } else if (Fit<Cancelled>(next)) {
    answer.cancelled = true;
    answer.file_name = request.original_name;
  } else if (const auto* text = Fit<TextAnswer>(next)) {
    answer.file_name = text->text;
  } else {
    scripted = false;
    if (next) Fail(what, kNotFitting);
  }
  Record(Describe(request, answer), scripted);
  return answer;
}

void ScriptedInteraction::ShowTestResults(const std::vector<TestResultRow>& rows) {
  test_results_ = rows;
  AnsweredQuestion record = DescribeTestResults(rows.size());
  record.source = AnswerSource::kScript;
  asked_.push_back(std::move(record));
}

std::optional<std::string> ScriptedInteraction::AnswerText(QuestionKind kind,
                                                           const std::string& what,
                                                           std::optional<std::string> fallback) {
  const std::optional<ScriptedAnswer> next = Next(kind, what);
  if (const auto* text = Fit<TextAnswer>(next)) return text->text;
  if (Fit<Cancelled>(next)) return std::nullopt;
  if (next) Fail(what, kNotFitting);
  return fallback;
}

std::optional<std::string> ScriptedInteraction::AskInput(const InputRequest& request) {
  const std::size_t failures_before = failures_.size();
  std::optional<std::string> answer = AnswerText(
      QuestionKind::kInput, What(QuestionKind::kInput, request.title), DefaultAnswer(request));
  Record(Describe(request, answer), failures_.size() == failures_before);
  return answer;
}

std::optional<std::string> ScriptedInteraction::ChooseFile(const FileChooserRequest& request) {
  const std::size_t failures_before = failures_.size();
  std::optional<std::string> answer =
      AnswerText(QuestionKind::kChooseFile, What(QuestionKind::kChooseFile, request.title),
                 DefaultAnswer(request));
  Record(Describe(request, answer), failures_.size() == failures_before);
  return answer;
}

std::optional<std::string> ScriptedInteraction::ChooseFolder(const FolderChooserRequest& request) {
  const std::size_t failures_before = failures_.size();
  std::optional<std::string> answer =
      AnswerText(QuestionKind::kChooseFolder, What(QuestionKind::kChooseFolder, request.title),
                 DefaultAnswer(request));
  Record(Describe(request, answer), failures_.size() == failures_before);
  return answer;
}

std::optional<SaveSettingsAnswer> ScriptedInteraction::AskSaveSettings(
    const SaveSettingsRequest& request) {
  const std::string what = What(QuestionKind::kSaveSettings, request.preset_path);
  const std::optional<ScriptedAnswer> next = Next(QuestionKind::kSaveSettings, what);
  std::optional<SaveSettingsAnswer> answer = DefaultAnswer(request);
  bool scripted = true;
  if (const auto* given = Fit<SaveSettingsAnswer>(next); given && !given->path.empty()) {
    answer = *given;
  } else if (Fit<Cancelled>(next)) {
    answer = std::nullopt;
  } else {
    scripted = false;
    if (next) Fail(what, kNotFitting);
  }
  Record(Describe(request, answer), scripted);
  return answer;
}

void ScriptedInteraction::ShowStatus(StatusArea area, std::string_view text) {
  statuses_[area].emplace_back(text);
}

const std::vector<std::string>& ScriptedInteraction::statuses(StatusArea area) const {
  static const std::vector<std::string> kNone;
  auto found = statuses_.find(area);
  return found == statuses_.end() ? kNone : found->second;
}

void ScriptedInteraction::ShowProgress(std::int64_t value, std::int64_t max) {
  progress_value_ = value;
  progress_max_ = max;
  progress_visible_ = true;
}

void ScriptedInteraction::SetControlsEnabled(bool enabled, bool) { controls_enabled_ = enabled; }

bool ScriptedInteraction::PollCancel() {
  ++polls_;
  if (cancel_pressed_ || polls_ == cancel_at_poll_) {
    cancel_pressed_ = false;
    return true;
  }
  return false;
}

}  // namespace tarnwick
