#include "picture/picture_output.h"

#include "base/path_text.h"
#include "core/file_date_time.h"
#include "filelist/file_list.h"
#include "persist/option_store.h"
#include "picture/compress_job.h"
#include "platform/file_pieces.h"
#include "platform/files.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

FileStatus WriteNew(const std::vector<std::uint8_t>& bytes, const std::string& target,
                    bool replace) {
  StagedFile file;
  FileStatus status = file.Open(target);
  if (status.ok()) status = file.Write(bytes);
  // A replaced file is flushed first, so a power cut cannot leave a short
  // file where the whole original stood.
  if (status.ok()) status = file.Commit(replace, /*flush=*/replace);
  return status;
}

}  // namespace

bool ConfirmReplacingPictures(const RenameRunEnv& env) {
  return env.interaction.ShowMessage({std::string(env.messages.Text("picture.overwrite_title")),
                                      std::string(env.messages.Text("picture.overwrite_question")),
                                      Buttons::kYesNo, MessageIcon::kQuestion,
                                      Topic::kOverwritePictures}) == Answer::kYes;
}

std::string PictureBaseName(const std::string& name) {
  const std::size_t dot = name.rfind('.');
  return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

void PictureFailed(ToolJob& job, const std::string& title, const std::string& path,
                   const std::string& why) {
  job.Failed(path, why);
  job.LogTool(title, job.Text("run.log_error") + " \"" + path + "\" (" + why + ")");
}

void SetNewPictureDates(ToolJob& job, const std::string& title, std::size_t row,
                        const std::string& target, bool use_exif_date) {
  const RenameRunEnv& env = job.env();
  const FileDateEnv dates{env.options, env.interaction, env.messages, env.media};
  try {
    if (env.options.GetOption("KeepOldFiledate", "Options", "0") == "1") {
      ChangeFileDateAndTimeKeepOld(dates, target, env.list.Text(row, file_column::kDate));
    }
    if (use_exif_date) ChangeFileDateAndTimeJPG(dates, target);
  } catch (const VbError& error) {
    job.LogTool(title, "\"" + target + "\": " + std::to_string(error.number()) + ": " +
                           error.description());
  }
}

void TellPictureFailures(const RenameRunEnv& env, const std::string& title,
                         const ToolJobResult& result) {
  if (result.failed == 0) return;
  env.interaction.ShowMessage({title,
                               std::to_string(result.failed) + " " +
                                   std::string(env.messages.Text("picture.files_not_processed")),
                               Buttons::kOk, MessageIcon::kExclamation, Topic::kNotice});
}

std::optional<std::string> PictureOutput::Place(const std::vector<std::uint8_t>& bytes,
                                                const std::string& source,
                                                const std::string& folder, const std::string& base,
                                                const std::string& extension, FileStatus& failure) {
  std::string target = JoinPath(folder, base + extension);
  if (replace_) {
    failure = WriteNew(bytes, target, true);
    if (!failure.ok()) return std::nullopt;
    if (source != target) failure = DeleteFile(source);
    return target;
  }
  for (;;) {
    if (FileExists(target))
      target = UniqueCopyName(folder, base, extension, copy_counter_, messages_);
    failure = WriteNew(bytes, target, false);
    // A file (or a folder) that has the name after all: the next free one.
    if (failure.number != vb_error::kFileAlreadyExists) break;
    ++copy_counter_;
    target = UniqueCopyName(folder, base, extension, copy_counter_, messages_);
  }
  if (!failure.ok()) return std::nullopt;
  return target;
}

}  // namespace tarnwick
