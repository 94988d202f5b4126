// The text export of the list.
#include <cstdio>
#include <fstream>
#include <optional>
#include <sstream>

#include "base/clock.h"
#include "base/vb_date.h"
#include "base/vb_date_text.h"
#include "filelist/column_headings.h"
#include "filelist/file_list.h"
#include "filelist/list_loader.h"
#include "platform/files.h"
#include "platform/temp_files.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"
#include "tools/export_text.h"
#include "tools/list_export.h"
#include "tools/list_export_rows.h"

namespace tarnwick {
namespace {

std::string Join(const std::vector<std::string>& cells, const std::string& delimiter) {
  std::string line;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (i > 0) line += delimiter;
    line += cells[i];
  }
  return line;
}

std::string HeaderLine(const RenameRunEnv& env, const TextExportChoices& choices) {
  const auto headings = ColumnHeadings(env.options, env.messages);
  std::vector<std::string> words;
  for (std::size_t column = 0; column < choices.columns.chosen.size(); ++column) {
    if (choices.columns.chosen[column]) words.push_back(headings[column]);
  }
  return Join(words, choices.DelimiterText());
}

// "00:00:07" in the locale's long time.
std::string ElapsedText(std::chrono::steady_clock::duration elapsed) {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(elapsed).count();
  const auto hours = static_cast<int>(seconds / 3600 % 24);
  return vb::FormatDate(vb::TimeSerial(hours, static_cast<int>(seconds / 60 % 60),
                                       static_cast<int>(seconds % 60)),
                        "Long Time");
}

// The lines of the export as they are made: into the temporary file (so a
// crash leaves them there) and, read back at the end, into the window.
class ExportLines {
 public:
  ExportLines() {
    auto file = CreateUniqueTempFile(TempFolder(), "TWRNTXT-");
    if (!file.ok()) {
      error_ = file.status();
      return;
    }
    path_ = file.value().string();
    out_.open(path_, std::ios::binary | std::ios::trunc);
  }
  ~ExportLines() {
    if (!path_.empty()) std::remove(path_.c_str());
  }

  bool ok() const { return error_.ok() && out_.good(); }
  const FileStatus& error() const { return error_; }
  const std::string& path() const { return path_; }
  void Add(const std::string& line) { out_ << line << "\r\n"; }

  std::string ReadBack() {
    out_.close();
    std::ifstream in(path_, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
  }

 private:
  std::string path_;
  FileStatus error_;
  std::ofstream out_;
};

struct ExportSource {
  FileList* list;
  std::vector<std::size_t> rows;
};

// The rows to write: the folder and its subfolders read anew into `walked`,
// or the list's selected or all rows.
ExportSource ChooseRows(const RenameRunEnv& env, const TextExportChoices& choices,
                        FileList& walked) {
  if (choices.include_subfolders && env.loader != nullptr) {
    env.loader->FillListView(walked, {env.app.CurrentPath, true});
    std::vector<std::size_t> rows(walked.size());
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = i;
    return {&walked, std::move(rows)};
  }
  if (choices.only_selected) return {&env.list, env.list.SelectedRows()};
  std::vector<std::size_t> rows(env.list.size());
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = i;
  return {&env.list, std::move(rows)};
}

RenameRunEnv EnvWithList(const RenameRunEnv& env, FileList& list) {
  return {env.app,      env.settings, list,  env.options,     env.interaction,
          env.messages, env.clock,    env.log_undo, env.media, env.loader,
          env.undo_target, env.new_name_collisions};
}

void ShowCancelled(const RenameRunEnv& env) {
  env.interaction.ShowMessage({std::string(env.messages.Text("export.canceled_title")),
                               std::string(env.messages.Text("export.canceled_text")), Buttons::kOk,
                               MessageIcon::kExclamation, Topic::kNotice});
}

void ShowFailure(ToolJob& job, const RenameRunEnv& env, const std::string& what) {
  job.LogTool(env.messages.Text("export.text_window_title"), what);
  env.interaction.ShowMessage({std::string(env.messages.Text("run.title_error")), what,
                               Buttons::kOk, MessageIcon::kCritical, Topic::kNotice});
}

}  // namespace

TextExportResult ExportListText(const RenameRunEnv& env, const TextExportChoices& choices) {
  TextExportResult out;
  const auto started = std::chrono::steady_clock::now();
  FileList walked;
  walked.set_date_format(env.list.date_format());
  ExportSource source = ChooseRows(env, choices, walked);
  // A job over a list of its own (the subfolders read anew) names its files
  // from that list.
  const RenameRunEnv job_env = EnvWithList(env, *source.list);
  ToolJob job(job_env, source.rows);
  ExportLines lines;
  if (!lines.ok()) {
    ShowFailure(job, env, lines.path() + ": " + lines.error().description);
    job.Refused();
    out.result = job.result();
    return out;
  }
  const std::string delimiter = choices.DelimiterText();
  lines.Add(HeaderLine(env, choices));
  ExportCells cells(*source.list, choices.columns, env.messages);
  const std::string total = std::to_string(source.rows.size());
  std::optional<std::string> folder_shown;
  for (std::size_t i = 0; i < source.rows.size(); ++i) {
    const std::size_t row = source.rows[i];
    if (!job.BeginFile(i)) break;
    const std::string folder(source.list->Folder(row));
    if (choices.include_subfolders && folder != folder_shown) {
      env.interaction.ShowStatus(StatusArea::kStatusLine,
                                 std::string(env.messages.Text("export.processing_subdir")) +
                                     " '" + EscapedLineText(folder) + "' ...");
      lines.Add(std::string(env.messages.Text("export.folder_marker")) + " " +
                EscapedLineText(folder));
      folder_shown = folder;
      ++out.folders;
    }
    const std::string name = EscapedLineText(source.list->Text(row, file_column::kName));
    env.interaction.ShowStatus(StatusArea::kStatusLine,
                               std::string(env.messages.Text("export.processing_file")) + " '" +
                                   name + "' [" + std::to_string(i + 1) + "/" + total + "] ...");
    std::vector<std::string> texts = cells.Cells(row);
    for (std::string& text : texts) text = EscapedLineText(text);
    lines.Add(Join(texts, delimiter));
    if (cells.IsFolder(row)) {
      ++out.folders;
    } else {
      ++out.files;
    }
    job.Done();
    job.EndFile(i);
  }
  if (choices.date_time || choices.number_of_files) lines.Add("");
  if (choices.date_time) {
    const vb::DateTime now = env.clock.Now();
    lines.Add(vb::FormatDate(now, "Short Date") + " @ " + vb::FormatDate(now, "Long Time"));
  }
  if (choices.number_of_files) {
    lines.Add(std::string(env.messages.Text("filelist.files_count")) + std::to_string(out.files) +
              delimiter + std::string(env.messages.Text("export.folders_count")) +
              std::to_string(out.folders));
  }
  out.text = lines.ReadBack();
  if (job.result().cancelled) ShowCancelled(env);
  job.LogTool(env.messages.Text("export.text_window_title"),
              std::to_string(out.files) + std::string(env.messages.Text("filelist.log.files_in")) +
                  env.app.CurrentPath);
  job.Finish(false);
  out.result = job.result();
  out.title = std::string(env.messages.Text("export.text_window_title")) + " - " +
              std::to_string(out.files) + std::string(env.messages.Text("filelist.log.files_in")) +
              ElapsedText(std::chrono::steady_clock::now() - started);
  return out;
}

}  // namespace tarnwick
