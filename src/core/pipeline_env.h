#pragma once

#include <cstddef>

#include "placeholders/media_provider.h"

namespace tarnwick {

struct AppState;
struct RenameSettings;
class Clock;
class ExpansionLog;
class FileList;
class Interaction;
class MessageTable;
class OpenFileScan;
class OptionStore;

// What the name pipeline works with, all owned by the front end and lent for
// the call. Nothing here is copied: the controls and the options are read at
// each use, so a change shows at the next file.
struct PipelineEnv {
  AppState& app;                   // counter, cancel flag, placeholder state
  const RenameSettings& settings;  // the renaming controls
  const FileList& list;            // the rows `ProcessFile` is given by index
  OptionStore& options;            // read at each use; the dialogues store here
  Interaction& interaction;        // every question and box
  const MessageTable& messages;    // the texts in the user's language
  const Clock& clock;              // the clock the date tokens read
  const MediaInfoProvider& media = MediaInfoProvider::None();  // tags, EXIF, lengths
  ExpansionLog* log = nullptr;  // `WriteLogFileTool`; absent: nothing is logged
  // The list's selected rows, counted once by the caller (the random and
  // dynamic number tokens read it); counting per file would cost a walk of the
  // whole list for every file.
  std::size_t selected_count = 0;
  // The open-file test of a run over many files; absent: each file is
  // probed on its own.
  OpenFileScan* open_files = nullptr;
  // A run that renames or copies: a new name is not checked against the
  // folder beforehand, since the move or copy that never replaces says
  // itself that the name is taken; the run then asks what DecideCollision
  // would have asked (ProcessFileResult::name_unchecked).
  bool defer_taken_check = false;
};

}  // namespace tarnwick
