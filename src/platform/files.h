#pragma once

#include <cstdint>
#include <filesystem>

#include "platform/file_status.h"

namespace tarnwick {

// Moves or renames a file or folder and never replaces an existing target,
// not even one that appears while the move is under way: the check and the
// move are one step of the file system (a no-replace rename, or a hard link
// followed by removing the old name where the file system refuses the
// no-replace flag). Where neither is possible the move fails; it is never
// replaced by a check followed by a plain rename.
//   - An existing target gives 58 "File already exists"; a missing source
//     53, a missing target folder 76.
//   - A file moved to another file system is copied (temporary name, fsync,
//     no-replace rename) and the source removed afterwards; if the source
//     cannot be removed, the copy is removed again and the error reported.
//     A folder cannot cross file systems: 74.
//   - A name that the file system takes for the source itself (a change of
//     case only, "a.txt" -> "A.txt", on a mount that ignores case) is moved
//     through a free temporary name in the same folder, so the change of case
//     happens. Two hard links of one file are not such a pair: the move stops
//     with 58 and both names stay as they were.
FileStatus MoveFileNoReplace(const std::filesystem::path& from, const std::filesystem::path& to);

// Moves a file and replaces a file of the target's name, as a move asked to
// overwrite does. The replacement is one step of the file system (a plain
// rename), so the old target is never gone before the new one is in place;
// across file systems the copy is complete and on disk before it replaces
// the target, and the source goes last. A folder of the target's name gives
// 75, a read-only target 70 (as a copy would), a missing source 53.
FileStatus MoveFileReplacing(const std::filesystem::path& from, const std::filesystem::path& to);

// Copies a regular file. The data goes to a temporary name in the target
// folder, is flushed to disk, gets the source's permission bits and its
// last-write and last-access times, and is then renamed to the target:
// without `overwrite` by the no-replace move above (58 when the target
// exists), with it by a replacing rename. A read-only target is not
// overwritten (70). On any failure the temporary file is removed and the
// target is left as it was.
//
// `flush` kWhenReplacing leaves out the flush where the copy takes a new
// name: the source stays, so a power cut can cost at most the copy, as with
// cp; a copy that replaces a file, and every copy a move makes, is flushed.
enum class CopyFlush { kAlways, kWhenReplacing };
FileStatus CopyFile(const std::filesystem::path& from, const std::filesystem::path& to,
                    bool overwrite, CopyFlush flush = CopyFlush::kAlways);

// Removes a file (not a folder). A read-only file is removed as well: on Linux
// the folder's permissions decide.
FileStatus DeleteFile(const std::filesystem::path& path);

// True for an existing regular file (links followed); a folder is not a file.
bool FileExists(const std::filesystem::path& path);
// True for an existing folder (links followed).
bool FolderExists(const std::filesystem::path& path);

// The size in bytes of a file, in full 64 bits.
FileResult<std::uint64_t> FileSize64(const std::filesystem::path& path);

// Creates one folder; its parent must exist. An existing folder gives 58.
FileStatus CreateFolder(const std::filesystem::path& path);
// Creates a folder with all missing parents; an existing folder is success.
FileStatus CreateFolders(const std::filesystem::path& path);

}  // namespace tarnwick
