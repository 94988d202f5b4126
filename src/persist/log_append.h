#pragma once

#include <filesystem>
#include <string_view>

#include "platform/file_status.h"

namespace tarnwick {

// Opens `file` for appending (creating it when missing), writes `bytes` with
// one system call, and closes it again. Nothing stays open between two calls,
// so a crash loses no line that was already written. Writing is repeated
// after a short write; an error gives the run-time error the user sees
// (76 for a missing folder, 70 for a file or folder that refuses writing,
// 61 for a full disk ...).
FileStatus AppendToFile(const std::filesystem::path& file, std::string_view bytes);

// Appends the whole content of `source` behind the end of `target`.
FileStatus AppendFileToFile(const std::filesystem::path& source,
                            const std::filesystem::path& target);

// Replaces `file` by a new file holding `bytes`: the text goes to a temporary
// name in the same folder first and is then renamed over the old file, so a
// failure leaves the old file whole. A read-only old file is replaced as well.
FileStatus ReplaceFileWith(const std::filesystem::path& file, std::string_view bytes);

}  // namespace tarnwick
