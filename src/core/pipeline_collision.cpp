// Taken names and files held open.
#include "core/pipeline_collision.h"

#include "base/path_text.h"
#include "core/pipeline_name_diff.h"
#include "core/rename_settings.h"
#include "filelist/file_list.h"
#include "persist/option_store.h"
#include "platform/file_in_use.h"
#include "platform/files.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kSkipExisting = "SkipExistingFiles";

void StoreSkipTick(const PipelineEnv& env, bool skip_all_others) {
  env.options.SaveOption(kSkipExisting, "Options", skip_all_others ? "1" : "0");
}

std::string AskFileExists(const PipelineEnv& env, const std::string& name, std::string_view folder,
                          std::string_view row_name) {
  FileExistsRequest request;
  request.proposed_name = name;
  request.folder = std::string(folder);
  request.original_name = std::string(row_name);
  request.skip_all_others = env.options.GetOption(kSkipExisting, "Options", "0") != "0";
  const FileExistsAnswer answer = env.interaction.AskFileExists(request);
  switch (answer.choice) {
    case FileExistsChoice::kOk:
      StoreSkipTick(env, answer.skip_all_others);
      // The dialogue keeps itself open until the name differs by more than
      // case; a front end that lets one through anyway skips the file, as
      // taking the name would be no decision at all.
      if (!IsAcceptedNewName(request, answer.file_name)) return {};
      return answer.file_name;
    case FileExistsChoice::kSkip:
      StoreSkipTick(env, answer.skip_all_others);
      return {};
    case FileExistsChoice::kCancel:
      env.app.CancelRun = true;
      return {};
  }
  return {};
}

}  // namespace

std::string DecideCollision(const PipelineEnv& env, std::string_view old_name,
                            const std::string& name, std::string_view folder,
                            std::string_view row_name) {
  if (CheckNameDiff(old_name, name, folder)) return name;
  if (env.options.GetOption(kSkipExisting, "Options", "0") != "0") return {};
  if (!FileExists(AbsolutePathName(JoinPath(folder, name), folder))) return name;
  return AskFileExists(env, name, folder, row_name);
}

std::string DecideTakenName(const PipelineEnv& env, const std::string& name,
                            std::string_view folder, std::string_view row_name) {
  if (env.options.GetOption(kSkipExisting, "Options", "0") != "0") return {};
  return AskFileExists(env, name, folder, row_name);
}

bool FileHeldOpen(const PipelineEnv& env, std::size_t row, std::string_view folder,
                  std::string_view old_name) {
  const std::string path = JoinPath(folder, old_name);
  if (env.open_files == nullptr) return IsFileInUse(path);
  if (row >= env.list.size()) return env.open_files->IsFileInUse(path);
  const FileRow& facts = env.list.rows()[row];
  // The row's identity holds while the file keeps the name the fill read.
  if (facts.name != old_name) return env.open_files->IsFileInUse(path);
  return env.open_files->IsFileInUse(path, facts.device, facts.inode);
}

bool PassOpenFileTest(const PipelineEnv& env, std::size_t row, std::string_view folder,
                      std::string_view old_name) {
  if (!FileHeldOpen(env, row, folder, old_name)) return true;
  const std::string path = JoinPath(folder, old_name);
  env.app.FileLockSeen = true;
  if (env.settings.optCopyRename == kModeCopy) return true;
  MessageBoxRequest box;
  box.title = std::string(env.messages.Text("pipeline.title_file_is_open"));
  box.text = std::string(env.messages.Text("pipeline.file_opened_by_other_application")) + " [" +
             path + "]\r\n\r\n" + std::string(env.messages.Text("pipeline.ok_skips_cancel_stops"));
  box.buttons = Buttons::kOkCancel;
  box.icon = MessageIcon::kExclamation;
  box.topic = Topic::kSkipOpenFile;
  if (env.interaction.ShowMessage(box) == Answer::kCancel) env.app.CancelRun = true;
  return false;
}

}  // namespace tarnwick
