#include "startup/startup.h"

#include <cmath>
#include <string>

#include "base/clock.h"
#include "base/text.h"
#include "base/vb_date_text.h"
#include "base/vb_error.h"
#include "base/vb_number.h"
#include "core/settings_snapshot.h"
#include "persist/crash_recovery.h"
#include "persist/default_paths.h"
#include "persist/log_date_text.h"
#include "persist/log_file.h"
#include "persist/log_options.h"
#include "persist/log_undo_env.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "persist/snapshot_options.h"
#include "persist/snapshot_system.h"
#include "platform/files.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

using Outcome = StartupResult::Outcome;

constexpr int kSettingsNoteMessage = 1083;
constexpr int kReadingMessage = 1054;
constexpr int kStartErrorSubject = 189;
constexpr int kCompactWidth = 30;
constexpr int kDefaultPosition = 200;

// The steps of start-up, run one after the other under one handler; an error
// that the handler survives goes on with the step after the failing one.
class Sequence {
 public:
  Sequence(const LogUndoEnv& env, RenameSettings& settings, StartupHost& host,
           const StartupInput& input)
      : env_(env), settings_(settings), host_(host), input_(input), log_(env) {}

  StartupResult Run();

 private:
  using Step = void (Sequence::*)();

  std::string Text(std::string_view key) const { return std::string(env_.messages.Text(key)); }
  std::string Text(int id) const { return std::string(env_.messages.Text(id)); }
  void Status(std::string_view text) { env_.interaction.ShowStatus(StatusArea::kSplash, text); }
  void PrepareButtons(bool enable);
  // Handles an error of a step; true when start-up goes on.
  bool Handle(const VbError& error);
  // Runs one statement under the handler, which resumes at the statement
  // after it; false when the handler ended start-up.
  template <typename Statement>
  bool Resume(Statement statement);
  // Gives the folder browser and `CurrentPath` a folder; raises 76 when it is gone.
  void GiveFolder(const std::string& folder);

  void PlaceWindow();
  void OpenSplash();
  void MakeFolders();
  void CorrectPosition();
  void PrepareWindow();
  void CheckDates();
  void StartLog();
  void RecoverCrash();
  void ChooseFolder();
  void RefreshControls();
  void ApplyDefaultSettings();
  void ObeyCommandLine();
  void SortList();
  void CheckUpdates();
  void PrepareInterface();
  void Associate();
  void ShowWindow();
  void StartWatch();
  void Finish();
  void LogStart();

  const LogUndoEnv& env_;
  RenameSettings& settings_;
  StartupHost& host_;
  const StartupInput& input_;
  RunLog log_;
  StartupResult result_;
  int top_ = kDefaultPosition;
  int left_ = kDefaultPosition;
  double start_timer_ = 0;
  std::string path_;
  bool done_ = false;
  bool stopped_ = false;  // the handler ended start-up
};

int PositionOption(const OptionStore& options, std::string_view key) {
  const double value = vb::Val(options.GetOption(key, "Options", std::to_string(kDefaultPosition)));
  if (!std::isfinite(value) || std::fabs(value) > 1e9) return 0;
  return static_cast<int>(value);
}

StartupResult Sequence::Run() {
  static constexpr Step kSteps[] = {
      &Sequence::PlaceWindow,
      &Sequence::OpenSplash,
      &Sequence::MakeFolders,
      &Sequence::CorrectPosition,
      &Sequence::PrepareWindow,
      &Sequence::CheckDates,
      &Sequence::StartLog,
      &Sequence::RecoverCrash,
      &Sequence::ChooseFolder,
      &Sequence::RefreshControls,
      &Sequence::ApplyDefaultSettings,
      &Sequence::ObeyCommandLine,
      &Sequence::SortList,
      &Sequence::CheckUpdates,
      &Sequence::PrepareInterface,
      &Sequence::Associate,
      &Sequence::ShowWindow,
      &Sequence::StartWatch,
      &Sequence::Finish,
      &Sequence::LogStart,
  };
  result_.command_line = ParseCommandLine(input_.arguments, input_.working_folder);
  for (const Step step : kSteps) {
    if (!Resume([&] { (this->*step)(); })) break;
    if (done_ || stopped_) break;
  }
  return result_;
}

template <typename Statement>
bool Sequence::Resume(Statement statement) {
  try {
    statement();
    return true;
  } catch (const VbError& error) {
    if (Handle(error)) return true;
    stopped_ = true;
    return false;
  }
}

void Sequence::GiveFolder(const std::string& folder) {
  if (!FolderExists(folder)) throw VbError(vb_error::kPathNotFound, "Path not found");
  env_.app.CurrentPath = folder;
}

