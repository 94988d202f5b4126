#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/file_status.h"
#include "tools/tool_job.h"

namespace tarnwick {

class MessageTable;

// The steps the picture jobs share.

// The question 670 before a job that replaces originals; true for Yes.
bool ConfirmReplacingPictures(const RenameRunEnv& env);
// A file's name without its extension ("photo" for "photo.png").
std::string PictureBaseName(const std::string& name);
// A failed file: counted, kept for the summary, and logged under `title`.
void PictureFailed(ToolJob& job, const std::string& title, const std::string& path,
                   const std::string& why);
// The new file's dates: the row's date with `KeepOldFiledate`, then its
// EXIF date with `use_exif_date`. A date that cannot be set is logged.
void SetNewPictureDates(ToolJob& job, const std::string& title, std::size_t row,
                        const std::string& target, bool use_exif_date);
// The end of a job with failures: their count and message 655 under `title`.
void TellPictureFailures(const RenameRunEnv& env, const std::string& title,
                         const ToolJobResult& result);

// Where the picture jobs put a new file, and how.
class PictureOutput {
 public:
  // `replace`: "Overwrite/delete original files".
  PictureOutput(bool replace, const MessageTable& messages)
      : replace_(replace), messages_(messages) {}

  // Puts `bytes` as folder/base + extension. Replacing: written and flushed
  // under a hidden temporary name, renamed over whatever had the name, then
  // `source` is deleted when it is another file; so at every moment the
  // original or the finished new file is there. Not replacing: never over
  // another file; a taken name becomes "base (Copy_n)extension"
  // (`UniqueCopyName`, its counter from 1 for the whole job). The path
  // written, or the failure.
  std::optional<std::string> Place(const std::vector<std::uint8_t>& bytes,
                                   const std::string& source, const std::string& folder,
                                   const std::string& base, const std::string& extension,
                                   FileStatus& failure);

 private:
  bool replace_;
  const MessageTable& messages_;
  int copy_counter_ = 1;
};

}  // namespace tarnwick
