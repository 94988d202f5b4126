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

// A name in `folder` that no entry has at the moment of the call: `prefix`
// followed by random letters and digits. Nothing is created, so a process
// that dies leaves nothing behind; the caller claims the name with an
// operation that never replaces (MoveFileNoReplace), which fails should
// another file take the name first.
FileResult<std::filesystem::path> FreeTempName(const std::filesystem::path& folder,
                                               const std::string& prefix);

}  // namespace tarnwick
