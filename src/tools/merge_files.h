#pragma once

#include <string>

#include "tools/tool_job.h"

namespace tarnwick {

// The choices of `frmJoiner`.
struct MergeChoices {
  std::string target;       // txtNewFile: the file the sources are joined into
  bool filter = false;      // chkExtension
  std::string filter_text;  // txtExtension: only sources whose name holds it
  bool overwrite = false;   // chkOverwriteFiles
  bool sort = false;        // chkSortItems
  bool delete_source = false;  // chkDeleteSourceFiles
};

// What is wrong with the choices on "Start"; empty when the job may start.
std::string CheckMergeChoices(const MergeChoices& choices, const MessageTable& messages);

// `mnuMergeFiles`: the selected rows, in list order (sorted by name first
// when asked), appended one after the other into the target.
//
// The target is built under a hidden name in its folder and takes its name
// only when every source is in it (flushed to disk first when it replaces a
// file or the sources are to go); an existing target is then replaced in
// one step (only with `overwrite`), never deleted first.
// The sources are deleted (when asked) only after that. A failure, Esc, or a
// target that is one of the sources leaves every file as it was. The list
// is read again.
ToolJobResult MergeFiles(const RenameRunEnv& env, const MergeChoices& choices);

}  // namespace tarnwick
