#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/file_status.h"
#include "platform/file_times.h"

namespace tarnwick {

class NameOrder;
class TypeTextCache;

// `FileRecord`: one directory entry as a folder read gives it.
struct FileRecord {
  std::string name;
  // "Folder" for a folder, otherwise "z" + the lower-case extension.
  std::string type_key;
  const std::string* type_text = nullptr;  // owned by the TypeTextCache
  std::uint32_t attributes = 0;
  std::uint32_t size = 0;  // the low 32 bits of the size in bytes
  FileTime last_write{};
  FileTime last_access{};
  // The birth time where the file system keeps one, else the last write.
  FileTime created{};
  // A link whose target is gone: the facts are the link's own.
  bool dangling = false;
  // Where the entry (its target, for a link) lives, to tell a folder seen
  // before on the way down.
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  bool folder = false;
};

// `FileRecords` of one folder.
struct FolderRead {
  // False when the folder could not be opened at all; `open_error` then
  // says why (70 permission denied, 76 path not found).
  bool opened = false;
  FileStatus open_error;
  // The entries in name order (a Linux folder comes in no useful order of
  // its own).
  std::vector<FileRecord> records;
  // The read stopped because `on_entry` asked so.
  bool stopped = false;
  // An entry that could not be read ends the read; the records before it stay.
  FileStatus error;
  std::string error_entry;
  // The folder's own device and inode.
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
};

// Called after each entry with the number of entries so far; returning true
// stops the read.
using FolderReadStep = std::function<bool(std::size_t count)>;

// `GetFiles`: reads the entries of `folder` ("." and ".." left out). Links
// are followed; a link to nothing is read as the link itself. An entry that
// vanishes while it is read is left out.
// The records come in `order`.
FolderRead ReadFolder(const std::string& folder, TypeTextCache& types, const NameOrder& order,
                      const FolderReadStep& on_entry);

}  // namespace tarnwick
