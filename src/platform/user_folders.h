#pragma once

#include <filesystem>

namespace tarnwick {

// The per-user folders of the program, following the XDG base directories:
//   config: $XDG_CONFIG_HOME/Oakhollow     (default ~/.config/Oakhollow)
//   data:   $XDG_DATA_HOME/Oakhollow/Tarnwick (default ~/.local/share/...)
// None of them is created here.
std::filesystem::path HomeFolder();
std::filesystem::path ConfigFolder();
std::filesystem::path DataFolder();

// The folder of the files that come with the program ("Media/notify.wav"):
// beside the executable where they are (a build tree), otherwise
// <prefix>/share/tarnwick of an installed executable in <prefix>/bin. Empty
// when the executable cannot be found.
std::filesystem::path ProgramFilesFolder();

}  // namespace tarnwick
