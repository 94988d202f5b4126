#pragma once

#include <filesystem>

namespace tarnwick {

// True when some process, this one included, holds the file open. The probe
// asks for a write lease on a read-only descriptor, which the kernel grants
// only when no other descriptor of the file is open, and gives it back at
// once. Where a lease is not allowed (the file belongs to another user,
// leases are switched off, the file system has none) it looks through the
// open descriptors of every process it may read (/proc/*/fd); descriptors of
// processes it may not read are not seen there. A file that cannot be found,
// and anything that is not a regular file, is not in use.
bool IsFileInUse(const std::filesystem::path& path);

}  // namespace tarnwick
