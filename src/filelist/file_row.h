#pragma once

#include <cstdint>
#include <string>

#include "platform/file_times.h"

namespace tarnwick {

// The fixed column indices of a `FileRow`. Other parts of the program read
// rows by these numbers.
namespace file_column {
inline constexpr int kName = 0;        // "Name": the file name with extension
inline constexpr int kSize = 1;        // "Size": `FormatFileSize` of the size
inline constexpr int kType = 2;        // "Type": the type text
inline constexpr int kDate = 3;        // the file date of `FileDateType`
inline constexpr int kAttributes = 4;  // "Attributes": `AttributeText`
inline constexpr int kPath = 5;        // "Path": the absolute folder
inline constexpr int kMediaInfo = 6;   // "Mediainfo": playing length
inline constexpr int kFolderName = 7;  // "Foldername": last part of the folder
inline constexpr int kExifDate = 8;    // "JPEG EXIF Date"
inline constexpr int kSizeBytes = 9;   // hidden: the size as plain digits
inline constexpr int kExtension = 10;  // hidden: the extension in lower case
inline constexpr int kCount = 11;
}  // namespace file_column

// One row of the file list: one file. Only the facts are kept here, compactly;
// `FileList::Text` builds the column texts from them when asked, with the
// folder, type and media texts the list shares between its rows.
struct FileRow {
  std::string name;
  // Only the low 32 bits are shown: the directory read of old kept no more.
  std::uint32_t size = 0;
  std::uint32_t attributes = 0;
  FileTime date{};               // the stamp of the date column, if `has_date`
  std::uint32_t folder = 0;      // index into the list's folders
  std::uint32_t type = 0;        // index into the list's type texts; 0 is none
  std::uint32_t media_info = 0;  // index into the list's media texts; 0 is none
  std::uint32_t exif_date = 0;   // likewise, for the EXIF date column
  // The file's identity when the fill read it (the device as major << 32 |
  // minor, and the inode), so a run's open-file test needs no stat of its
  // own; inode 0: not known.
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  bool has_date = false;
  // Loaded with `LoadOnlyFileName`: no type, attributes or folder name.
  bool name_only = false;
  bool selected = false;
};

}  // namespace tarnwick
