// The checks before a run: any stop here leaves every file alone.
#include <array>
#include <string>

#include "base/text.h"
#include "base/vb_number.h"
#include "core/pipeline_illegal_chars.h"
#include "core/rename_settings.h"
#include "core/start_rename_steps.h"
#include "filelist/file_list.h"
#include "persist/option_store.h"
#include "platform/files.h"
#include "platform/system_folder.h"
#include "platform/temp_files.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

// Shows the box of a check that failed and marks the run as stopped.
bool Stop(RunContext& run, std::string_view title_key, std::string_view text_key,
          std::string_view focus = {}, MessageIcon icon = MessageIcon::kExclamation) {
  MessageBoxRequest box;
  box.title = run.Text(title_key);
  box.text = run.Text(text_key);
  box.icon = icon;
  run.env.interaction.ShowMessage(box);
  run.result.stopped = true;
  run.result.stop_title = box.title;
  run.result.stop_message = box.text;
  run.result.focus_field = std::string(focus);
  return false;
}

// A run in a folder of the operating system asks first.
bool ProceedInSystemFolder(RunContext& run) {
  if (run.env.options.GetOption("SecureWindowsFolder", "Options", "0") != "0") return true;
  if (run.env.app.CurrentPath.empty() || !IsSystemFolder(run.env.app.CurrentPath)) return true;
  MessageBoxRequest box;
  box.title = run.Text("run.title_attention");
  box.text = run.Text("run.windows_path_warning") + "\r\n\r\n" + run.Text("run.really_proceed");
  box.buttons = Buttons::kYesNo;
  box.icon = MessageIcon::kExclamation;
  box.topic = Topic::kProceedInSystemFolder;
  if (run.env.interaction.ShowMessage(box) == Answer::kYes) return true;
  run.result.stopped = true;
  run.result.stop_title = box.title;
  run.result.stop_message = box.text;
  return false;
}

struct NumberField {
  const int RenameSettings::*tick;
  const std::string RenameSettings::*field;
  std::string_view name;
};

constexpr std::array<NumberField, 7> kNumberFields = {{
    {&RenameSettings::chkCutLeft, &RenameSettings::txtLeftCut, "txtLeftCut"},
    {&RenameSettings::chkCutRight, &RenameSettings::txtRightCut, "txtRightCut"},
    {&RenameSettings::chkCutMiddle, &RenameSettings::txtFromChar, "txtFromChar"},
    {&RenameSettings::chkCutMiddle, &RenameSettings::txtToChar, "txtToChar"},
    {&RenameSettings::chkNumbers, &RenameSettings::txtStartNumber, "txtStartNumber"},
    {&RenameSettings::chkNumbers, &RenameSettings::txtStep, "txtStep"},
    {&RenameSettings::chkNumbers, &RenameSettings::txtAddCount, "txtAddCount"},
}};

bool CheckNumberFields(RunContext& run) {
  const RenameSettings& s = run.env.settings;
  for (const NumberField& f : kNumberFields) {
    if (Ticked(s.*f.tick) && !vb::IsNumeric(s.*f.field)) {
      return Stop(run, "run.title_chars", "run.only_numeric_chars", f.name);
    }
  }
  if (Ticked(s.chkNumbers) && vb::Val(s.txtStep) < 1) {
    return Stop(run, "run.title_chars", "run.step_width_at_least_one", "txtStep");
  }
  return true;
}

bool AnyActionTicked(const RenameSettings& s) {
  for (int tick :
       {s.chkPrefix, s.chkPostfix, s.chkCutLeft, s.chkCutRight, s.chkReplace, s.chkCutMiddle,
        s.chkExtension, s.chkEditManual, s.chkCompleteName, s.chkOnlyUsePatterns}) {
    if (Ticked(tick)) return true;
  }
  return false;
}

bool CheckFields(RunContext& run) {
  RenameSettings& s = run.env.settings;
  if (!CheckNumberFields(run)) return false;
  if (run.selected_count == 0) {
    return Stop(run, "run.title_no_files_selected", "run.no_files_selected", {},
                MessageIcon::kNone);
  }
  // Whether or not the extension action is ticked.
  if (s.txtExtension.find('.') != std::string::npos) {
    return Stop(run, "run.title_file_extension", "run.extension_contains_points", "txtExtension");
  }
  if (vb::Val(s.txtAddCount) <= 0) s.txtAddCount = "1";
  if (Ticked(s.chkReplace) && s.txtSearchString.empty()) {
    return Stop(run, "run.title_search_textfield", "run.search_text_empty", "txtSearchString");
  }
  if (!AnyActionTicked(s)) {
    return Stop(run, "run.title_no_options_selected", "run.no_options_selected", {},
                MessageIcon::kNone);
  }
  return true;
}

// "Start renaming": rename, test or cancel; not asked in a batch run.
bool Confirm(RunContext& run) {
  if (run.env.app.BatchMode || run.mode == RunMode::kTest) return true;
  StartRenamingRequest request;
  request.selected_count = static_cast<std::int32_t>(run.selected_count);
  request.collisions = run.env.new_name_collisions;
  const StartRenamingChoice choice = run.env.interaction.AskStartRenaming(request);
  if (choice == StartRenamingChoice::kTest) run.mode = RunMode::kTest;
  if (choice != StartRenamingChoice::kCancel) return true;
  run.result.stopped = true;
  run.result.cancelled = true;
  return false;
}

}  // namespace

RunMode ModeOf(int opt_copy_rename) {
  if (opt_copy_rename == kModeRename) return RunMode::kRename;
  if (opt_copy_rename == kModeCopy) return RunMode::kCopy;
  return RunMode::kTest;
}

bool RunPreamble(RunContext& run) {
  AppState& app = run.env.app;
  app.CancelRun = false;
  app.FileLockSeen = false;
  run.selected_count = run.env.list.SelectedCount();
  run.log_bridge.selected_count = static_cast<int>(run.selected_count);
  app.RunFileCount = static_cast<std::int32_t>(run.selected_count);
  if (!ProceedInSystemFolder(run)) return false;
  run.env.options.SaveOption("SkipExistingFiles", "Options", "0");
  run.undo.PrepareUndoBatchName();
  if (!FolderExists(TempFolder())) return Stop(run, "run.title_chars", "run.no_temp_folder");
  if (!CheckFields(run)) return false;
  run.mode = ModeOf(run.env.settings.optCopyRename);
  if (!Confirm(run)) return false;
  run.started = std::chrono::steady_clock::now();
  std::string focus;
  if (CheckIllegalNames(run.env.settings, run.env.interaction, run.env.messages, &focus)) {
    run.result.stopped = true;
    run.result.stop_title = run.Text("pipeline.title_filename");
    run.result.stop_message = run.Text("pipeline.not_allowed_char");
    run.result.focus_field = focus;
    return false;
  }
  return true;
}

}  // namespace tarnwick
