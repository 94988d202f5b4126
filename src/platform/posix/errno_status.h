#pragma once

#include <filesystem>

#include "platform/file_status.h"

namespace tarnwick::posix {

// Turns a system error code into the run-time error the user sees. `path` is
// the name the failed call was about: a missing entry is 53 "File not found"
// when its folder exists, and 76 "Path not found" when the folder is missing.
FileStatus StatusFromErrno(int error, const std::filesystem::path& path);

// The error number alone, for codes that do not depend on a path.
int VbNumberFromErrno(int error);

}  // namespace tarnwick::posix
