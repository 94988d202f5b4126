#pragma once

#include <filesystem>
#include <string>

#include "platform/file_status.h"

namespace tarnwick {

// The bits of the attribute word of a file.
namespace file_attribute {
inline constexpr int kReadOnly = 0x1;
inline constexpr int kHidden = 0x2;
inline constexpr int kSystem = 0x4;
inline constexpr int kDirectory = 0x10;
inline constexpr int kArchive = 0x20;
inline constexpr int kNormal = 0x80;
inline constexpr int kTemporary = 0x100;
inline constexpr int kCompressed = 0x800;
}  // namespace file_attribute

// Reads the attribute word of a file or folder (links followed):
//   R: the owner's write permission is missing
//   H: the name starts with "." (not "." or "..")
//   D: a folder
//   A: a regular file
//   S: never
// Where the file carries DOS attributes in the `user.DOSATTRIB` extended
// attribute (as a Samba share writes them, every version of that record),
// its bits R, H, S, A, N, T, C count instead, joined with the R and H above;
// D always comes from the kind of entry. On a FAT volume (vfat) the
// attribute byte the volume keeps gives R, H, S and A instead. A word that
// would be 0 reads as N (128), as it does on Windows.
FileResult<int> GetFileAttributes(const std::filesystem::path& path);

// The attribute words of the entries of one folder, as GetFileAttributes
// reads them, at the cost of the stat the caller has made already: the
// folder's file system is asked once whether it keeps a FAT attribute byte
// or extended attributes, and each entry is then asked only for what its
// file system can hold (nothing more on a file system without extended
// attributes). A subfolder that is the mount point of another file system
// is read by the rules of the folder's file system.
class FolderAttributeReader {
 public:
  // `folder_fd`: an open descriptor of the folder, used only here.
  FolderAttributeReader(const std::filesystem::path& folder, int folder_fd);

  // The word of the entry `name` whose stat (links followed) gave `mode`.
  // Safe to call from several threads at once.
  int Read(const std::string& name, unsigned mode) const;

 private:
  std::filesystem::path folder_;
  std::string folder_text_;  // the folder and "/"
  bool fat_ = false;
  bool extended_attributes_ = true;
};

// Sets the attribute word; the call replaces all attributes.
//   R: set clears every write permission (owner, group, others); clear gives
//      the owner write permission back.
//   D is ignored: a file does not become a folder.
//   On a FAT volume R, H, S and A go to the volume's own attribute byte.
//   H cannot rename the file; H and S, and a word without A on a file, are
//     kept in `user.DOSATTRIB` when the file system takes extended attributes
//     and are otherwise ignored. An existing `user.DOSATTRIB` is always
//     updated, keeping the rest of its record (such as the creation time that
//     Samba stores there).
FileStatus SetFileAttributes(const std::filesystem::path& path, int attributes);

}  // namespace tarnwick
