// The batch script of copy and move.
#include "tools/copy_move_batch.h"

#include <fstream>

#include "base/path_text.h"
#include "filelist/file_list.h"
#include "persist/log_date_text.h"
#include "persist/undo_oem_text.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string Quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

}  // namespace

std::string CopyMoveBatchText(const RenameRunEnv& env, bool move, const std::string& now,
                              const std::vector<BatchFile>& files) {
  const auto text = [&](std::string_view key) { return std::string(env.messages.Text(key)); };
  const auto oem = [&](std::string_view line) { return ToOemText(line, env.undo_target); };
  const std::string total = std::to_string(files.size());
  std::string script;
  const auto line = [&](const std::string& content) {
    script += content;
    script += kLineEnd;
  };
  line("@echo off");
  line("cls");
  line("echo " + oem(text("copymove.batch.created_with") + " " + now + " [" + total + " " +
                     text("copymove.batch.files") + "]"));
  line("echo " + oem(text("undo.own_risk")));
  line("echo ");
  line("pause");
  const std::string doing = text(move ? "copymove.batch.rename_file" : "copymove.batch.copying_file");
  const std::string command = move ? "move " : "copy ";
  for (std::size_t i = 0; i < files.size(); ++i) {
    const BatchFile& file = files[i];
    line("echo " + oem(doing + " " + Quoted(file.source) + " " + text("log.to") + " " +
                       Quoted(file.target) + " [" + std::to_string(i + 1) + "/" + total + "] ..."));
    line(oem(command + Quoted(file.source) + " " + Quoted(file.target)));
  }
  return script;
}

ToolJobResult WriteCopyMoveBatch(const RenameRunEnv& env, const CopyMoveChoices& choices) {
  std::vector<BatchFile> files;
  for (std::size_t row : env.list.SelectedRows()) {
    const std::string name = env.list.Text(row, file_column::kName);
    files.push_back({JoinPath(env.list.Folder(row), name), JoinPath(choices.target_folder, name)});
  }
  const std::string script = CopyMoveBatchText(env, choices.move,
                                               PresentDateTimeText(env.clock, env.options), files);
  ToolJobResult result;
  std::ofstream out(choices.batch_path, std::ios::binary | (choices.append_batch
                                                                ? std::ios::app
                                                                : std::ios::trunc));
  out << script;
  out.flush();
  if (!out) {
    ++result.failed;
    result.failures.push_back(choices.batch_path + ": " + FileErrorDescription(75));
    return result;
  }
  result.done = static_cast<std::int64_t>(files.size());
  return result;
}

}  // namespace tarnwick
