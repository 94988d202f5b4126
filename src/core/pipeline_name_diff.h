#pragma once

#include <string_view>

namespace tarnwick {

// `CheckNameDiff`: whether `new_name` is free for a file now called
// `old_name` in `folder`. Names equal in upper case are free: a change of
// case is no collision. Any other difference makes the name free when no
// file of that name exists in the folder.
bool CheckNameDiff(std::string_view old_name, std::string_view new_name, std::string_view folder);

// Raises VbError 52 "Bad file name or number" for a name that cannot stand
// for a file in a folder: "." and "..", a name holding "/" or a NUL
// character (which would lead somewhere else), and a name longer than the
// file system allows (255 bytes). The empty name passes: it means a skip.
void CheckNameForFileSystem(std::string_view name);

}  // namespace tarnwick
