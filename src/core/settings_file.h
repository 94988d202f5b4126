#pragma once

#include <string>
#include <string_view>

#include "core/rename_settings.h"

namespace tarnwick {

struct LogUndoEnv;
class MessageTable;
class OptionStore;

// Rename settings files (".twr"): the whole state of the renaming controls
// under a name, as an XMLConfiguration document with scrambling on. Section
// `Defaults` holds one item per control (settings_file_items.h); the action
// order travels with it through the options.
//
// Every entry point here reports its errors itself (a message and a log line)
// and never throws.

inline constexpr std::string_view kSettingsFileExtension = "twr";

// --- The blank step before saving. -----------------------------------------

// A text whose last character is a blank loses the blanks at its end and gets
// one "{{space}}" for each blank of the whole text. Kept: the blanks inside
// count too, so "a b " becomes "a b{{space}}{{space}}". Other texts stay.
std::string ReplaceEndBlanks(std::string_view text);

// The step on the eight text fields that settings files protect
// (`txtCompleteName`, `txtExtension`, `txtReplaceChars`, `txtPrefix`,
// `txtPostfix`, `txtSearchString`, `txtReplaceString`, `txtUsePlaceholder`).
// Returns whether any field changed.
bool ReplaceEndBlanksInFields(RenameSettings& settings);

// --- Saving. ------------------------------------------------------------------

struct SaveSettingsResult {
  enum class Outcome { kSaved, kCancelled, kFailed };
  Outcome outcome = Outcome::kCancelled;
  std::string path;   // the file written, absolute
  std::string error;  // with kFailed: the description shown
};

// `cmdSaveSettings` after the dialogue: the blank step (with its notice when a
// field changed), the file written at `path` (absolute form) with
// `CurrentDir` = the current folder when `save_path` (asking whether to go on
// without it when that folder is gone), `SavePathIni` set to the file's
// folder, and the log line "Save settings". The file is written in one step
// at the end, so a failure leaves no half-written file.
SaveSettingsResult SaveSettingsTo(const LogUndoEnv& env, RenameSettings& settings,
                                  std::string_view path, bool save_path);

// `cmdSaveSettings`: the blank step, then "Save as:" (`AskSaveSettings`,
// starting in `SavePathIni`, or the default settings folder when that is
// unset and exists), then SaveSettingsTo.
SaveSettingsResult SaveSettings(const LogUndoEnv& env, RenameSettings& settings,
                                std::string_view default_settings_folder);

// --- Loading. -----------------------------------------------------------------

struct LoadSettingsResult {
  enum class Outcome { kLoaded, kCancelled, kFailed, kNotFound, kNotAsked };
  Outcome outcome = Outcome::kNotAsked;
  std::string path;  // the file, absolute
  // The caption of the settings frame after a load: "Settings   [NAME]".
  std::string frame_caption;
  // After a default settings file: "Current loaded default settings file: NAME".
  std::string default_file_label;
  std::string error;  // with kFailed: the description shown
  // The file saved a folder that is gone: the list moved to the root.
  bool folder_gone = false;
};

// Applies a settings file without asking: every item of `Defaults` onto
// `settings` (ticks numeric, texts as they stand, `txtStep` as a number
// printed again, radio groups by their first "1"), the action order into the
// options, the filter and the folder into the state (env.app.CurrentPath,
// CurrentFilter), with the message when the saved folder is gone. Raises
// VbError when the file cannot be read or parsed; what was applied until then
// stays. Callers that report errors use LoadSettingsFile.
// Returns false when the file saved a folder that is gone (the list then
// shows the root).
bool ApplySettingsFile(const LogUndoEnv& env, std::string_view path, RenameSettings& settings);

// Applies the file as the menu command does: ApplySettingsFile, the frame
// caption, `SavePathIni`, the log line "Load settings"; on an error the log
// line "Load settings (ERROR)" and the message "An error occured:". Clears
// SettingsDirty and remembers the name for the title on success.
LoadSettingsResult LoadSettingsFile(const LogUndoEnv& env, std::string_view path,
                                    RenameSettings& settings);

// `LoadIniSettings`, the menu command: the discard question when
// `SaveChanges` is "0" and the controls changed, the file chooser starting in
// `SavePathIni`, then LoadSettingsFile. Cancel ends it quietly.
LoadSettingsResult LoadIniSettings(const LogUndoEnv& env, RenameSettings& settings);

// `LoadDefaultSettings`: a missing file gives "Default settings file 'PATH'
// not found!" and switches the default file off (`NoSettingsFile` "1",
// `SettingsFile` "0", `SettingsFilePath` empty) so the message comes once;
// otherwise LoadSettingsFile and the label of the default file.
LoadSettingsResult LoadDefaultSettings(const LogUndoEnv& env, std::string_view path,
                                       RenameSettings& settings);

// "Settings   [NAME]"; a name of 31 characters or more shows its first 30
// and " ...".
std::string SettingsFrameCaption(const MessageTable& messages, std::string_view file_name);

}  // namespace tarnwick
