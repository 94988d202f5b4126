#include "shell/cli_interaction.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <iostream>

#include "shell/cancel.h"
#include "shell/interaction_defaults.h"

namespace tarnwick {
namespace {

// Texts end lines with "\r\n" in places; a terminal wants "\n".
std::string TerminalText(const std::string& text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    out += text[i];
  }
  return out;
}

std::string_view SourceNote(AnswerSource source) {
  switch (source) {
    case AnswerSource::kUser:
      return "";
    case AnswerSource::kScript:
      return " (scripted)";
    case AnswerSource::kDefault:
      return " (default answer)";
    case AnswerSource::kAssumeYes:
      return " (--yes)";
  }
  return "";
}

}  // namespace

CliStreams CliStreams::Process() {
  CliStreams streams;
  streams.in = &std::cin;
  streams.err = &std::cerr;
  streams.out = &std::cout;
  streams.in_is_terminal = isatty(STDIN_FILENO) == 1;
  streams.err_is_terminal = isatty(STDERR_FILENO) == 1;
  winsize size{};
  if (streams.err_is_terminal && ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) {
    streams.terminal_width = size.ws_col;
  }
  return streams;
}

CliInteraction::CliInteraction(CliOptions options, CliStreams streams)
    : options_(std::move(options)),
      streams_(streams),
      asks_(options_.interactive && streams.in != nullptr && streams.in_is_terminal &&
            streams.err_is_terminal),
      progress_(*streams.err, streams.err_is_terminal, streams.terminal_width) {}

CliInteraction::~CliInteraction() {
  progress_.Hide();
  FlushRepeats();
}

void CliInteraction::SetAnswerLog(std::function<void(const AnsweredQuestion&)> on_answer) {
  options_.on_answer = std::move(on_answer);
}

void CliInteraction::FlushRepeats() {
  if (repeats_ > 0) {
    *streams_.err << "  (the same message " << repeats_ << " more time"
                  << (repeats_ == 1 ? "" : "s") << ")\n";
  }
  repeats_ = 0;
  last_printed_.clear();
}

void CliInteraction::PrintQuestion(const std::string& title, const std::string& text) {
  progress_.Erase();
  FlushRepeats();
  if (!title.empty()) *streams_.err << "[" << TerminalText(title) << "] ";
  *streams_.err << TerminalText(text) << "\n";
}

void CliInteraction::Answered(AnsweredQuestion record, AnswerSource source, bool print) {
  record.source = source;
  if (print) {
    const std::string key = record.title + '\n' + record.text + '\n' + record.answer;
    if (source != AnswerSource::kUser && key == last_printed_) {
      ++repeats_;
    } else {
      PrintQuestion(record.title, record.text);
      if (record.kind != QuestionKind::kMessageBox || record.buttons != Buttons::kOk) {
        *streams_.err << "  -> " << record.answer << SourceNote(source) << "\n";
      }
      last_printed_ = source == AnswerSource::kUser ? std::string() : key;
    }
    streams_.err->flush();
  }
  if (options_.on_answer) options_.on_answer(record);
}

Answer CliInteraction::ShowMessage(const MessageBoxRequest& request) {
  if (options_.assume_yes && IsYesNo(request.buttons)) {
    Answered(Describe(request, Answer::kYes), AnswerSource::kAssumeYes, true);
    return Answer::kYes;
  }
  const Answer fallback = DefaultAnswer(request);
  if (!asks_ || request.buttons == Buttons::kOk) {
    Answered(Describe(request, fallback), AnswerSource::kDefault, true);
    return fallback;
  }
  PrintQuestion(request.title, request.text);
  const Answer answer = PromptMessage(request, fallback);
  Answered(Describe(request, answer), AnswerSource::kUser, false);
  return answer;
}

StartRenamingChoice CliInteraction::AskStartRenaming(const StartRenamingRequest& request) {
  if (!asks_) {
    Answered(Describe(request, options_.start_choice), AnswerSource::kDefault, false);
    return options_.start_choice;
  }
  PrintQuestion(std::string(QuestionKindName(QuestionKind::kStartRenaming)),
                "Rename the " + std::to_string(request.selected_count) +
                    " selected files, or just do a test?");
  const std::string fallback(ChoiceName(options_.start_choice));
  const std::optional<char> letter =
      ReadChoice("[R]ename / [T]est / [C]ancel (Enter = " + fallback + "): ", "rtc");
  StartRenamingChoice choice = options_.start_choice;
  if (letter == 'r') choice = StartRenamingChoice::kRename;
  if (letter == 't') choice = StartRenamingChoice::kTest;
  if (letter == 'c') choice = StartRenamingChoice::kCancel;
  Answered(Describe(request, choice), letter ? AnswerSource::kUser : AnswerSource::kDefault, false);
  return choice;
}

