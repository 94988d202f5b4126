#include "playlist/playlist_commands.h"

#include <string>

#include "playlist/lost_files.h"
#include "playlist/playlist_rows.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

std::string Text(PlaylistUi ui, std::string_view key) { return std::string(ui.messages.Text(key)); }

Answer Ask(PlaylistUi ui, std::string_view title_key, std::string text) {
  return ui.interaction.ShowMessage(
      {Text(ui, title_key), std::move(text), Buttons::kYesNo, MessageIcon::kQuestion, Topic::kOther});
}

void Tell(PlaylistUi ui, std::string_view title_key, std::string text,
          MessageIcon icon = MessageIcon::kInformation) {
  ui.interaction.ShowMessage({Text(ui, title_key), std::move(text), Buttons::kOk, icon});
}

bool CheckRows(std::vector<PlaylistRow>& rows, std::size_t first, std::size_t last,
               std::string_view title_key, PlaylistUi ui) {
  const std::size_t missing = MarkMissingRows(rows, first, last);
  if (missing == 0) {
    Tell(ui, title_key, Text(ui, "playlist.no_missing_files"));
    return false;
  }
  const std::string count = std::to_string(missing);
  if (Ask(ui, title_key,
          count + " " + Text(ui, "playlist.files_red_marked") + "\r\n" +
              Text(ui, "playlist.remove_missing_question")) != Answer::kYes) {
    return false;
  }
  const std::size_t removed = RemoveTaggedRows(rows);
  Tell(ui, title_key, std::to_string(removed) + " " + Text(ui, "playlist.missing_removed"));
  return true;
}

void TellCorrected(PlaylistUi ui, std::string_view title_key, std::size_t failed) {
  if (failed == 0) {
    Tell(ui, title_key, Text(ui, "playlist.all_corrected"));
  } else {
    Tell(ui, title_key, std::to_string(failed) + " " + Text(ui, "playlist.not_corrected"),
         MessageIcon::kExclamation);
  }
}

std::string LostStatus(PlaylistUi ui, const LostFilesProgress& p) {
  return Text(ui, "playlist.lost.searching_in_path") + " " + p.folder + "  " +
         Text(ui, "playlist.lost.searched_folders") + " " + std::to_string(p.folders) + "  " +
         Text(ui, "playlist.lost.searched_files") + " " + std::to_string(p.files) + "  " +
         Text(ui, "playlist.lost.file") + " " + p.file + "  " + Text(ui, "playlist.lost.found") +
         " " + std::to_string(p.found);
}

}  // namespace

bool CheckList(std::vector<PlaylistRow>& rows, PlaylistUi ui) {
  if (rows.empty()) return false;
  return CheckRows(rows, 0, rows.size() - 1, "playlist.check_title", ui);
}

bool CheckItem(std::vector<PlaylistRow>& rows, std::size_t index, PlaylistUi ui) {
  if (index >= rows.size()) return false;
  return CheckRows(rows, index, index, "playlist.check_item_title", ui);
}

bool CorrectList(std::vector<PlaylistRow>& rows, PlaylistUi ui) {
  if (rows.empty()) return false;
  if (Ask(ui, "playlist.correct_list_title", Text(ui, "playlist.correct_list_question")) !=
      Answer::kYes) {
    return false;
  }
  std::size_t failed = 0;
  const auto total = static_cast<std::int64_t>(rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    ui.interaction.ShowProgress(static_cast<std::int64_t>(i) + 1, total);
    if (!CorrectRow(rows[i])) ++failed;
    ui.interaction.Yield();
    if (ui.interaction.PollCancel()) {
      failed += rows.size() - i - 1;
      break;
    }
  }
  ui.interaction.HideProgress();
  TellCorrected(ui, "playlist.correct_list_title", failed);
  return true;
}

bool CorrectItem(std::vector<PlaylistRow>& rows, std::size_t index, PlaylistUi ui) {
  if (index >= rows.size()) return false;
  const bool corrected = CorrectRow(rows[index]);
  TellCorrected(ui, "playlist.correct_item_title", corrected ? 0 : 1);
  return corrected;
}

bool ShuffleList(std::vector<PlaylistRow>& rows, PlaylistUi ui, Random& random) {
  if (rows.empty()) return false;
  if (Ask(ui, "playlist.shuffle_title", Text(ui, "playlist.shuffle_question")) != Answer::kYes) {
    return false;
  }
  ui.interaction.ShowProgress(0, 1);
  ShuffleRows(rows, random);
  ui.interaction.ShowProgress(1, 1);
  ui.interaction.HideProgress();
  return rows.size() > 1;
}

bool SearchLostFiles(std::vector<PlaylistRow>& rows, PlaylistUi ui) {
  if (rows.empty()) return false;
  const std::optional<std::string> folder =
      ui.interaction.ChooseFolder({Text(ui, "playlist.lost.select_search_folder"), ""});
  if (!folder || folder->empty()) return false;
  const bool subfolders =
      Ask(ui, "playlist.menu.lost_files", Text(ui, "playlist.lost.search_subfolders")) ==
      Answer::kYes;
  const LostFilesProgress end =
      FindLostFiles(rows, *folder, subfolders, [&](const LostFilesProgress& progress) {
        ui.interaction.ShowStatus(StatusArea::kStatusLine, LostStatus(ui, progress));
        ui.interaction.Yield();
        return !ui.interaction.PollCancel();
      });
  ui.interaction.ShowStatus(StatusArea::kStatusLine, Text(ui, "playlist.lost.ready") + " " +
                                                         std::to_string(end.files));
  return end.found > 0;
}

}  // namespace tarnwick
