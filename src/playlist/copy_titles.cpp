#include "playlist/copy_titles.h"

#include "base/path_text.h"
#include "persist/option_store.h"
#include "platform/files.h"
#include "playlist/playlist_commands.h"
#include "playlist/playlist_rows.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr int kFileAlreadyExists = 58;

std::string Text(PlaylistUi ui, std::string_view key) { return std::string(ui.messages.Text(key)); }

std::string EndText(PlaylistUi ui, const CopyTitlesResult& result, CopyTitlesMode mode) {
  std::string text;
  if (result.missing == 0) {
    text = Text(ui, "playlist.action_successful");
  } else {
    text = std::to_string(result.missing) + " " +
           Text(ui, mode == CopyTitlesMode::kCopy ? "playlist.files_not_copied"
                                                  : "playlist.files_not_moved");
  }
  if (!result.existing.empty()) {
    text += "\n\n" + std::to_string(result.existing.size()) + " " +
            Text(ui, "playlist.targets_exist");
  }
  if (!result.failed.empty()) {
    text += "\n\n" + std::to_string(result.failed.size()) + " " + Text(ui, "playlist.copy_failed");
    for (std::size_t i = 0; i < result.failed.size() && i < 10; ++i) {
      text += "\n" + result.failed[i];
    }
  }
  if (result.cancelled) text += "\n\n" + Text(ui, "playlist.copy_cancelled");
  return text;
}

}  // namespace

CopyTitlesResult CopyPlaylistTitles(const std::vector<PlaylistRow>& rows,
                                    const std::string& folder, CopyTitlesMode mode,
                                    const CopyTitlesObserver& observer) {
  CopyTitlesResult result;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const PlaylistRow& row = rows[i];
    if (!row.checked) continue;
    const bool missing = !RowFileExists(row);
    if (observer && !observer(i + 1, rows.size(), row.path, missing)) {
      result.cancelled = true;
      break;
    }
    if (missing) {
      ++result.missing;
      continue;
    }
    const std::string target = JoinPath(folder, LastPathElement(row.path));
    const FileStatus status = mode == CopyTitlesMode::kCopy
                                  ? CopyFile(row.path, target, false)
                                  : MoveFileNoReplace(row.path, target);
    if (status.ok()) {
      ++result.done;
    } else if (status.number == kFileAlreadyExists) {
      result.existing.push_back(target);
    } else {
      result.failed.push_back(row.path + ": " + status.description);
    }
  }
  return result;
}

void CopyTitles(const std::vector<PlaylistRow>& rows, CopyTitlesMode mode, OptionStore& options,
                PlaylistUi ui) {
  if (rows.empty()) return;
  const std::string start = options.GetOption("StartDir", "Playlist", "");
  const std::optional<std::string> folder =
      ui.interaction.ChooseFolder({Text(ui, "playlist.please_select_folder"), start});
  if (!folder || folder->empty()) return;
  options.SaveOption("StartDir", "Playlist", *folder);
  const std::string doing =
      Text(ui, mode == CopyTitlesMode::kCopy ? "playlist.copying" : "playlist.moving");
  const CopyTitlesResult result = CopyPlaylistTitles(
      rows, *folder, mode,
      [&](std::size_t number, std::size_t total, const std::string& path, bool missing) {
        ui.interaction.ShowProgress(static_cast<std::int64_t>(number),
                                    static_cast<std::int64_t>(total));
        ui.interaction.ShowStatus(
            StatusArea::kStatusLine,
            missing ? Text(ui, "playlist.file_does_not_exist") + " " + path
                    : doing + " [" + std::to_string(number) + "/" + std::to_string(total) + "] " +
                          LastPathElement(path) + " ...");
        ui.interaction.Yield();
        return !ui.interaction.PollCancel();
      });
  ui.interaction.HideProgress();
  const bool clean = result.missing == 0 && result.existing.empty() && result.failed.empty() &&
                     !result.cancelled;
  // Kept: a copy without missing files is titled "Copy playlist titles" in
  // both modes; a count of missing files names the mode.
  const bool copy_title = result.missing == 0 || mode == CopyTitlesMode::kCopy;
  ui.interaction.ShowMessage(
      {Text(ui, copy_title ? "playlist.copy_titles_title" : "playlist.move_titles_title"),
       EndText(ui, result, mode), Buttons::kOk,
       clean ? MessageIcon::kInformation : MessageIcon::kExclamation, Topic::kNotice});
}

}  // namespace tarnwick
