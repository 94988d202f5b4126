// The end of a run.
#include "base/path_text.h"
#include "core/job_end.h"
#include "core/numbering.h"
#include "core/rename_settings.h"
#include "core/run_error_handler.h"
#include "core/start_rename_steps.h"
#include "filelist/file_list.h"
#include "filelist/list_loader.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "platform/files.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

bool OptionIs(const RunContext& run, std::string_view key, std::string_view fallback,
              std::string_view value) {
  return run.env.options.GetOption(key, "Options", fallback) == value;
}

// The older runs go behind this run's lines; the journal says so first, so
// a kill in the middle of it is mended by the next start.
void CloseUndoBatch(RunContext& run) {
  if (run.journal) {
    const FileResult<std::uint64_t> size = FileSize64(run.undo.UndoBatchPath());
    run.journal->RecordFinish(size.value_or(0));
  }
  if (OptionIs(run, "OverwriteUndoBatch", "0", "0")) run.undo.FinishUndoBatch();
  if (run.journal) run.journal->Remove();
  run.journal.reset();
}

// The question after a test, and the result list on Yes.
void OfferTestResults(RunContext& run) {
  MessageBoxRequest box;
  box.buttons = Buttons::kYesNo;
  box.topic = Topic::kShowTestResults;
  if (run.env.app.FileLockSeen) {
    box.title = run.Text("run.title_test_failed");
    box.text = run.Text("run.test_errors_found");
    box.icon = MessageIcon::kExclamation;
  } else {
    box.title = run.Text("run.title_test_successful");
    box.text = run.Text("run.test_no_errors") + "\r\n\r\n" + run.Text("run.see_list_of_files");
    box.icon = MessageIcon::kInformation;
  }
  if (run.env.interaction.ShowMessage(box) == Answer::kYes) {
    run.env.interaction.ShowTestResults(run.test_rows);
  }
}

void RefillList(RunContext& run) {
  if (run.env.loader == nullptr) return;
  run.env.loader->FillListFiles(
      run.env.list, {run.env.app.CurrentPath, Ticked(run.env.settings.chkIncludeSubfolders)});
}

void JumpToLastSelectedFileIndex(RunContext& run) {
  if (!OptionIs(run, "JumpToLastSelectedFile", "0", "1")) return;
  FileList& list = run.env.list;
  list.DeselectAll();
  list.Select(static_cast<std::size_t>(run.env.app.CurrentRow));
}

}  // namespace

void FinishRun(RunContext& run) {
  const RenameRunEnv& env = run.env;
  env.app.CancelRun = false;
  CloseUndoBatch(run);
  env.app.run_active = false;
  env.interaction.SetControlsEnabled(true, false);
  const bool test = run.mode == RunMode::kTest;
  if (!test) RefillList(run);
  env.interaction.SetCaption(run.Text("run.caption_program"));
  env.interaction.ShowStatus(StatusArea::kSampleFrame, run.Text("sample.frame_caption"));
  env.interaction.HideProgress();
  Guarded(run, "", "", run.note, [&] { env.app.CurrentCount = StartNumberValue(env.settings); });
  PlayFinishSound(env);
  ShowJobDuration(env, run.started);
  if (test) OfferTestResults(run);
  if (!test) JumpToLastSelectedFileIndex(run);
  env.options.SaveOption("SkipExistingFiles", "Options", "0");
}

}  // namespace tarnwick
