// The loop of a run: one selected row after the other, in list order.
#include <string>

#include "base/path_text.h"
#include "base/text.h"
#include "core/file_date_time.h"
#include "core/numbering.h"
#include "core/pipeline.h"
#include "core/pipeline_collision.h"
#include "core/pipeline_name_diff.h"
#include "core/run_error_handler.h"
#include "core/run_file_ops.h"
#include "core/start_rename_steps.h"
#include "filelist/file_list.h"
#include "persist/option_store.h"
#include "shell/app_state.h"
#include "shell/interaction.h"

namespace tarnwick {
namespace {

// One file on its way through the loop.
struct FileStep {
  std::size_t index = 0;  // 0-based place in the run
  std::size_t row = 0;
  std::string folder;
  std::string name;  // the present name
  std::string date;  // the row's date column
  std::string old_path;
  std::string new_name;
  std::string new_path;
  bool failed = false;
  // The new name was not checked against the folder: the move finds out.
  bool name_unchecked = false;
};

bool OptionIs(const RunContext& run, std::string_view key, std::string_view value) {
  return run.env.options.GetOption(key, "Options", "0") == value;
}

// "Tarnwick - [007/120] name  [To cancel use "Esc" key]".
void ShowCaption(RunContext& run, const FileStep& file) {
  const std::string total = std::to_string(run.rows.size());
  std::string number = std::to_string(file.index + 1);
  if (number.size() < total.size()) number.insert(0, total.size() - number.size(), '0');
  run.env.interaction.SetCaption(run.Text("run.caption_prefix") + "[" + number + "/" + total +
                                 "] " + file.name + "  " + run.Text("run.caption_cancel_hint"));
}

// Whether the new name keeps anything in front of its extension and dot, the
// extension taken from the whole new path: ".jpg" and "." keep nothing.
// Kept: the dot is counted even where there is no extension, so a
// one-letter name without extension fails.
bool BasePasses(const std::string& new_path, const std::string& new_name) {
  return vb::Len(new_name) - vb::Len(ExtensionName(new_path)) - 1 > 0;
}

// The file keeps its old date, or takes its EXIF date, when the options say so.
void KeepDates(RunContext& run, FileStep& file, const std::string& path) {
  const FileDateEnv dates{run.env.options, run.env.interaction, run.env.messages, run.env.media};
  if (OptionIs(run, "KeepOldFiledate", "1")) {
    file.failed |= !Guarded(run, file.old_path, file.new_path, run.note, [&] {
      const FileStatus status = ChangeFileDateAndTimeKeepOld(dates, path, file.date);
      if (!status.ok()) throw status.ToVbError();
    });
  }
  if (run.exif_date) {
    file.failed |= !Guarded(run, file.old_path, file.new_path, run.note, [&] {
      const FileStatus status = ChangeFileDateAndTimeJPG(dates, path);
      if (!status.ok()) throw status.ToVbError();
    });
  }
}

enum class Carried { kDone, kSkipped, kFailed };

// The question a taken name gets, asked when the run finds the name taken
// (or, for a name that fails the base check, before that check, where the
// pipeline used to ask it). Updates the new name; false when the file is to
// be skipped or the name the user gave cannot be taken (then reported).
bool DecideNameNow(RunContext& run, FileStep& file, bool found_taken, bool& failed) {
  const PipelineEnv pipeline = run.Pipeline();
  file.name_unchecked = false;
  std::string name =
      found_taken ? DecideTakenName(pipeline, file.new_name, file.folder, file.name)
                  : DecideCollision(pipeline, file.name, file.new_name, file.folder, file.name);
  try {
    CheckNameForFileSystem(name);
  } catch (const VbError& error) {
    HandleRunError(run, error, file.old_path, JoinPath(file.folder, name), "");
    failed = true;
    return false;
  }
  file.new_name = std::move(name);
  return !file.new_name.empty();
}

// The move or copy of the file; false when its new name, unchecked before,
// turned out to be taken and nothing was done.
bool MoveOrCopy(RunContext& run, const FileStep& file, bool copy) {
  if (file.name_unchecked) {
    return copy ? RunCopyUnlessTaken(run, file.old_path, file.new_path)
                : RunMoveUnlessTaken(run, file.old_path, file.new_path);
  }
  if (copy) {
    RunCopy(run, file.old_path, file.new_path);
  } else {
    RunMove(run, file.old_path, file.new_path);
  }
  return true;
}

// Renames, copies or lists the file by the run's mode. kFailed when the
// step failed (the handler has reported it) and there is nothing to log;
// kSkipped when the question about a taken name skipped the file.
Carried CarryOut(RunContext& run, FileStep& file) {
  bool base_ok = BasePasses(JoinPath(file.folder, file.new_name), file.new_name);
  bool failed = false;
  if (file.name_unchecked && !base_ok) {
    if (!DecideNameNow(run, file, false, failed))
      return failed ? Carried::kFailed : Carried::kSkipped;
    base_ok = BasePasses(JoinPath(file.folder, file.new_name), file.new_name);
  }
  if (!base_ok) {
    file.new_name = run.Text("run.filename_empty");
    file.failed = true;  // counted as failed: the file keeps its name
  }
  file.new_path = JoinPath(file.folder, file.new_name);
  if (run.mode == RunMode::kTest) {
    run.command = "rem";
    run.note = run.Text("run.note_test_only");
    run.test_rows.push_back({file.name, file.new_name, file.folder});
    return Carried::kDone;
  }
  const bool copy = run.mode == RunMode::kCopy;
  // A file skipped at the question keeps the word of the file before.
  const std::string command_before = run.command;
  const std::string note_before = run.note;
  run.command = copy ? "del" : "move";
  run.note = run.Text(copy ? "run.note_created_copy" : "run.note_renamed");
  // Where the new name has nothing before its extension nothing is touched,
  // also in a change of case: the file keeps the name it came with.
  if (!base_ok) return Carried::kDone;
  bool done = true;
  const bool carried = Guarded(run, file.old_path, file.new_path, run.note, [&] {
    if (!copy && vb::UCase(file.old_path) == vb::UCase(file.new_path)) {
      return RunMoveThroughTemporaryName(run, file.old_path, file.new_path);
    }
    done = MoveOrCopy(run, file, copy);
  });
  if (!carried) return Carried::kFailed;
  if (!done) {
    run.command = command_before;
    run.note = note_before;
    if (!DecideNameNow(run, file, true, failed))
      return failed ? Carried::kFailed : Carried::kSkipped;
    return CarryOut(run, file);
  }
  KeepDates(run, file, file.new_path);
  return Carried::kDone;
}

void CountFile(RunContext& run, const FileStep& file, bool skipped) {
  if (file.failed) {
    ++run.result.failed;
  } else if (skipped) {
    ++run.result.skipped;
  } else {
    ++run.result.done;
  }
}

// The name a run of given names has for the file, decided against the
// folder as the pipeline decides its own: a taken one is asked about (or
// skipped by `SkipExistingFiles`) before the move.
ProcessFileResult GivenName(RunContext& run, const FileStep& file) {
  ProcessFileResult result;
  const auto given = run.given_names->find(file.old_path);
  if (given == run.given_names->end()) {
    result.name = file.name;
    return result;
  }
  // "Processing: [ 3 / 12 ]  name".
  run.env.interaction.ShowStatus(StatusArea::kStatusLine,
                                 run.Text("tools.processing") + " [ " +
                                     std::to_string(file.index + 1) + " / " +
                                     std::to_string(run.rows.size()) + " ]  " + file.name);
  // An empty name is no skip here: like a name that keeps nothing before
  // its extension it is reported as not written; "." takes that way.
  const std::string name = given->second.empty() ? "." : given->second;
  if (run.mode == RunMode::kTest || !BasePasses(JoinPath(file.folder, name), name)) {
    result.name = name;
    return result;
  }
  result.name = DecideCollision(run.Pipeline(), file.name, name, file.folder, file.name);
  return result;
}

// Steps 2 to 12 of one file. The pipeline's own questions, and the error
// handler, may set `CancelRun`.
void RunFile(RunContext& run, FileStep& file, bool frozen) {
  AppState& app = run.env.app;
  const FileList& list = run.env.list;
  app.CurrentRow = static_cast<std::int32_t>(file.row);
  file.folder = std::string(list.Folder(file.row));
  file.name = list.Text(file.row, file_column::kName);
  file.date = list.Text(file.row, file_column::kDate);
  file.old_path = JoinPath(file.folder, file.name);
  // An error before the file's own step carries no note: the note standing
  // is the word for the file before.
  if (!Guarded(run, file.old_path, "", "", [&] {
        ResetCounterForRow(app, run.env.settings, run.env.options, file.folder, file.date);
      })) {
    file.failed = true;
  }
  if (!frozen) ShowCaption(run, file);
  // The test is on the row's name, not on any field.
  if (vb::InStr(vb::LCase(file.name), "{{set_jpg_to_exif_originaldate}}") > 0) {
    run.exif_date = true;
  }
  file.new_name = file.name;
  const ProcessFileResult processed = run.given_names != nullptr
                                          ? GivenName(run, file)
                                          : ProcessFile(run.Pipeline(), file.new_name, file.row,
                                                        file.folder);
  if (processed.error) {
    HandleRunError(run, *processed.error, file.old_path, JoinPath(file.folder, file.new_name), "");
    file.failed = true;
    CountFile(run, file, false);
    --app.RunFileCount;
    return;
  }
  file.new_name = processed.name;
  file.name_unchecked = processed.name_unchecked;
  bool skipped = file.new_name.empty();
  bool carried = true;
  if (skipped) {
    run.note = run.Text("run.note_file_skipped");
    KeepDates(run, file, file.old_path);
    --app.RunFileCount;
  } else if (!app.CancelRun) {
    const Carried outcome = CarryOut(run, file);
    carried = outcome != Carried::kFailed;
    if (outcome == Carried::kSkipped) {
      // Taken, and skipped at the question: as a file the pipeline skipped.
      skipped = true;
      file.new_name.clear();
      run.note = run.Text("run.note_file_skipped");
      KeepDates(run, file, file.old_path);
    }
    --app.RunFileCount;
  } else {
    // The run was cancelled at this file (the manual rename's Cancel): it is
    // left alone, and its entries say so rather than take the word and the
    // command of the file before.
    skipped = true;
    file.new_name.clear();
  }
  if (!carried) {
    file.failed = true;
    CountFile(run, file, false);
    return;
  }
  if (file.new_name.empty()) {
    run.note = run.Text("run.note_file_skipped");
    file.new_name = file.name;
  }
  file.new_path = JoinPath(file.folder, file.new_name);
  run.log.WriteLogFile(file.old_path, file.new_path, run.note);
  // Kept: a skipped file's entry takes the command of the file before it;
  // "move" names the file twice and takes nothing back. A "del" would delete
  // the untouched file when the batch runs, so it becomes a comment.
  run.undo.WriteUndoEntry(file.old_path, file.new_path,
                          skipped && run.command == "del" ? "rem" : run.command);
  // The batch now ends with the file's line, so its record may wait.
  SettleSteps(run, true);
  CountFile(run, file, skipped);
}

// Log and batch stay open while the files are done: an entry costs one write.
class HeldLogAndBatch {
 public:
  explicit HeldLogAndBatch(RunContext& run) : run_(run) {
    run_.log.HoldFileOpen(true);
    run_.undo.HoldFileOpen(true);
  }
  ~HeldLogAndBatch() {
    run_.log.HoldFileOpen(false);
    run_.undo.HoldFileOpen(false);
  }
  HeldLogAndBatch(const HeldLogAndBatch&) = delete;
  HeldLogAndBatch& operator=(const HeldLogAndBatch&) = delete;

 private:
  RunContext& run_;
};

}  // namespace

void RunFiles(RunContext& run) {
  AppState& app = run.env.app;
  Interaction& ui = run.env.interaction;
  const HeldLogAndBatch held(run);
  for (std::size_t i = 0; i < run.rows.size(); ++i) {
    // The options are read anew for each file, and seen in one state while
    // it lasts.
    const OptionStore::Unit unit(run.env.options);
    const bool frozen = OptionIs(run, "FreezeApp", "1");
    if ((i + 1) % 5 == 0) ui.Yield();
    FileStep file;
    file.index = i;
    file.row = run.rows[i];
    RunFile(run, file, frozen);
    if (ui.PollCancel()) app.CancelRun = true;
    if (!frozen)
      ui.ShowProgress(static_cast<std::int64_t>(i + 1), static_cast<std::int64_t>(run.rows.size()));
    if (app.CancelRun) {
      run.result.cancelled = true;
      break;
    }
  }
}

}  // namespace tarnwick
