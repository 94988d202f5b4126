// Names too short for the cuts that are ticked.
#include "core/pipeline_short_name.h"

#include <cstdint>
#include <string>

#include "base/text.h"
#include "base/vb_number.h"
#include "core/pipeline_name_parts.h"
#include "core/rename_settings.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

std::string Text(const PipelineEnv& env, std::string_view key) {
  return std::string(env.messages.Text(key));
}

// The box's text for the first ticked cut that is too long; empty when none.
std::string ShortNameText(const PipelineEnv& env, std::string_view name) {
  const RenameSettings& s = env.settings;
  const std::int64_t length = vb::Len(name) - vb::Len(SplitName(name).extension);
  const std::string start = Text(env, "pipeline.the_filename") + std::string(name);
  if (Ticked(s.chkCutLeft) && vb::Val(s.txtLeftCut) > length) {
    // Kept: this text has no quote behind the name.
    return start + Text(env, "pipeline.shorter_than_cut_left");
  }
  if (Ticked(s.chkCutRight) && vb::Val(s.txtRightCut) > length) {
    return start + Text(env, "pipeline.shorter_than_cut_right");
  }
  const double from = vb::Val(s.txtFromChar);
  if (Ticked(s.chkCutMiddle) && from > length) {
    return start + Text(env, "pipeline.no_chars_at_length") + " " + vb::CStr(from) +
           Text(env, "pipeline.skipping_file");
  }
  return {};
}

}  // namespace

bool StopForShortName(const PipelineEnv& env, std::string_view name) {
  const std::string text = ShortNameText(env, name);
  if (text.empty()) return false;
  MessageBoxRequest box;
  box.title = Text(env, "pipeline.title_filename_too_short");
  box.text = text + "\r\n\r\n" + Text(env, "run.continue_with_next_file");
  box.buttons = Buttons::kYesNo;
  box.icon = MessageIcon::kExclamation;
  box.topic = Topic::kSkipShortName;
  if (env.interaction.ShowMessage(box) == Answer::kNo) env.app.CancelRun = true;
  return true;
}

}  // namespace tarnwick
