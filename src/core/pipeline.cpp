// The name pipeline for one file.
#include "core/pipeline.h"

#include <new>

#include "base/path_text.h"
#include "base/text.h"
#include "base/vb_number.h"
#include "core/action_order.h"
#include "core/expansion_setup.h"
#include "core/manual_rename.h"
#include "core/numbering.h"
#include "core/pipeline_actions.h"
#include "core/pipeline_collision.h"
#include "core/pipeline_illegal_chars.h"
#include "core/pipeline_name_diff.h"
#include "core/pipeline_short_name.h"
#include "core/rename_settings.h"
#include "filelist/file_list.h"
#include "persist/option_store.h"
#include "shell/app_state.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

// One action with the clean-up behind it.
void RunOrderStep(const PipelineEnv& env, RowExpander& expander, const IllegalCharRule& rule,
                  std::string& name, int code) {
  if (ActionTicked(env.settings, code)) {
    if (code == kActionEditManual) {
      name = RenameFile(env, expander, name);
    } else {
      name = ApplyAction(code, ActionInputs{env.settings, expander, env.app.CurrentCount}, name);
    }
  }
  // Ticked or not: what an action typed in, or left over, is expanded here,
  // and the next action sees the expanded text.
  const std::string before = name;
  name = ReplaceIllegalChars(expander.Expand(name), rule);
  if (env.log == nullptr || EqualsText(before, name)) return;
  env.log->WriteLogFileTool(env.messages.Text("log.removed_illegal_chars"), before + " -> " + name);
}

// Settings that rest on tags leave a file without any tag as it is.
void ApplyMp3Guard(const PipelineEnv& env, std::string& name, std::size_t row,
                   std::string_view folder) {
  if (env.options.GetOption("ProcessNoMP3", "Options", "0") != "1") return;
  if (!CheckForValidFields(env.settings, "{{mp3IDTagV")) return;
  if (env.list.Text(row, file_column::kExtension) != "mp3") return;
  const std::string row_name = env.list.Text(row, file_column::kName);
  const std::string path = JoinPath(folder, row_name);
  if (env.media.ReadId3v1(path).found || env.media.ReadId3v2(path).found) return;
  name = row_name;
}

std::string RunPipeline(const PipelineEnv& env, std::string& name, std::size_t row,
                        std::string_view folder, bool& name_unchecked) {
  const std::string old_name = name;
  // The file keeps its name and does not use up a number.
  if (StopForShortName(env, name)) return name;

  RowExpander expander(env, row, folder);
  const IllegalCharRule rule = ReadIllegalCharRule(env.options);
  for (int code : ReadActionOrder(env.options)) RunOrderStep(env, expander, rule, name, code);
  ApplyMp3Guard(env, name, row, folder);
  CheckNameForFileSystem(name);

  const bool test_mode = env.settings.optCopyRename == kModeTest;
  std::string result = name;
  // A deferred check leaves a taken name to the run's move; a file held
  // open is decided here all the same, so its questions keep their order.
  name_unchecked = !test_mode && env.defer_taken_check && !FileHeldOpen(env, row, folder, old_name);
  if (!test_mode && !name_unchecked) {
    result = DecideCollision(env, old_name, name, folder, expander.row_name());
    CheckNameForFileSystem(result);
  }
  if (!name_unchecked && !result.empty() && !PassOpenFileTest(env, row, folder, old_name)) {
    result.clear();
  }
  if (test_mode) result = name;
  NextNumberStep(env.app, env.settings);
  // The random numbers of the next file come from further on in the pool.
  env.app.random_pool.Advance(vb::CLng(vb::Val(env.settings.txtStep)));
  return result;
}

VbError ErrorOf(const std::exception& error) {
  return VbError(vb_error::kInvalidProcedureCall, error.what());
}

}  // namespace

bool CheckForValidFields(const RenameSettings& s, std::string_view text) {
  for (const std::string* field :
       {&s.txtCompleteName, &s.txtExtension, &s.txtReplaceChars, &s.txtPrefix, &s.txtPostfix,
        &s.txtSearchString, &s.txtReplaceString, &s.txtUsePlaceholder}) {
    if (vb::InStr(*field, text) > 0) return true;
  }
  return false;
}

ProcessFileResult ProcessFile(const PipelineEnv& env, std::string& name, std::size_t row,
                              std::string_view folder) {
  try {
    bool name_unchecked = false;
    std::string result = RunPipeline(env, name, row, folder, name_unchecked);
    return {std::move(result), std::nullopt, name_unchecked};
  } catch (const VbError& error) {
    return {{}, error};
  } catch (const std::bad_alloc&) {
    return {{}, VbError(vb_error::kOutOfMemory, "Out of memory")};
  } catch (const std::exception& error) {
    return {{}, ErrorOf(error)};
  }
}

ProcessFileResult ProcessFileOrder(const PipelineEnv& env, std::string& name, std::size_t row,
                                   std::string_view folder, int action_code) {
  try {
    RowExpander expander(env, row, folder);
    RunOrderStep(env, expander, ReadIllegalCharRule(env.options), name, action_code);
    return {name, std::nullopt};
  } catch (const VbError& error) {
    return {{}, error};
  } catch (const std::bad_alloc&) {
    return {{}, VbError(vb_error::kOutOfMemory, "Out of memory")};
  } catch (const std::exception& error) {
    return {{}, ErrorOf(error)};
  }
}

}  // namespace tarnwick