bool Sequence::Handle(const VbError& error) {
  const std::string subject = Text(kStartErrorSubject);
  log_.WriteLogFileTool(subject, "!" + std::to_string(error.number()) + ": " + error.description());
  if (OptionIsOne(env_.options, "ResetPath", "0")) {
    log_.WriteLogFileTool(subject, Text("startup.log.could_not_start"));
  }
  host_.UnloadSplash();
  result_.error_number = error.number();
  result_.error = error.description();
  if (error.number() == vb_error::kObjectNotSet) {
    result_.outcome = Outcome::kLeft;
    return false;
  }
  if (error.number() == vb_error::kPathNotFound) {
    env_.app.CurrentPath = input_.default_root;
    return true;
  }
  MessageBoxRequest box;
  if (error.number() == vb_error::kDeviceUnavailable) {
    box.title = Text("options.title_information");
    box.text = Text("startup.drive_locked");
    box.icon = MessageIcon::kInformation;
    env_.interaction.ShowMessage(box);
    return true;
  }
  box.title = Text("startup.error_title_start") + std::to_string(error.number()) + "]";
  box.text = Text("startup.error_while_starting") + "\r\n\r\n" + error.description() + "\r\n\r\n" +
             Text("startup.application_will_stop");
  box.icon = MessageIcon::kCritical;
  env_.interaction.ShowMessage(box);
  result_.outcome = Outcome::kFailed;
  return false;
}

void Sequence::PrepareButtons(bool enable) {
  env_.interaction.SetControlsEnabled(enable, false);
  if (enable) {
    host_.StartFolderWatch();
  } else {
    host_.StopFolderWatch();
  }
}

void Sequence::PlaceWindow() {
  top_ = PositionOption(env_.options, "Top");
  left_ = PositionOption(env_.options, "Left");
}

void Sequence::OpenSplash() {
  host_.ShowSplash();
  Status(Text("startup.starting"));
  start_timer_ = env_.clock.Timer();
}

void Sequence::MakeFolders() {
  env_.state.ProgramFolder = input_.program_folder;
  CreateDefaultPaths(env_, log_, input_.data_base_folder, input_.data_fallback_folder);
  result_.journals = CompleteInterruptedRunsAtStart(env_.options, env_.state);
  for (const JournalRecovery& recovery : result_.journals) {
    const bool completed = recovery.outcome == JournalRecovery::Outcome::kCompleted;
    if (!completed && recovery.outcome != JournalRecovery::Outcome::kFailed) continue;
    log_.WriteLogFileTool(
        Text("startup.log.interrupted_run"),
        Text(completed ? "startup.log.batch_completed" : "startup.log.batch_not_completed") +
            recovery.batch_path + "'");
  }
}

void Sequence::CorrectPosition() {
  if (left_ < 0) left_ = 0;
  if (top_ < 0) top_ = 0;
  if (const std::optional<ScreenSize> screen = host_.Screen()) {
    if (left_ > screen->width) left_ = 0;
    if (top_ > screen->height) top_ = 0;
  }
  host_.PlaceMainWindow(top_, left_);
}

void Sequence::PrepareWindow() {
  env_.app.LoadingFlag = true;
  env_.app.CurrentFilter = "*.*";
  host_.PrepareWindow();
}

void Sequence::CheckDates() { CheckDateFormat(env_.options, input_.system_short_date); }

void Sequence::StartLog() {
  PrepareButtons(false);
  log_.WriteLogFileHeader(0);
}

void Sequence::RecoverCrash() { result_.options_reset = RecoverFromFailedStart(env_, log_); }

void Sequence::ChooseFolder() {
  path_ = ReadOption(env_.options, "Path", input_.default_root);
  Status(Text(kReadingMessage) + " " + CompactPath(path_, kCompactWidth));
  // A settings file brings its own folder; one that cannot be applied, or
  // has none, leaves the last folder.
  const CommandLine& line = result_.command_line;
  if (!line.empty && line.settings_file.empty()) return;
  env_.app.CurrentPath = FolderExists(path_) ? path_ : input_.default_root;
}

void Sequence::RefreshControls() {
  PrepareButtons(false);
  env_.app.CurrentCount = vb::CLng(vb::Val(settings_.txtStartNumber));
  host_.RefreshControlStates();
}

void Sequence::ApplyDefaultSettings() {
  if (OptionIsOne(env_.options, "SettingsFile", "0")) {
    const std::string path = ReadOption(env_.options, "SettingsFilePath", "");
    Status(Text(kSettingsNoteMessage) + " " + CompactPath(path, kCompactWidth));
    result_.settings_load = LoadDefaultSettings(env_, path, settings_);
  }
  if (result_.command_line.empty) host_.FillListFiles();
}

