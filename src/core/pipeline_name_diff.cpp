// Whether a new name is free, and whether the file system can take it.
#include "core/pipeline_name_diff.h"

#include <climits>
#include <string>

#include "base/path_text.h"
#include "base/text.h"
#include "base/vb_error.h"
#include "platform/file_status.h"
#include "platform/files.h"

namespace tarnwick {

bool CheckNameDiff(std::string_view old_name, std::string_view new_name, std::string_view folder) {
  if (vb::UCase(old_name) == vb::UCase(new_name)) return true;
  // The program compares the names character by character and, at the first
  // difference or when the lengths differ, asks whether the file exists: one
  // and the same test, since equal names were settled above.
  return !FileExists(JoinPath(folder, new_name));
}

void CheckNameForFileSystem(std::string_view name) {
  const bool bad = name == "." || name == ".." ||
                   name.find_first_of(std::string_view("/\0", 2)) != std::string_view::npos ||
                   name.size() > NAME_MAX;
  if (bad) {
    throw VbError(vb_error::kBadFileName, FileErrorDescription(vb_error::kBadFileName));
  }
}

}  // namespace tarnwick