FileExistsAnswer CliInteraction::AskFileExists(const FileExistsRequest& request) {
  if (!asks_) {
    const FileExistsAnswer answer = DefaultAnswer(request);
    Answered(Describe(request, answer), AnswerSource::kDefault, true);
    return answer;
  }
  const std::optional<FileExistsAnswer> typed = PromptFileExists(request);
  const FileExistsAnswer answer = typed.value_or(DefaultAnswer(request));
  Answered(Describe(request, answer), typed ? AnswerSource::kUser : AnswerSource::kDefault, false);
  return answer;
}

ManualRenameAnswer CliInteraction::AskManualRename(const ManualRenameRequest& request) {
  ManualRenameAnswer answer = DefaultAnswer(request);
  if (!asks_) {
    Answered(Describe(request, answer), AnswerSource::kDefault, true);
    return answer;
  }
  PrintQuestion(std::string(QuestionKindName(QuestionKind::kManualRename)),
                request.original_name + " -> " + request.file_name);
  const std::optional<std::string> line =
      ReadLine("New name (Enter keeps \"" + request.file_name + "\"): ");
  const bool typed = line && !line->empty();
  if (typed) answer.file_name = *line;
  Answered(Describe(request, answer), typed ? AnswerSource::kUser : AnswerSource::kDefault, false);
  return answer;
}

void CliInteraction::ShowTestResults(const std::vector<TestResultRow>& rows) {
  progress_.Erase();
  for (const TestResultRow& row : rows) {
    *streams_.out << row.present_name << '\t' << row.new_name << '\t' << row.folder << '\n';
  }
  streams_.out->flush();
  Answered(DescribeTestResults(rows.size()), AnswerSource::kDefault, false);
}

std::optional<std::string> CliInteraction::AskInput(const InputRequest& request) {
  std::optional<std::string> answer = DefaultAnswer(request);
  if (!asks_) {
    Answered(Describe(request, answer), AnswerSource::kDefault, true);
    return answer;
  }
  PrintQuestion(request.title, request.prompt);
  const std::optional<std::string> line = ReadLine("(Enter = \"" + request.preset + "\"): ");
  const bool typed = line && !line->empty();
  if (typed) answer = *line;
  Answered(Describe(request, answer), typed ? AnswerSource::kUser : AnswerSource::kDefault, false);
  return answer;
}

std::optional<std::string> CliInteraction::ChooseFile(const FileChooserRequest& request) {
  const std::optional<std::string> answer = asks_ ? PromptPath(request.title) : std::nullopt;
  Answered(Describe(request, answer), answer ? AnswerSource::kUser : AnswerSource::kDefault,
           !asks_);
  return answer;
}

std::optional<std::string> CliInteraction::ChooseFolder(const FolderChooserRequest& request) {
  const std::optional<std::string> answer = asks_ ? PromptPath(request.title) : std::nullopt;
  Answered(Describe(request, answer), answer ? AnswerSource::kUser : AnswerSource::kDefault,
           !asks_);
  return answer;
}

std::optional<SaveSettingsAnswer> CliInteraction::AskSaveSettings(
    const SaveSettingsRequest& request) {
  std::optional<SaveSettingsAnswer> answer;
  if (asks_) {
    if (std::optional<std::string> path = PromptPath(request.chooser.title)) {
      answer = SaveSettingsAnswer{*path, request.save_path};
    }
  }
  Answered(Describe(request, answer), answer ? AnswerSource::kUser : AnswerSource::kDefault,
           !asks_);
  return answer;
}

void CliInteraction::ShowStatus(StatusArea area, std::string_view text) {
  // The sample frame's caption has no place on a terminal.
  if (area == StatusArea::kSampleFrame) return;
  progress_.SetText(text);
}

void CliInteraction::ShowProgress(std::int64_t value, std::int64_t max) {
  progress_.SetProgress(value, max);
}

void CliInteraction::HideProgress() { progress_.Hide(); }

bool CliInteraction::PollCancel() { return TakeInterruptRequest(); }

}  // namespace tarnwick
