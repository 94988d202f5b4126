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

}  // namespace tarnwick
