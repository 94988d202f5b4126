#pragma once

#include <functional>
#include <istream>
#include <optional>
#include <ostream>
#include <string>

#include "shell/cli_interaction_progress.h"
#include "shell/interaction.h"
#include "shell/interaction_record.h"

namespace tarnwick {

// How the command line answers.
struct CliOptions {
  // --yes: every Yes/No question is answered Yes.
  bool assume_yes = false;
  // --interactive: ask on the terminal, when standard input and standard
  // error both are one; otherwise every question gets its default answer.
  bool interactive = false;
  // The answer of "Start renaming", chosen by the command (rename or test).
  StartRenamingChoice start_choice = StartRenamingChoice::kRename;
  // Called with every question answered, by whoever answered it: a batch run
  // logs them. May be empty.
  std::function<void(const AnsweredQuestion&)> on_answer;
};

// Where the command line reads and writes, and whether those are terminals.
struct CliStreams {
  std::istream* in = nullptr;
  std::ostream* err = nullptr;  // messages, prompts, progress
  std::ostream* out = nullptr;  // the result list of a test run
  bool in_is_terminal = false;
  bool err_is_terminal = false;
  int terminal_width = 80;

  // The process's standard streams, with isatty() of descriptors 0 and 2 and
  // the width of the terminal on descriptor 2.
  static CliStreams Process();
};

// The Interaction of tarnwick-cli and of the unattended start. Messages go to
// standard error; each question gets its documented default answer
// (interaction_defaults.h, DefaultAnswersHelp), Yes for Yes/No questions with
// --yes, and is asked on the terminal only when that was asked for and both
// standard input and standard error are terminals. Standard input is never
// read otherwise, so a pipe or /dev/null never blocks a run. Progress shows
// on a terminal only. Ctrl-C is seen through cancel.h.
class CliInteraction : public Interaction {
 public:
  explicit CliInteraction(CliOptions options, CliStreams streams = CliStreams::Process());
  ~CliInteraction() override;
  CliInteraction(const CliInteraction&) = delete;
  CliInteraction& operator=(const CliInteraction&) = delete;

  // Replaces the callback that receives every answered question.
  void SetAnswerLog(std::function<void(const AnsweredQuestion&)> on_answer);
  // Whether questions are put to a person.
  bool asks() const { return asks_; }

  Answer ShowMessage(const MessageBoxRequest& request) override;
  StartRenamingChoice AskStartRenaming(const StartRenamingRequest& request) override;
  FileExistsAnswer AskFileExists(const FileExistsRequest& request) override;
  ManualRenameAnswer AskManualRename(const ManualRenameRequest& request) override;
  void ShowTestResults(const std::vector<TestResultRow>& rows) override;
  std::optional<std::string> AskInput(const InputRequest& request) override;
  std::optional<std::string> ChooseFile(const FileChooserRequest& request) override;
  std::optional<std::string> ChooseFolder(const FolderChooserRequest& request) override;
  std::optional<SaveSettingsAnswer> AskSaveSettings(const SaveSettingsRequest& request) override;

  void ShowStatus(StatusArea area, std::string_view text) override;
  // The window's caption has no place on a terminal.
  void SetCaption(std::string_view) override {}
  void ShowProgress(std::int64_t value, std::int64_t max) override;
  void HideProgress() override;
  void SetControlsEnabled(bool, bool) override {}
  void PlayWave(const std::string&) override {}
  // True once for each Ctrl-C (with InstallInterruptCancel in place).
  bool PollCancel() override;
  void Yield() override {}

 private:
  // Prints the title and text of a question or message, once for a run of
  // equal ones.
  void PrintQuestion(const std::string& title, const std::string& text);
  void FlushRepeats();
  // Notes the answer on standard error and hands it to the log.
  void Answered(AnsweredQuestion record, AnswerSource source, bool print);

  // A line typed on the terminal; nothing at the end of input.
  std::optional<std::string> ReadLine(const std::string& prompt);
  // A letter among `letters` typed in answer to `prompt`; nothing for an
  // empty line or the end of input.
  std::optional<char> ReadChoice(const std::string& prompt, std::string_view letters);
  Answer PromptMessage(const MessageBoxRequest& request, Answer fallback);
  std::optional<FileExistsAnswer> PromptFileExists(const FileExistsRequest& request);
  std::optional<std::string> PromptPath(const std::string& title);

  CliOptions options_;
  CliStreams streams_;
  bool asks_;
  bool input_ended_ = false;
  CliProgressLine progress_;
  std::string last_printed_;
  int repeats_ = 0;
};

}  // namespace tarnwick
