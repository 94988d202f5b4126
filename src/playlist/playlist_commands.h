#pragma once

#include <cstddef>
#include <vector>

#include "playlist/playlist_row.h"

namespace tarnwick {

class Interaction;
class MessageTable;
class Random;

// The editor's commands with their questions and messages, for the desktop
// window (and any front end that asks a person). Each returns true when the
// rows changed.
struct PlaylistUi {
  Interaction& interaction;
  const MessageTable& messages;
};

// `cmdCheckList`: marks the missing rows, says none are missing or asks
// whether to remove them, and removes the marked rows on Yes.
bool CheckList(std::vector<PlaylistRow>& rows, PlaylistUi ui);
// `mnuCheckItem`: the same for the row at `index`.
bool CheckItem(std::vector<PlaylistRow>& rows, std::size_t index, PlaylistUi ui);

// `mnuCorrectList`: asks, then corrects every row from its tags (CorrectRow)
// with the progress bar running; Esc stops. Tells how many failed.
bool CorrectList(std::vector<PlaylistRow>& rows, PlaylistUi ui);
// `mnuCorrectItem`: corrects the row at `index` without asking.
bool CorrectItem(std::vector<PlaylistRow>& rows, std::size_t index, PlaylistUi ui);

// `mnuRandomizeList`: asks (in German in both languages), then shuffles.
bool ShuffleList(std::vector<PlaylistRow>& rows, PlaylistUi ui, Random& random);

// `mnuGetOprhanFiles`: asks for the search folder and about subfolders, then
// looks for the missing rows' files (FindLostFiles) with the status texts.
bool SearchLostFiles(std::vector<PlaylistRow>& rows, PlaylistUi ui);

}  // namespace tarnwick
