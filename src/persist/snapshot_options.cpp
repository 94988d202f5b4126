#include "persist/snapshot_options.h"

#include <string_view>

#include "base/path_text.h"
#include "persist/log_options.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"

namespace tarnwick {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

// A printed option: its label, its key and its default. An empty default is
// filled in from the machine or the state (see OptionDefault).
struct SnapshotRow {
  std::string_view label;
  std::string_view key;
  std::string_view default_value;
};

constexpr SnapshotRow kRows[] = {
    {"Options/View: ", "View", "1"},
    {"Options/View1: ", "View1", "1"},
    {"Options/View2: ", "View2", "1"},
    {"Icons: ", "Icons", "1"},
    {"FullPic: ", "FullPic", "0"},
    {"OnlySelected: ", "OnlySelected", "0"},
    {"Loop: ", "Loop", "1"},
    {"Intervall: ", "Intervall", "5"},
    {"OnlySelected: ", "StretchSlide", "0"},  // Kept: the label of the line before.
    {"MouseNext: ", "MouseNext", "0"},
    {"BestSize: ", "BestSize", "0"},
    {"PicInfo: ", "PicInfo", "0"},
    {"ShowSystemFiles: ", "ShowSystemFiles", "0"},
    {"ShowHiddenFiles: ", "ShowHiddenFiles", "0"},
    {"Randomize: ", "Randomize", "0"},
    {"MP3WAVLength: ", "MP3WAVLength", "0"},
    {"ShowTooltips: ", "ShowTooltips", "1"},
    {"ContextMenu: ", "ContextMenu", "0"},
    {"UseEXIFDate: ", "UseEXIFDate", "0"},
    {"KeepOldFiledate: ", "KeepOldFiledate", "0"},
    {"DateFormat: ", "DateFormat", ""},
    {"CountDirectories: ", "CountDirectories", "0"},
    {"DateSeperator: ", "DateSeperator", "-"},
    {"TimeSeperator: ", "TimeSeperator", "-"},
    {"ResetCounterByDirectory: ", "ResetCounterByDirectory", "1"},
    {"ResetCounterByDate: ", "ResetCounterByDate", "0"},
    {"WriteLogFile: ", "WriteLogFile", "1"},
    {"WriteUndoList: ", "WriteUndoList", "1"},
    {"TimeMeasuring: ", "TimeMeasuring", "0"},
    {"FreezeApp: ", "FreezeApp", "0"},
    {"ReadySound: ", "ReadySound", "1"},
    {"AdvancedToolTip: ", "AdvancedToolTip", "1"},
    {"IllegalCharReplacerActive: ", "IllegalCharReplacerActive", "0"},
    {"IllegalCharReplacer: ", "IllegalCharReplacer", ""},
    {"SaveChanges: ", "SaveChanges", "1"},
    {"LogFilePathMulti: ", "LogFilePathMulti", "0"},
    {"CorrectMP3Tags: ", "CorrectMP3Tags", "1"},
    {"ProcessNoMP3: ", "ProcessNoMP3", "0"},
    {"UseWindowsStyle: ", "UseWindowsStyle", "1"},
    {"FormatMP3TrackTag: ", "FormatMP3TrackTag", "1"},
    {"SampleRefreshRate: ", "SampleRefreshRate", ""},
    {"FileDateType: ", "FileDateType", ""},
    {"IgnoreRegExCasing: ", "IgnoreRegExCasing", "0"},
    {"LogOnlyRename: ", "LogOnlyRename", "1"},
    {"CorrectPlaylistFiles: ", "CorrectPlaylistFiles", "1"},
    {"LogSystemInfo: ", "LogSystemInfo", "0"},
    {"JumpToLastSelectedFile: ", "JumpToLastSelectedFile", "0"},
    {"FSOverwrite: ", "FSOverwrite", "8"},
    {"LoadOnlyFileName: ", "LoadOnlyFileName", "0"},
    {"ShowOnlyPictureFilesInSlideshow: ", "ShowOnlyPictureFilesInSlideshow", "0"},
    {"OverwriteUndoBatch: ", "OverwriteUndoBatch", "0"},
    {"IndividualUndoBatchName: ", "IndividualUndoBatchName", "0"},
    {"ReadySoundPath: ", "ReadySoundPath", ""},
    {"UndoFilePath: ", "UndoFilePath", ""},
    {"LogFilePath: ", "LogFilePath", ""},
    {"SecureWindowsFolder: ", "SecureWindowsFolder", "0"},
    {"SettingsFilePath: ", "SettingsFilePath", ""},
};

constexpr int kSortOrderActions = 10;

std::string OptionDefault(const SnapshotRow& row, const LogUndoState& state,
                          const OptionSnapshotDefaults& defaults) {
  if (!row.default_value.empty()) return std::string(row.default_value);
  if (row.key == "DateFormat") return defaults.date_format;
  if (row.key == "SampleRefreshRate") return defaults.sample_refresh_rate;
  if (row.key == "FileDateType") return defaults.file_date_type;
  if (row.key == "ReadySoundPath") return JoinPath(state.ProgramFolder, "Media/notify.wav");
  if (row.key == "UndoFilePath") return state.DefaultUndoFolder;
  if (row.key == "LogFilePath") return DefaultLogFilePath(state);
  return "";
}

}  // namespace

std::string OptionSettingsSnapshotLines(const OptionStore& options, const LogUndoState& state,
                                        const OptionSnapshotDefaults& defaults) {
  std::string out;
  for (const SnapshotRow& row : kRows) {
    out += row.label;
    out += ReadOption(options, row.key, OptionDefault(row, state, defaults));
    out += kLineEnd;
  }
  out += kLineEnd;
  for (int action = 1; action <= kSortOrderActions; ++action) {
    const std::string number = std::to_string(action);
    out += "Sort order action " + number + ": ";
    out += ReadOption(options, "SortOrderInternal" + number, number);
    out += kLineEnd;
  }
  out += kLineEnd;
  return out;
}

}  // namespace tarnwick
