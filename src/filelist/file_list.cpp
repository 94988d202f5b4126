#include "filelist/file_list.h"

#include "base/path_text.h"
#include "base/text.h"
#include "filelist/attribute_text.h"
#include "filelist/file_size_text.h"
#include "filelist/list_date_text.h"

namespace tarnwick {

std::string FolderNameOf(std::string_view folder) {
  std::string last = LastPathElement(folder);
  return last.empty() ? std::string(folder) : last;
}

std::string FileList::Text(std::size_t row, int column) const {
  namespace fc = file_column;
  if (!Valid(row)) return {};
  const FileRow& r = rows_[row];
  switch (column) {
    case fc::kName:
      return r.name;
    case fc::kSize:
      return FormatFileSize(r.size, language_);
    case fc::kType:
      return r.name_only ? std::string() : types_[r.type];
    case fc::kDate:
      return r.has_date ? FormatListDate(ToLocalDateTime(r.date), date_format_) : std::string();
    case fc::kAttributes:
      return r.name_only ? std::string() : AttributeText(r.attributes);
    case fc::kPath:
      return folders_[r.folder];
    case fc::kMediaInfo:
      return media_texts_[r.media_info];
    case fc::kFolderName:
      return r.name_only ? std::string() : FolderNameOf(folders_[r.folder]);
    case fc::kExifDate:
      return media_texts_[r.exif_date];
    case fc::kSizeBytes:
      return std::to_string(r.size);
    case fc::kExtension:
      return vb::LCase(ExtensionName(r.name));
    default:
      return {};
  }
}

std::string FileList::Path(std::size_t row) const {
  if (!Valid(row)) return {};
  return JoinPath(folders_[rows_[row].folder], rows_[row].name);
}

std::string_view FileList::Folder(std::size_t row) const {
  if (!Valid(row)) return {};
  return folders_[rows_[row].folder];
}

void FileList::Clear() {
  rows_.clear();
  folders_.clear();
  types_.assign(1, std::string());
  type_index_.clear();
  media_texts_.assign(1, std::string());
}

std::uint32_t FileList::AddFolder(std::string folder) {
  if (!folders_.empty() && folders_.back() == folder) {
    return static_cast<std::uint32_t>(folders_.size() - 1);
  }
  folders_.push_back(std::move(folder));
  return static_cast<std::uint32_t>(folders_.size() - 1);
}

std::uint32_t FileList::InternType(std::string_view type_text) {
  if (type_text.empty()) return 0;
  const auto found = type_index_.find(std::string(type_text));
  if (found != type_index_.end()) return found->second;
  const auto index = static_cast<std::uint32_t>(types_.size());
  types_.emplace_back(type_text);
  type_index_.emplace(types_.back(), index);
  return index;
}

std::uint32_t FileList::AddMediaText(std::string text) {
  if (text.empty()) return 0;
  media_texts_.push_back(std::move(text));
  return static_cast<std::uint32_t>(media_texts_.size() - 1);
}

std::size_t FileList::OverheadBytes() const {
  std::size_t bytes = sizeof(*this) + rows_.capacity() * sizeof(FileRow);
  for (const FileRow& r : rows_) {
    // A name that does not fit the string's own buffer lives on the heap.
    if (r.name.capacity() > std::string().capacity())
      bytes += r.name.capacity() + 1 - r.name.size();
  }
  for (const auto& table : {&folders_, &types_, &media_texts_}) {
    for (const std::string& text : *table) bytes += sizeof(std::string) + text.capacity();
  }
  // Each entry of the type index: its node, key and hash slot.
  bytes += type_index_.size() * (sizeof(std::string) + 2 * sizeof(void*) + 8) +
           type_index_.bucket_count() * sizeof(void*);
  return bytes;
}

}  // namespace tarnwick
