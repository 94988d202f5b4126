#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/journal.h"
#include "core/pipeline_env.h"
#include "core/run_log_bridge.h"
#include "core/start_rename.h"
#include "persist/log_file.h"
#include "persist/log_undo_env.h"
#include "persist/undo_batch.h"
#include "platform/file_in_use.h"
#include "shell/interaction_dialogs.h"

namespace tarnwick {

// The modes of a run, by `optCopyRename`: 0 rename, 1 copy, anything else test.
enum class RunMode { kRename = 0, kCopy = 1, kTest = 2 };

// Everything one run keeps while it lasts: the front end's services, the
// log, the undo batch and the journal, the result so far, and the facts the
// steps of the run hand to each other.
struct RunContext {
  explicit RunContext(const RenameRunEnv& run_env);
  RunContext(const RunContext&) = delete;
  RunContext& operator=(const RunContext&) = delete;

  std::string Text(std::string_view key) const;
  // The name pipeline's view of the run.
  PipelineEnv Pipeline();

  const RenameRunEnv& env;
  LogUndoEnv log_env;
  RunLog log;
  UndoBatch undo;
  RunLogBridge log_bridge;
  RenameRunResult result;
  RunMode mode = RunMode::kRename;
  std::chrono::steady_clock::time_point started;
  // Set by `UseEXIFDate`, or by a name that asks for it; stays set to the end.
  bool exif_date = false;
  // The rows of the run, in list order.
  std::vector<std::size_t> rows;
  std::size_t selected_count = 0;
  // The journal of the steps; absent in a test run and without undo.
  std::unique_ptr<RunJournal> journal;
  // The open-file test, one look at the open files for many files.
  OpenFileScan open_files;
  // The result list of a test run.
  std::vector<TestResultRow> test_rows;
  // The undo command of the last file, which a skipped file's entry takes
  // over ("" before the first).
  std::string command;
  // The note of the last file, which a cancelled file's entry takes over.
  std::string note;
  // A run of given names (rename from a text file): the new name of each
  // file by its path, in place of the renaming controls' pipeline.
  const std::unordered_map<std::string, std::string>* given_names = nullptr;
};

}  // namespace tarnwick
