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

// "Start with Windows" on Linux: an XDG autostart entry
// ($XDG_CONFIG_HOME/autostart/tarnwick.desktop, else ~/.config/autostart)
// that starts the window when the user logs in; removed when off. Returns
// false when it cannot be written or removed.
bool SetAutostart(bool on);
std::string AutostartPath();

// The MIME type of settings files.
inline constexpr char kSettingsMimeType[] = "application/x-tarnwick-settings";

// Registers ".twr" for the user, without root: the MIME type
// ($XDG_DATA_HOME/mime/packages/tarnwick-settings.xml, named `type_name`)
// and the program's desktop file that opens it
// ($XDG_DATA_HOME/applications/tarnwick.desktop). With `refresh_caches` the
// system's MIME and desktop databases are updated in the background when
// their tools are there. Returns false when a file cannot be written.
bool RegisterSettingsFileType(const std::string& type_name, bool refresh_caches = true);

// The paths of those two files.
std::string SettingsMimeTypePath();
std::string ProgramDesktopFilePath();

// Opens a file or folder with the desktop's handler for it; false when no
// handler answered.
bool OpenWithDesktop(const std::string& path);

}  // namespace tarnwick::gui
