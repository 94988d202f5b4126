// `ViewFolder`: the rows of one folder's records.
#include "base/path_text.h"
#include "base/text.h"
#include "filelist/attribute_text.h"
#include "filelist/file_date_type.h"
#include "filelist/list_date_text.h"
#include "filelist/list_loader.h"
#include "filelist/media_source.h"
#include "persist/option_store.h"
#include "platform/file_times.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kOptions = "Options";

// How often the sample frame shows the count of rows, by number of records.
std::size_t StatusInterval(std::size_t records) {
  if (records < 21) return 1;
  if (records < 101) return 10;
  if (records < 251) return 25;
  if (records < 501) return 50;
  if (records <= 750) return 75;
  if (records < 1001) return 100;
  return 150;
}

// What one folder's rows share.
struct FolderView {
  std::string folder;
  std::uint32_t folder_index = 0;
  FileDateKind date_kind = FileDateKind::kLastWrite;
  bool media_info = false;  // MP3WAVLength
  bool names_only = false;  // LoadOnlyFileName
};

bool IsJpeg(std::string_view extension) { return extension == "jpg" || extension == "jpeg"; }

void FillDate(const FileRecord& record, FileDateKind kind, FileRow& row) {
  if (kind == FileDateKind::kLastWrite) {
    row.date = record.last_write;
    row.has_date = true;
    return;
  }
  // Kept: a link whose target is gone has no date but its own last write.
  if (record.dangling) return;
  row.date = kind == FileDateKind::kLastAccess ? record.last_access : record.created;
  row.has_date = true;
}

void AddRow(FileList& list, const FolderView& view, const FileRecord& record,
            FileRowMediaSource& media) {
  FileRow row;
  row.name = record.name;
  row.size = record.size;
  row.attributes = record.attributes;
  row.folder = view.folder_index;
  row.name_only = view.names_only;
  row.device = record.device;
  row.inode = record.inode;
  const std::string path = JoinPath(view.folder, record.name);
  FillDate(record, view.date_kind, row);
  if (!view.names_only) {
    row.type = list.InternType(*record.type_text);
    if (view.media_info) row.media_info = list.AddMediaText(media.MediaInfoText(path));
    if (IsJpeg(std::string_view(record.type_key).substr(1))) {
      if (const auto exif = media.ExifDate(path)) {
        row.exif_date = list.AddMediaText(FormatListDate(*exif, list.date_format()));
      }
    }
  }
  list.Append(std::move(row));
}

}  // namespace

bool FileListLoader::ViewFolder(FileList& list, const std::string& folder, const FolderRead& read) {
  Interaction& ui = context_.interaction;
  if (!read.opened) {
    extensions_.AddAll();
    list.Clear();
    return false;
  }
  FolderView view;
  view.folder = folder;
  view.folder_index = list.AddFolder(folder);
  view.date_kind = ReadFileDateKind(context_.options);
  view.media_info = context_.options.GetOption("MP3WAVLength", kOptions, "0") == "1";
  view.names_only = context_.options.GetOption("LoadOnlyFileName", kOptions, "0") == "1";
  const ExtensionFilter filter(context_.state.CurrentFilter);
  const std::size_t total = read.records.size();
  const std::size_t interval = StatusInterval(total);
  const std::string status =
      std::string(context_.messages.Text("filelist.wait_reading_directory")) + " '" +
      EnsureTrailingSeparator(folder) + "' [";
  const std::string sample = std::string(context_.messages.Text("run.please_wait")) + " " +
                             std::string(context_.messages.Text("filelist.files_count"));
  list.Reserve(list.size() + total);
  for (std::size_t i = 0; i < total; ++i) {
    ui.Yield();
    ui.ShowProgress(static_cast<std::int64_t>(i),
                    static_cast<std::int64_t>(total > 2 ? total - 1 : 1));
    ui.ShowStatus(StatusArea::kStatusLine,
                  status + std::to_string(i + 1) + "/" + std::to_string(total) + "]");
    if (i % interval == 0) {
      ui.ShowStatus(StatusArea::kSampleFrame,
                    sample + std::to_string(list.size()) + "  [" + std::to_string(total) + "]");
    }
    const FileRecord& record = read.records[i];
    const std::string_view extension = std::string_view(record.type_key).substr(1);
    if (!record.folder && !record.type_key.empty() && filter.Matches(extension) &&
        RecordVisible(record.attributes, context_.state.ShowSystemFlag != 0,
                      context_.state.ShowHiddenFlag != 0)) {
      AddRow(list, view, record, context_.media);
      extensions_.AddExtension(extension);
    }
    if (TestCancel()) {
      context_.log.WriteLogFileTool(context_.messages.Text("filelist.log.view_folder_subject"),
                                    context_.messages.Text("filelist.log.user_terminated_fill"));
      break;
    }
  }
  extensions_.AddAll();
  return true;
}

}  // namespace tarnwick
