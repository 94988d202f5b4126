// `MultiSortListView`: sorting the rows by columns.
#include <algorithm>
#include <numeric>

#include "base/path_text.h"
#include "filelist/attribute_text.h"
#include "filelist/file_list.h"
#include "filelist/name_order.h"

namespace tarnwick {
namespace {

template <typename T>
int CompareValues(const T& a, const T& b) {
  if (a < b) return -1;
  return b < a ? 1 : 0;
}

// The extension of a name without building a new text.
std::string_view ExtensionView(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  return dot == std::string_view::npos ? std::string_view() : name.substr(dot + 1);
}

std::string_view FolderNameView(std::string_view folder) {
  const std::size_t slash = folder.rfind('/');
  if (slash == std::string_view::npos || slash + 1 == folder.size()) return folder;
  return folder.substr(slash + 1);
}

bool SortableColumn(int column) { return column >= 0 && column < file_column::kCount; }

}  // namespace

int FileList::CompareRows(const FileRow& a, const FileRow& b, int column) const {
  namespace fc = file_column;
  switch (column) {
    case fc::kSize:
    case fc::kSizeBytes:
      return CompareValues(a.size, b.size);
    case fc::kType:
      return CompareText(a.name_only ? "" : types_[a.type], b.name_only ? "" : types_[b.type]);
    case fc::kDate:
      if (a.has_date != b.has_date) return a.has_date ? 1 : -1;
      return CompareValues(a.date, b.date);
    case fc::kAttributes:
      return CompareText(a.name_only ? "" : AttributeText(a.attributes),
                         b.name_only ? "" : AttributeText(b.attributes));
    case fc::kPath:
      return CompareText(folders_[a.folder], folders_[b.folder]);
    case fc::kMediaInfo:
      return CompareText(media_texts_[a.media_info], media_texts_[b.media_info]);
    case fc::kFolderName:
      return CompareText(a.name_only ? "" : FolderNameView(folders_[a.folder]),
                         b.name_only ? "" : FolderNameView(folders_[b.folder]));
    case fc::kExifDate:
      return CompareText(media_texts_[a.exif_date], media_texts_[b.exif_date]);
    case fc::kExtension:
      return CompareText(ExtensionView(a.name), ExtensionView(b.name));
    default:
      return 0;
  }
}

const NameOrder& FileList::name_order() const {
  if (name_order_) return *name_order_;
  static const NameOrder user_order;
  return user_order;
}

std::vector<std::uint32_t> FileList::NameRanks() const {
  std::vector<std::string_view> names;
  names.reserve(rows_.size());
  for (const FileRow& row : rows_) names.push_back(row.name);
  const std::vector<std::uint32_t> ranking = name_order().Ranking(names);
  std::vector<std::uint32_t> ranks(rows_.size());
  for (std::uint32_t place = 0; place < ranking.size(); ++place) ranks[ranking[place]] = place;
  return ranks;
}

void FileList::MultiSortListView(std::span<const SortColumn> columns) {
  if (columns.empty()) return;
  if (!std::all_of(columns.begin(), columns.end(),
                   [](const SortColumn& c) { return SortableColumn(c.column); })) {
    return;
  }
  sort_columns_.assign(columns.begin(), columns.end());
  // Collation keys are made once per row, not once per comparison.
  const bool by_name = std::any_of(columns.begin(), columns.end(), [](const SortColumn& c) {
    return c.column == file_column::kName;
  });
  const std::vector<std::uint32_t> name_ranks =
      by_name ? NameRanks() : std::vector<std::uint32_t>();
  std::vector<std::size_t> order(rows_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [&](std::size_t x, std::size_t y) {
    for (const SortColumn& c : sort_columns_) {
      const int result = c.column == file_column::kName
                             ? CompareValues(name_ranks[x], name_ranks[y])
                             : CompareRows(rows_[x], rows_[y], c.column);
      if (result != 0) return c.descending ? result > 0 : result < 0;
    }
    return false;
  });
  ReorderRows(order);
}

void FileList::RestoreSort() {
  if (sort_columns_.empty()) return;
  const std::vector<SortColumn> columns = sort_columns_;
  MultiSortListView(columns);
}

}  // namespace tarnwick
