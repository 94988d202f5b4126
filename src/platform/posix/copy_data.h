#pragma once

namespace tarnwick::posix {

// Copies everything from the current position of `source` to `target`: in the
// kernel (copy_file_range, then sendfile) where the file systems allow it,
// else through a buffer. Returns 0 or the error code.
int CopyData(int source, int target);

}  // namespace tarnwick::posix