void Sequence::ObeyCommandLine() {
  const CommandLine& line = result_.command_line;
  if (line.empty) return;
  if (!line.settings_file.empty()) {
    result_.settings_load = LoadDefaultSettings(env_, line.settings_file, settings_);
    result_.settings_failed = result_.settings_load.outcome != LoadSettingsResult::Outcome::kLoaded;
    // The window shows the last folder when the file could not be applied;
    // an unattended run has no use for it.
    if (!result_.settings_failed || !line.batch) host_.FillListFiles();
  } else if (!line.folder.empty()) {
    Status(line.folder);
    PrepareButtons(false);
    // A folder that is gone gives way to the root, and the fill goes on.
    if (!Resume([&] { GiveFolder(line.folder); })) return;
    PrepareButtons(false);
    host_.FillListFiles();
  }
  if (line.batch) {
    Status(Text("startup.processing_batch"));
    env_.app.BatchMode = true;
    // A run with controls the file did not set, or in the root the list
    // fell back to, could rename the wrong files.
    if (!result_.settings_failed && !result_.settings_load.folder_gone) {
      result_.batch = host_.RunBatch();
    }
    MarkStartFinished(env_);
    host_.UnloadMainWindow();
    result_.outcome = Outcome::kBatchDone;
    done_ = true;
    return;
  }
  if (line.nt_log_mode) {
    if (!Resume([&] { GiveFolder(ReadOption(env_.options, "Path", input_.default_root)); })) {
      return;
    }
    host_.FillListFiles();
    PrepareButtons(true);
  }
}

void Sequence::SortList() {
  Status(Text("startup.sorting_file_list"));
  host_.ShowSplash();
}

void Sequence::CheckUpdates() {
  if (result_.command_line.empty) host_.CheckForUpdates();
  host_.HideSplash();
}

void Sequence::PrepareInterface() {
  Status(Text("startup.preparing_user_interface"));
  host_.ApplySampleRate();
}

void Sequence::Associate() {
  if (!OptionIsZero(env_.options, "SetFileAssoc", "0")) return;
  host_.RegisterFileAssociation();
  SaveOptionValue(env_.options, "SetFileAssoc", "1");
}

void Sequence::ShowWindow() {
  host_.ShowMainWindow();
  env_.app.FieldHasFocus = false;
  host_.UnloadSplash();
}

void Sequence::StartWatch() {
  host_.StartFolderWatch();
  env_.app.LoadingFlag = false;
}

void Sequence::Finish() { MarkStartFinished(env_); }

void Sequence::LogStart() {
  log_.LogSystemInfoLine(GatherSystemFacts());
  OptionSnapshotDefaults defaults;
  defaults.date_format = input_.system_short_date;
  log_.LogOptionSettingsSnapshot(defaults);
  log_.LogRenameSettingsSnapshot(SnapshotOf(settings_));
  double elapsed = env_.clock.Timer() - start_timer_;
  if (elapsed < 0) elapsed += 86400;  // past midnight
  const int seconds = static_cast<int>(elapsed);
  const vb::DateTime span = vb::TimeSerial(seconds / 3600 % 24, seconds / 60 % 60, seconds % 60);
  const std::string subject = Text("startup.log.started_successfully") + " [" +
                              PresentDateText(env_.clock, env_.options) + "]";
  log_.WriteLogFileTool(subject, Text("startup.log.initialize_with") + env_.app.CurrentPath +
                                     "' (" + std::to_string(host_.RowCount()) +
                                     Text("startup.log.files_comma") +
                                     vb::FormatDate(span, "Long Time") + ")");
}

}  // namespace

StartupResult RunStartup(const LogUndoEnv& env, RenameSettings& settings, StartupHost& host,
                         const StartupInput& input) {
  return Sequence(env, settings, host, input).Run();
}

bool CloseMainWindow(const LogUndoEnv& env, StartupHost& host) {
  bool cancel = env.app.run_active;
  if (OptionIsZero(env.options, "SaveChanges", "1") && env.app.SettingsDirty) {
    MessageBoxRequest box;
    box.title = env.messages.Text("options.title_discard_changes");
    box.text = env.messages.Text("options.really_quit_discard");
    box.buttons = Buttons::kYesNo;
    box.icon = MessageIcon::kQuestion;
    box.topic = Topic::kDiscardChanges;
    if (env.interaction.ShowMessage(box) != Answer::kYes) return true;
  }
  host.StopFolderWatch();
  if (host.MainWindowNormal()) {
    SaveOptionValue(env.options, "Top", std::to_string(host.MainWindowTop()));
    SaveOptionValue(env.options, "Left", std::to_string(host.MainWindowLeft()));
  }
  host.UnloadPreviewWindows();
  const std::string& path = env.app.CurrentPath;
  SaveOptionValue(env.options, "Path", FolderExists(path) ? path : "");
  host.UnloadOtherWindows();
  return cancel;
}

}  // namespace tarnwick
