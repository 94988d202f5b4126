#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "filelist/file_row.h"
#include "filelist/name_order.h"
#include "shell/message_table.h"

namespace tarnwick {

// One column of a sort: the column index and the direction.
struct SortColumn {
  int column = file_column::kName;
  bool descending = false;
};

// The file list `lvwFiles` without a window: the rows in list order, their
// column texts, the selection, sorting and removal. Every run and every
// numbering walks the rows in this order.
//
// Rows keep facts, not texts: the folder, the type text and the media texts
// are shared through small tables, and a column text is built when it is
// asked for. Indices outside the list give empty texts and are otherwise
// ignored.
class FileList {
 public:
  std::size_t size() const { return rows_.size(); }
  bool empty() const { return rows_.empty(); }
  std::span<const FileRow> rows() const { return rows_; }

  // The text of a column (file_column::k...) of a row.
  std::string Text(std::size_t row, int column) const;
  // The absolute path of the row's file: the folder joined with the name.
  std::string Path(std::size_t row) const;
  // The absolute folder of the row (column 5).
  std::string_view Folder(std::size_t row) const;

  // --- Filling. Rows are valid until the next fill.
  // Removes every row and the shared tables; the last sort is remembered.
  void Clear();
  // The `DateFormat` the date columns of this fill are shown in.
  void set_date_format(std::string format) { date_format_ = std::move(format); }
  // The order of the name column's sort; without one, the user's locale
  // order without natural numbers.
  void set_name_order(std::shared_ptr<const NameOrder> order) { name_order_ = std::move(order); }
  const NameOrder& name_order() const;
  // The language of the size column's text.
  void set_language(Language language) { language_ = language; }
  const std::string& date_format() const { return date_format_; }
  std::uint32_t AddFolder(std::string folder);
  std::uint32_t InternType(std::string_view type_text);
  // A media or EXIF text for a row; 0 stands for the empty text.
  std::uint32_t AddMediaText(std::string text);
  void Append(FileRow row) { rows_.push_back(std::move(row)); }
  void Reserve(std::size_t rows) { rows_.reserve(rows); }

  // --- Selection (`SelectedCount`, `SelectedRows`).
  void Select(std::size_t row, bool selected = true);
  void SelectAll();
  void DeselectAll();
  void InvertSelection();
  bool IsSelected(std::size_t row) const;
  std::size_t SelectedCount() const;
  // The selected rows in list order.
  std::vector<std::size_t> SelectedRows() const;
  // The absolute paths of the selected rows, to find them again after a
  // refill.
  std::vector<std::string> SelectedPaths() const;
  // Selects exactly the rows whose path is in `paths` (rows not found are
  // gone from the folder). Returns how many rows it selected; with none,
  // the selection is left as it was.
  std::size_t SelectPaths(std::span<const std::string> paths);

  // Puts the rows in the order of `order`, a permutation of the row indices.
  void ReorderRows(std::span<const std::size_t> order);

  // --- Removal. Rows after a removed one move up; the order stays.
  void RemoveRows(std::span<const std::size_t> rows);
  // Returns how many rows went.
  std::size_t RemoveSelected();

  // --- Sorting (`MultiSortListView`): by the first column, ties by the next,
  // remaining ties keep their order. Sizes (1 and 9) sort by the number of
  // bytes, the date column by its time stamp, the name column in the name
  // order, the rest as texts without regard to case. An empty list of columns, or a column outside
  // 0 to 10, leaves the order. The columns are remembered for `RestoreSort`.
  void MultiSortListView(std::span<const SortColumn> columns);
  // Sorts by the last columns given, if any (after a fill).
  void RestoreSort();
  void ForgetSort() { sort_columns_.clear(); }
  std::span<const SortColumn> sort_columns() const { return sort_columns_; }

  // The bytes the list holds beyond its names' own characters.
  std::size_t OverheadBytes() const;

 private:
  bool Valid(std::size_t row) const { return row < rows_.size(); }
  // The order of two rows by a column other than the name (which sorts by
  // NameRanks).
  int CompareRows(const FileRow& a, const FileRow& b, int column) const;
  // Each row's place in name order, for a sort by the name column.
  std::vector<std::uint32_t> NameRanks() const;

  std::vector<FileRow> rows_;
  std::vector<std::string> folders_;
  std::vector<std::string> types_{std::string()};
  std::unordered_map<std::string, std::uint32_t> type_index_;
  std::vector<std::string> media_texts_{std::string()};
  std::string date_format_ = "dd.mm.yyyy";
  Language language_ = Language::kEnglish;
  std::vector<SortColumn> sort_columns_;
  std::shared_ptr<const NameOrder> name_order_;
};

// The last part of a folder's path (column 7); the whole path for the root.
std::string FolderNameOf(std::string_view folder);

}  // namespace tarnwick
