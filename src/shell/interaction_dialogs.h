#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tarnwick {

// --- Start renaming: "Rename", "Test" or "Cancel" before a run. -------------

// The values are the dialogue's own results: 0 for "Rename", 1 for "Test",
// 3 for "Cancel" (also Esc).
enum class StartRenamingChoice { kRename = 0, kTest = 1, kCancel = 3 };

struct StartRenamingRequest {
  std::int32_t selected_count = 0;  // rows the run would work on
  std::size_t collisions = 0;       // of their new names, those that collide
};

// --- The file exists already: another name, skip, or cancel the run. -------

// The values are the dialogue's own results.
enum class FileExistsChoice { kOk = 0, kSkip = 1, kCancel = 2 };

struct FileExistsRequest {
  std::string proposed_name;  // the name that is taken, offered for editing
  std::string folder;         // where the file would go
  std::string original_name;  // the row's present name
  // Starting value of "Skip all further existing files in this action"
  // (the option SkipExistingFiles).
  bool skip_all_others = false;
};

struct FileExistsAnswer {
  FileExistsChoice choice = FileExistsChoice::kSkip;
  // With kOk: the name entered. It differs from the proposal by more than
  // case (see IsAcceptedNewName): an implementation that lets someone type
  // keeps the dialogue open until it does.
  std::string file_name;
  // The tick "Skip all further existing files in this action" at closing;
  // meaningful with kOk and kSkip, which store it.
  bool skip_all_others = false;
};

// Whether `typed` may leave the file-exists dialogue through OK: it must
// differ from the proposed name by more than case.
bool IsAcceptedNewName(const FileExistsRequest& request, const std::string& typed);

// --- Manual renaming of one file during a run. -------------------------------

// The cursor choices of the dialogue, carried from file to file (the options
// of section ManualRename).
struct ManualRenameCursor {
  bool change_cursor_start = false;  // select a part of the name by position
  std::int32_t start_position = 0;   // first position of that selection
  std::int32_t end_position = 0;     // last position of that selection
  bool select_all = false;           // select the whole name
  bool to_extension = false;         // the selection ends at the extension
};

struct ManualRenameRequest {
  std::string file_name;      // the name computed so far, to edit
  std::string original_name;  // the row's present name
  ManualRenameCursor cursor;
};

struct ManualRenameAnswer {
  bool cancelled = false;  // the dialogue's Cancel
  // The edited name; with Cancel the original name, as the dialogue puts it
  // back before closing.
  std::string file_name;
  // The cursor choices at closing; OK stores them.
  ManualRenameCursor cursor;
};

// --- The result list of a test run. ----------------------------------------

struct TestResultRow {
  std::string present_name;
  std::string new_name;
  std::string folder;
};

// --- Input box. --------------------------------------------------------------

struct InputRequest {
  std::string title;
  std::string prompt;
  std::string preset;  // the text the field starts with
};

// --- File and folder choosers. ----------------------------------------------

struct FileFilter {
  std::string description;  // "Tarnwick settings file (*.twr)"
  std::string pattern;      // "*.twr"
};

struct FileChooserRequest {
  std::string title;
  std::vector<FileFilter> filters;
  std::string default_extension;  // without the dot: "twr"
  std::string start_folder;       // empty: wherever the chooser likes
  std::string preset_name;        // file name the field starts with
  bool for_saving = false;        // a save dialogue: the file need not exist
};

struct FolderChooserRequest {
  std::string title;
  std::string start_folder;
};

// --- Save settings: "Save as:" with a path and "Save current selected path".

struct SaveSettingsRequest {
  std::string preset_path;  // the file loaded last, or empty
  bool save_path = false;   // starting value of the tick
  // How the dialogue's own file chooser is set up.
  FileChooserRequest chooser;
};

// --- The summary after a run of the window. -------------------------------

struct RunSummary {
  int mode = 0;  // 0 rename, 1 copy
  std::int64_t done = 0;
  std::int64_t skipped = 0;
  std::int64_t failed = 0;
  bool cancelled = false;
};

enum class RunSummaryChoice { kClose, kShowLog, kUndo };

struct SaveSettingsAnswer {
  std::string path;        // never empty: Cancel gives no answer at all
  bool save_path = false;  // "Save current selected path"
};

}  // namespace tarnwick
