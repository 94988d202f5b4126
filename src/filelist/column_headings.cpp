#include "filelist/column_headings.h"

#include "filelist/file_date_type.h"
#include "persist/option_store.h"
#include "shell/message_table.h"

namespace tarnwick {

std::array<std::string, file_column::kCount> ColumnHeadings(const OptionStore& options,
                                                            const MessageTable& messages) {
  namespace fc = file_column;
  std::array<std::string, fc::kCount> headings;
  headings[fc::kName] = messages.Text("filelist.column.name");
  headings[fc::kSize] = messages.Text("report.column_size");
  headings[fc::kType] = messages.Text("filelist.column.type");
  headings[fc::kDate] = FileDateHeading(options, messages);
  headings[fc::kAttributes] = messages.Text("filelist.column.attributes");
  headings[fc::kPath] = messages.Text("report.column_path");
  headings[fc::kMediaInfo] = messages.Text("filelist.column.mediainfo");
  headings[fc::kFolderName] = messages.Text("filelist.column.foldername");
  headings[fc::kExifDate] = messages.Text("filelist.column.jpeg_exif_date");
  return headings;
}

}  // namespace tarnwick
