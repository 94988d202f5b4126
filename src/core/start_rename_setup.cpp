// The set-up of a run, between the checks and the first file.
#include <array>

#include "base/vb_number.h"
#include "core/manual_rename.h"
#include "core/numbering.h"
#include "core/rename_settings.h"
#include "core/run_error_handler.h"
#include "core/settings_snapshot.h"
#include "core/start_rename_steps.h"
#include "filelist/file_list.h"
#include "persist/log_failure_box.h"
#include "persist/log_run_headers.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "shell/app_state.h"
#include "shell/interaction.h"

namespace tarnwick {
namespace {

// With numbering by folder or by day, equal folders or days stand together.
void SortForCounterResets(RunContext& run) {
  const OptionStore& options = run.env.options;
  if (options.GetOption("CountDirectories", "Options", "0") != "1") return;
  const bool by_folder = options.GetOption("ResetCounterByDirectory", "Options", "1") == "1";
  const std::array<SortColumn, 1> columns = {
      SortColumn{by_folder ? file_column::kPath : file_column::kDate, false}};
  run.env.list.MultiSortListView(columns);
}

void BuildRandomPool(RunContext& run) {
  const RenameSettings& s = run.env.settings;
  const double lower = vb::Val(s.txtStartNumber);
  const double upper = (static_cast<double>(run.selected_count) + lower - 1) * vb::Val(s.txtStep);
  RandomPool& pool = run.env.app.random_pool;
  pool.Clear();
  pool.Build(vb::CLng(lower), vb::CLng(upper),
             static_cast<std::uint64_t>(run.env.clock.Timer() * 1000));
}

// The journal of a run that moves or copies, beside its undo batch. Where it
// cannot be made there, the user may switch undo off, as for any undo write
// that fails; the run goes on in either case. With undo kept on, the journal
// lives in the program's own undo folder, where start-up looks for it too;
// if even that fails, the run goes on without one (logged).
void BeginJournal(RunContext& run) {
  if (run.mode == RunMode::kTest) return;
  if (run.env.options.GetOption("WriteUndoList", "Options", "1") == "0") return;
  const std::filesystem::path batch = run.undo.UndoBatchPath();
  const std::string& older_copy = run.env.log_undo.UndoTemporaryCopy;
  FileStatus status;
  run.journal = RunJournal::Begin(batch, older_copy, &status);
  if (run.journal) return;
  OfferToSwitchOff(run.log_env, FailedWriter::kUndo, status, batch.string());
  if (run.env.options.GetOption("WriteUndoList", "Options", "1") == "0") return;
  const std::string& own_folder = run.env.log_undo.DefaultUndoFolder;
  if (!own_folder.empty()) run.journal = RunJournal::Begin(batch, older_copy, &status, own_folder);
  if (!run.journal) {
    run.log.WriteLogFileTool(run.Text("run.log.no_journal"), status.ToVbError().description());
  }
}

}  // namespace

void SetUpRun(RunContext& run) {
  const RenameRunEnv& env = run.env;
  env.app.run_active = true;
  env.interaction.SetControlsEnabled(false, false);
  env.interaction.ShowProgress(0, static_cast<std::int64_t>(run.selected_count));
  env.interaction.ShowStatus(StatusArea::kStatusLine, run.Text("run.status_in_progress"));
  env.interaction.ShowStatus(StatusArea::kSampleFrame, run.Text("run.please_wait"));
  Guarded(run, "", "", "", [&] { env.app.CurrentCount = StartNumberValue(env.settings); });
  env.app.SameNumberCount = 0;
  env.app.LastCounterFolder.clear();
  env.app.LastCounterDate.clear();
  Guarded(run, "", "", "", [&] { SortForCounterResets(run); });
  ResetManualRenameCursor(env.options);
  run.exif_date = env.options.GetOption("UseEXIFDate", "Options", "0") == "1";
  // Before the batch is started anew: from here on a kill still leaves the
  // older runs a way back behind this run's lines.
  BeginJournal(run);
  WriteRunHeaders(run.log, run.undo, static_cast<int>(run.selected_count),
                  env.settings.optCopyRename);
  Guarded(run, "", "", "", [&] { BuildRandomPool(run); });
  run.rows = env.list.SelectedRows();
  env.interaction.ShowProgress(0, static_cast<std::int64_t>(run.rows.size()));
  run.log.LogRenameSettingsSnapshot(SnapshotOf(env.settings));
}

}  // namespace tarnwick
