// Selection and removal of rows.
#include <algorithm>
#include <string_view>
#include <unordered_set>

#include "filelist/file_list.h"

namespace tarnwick {

void FileList::Select(std::size_t row, bool selected) {
  if (Valid(row)) rows_[row].selected = selected;
}

void FileList::SelectAll() {
  for (FileRow& r : rows_) r.selected = true;
}

void FileList::DeselectAll() {
  for (FileRow& r : rows_) r.selected = false;
}

void FileList::InvertSelection() {
  for (FileRow& r : rows_) r.selected = !r.selected;
}

bool FileList::IsSelected(std::size_t row) const { return Valid(row) && rows_[row].selected; }

std::size_t FileList::SelectedCount() const {
  return static_cast<std::size_t>(
      std::count_if(rows_.begin(), rows_.end(), [](const FileRow& r) { return r.selected; }));
}

std::vector<std::size_t> FileList::SelectedRows() const {
  std::vector<std::size_t> selected;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (rows_[i].selected) selected.push_back(i);
  }
  return selected;
}

std::vector<std::string> FileList::SelectedPaths() const {
  std::vector<std::string> paths;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (rows_[i].selected) paths.push_back(Path(i));
  }
  return paths;
}

std::size_t FileList::SelectPaths(std::span<const std::string> paths) {
  if (paths.empty()) return 0;
  const std::unordered_set<std::string_view> wanted(paths.begin(), paths.end());
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (wanted.contains(Path(i))) found.push_back(i);
  }
  if (found.empty()) return 0;
  DeselectAll();
  for (std::size_t row : found) rows_[row].selected = true;
  return found.size();
}

void FileList::ReorderRows(std::span<const std::size_t> order) {
  std::vector<FileRow> reordered;
  reordered.reserve(order.size());
  for (std::size_t row : order) {
    if (Valid(row)) reordered.push_back(std::move(rows_[row]));
  }
  rows_ = std::move(reordered);
}

void FileList::RemoveRows(std::span<const std::size_t> rows) {
  std::vector<bool> doomed(rows_.size(), false);
  for (std::size_t row : rows) {
    if (Valid(row)) doomed[row] = true;
  }
  std::size_t kept = 0;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (doomed[i]) continue;
    if (kept != i) rows_[kept] = std::move(rows_[i]);
    ++kept;
  }
  rows_.resize(kept);
}

std::size_t FileList::RemoveSelected() {
  const std::size_t before = rows_.size();
  std::erase_if(rows_, [](const FileRow& r) { return r.selected; });
  return before - rows_.size();
}

}  // namespace tarnwick
