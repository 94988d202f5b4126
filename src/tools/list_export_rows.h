#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tools/export_choices.h"

namespace tarnwick {

class FileList;
class MediaColumnSource;
class MessageTable;

// The cell texts of one row of an export, column by column as chosen; the
// share of the text and the XML export.
class ExportCells {
 public:
  ExportCells(const FileList& list, const ExportColumns& columns, const MessageTable& messages);
  ~ExportCells();

  // The texts of the chosen columns of `row`, in column order. The media
  // column is read from the file when the list holds no text for it.
  std::vector<std::string> Cells(std::size_t row);
  bool IsFolder(std::size_t row) const;

 private:
  const FileList& list_;
  ExportColumns columns_;
  std::string folder_type_;
  std::unique_ptr<MediaColumnSource> media_;
};

}  // namespace tarnwick
