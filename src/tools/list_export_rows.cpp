#include "tools/list_export_rows.h"

#include "filelist/file_list.h"
#include "filelist/media_column_source.h"
#include "platform/file_attributes.h"
#include "shell/message_table.h"

namespace tarnwick {

ExportCells::ExportCells(const FileList& list, const ExportColumns& columns,
                         const MessageTable& messages)
    : list_(list),
      columns_(columns),
      folder_type_(messages.Text("export.file_folder_type")) {
  if (columns_.chosen[file_column::kMediaInfo]) media_ = std::make_unique<MediaColumnSource>();
}

ExportCells::~ExportCells() = default;

bool ExportCells::IsFolder(std::size_t row) const {
  return row < list_.size() && (list_.rows()[row].attributes & file_attribute::kDirectory) != 0;
}

std::vector<std::string> ExportCells::Cells(std::size_t row) {
  std::vector<std::string> cells;
  for (int column = 0; column < static_cast<int>(columns_.chosen.size()); ++column) {
    if (!columns_.chosen[column]) continue;
    std::string text = list_.Text(row, column);
    if (column == file_column::kType && IsFolder(row)) text = folder_type_;
    if (column == file_column::kMediaInfo && text.empty() && media_ && !IsFolder(row)) {
      text = media_->MediaInfoText(list_.Path(row));
    }
    cells.push_back(std::move(text));
  }
  return cells;
}

}  // namespace tarnwick
