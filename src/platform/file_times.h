#pragma once

#include <chrono>
#include <filesystem>

#include "platform/file_status.h"

namespace tarnwick {

// Time stamps in UTC with nanosecond precision (system_clock counts
// nanoseconds with GCC's standard library).
using FileTime = std::chrono::time_point<std::chrono::system_clock, std::chrono::nanoseconds>;

// The three stamps of a file. Where the file system keeps no birth time,
// `created` is the last-write time and `created_is_birth_time` is false.
struct FileTimes {
  FileTime created;
  FileTime last_write;
  FileTime last_access;
  bool created_is_birth_time = false;
};

// Reads the three stamps of a file or folder (links followed).
FileResult<FileTimes> GetFileTimes(const std::filesystem::path& path);

// Sets the last-write and last-access stamps. The creation stamp cannot be
// set on Linux; a caller that sets "all three" sets these two.
FileStatus SetFileTimes(const std::filesystem::path& path, FileTime last_write,
                        FileTime last_access);

}  // namespace tarnwick
