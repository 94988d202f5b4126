#include "file_list_model.h"

#include <QApplication>
#include <QBrush>
#include <QFont>
#include <QMimeDatabase>
#include <QStyle>

#include "qt_text.h"

namespace tarnwick::gui {

FileListModel::FileListModel(const FileList& list, const NewNamePreview& preview, QObject* parent)
    : QAbstractTableModel(parent), list_(list), preview_(preview) {
  connect(&thumbnails_, &ThumbnailCache::Ready, this, &FileListModel::ThumbnailReady);
}

void FileListModel::SetHeadings(const std::array<std::string, file_column::kCount>& headings,
                                const std::string& new_name_heading) {
  for (int i = 0; i < file_column::kCount; ++i) headings_[i] = Q(headings[i]);
  headings_[kNewNameColumn] = Q(new_name_heading);
  emit headerDataChanged(Qt::Horizontal, 0, kNewNameColumn);
}

void FileListModel::Refresh() {
  beginResetModel();
  shown_rows_ = static_cast<int>(list_.size());
  endResetModel();
}

void FileListModel::NewNamesChanged(int first, int last) {
  if (shown_rows_ == 0 || first > last) return;
  emit dataChanged(index(first, kNewNameColumn), index(last, kNewNameColumn));
}

void FileListModel::SetIcons(Icons icons) {
  if (icons_ == icons) return;
  icons_ = icons;
  if (shown_rows_ > 0) emit dataChanged(index(0, 0), index(shown_rows_ - 1, 0));
}

int FileListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shown_rows_;
}

int FileListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kNewNameColumn + 1;
}

QVariant FileListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto row = static_cast<std::size_t>(index.row());
  const int column = index.column();
  if (column == kNewNameColumn) {
    const NewNameRow* entry = preview_.Find(row);
    if (entry == nullptr) return {};
    if (role == Qt::DisplayRole) return Q(entry->name);
    if (role == Qt::ForegroundRole && entry->collides) return QBrush(Qt::red);
    // The red text gives way to the selection's colours; the sign stays.
    if (role == Qt::DecorationRole && entry->collides) {
      return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    }
    if (role == Qt::ToolTipRole && entry->collides) return collision_tip_;
    return {};
  }
  if (role == Qt::DisplayRole) return Q(list_.Text(row, column));
  if (role == Qt::ToolTipRole && file_tooltips_) {
    return Q(list_.Path(row)) + "\n" + Q(list_.Text(row, file_column::kSize)) + "    " +
           Q(list_.Text(row, file_column::kDate));
  }
  if (role == Qt::DecorationRole && icons_ != Icons::kNone && column == file_column::kName) {
    return NameIcon(row);
  }
  if (role == Qt::TextAlignmentRole && column == file_column::kSize) {
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  }
  return {};
}

QIcon FileListModel::TypeIcon(const std::string& name) const {
  const QString file = Q(name);
  const qsizetype dot = file.lastIndexOf('.');
  const QString extension = dot < 0 ? QString() : file.mid(dot + 1).toLower();
  if (const auto found = type_icons_.constFind(extension); found != type_icons_.constEnd()) {
    return *found;
  }
  static const QMimeDatabase database;
  const QMimeType type = database.mimeTypeForFile(file, QMimeDatabase::MatchExtension);
  QIcon icon = QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName()));
  if (icon.isNull()) icon = QApplication::style()->standardIcon(QStyle::SP_FileIcon);
  type_icons_.insert(extension, icon);
  return icon;
}

QIcon FileListModel::NameIcon(std::size_t row) const {
  const std::string name = list_.Text(row, file_column::kName);
  if (icons_ == Icons::kThumbnails && ThumbnailCache::HasThumbnail(Q(name))) {
    const QString path = Q(list_.Path(row));
    const QIcon picture = thumbnails_.Find(path);
    if (!picture.isNull()) return picture;
    thumbnail_rows_.insert(path, static_cast<int>(row));
  }
  return TypeIcon(name);
}

// A picture made in the background: its row is drawn again, if the row
// still shows that file.
void FileListModel::ThumbnailReady(const QString& path) {
  const auto found = thumbnail_rows_.constFind(path);
  if (found == thumbnail_rows_.constEnd()) return;
  const int row = *found;
  thumbnail_rows_.erase(found);
  if (row >= shown_rows_ || Q(list_.Path(static_cast<std::size_t>(row))) != path) return;
  emit dataChanged(index(row, 0), index(row, 0), {Qt::DecorationRole});
}

QVariant FileListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  if (section < 0 || section > kNewNameColumn) return {};
  return headings_[section];
}

}  // namespace tarnwick::gui
