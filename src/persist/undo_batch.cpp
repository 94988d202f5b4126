#include "persist/undo_batch.h"

#include "base/path_text.h"
#include "persist/log_append.h"
#include "persist/log_date_text.h"
#include "persist/log_failure_box.h"
#include "persist/log_options.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "persist/undo_line.h"
#include "platform/files.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

void AddLine(std::string& out, std::string_view line) {
  out += line;
  out += kLineEnd;
}

// The characters the command interpreter acts on inside an echo line are
// made literal, so no text of the header can redirect or chain a command.
// The program's own texts hold none of them, so their lines stay as they are.
std::string LiteralForEcho(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (const char c : text) {
    if (c == '%') {
      out += "%%";
      continue;
    }
    if (c == '^' || c == '&' || c == '|' || c == '<' || c == '>') out += '^';
    out += c;
  }
  return out;
}

std::string_view ActionKey(int copy_rename_index) {
  if (copy_rename_index == 0) return "undo.action_renames";
  if (copy_rename_index == 1) return "undo.action_deletes";
  return "undo.action_none";
}

}  // namespace

std::string UndoBatch::UndoBatchPath() const {
  return tarnwick::UndoBatchPath(env_.options, env_.state);
}

std::string UndoBatch::EchoLine(std::string_view text) const {
  return "echo " + LiteralForEcho(ToOemText(text, target_));
}

void UndoBatch::WriteUndoBatchHeader(int selected_count, int copy_rename_index) {
  if (!OptionIsOne(env_.options, "WriteUndoList", "1")) return;
  if (!FolderExists(ParentFolder(UndoFolderPath(env_.options, env_.state)))) {
    SaveOptionValue(env_.options, "UndoFilePath", env_.state.DefaultUndoFolder);
  }
  const MessageTable& texts = env_.messages;
  const std::string now = PresentDateTimeText(env_.clock, env_.options);
  std::string out;
  AddLine(out, " ");
  AddLine(out, "@echo off");
  AddLine(out, "cls");
  AddLine(out, EchoLine(std::string(texts.Text("undo.created_by")) + " " + now));
  AddLine(out, EchoLine(std::string(texts.Text("log.selected_files")) + " " +
                        std::to_string(selected_count)));
  // The action line goes out as it stands, without the code page step.
  AddLine(out, "echo " + LiteralForEcho(texts.Text(ActionKey(copy_rename_index))));
  AddLine(out, EchoLine(texts.Text("log.only_last_action")));
  AddLine(out, EchoLine(texts.Text("undo.own_risk")));
  AddLine(out, "pause");
  AddLine(out, "echo on");
  // Written beside the old batch and renamed over it, so a failure leaves
  // the old batch whole. Failures are left for the first entry to report.
  env_.state.UndoBatchStarted = ReplaceFileWith(UndoBatchPath(), out).ok();
}

void UndoBatch::WriteUndoEntry(std::string_view old_path, std::string_view new_path,
                               std::string_view command) {
  if (OptionIsZero(env_.options, "WriteUndoList", "1")) return;
  std::string line = ToOemText(UndoEntryLine(old_path, new_path, command), target_);
  line += kLineEnd;
  const std::string path = UndoBatchPath();
  const FileStatus status = held_ ? held_->Append(path, line) : AppendToFile(path, line);
  if (!status.ok()) OfferToSwitchOff(env_, FailedWriter::kUndo, status, path);
}

void UndoBatch::HoldFileOpen(bool hold) {
  held_ = hold ? std::make_shared<HeldAppendFile>() : nullptr;
}

void UndoBatch::FinishUndoBatch() {
  LogUndoState& state = env_.state;
  if (!state.UndoBatchStarted || state.UndoTemporaryCopy.empty()) return;
  if (!OptionIsZero(env_.options, "OverwriteUndoBatch", "0")) return;
  if (!FileExists(state.UndoTemporaryCopy)) return;
  // Kept: the temporary copy is not deleted; it is the last copy of the
  // older runs should this step fail.
  AppendFileToFile(state.UndoTemporaryCopy, UndoBatchPath());
}

}  // namespace tarnwick
