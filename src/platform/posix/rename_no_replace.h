#pragma once

namespace tarnwick::posix {

// Renames `from` to `to` unless `to` exists, in one step of the file system:
// renameat2 with RENAME_NOREPLACE, or where the file system refuses that flag,
// link() (which never replaces) followed by unlink() of the old name. Returns
// 0 or the error code; EEXIST when the target exists.
int RenameNoReplace(const char* from, const char* to);

}  // namespace tarnwick::posix
