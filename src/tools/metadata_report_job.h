#pragma once

#include <string>

#include "tools/tool_job.h"

namespace tarnwick {

enum class MetadataReport { kExif, kMp3 };

// `mnuSaveJPEGEXIFInfo` / `mnuSaveMP3InfosToFile` on the selected rows, in
// the tool-job frame: one line per row, made as the caption counts through
// the files; Esc keeps the lines made so far. The file is put in place in one
// step at the end (an old file at `path` stays whole should that fail), and
// the log gets the menu's name with the path. A failed write is named in a
// box and counted as failed.
ToolJobResult SaveMetadataReport(const RenameRunEnv& env, MetadataReport kind,
                                 const std::string& path);

}  // namespace tarnwick
