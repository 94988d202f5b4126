#include "filelist/list_loader.h"

#include <unistd.h>

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>

#include "base/path_text.h"
#include "base/text.h"
#include "persist/option_store.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kOptions = "Options";
// The attribute word of a folder that gives no rows of its own: hidden,
// system, directory.
constexpr std::uint32_t kSkippedFolderWord = 22;
// The source named in the box of a failed read.
constexpr std::string_view kErrorSource = "Tarnwick";

std::string WorkingFolder() {
  char buffer[4096];
  return ::getcwd(buffer, sizeof buffer) != nullptr ? std::string(buffer) : std::string("/");
}

// Status and yields thinned: every tenth entry below 100, then every fiftieth.
bool StatusDue(std::size_t count) { return count % (count < 100 ? 10 : 50) == 0; }

bool HoldsFile(const FolderRead& read) {
  return std::any_of(read.records.begin(), read.records.end(),
                     [](const FileRecord& r) { return !r.folder; });
}

}  // namespace

void TakeViewFlags(const OptionStore& options, AppState& state) {
  state.ShowSystemFlag = options.GetOption("ShowSystemFiles", kOptions, "0") == "1" ? 1 : 0;
  state.ShowHiddenFlag = options.GetOption("ShowHiddenFiles", kOptions, "0") == "1" ? 1 : 0;
}

bool FileListLoader::TestCancel() {
  const bool pressed = context_.interaction.PollCancel() || key_still_down_;
  key_still_down_ = false;
  if (pressed) context_.state.CancelRun = true;
  if (context_.state.CancelRun) stopped_ = true;
  return context_.state.CancelRun;
}

FolderRead FileListLoader::GetFiles(const std::string& folder) {
  const std::string status =
      std::string(context_.messages.Text("filelist.wait_reading_directory")) + " '" +
      EnsureTrailingSeparator(folder) + "' [";
  FolderRead read = ReadFolder(folder, types_, *name_order_, [&](std::size_t count) {
    if (StatusDue(count)) {
      context_.interaction.ShowStatus(StatusArea::kStatusLine,
                                      status + std::to_string(count) + "]");
      context_.interaction.Yield();
    }
    return TestCancel();
  });
  if (read.stopped) {
    // Kept: a read stopped by Esc clears the request and hands on what it has.
    context_.state.CancelRun = false;
    key_still_down_ = true;
  }
  if (!read.error.ok()) {
    ReportReadError(folder, read);
    read.opened = false;
  }
  return read;
}

void FileListLoader::ReportReadError(const std::string& folder, const FolderRead& read) {
  const std::string number = std::to_string(read.error.number);
  MessageBoxRequest box;
  box.title = number + ": " + read.error.description;
  box.text = "GetFiles\r\n\r\n" + std::string(context_.messages.Text("filelist.an_error_occured")) +
             "\r\n\r\n" + EnsureTrailingSeparator(folder) + ";*.*;" + read.error_entry + ";" +
             std::string(kErrorSource);
  box.icon = MessageIcon::kExclamation;
  context_.interaction.ShowMessage(box);
  context_.log.WriteLogFileHeader();
  context_.log.WriteLogFileTool(
      context_.messages.Text("filelist.log.reading_files_subject"),
      std::string(context_.messages.Text("filelist.log.error_reading_files")) + number + ": " +
          read.error.description);
}

void FileListLoader::BeginFill(FileList& list) {
  list.Clear();
  list.set_language(context_.messages.language());
  list.set_date_format(vb::LCase(context_.options.GetOption("DateFormat", kOptions, "dd.mm.yyyy")));
  const bool natural = context_.options.GetOption("NaturalNameOrder", kOptions, "0") == "1";
  if (!name_order_ || name_order_->natural_numbers() != natural) {
    name_order_ = std::make_shared<const NameOrder>(NameOrderChoice{.natural_numbers = natural, .locale = {}});
  }
  list.set_name_order(name_order_);
  extensions_.Clear();
}

bool FileListLoader::FillListView(FileList& list, const FillRequest& request) {
  stopped_ = false;
  // A cancel left over from earlier work (a question answered No, an Esc
  // before the fill) must not stop this fill at its first file.
  context_.state.CancelRun = false;
  BeginFill(list);
  key_still_down_ = false;
  const std::string folder = AbsolutePathName(request.folder, WorkingFolder());
  const FolderRead top = GetFiles(folder);
  folder_error_ = top.opened ? FileStatus::Success() : top.open_error;
  const bool viewed = ViewFolder(list, folder, top);
  if (viewed && !context_.state.CancelRun && request.include_subfolders) {
    walk_path_.assign(1, {top.device, top.inode});
    WalkSubfolders(list, folder, top);
  }
  context_.state.CancelRun = false;
  key_still_down_ = false;
  list.RestoreSort();
  return stopped_;
}

void FileListLoader::WalkSubfolders(FileList& list, const std::string& folder,
                                    const FolderRead& read) {
  for (const FileRecord& record : read.records) {
    if (!record.folder) continue;
    if (context_.state.CancelRun) return;
    // A link back to a folder on the way down would never end.
    const std::pair<std::uint64_t, std::uint64_t> id{record.device, record.inode};
    if (std::find(walk_path_.begin(), walk_path_.end(), id) != walk_path_.end()) continue;
    const std::string subfolder = JoinPath(folder, record.name);
    const FolderRead sub = GetFiles(subfolder);
    if (!sub.opened) continue;
    if (record.attributes != kSkippedFolderWord && HoldsFile(sub)) {
      ViewFolder(list, subfolder, sub);
    }
    if (TestCancel()) return;
    walk_path_.push_back(id);
    WalkSubfolders(list, subfolder, sub);
    walk_path_.pop_back();
  }
}

std::vector<std::string> FileListLoader::FillListWithFiles(FileList& list,
                                                           std::span<const std::string> paths) {
  BeginFill(list);
  std::vector<std::string> absolute;
  std::vector<std::string> folders;  // in the order first named
  std::map<std::string, std::set<std::string>> wanted;
  for (const std::string& path : paths) {
    absolute.push_back(AbsolutePathName(path, WorkingFolder()));
    const std::string folder = ParentFolder(absolute.back());
    if (!wanted.contains(folder)) folders.push_back(folder);
    wanted[folder].insert(LastPathElement(absolute.back()));
  }
  for (const std::string& folder : folders) {
    FolderRead read = GetFiles(folder);
    if (!read.opened) continue;
    const std::set<std::string>& names = wanted[folder];
    std::erase_if(read.records, [&](const FileRecord& r) { return !names.contains(r.name); });
    ViewFolder(list, folder, read);
  }
  std::unordered_map<std::string, std::size_t> row_of;
  for (std::size_t row = 0; row < list.size(); ++row) row_of.emplace(list.Path(row), row);
  std::vector<std::size_t> order;
  std::vector<std::string> missing;
  for (std::size_t i = 0; i < absolute.size(); ++i) {
    const auto found = row_of.find(absolute[i]);
    if (found == row_of.end()) {
      missing.push_back(paths[i]);
      continue;
    }
    order.push_back(found->second);
    row_of.erase(found);  // a file named twice is one row
  }
  list.ReorderRows(order);
  return missing;
}

}  // namespace tarnwick
