#pragma once

#include <filesystem>
#include <string>

namespace tarnwick::posix {

// A name in `folder` that no entry has at the time of the call: `prefix`
// followed by random letters and digits. Nothing is created; callers claim
// the name with an operation that never replaces. Empty when no free name
// was found after many tries.
std::filesystem::path FreeTemporaryName(const std::filesystem::path& folder,
                                        const std::string& prefix);

}  // namespace tarnwick::posix
