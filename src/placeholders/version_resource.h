#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarnwick {

// The strings of the version resource of a Windows program or library (a PE
// file: .exe, .dll, .ocx ...), read by our own parser, so it works on every
// platform. The {{fileinfo_...}} tokens name these strings.
struct VersionStrings {
  std::string company_name;      // "CompanyName"
  std::string file_description;  // "FileDescription"
  std::string file_version;      // "FileVersion"
  std::string legal_copyright;   // "LegalCopyright"
};

// The strings of one file. A file that cannot be opened, is no PE file, has no
// version resource or a damaged one gives empty strings; no input makes it
// fail. Only the headers, the resource directory and the version block are
// read, never the whole file.
VersionStrings ReadVersionStrings(const std::filesystem::path& path);

// The same for a file image held in memory (used by the fuzz target).
VersionStrings ParseVersionStrings(std::string_view image);

}  // namespace tarnwick
