#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "shell/interaction.h"
#include "shell/interaction_record.h"

namespace tarnwick {

// An entered text: for an input box, a file or a folder chooser.
struct TextAnswer {
  std::string text;
};

// Cancel, for any question that has one.
struct Cancelled {};

// One answer a test puts in the queue. Which kinds of question take which
// alternative:
//   Answer              message box (must be one of its buttons)
//   StartRenamingChoice start renaming
//   FileExistsAnswer    file exists
//   ManualRenameAnswer  manual renaming
//   TextAnswer          input box, file chooser, folder chooser
//   SaveSettingsAnswer  save settings
//   Cancelled           any of them but the test result list; a message box
//                       only when it has a Cancel button
using ScriptedAnswer = std::variant<Answer, StartRenamingChoice, FileExistsAnswer,
                                    ManualRenameAnswer, TextAnswer, SaveSettingsAnswer, Cancelled>;

// An Interaction for tests. Answers come from a queue the test fills, in the
// order the questions will come, or from a default the test set for a kind of
// question. Every question is recorded with its answer, so a test can assert
// the exact sequence. A question with no answer from either place, or with an
// answer that does not fit it, is recorded as a failure and gets the
// documented default answer.
class ScriptedInteraction : public Interaction {
 public:
  ScriptedInteraction() = default;

  // --- Filling the script. ---

  // Puts `answer` at the end of the queue.
  ScriptedInteraction& Then(ScriptedAnswer answer);
  // The answer to every question of `kind` when the queue is empty.
  void SetDefault(QuestionKind kind, ScriptedAnswer answer);
  // The next PollCancel() returns true, as if Esc were pressed.
  void PressCancel() { cancel_pressed_ = true; }
  // PollCancel() returns true at its `n`-th call from now (1: the next one).
  void PressCancelAtPoll(int n) { cancel_at_poll_ = polls_ + n; }

  // --- What happened. ---

  const std::vector<AnsweredQuestion>& asked() const { return asked_; }
  // One text per question that had no fitting answer; empty when all went as
  // scripted.
  const std::vector<std::string>& failures() const { return failures_; }
  // Answers still in the queue.
  std::size_t pending() const { return queue_.size(); }

  const std::vector<std::string>& statuses(StatusArea area) const;
  const std::string& caption() const { return caption_; }
  std::int64_t progress_value() const { return progress_value_; }
  std::int64_t progress_max() const { return progress_max_; }
  bool progress_visible() const { return progress_visible_; }
  bool controls_enabled() const { return controls_enabled_; }
  const std::vector<std::string>& waves_played() const { return waves_; }
  const std::vector<TestResultRow>& test_results() const { return test_results_; }
  const std::vector<RunSummary>& run_summaries() const { return run_summaries_; }
  // What the summary after a run answers; Close unless set.
  void SetRunSummaryChoice(RunSummaryChoice choice) { run_summary_choice_ = choice; }
  int poll_count() const { return polls_; }
  int yield_count() const { return yields_; }

  // --- Interaction. ---

  Answer ShowMessage(const MessageBoxRequest& request) override;
  StartRenamingChoice AskStartRenaming(const StartRenamingRequest& request) override;
  FileExistsAnswer AskFileExists(const FileExistsRequest& request) override;
  ManualRenameAnswer AskManualRename(const ManualRenameRequest& request) override;
  void ShowTestResults(const std::vector<TestResultRow>& rows) override;
  RunSummaryChoice ShowRunSummary(const RunSummary& summary) override {
    run_summaries_.push_back(summary);
    return run_summary_choice_;
  }
  std::optional<std::string> AskInput(const InputRequest& request) override;
  std::optional<std::string> ChooseFile(const FileChooserRequest& request) override;
  std::optional<std::string> ChooseFolder(const FolderChooserRequest& request) override;
  std::optional<SaveSettingsAnswer> AskSaveSettings(const SaveSettingsRequest& request) override;

  void ShowStatus(StatusArea area, std::string_view text) override;
  void SetCaption(std::string_view text) override { caption_ = std::string(text); }
  void ShowProgress(std::int64_t value, std::int64_t max) override;
  void HideProgress() override { progress_visible_ = false; }
  void SetControlsEnabled(bool enabled, bool keep_busy_indicator) override;
  void PlayWave(const std::string& path) override { waves_.push_back(path); }
  bool PollCancel() override;
  void Yield() override { ++yields_; }

 private:
  // The scripted answer for a question of `kind`, from the queue or the
  // kind's default; nothing (and a failure noted) when there is none.
  std::optional<ScriptedAnswer> Next(QuestionKind kind, const std::string& what);
  void Fail(const std::string& what, const std::string& why);
  void Record(AnsweredQuestion record, bool scripted);
  std::optional<std::string> AnswerText(QuestionKind kind, const std::string& what,
                                        std::optional<std::string> fallback);

  std::deque<ScriptedAnswer> queue_;
  std::map<QuestionKind, ScriptedAnswer> defaults_;
  std::vector<AnsweredQuestion> asked_;
  std::vector<std::string> failures_;

  std::map<StatusArea, std::vector<std::string>> statuses_;
  std::string caption_;
  std::int64_t progress_value_ = 0;
  std::int64_t progress_max_ = 0;
  bool progress_visible_ = false;
  bool controls_enabled_ = true;
  std::vector<std::string> waves_;
  std::vector<TestResultRow> test_results_;
  std::vector<RunSummary> run_summaries_;
  RunSummaryChoice run_summary_choice_ = RunSummaryChoice::kClose;
  bool cancel_pressed_ = false;
  int cancel_at_poll_ = 0;
  int polls_ = 0;
  int yields_ = 0;
};

}  // namespace tarnwick
