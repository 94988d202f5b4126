#pragma once

#include <string>

namespace tarnwick::gui {

// The folder action "Run Tarnwick" for file managers: a desktop entry for
// folders in the user's applications folder ($XDG_DATA_HOME/applications,
// else ~/.local/share/applications). Returns false when it cannot be written
// or removed.
bool SetFolderAction(bool installed, const std::string& caption);

// The path of that desktop entry.
std::string FolderActionPath();

}  // namespace tarnwick::gui
