// Action 10: the name shown for manual editing.
#include "core/manual_rename.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "base/vb_error.h"
#include "base/vb_number.h"
#include "core/expansion_setup.h"
#include "core/pipeline_illegal_chars.h"
#include "core/pipeline_name_parts.h"
#include "persist/option_store.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kSection = "ManualRename";

// The same rejected answer this often in a row means nobody can type a
// better one (a front end that answers by default): the renaming is then
// cancelled, with a box that says why, instead of asking for ever.
constexpr int kMaxRepeatedRejections = 10;

bool ReadFlag(const OptionStore& options, std::string_view key) {
  return options.GetOption(key, kSection, "0") == "1";
}

std::int32_t ReadPosition(const OptionStore& options, std::string_view key) {
  try {
    const double value = vb::Val(options.GetOption(key, kSection, "0"));
    if (!std::isfinite(value) || value < 0 || value > 1e9) return 0;
    return static_cast<std::int32_t>(value);
  } catch (const VbError&) {
    return 0;
  }
}

void ShowBox(const PipelineEnv& env, std::string_view text_key, MessageIcon icon) {
  MessageBoxRequest box;
  box.title = std::string(env.messages.Text("pipeline.title_filename"));
  box.text = std::string(env.messages.Text(text_key));
  box.icon = icon;
  env.interaction.ShowMessage(box);
}

bool ConfirmCancel(const PipelineEnv& env) {
  MessageBoxRequest box;
  box.title = std::string(env.messages.Text("manual.title_cancel_action"));
  box.text = std::string(env.messages.Text("manual.really_cancel"));
  box.buttons = Buttons::kYesNo;
  box.icon = MessageIcon::kQuestion;
  box.topic = Topic::kConfirmCancelRename;
  return env.interaction.ShowMessage(box) == Answer::kYes;
}

// Shows the box for an entered name that fails a test; false when it passes.
bool RejectName(const PipelineEnv& env, const std::string& entered) {
  if (HasForbiddenNameChar(entered)) {
    ShowNotAllowedCharBox(env.interaction, env.messages);
    return true;
  }
  if (vb::Len(entered) > kManualNameMaxLength) {
    ShowBox(env, "manual.filename_too_long", MessageIcon::kExclamation);
    return true;
  }
  return false;
}

}  // namespace

ManualRenameCursor ReadManualRenameCursor(const OptionStore& options) {
  ManualRenameCursor cursor;
  cursor.change_cursor_start = ReadFlag(options, "ChangeCursorStart");
  cursor.start_position = ReadPosition(options, "StartPosition");
  cursor.end_position = ReadPosition(options, "EndPosition");
  cursor.select_all = ReadFlag(options, "SelectAll");
  cursor.to_extension = ReadFlag(options, "ToExtension");
  return cursor;
}

void StoreManualRenameCursor(OptionStore& options, const ManualRenameCursor& cursor) {
  options.SaveOption("ChangeCursorStart", kSection, cursor.change_cursor_start ? "1" : "0");
  options.SaveOption("StartPosition", kSection, std::to_string(cursor.start_position));
  options.SaveOption("EndPosition", kSection, std::to_string(cursor.end_position));
  options.SaveOption("SelectAll", kSection, cursor.select_all ? "1" : "0");
  options.SaveOption("ToExtension", kSection, cursor.to_extension ? "1" : "0");
}

void ResetManualRenameCursor(OptionStore& options) {
  StoreManualRenameCursor(options, ManualRenameCursor{});
}

NameSelection ManualRenameSelection(const ManualRenameCursor& cursor, std::string_view name) {
  const std::int64_t length = vb::Len(name);
  if (cursor.select_all) return {0, length};
  std::int64_t start = 0;
  std::int64_t end = length;
  if (cursor.change_cursor_start) {
    start = std::clamp<std::int64_t>(cursor.start_position, 0, length);
    end = std::clamp<std::int64_t>(cursor.end_position, 0, length);
  } else if (!cursor.to_extension) {
    return {length, 0};  // nothing chosen: the caret stands at the end
  }
  if (cursor.to_extension) {
    const NameParts parts = SplitName(name);
    if (parts.has_extension()) end = std::min(end, vb::Len(parts.base));
  }
  return {start, std::max<std::int64_t>(end - start, 0)};
}

std::string RenameFile(const PipelineEnv& env, RowExpander& expander, std::string_view name) {
  std::string last_rejected;
  int repeated = 0;
  for (;;) {
    ManualRenameRequest request;
    request.file_name = expander.Expand(name, "dummy");
    request.original_name = expander.row_name();
    request.cursor = ReadManualRenameCursor(env.options);
    ManualRenameAnswer answer = env.interaction.AskManualRename(request);
    if (answer.cancelled) {
      // A cancelled dialogue has put the present name back; that name is not
      // the user's entry, so it goes to the question without the tests.
      if (ConfirmCancel(env)) {
        env.app.CancelRun = true;
        return std::string(name);
      }
      continue;
    }
    StoreManualRenameCursor(env.options, answer.cursor);
    if (!RejectName(env, answer.file_name)) return std::move(answer.file_name);
    repeated = answer.file_name == last_rejected ? repeated + 1 : 1;
    last_rejected = std::move(answer.file_name);
    if (repeated >= kMaxRepeatedRejections) {
      ShowBox(env, "manual.cancelled_after_rejections", MessageIcon::kExclamation);
      env.app.CancelRun = true;
      return std::string(name);
    }
  }
}

}  // namespace tarnwick
