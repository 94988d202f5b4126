#pragma once

#include <filesystem>
#include <string>

#include "platform/file_status.h"

namespace tarnwick {

// The folder for temporary files: $TMPDIR when it names a folder, else /tmp.
std::filesystem::path TempFolder();

// Creates a new empty file with a name no other file has, in `folder`:
// `prefix` followed by six random letters and digits. Returns its full path.
FileResult<std::filesystem::path> CreateUniqueTempFile(const std::filesystem::path& folder,
                                                       const std::string& prefix);

}  // namespace tarnwick
