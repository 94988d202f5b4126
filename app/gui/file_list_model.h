#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QIcon>
#include <array>
#include <string>

#include "core/new_name_preview.h"
#include "thumbnail_cache.h"
#include "filelist/file_list.h"

namespace tarnwick::gui {

// The list `lvwFiles` as a Qt model over the core's FileList: no copy of the
// rows, texts built when the view asks for them. The row count the view sees
// changes only at Refresh, so a fill or a run may change the list underneath
// while the view keeps painting (rows beyond the list read as empty).
// Column 11 is the "New name" column, read from a NewNamePreview.
class FileListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  static constexpr int kNewNameColumn = file_column::kCount;

  FileListModel(const FileList& list, const NewNamePreview& preview, QObject* parent = nullptr);

  void SetHeadings(const std::array<std::string, file_column::kCount>& headings,
                   const std::string& new_name_heading);
  // The view takes the list's present rows.
  void Refresh();
  // The "New name" column changed for the rows from `first` to `last`.
  void NewNamesChanged(int first, int last);
  // Gives the names a file icon, for the symbols view.
  // What the name column shows beside the name: nothing, the desktop's icon
  // of the file's type, or (Symbols) a small picture of JPEG and PNG files,
  // made in the background, and the type's icon for the rest.
  enum class Icons { kNone, kTypes, kThumbnails };
  void SetIcons(Icons icons);
  Icons icons() const { return icons_; }
  ThumbnailCache& thumbnails() { return thumbnails_; }
  // `ShowTooltips`: a row's tooltip tells its file's path, size and date.
  void SetFileTooltips(bool shown) { file_tooltips_ = shown; }
  // The tooltip of a new name that collides.
  void SetCollisionTip(const QString& tip) { collision_tip_ = tip; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const FileList& list_;
  const NewNamePreview& preview_;
  int shown_rows_ = 0;
  std::array<QString, file_column::kCount + 1> headings_;
  QIcon TypeIcon(const std::string& name) const;
  QIcon NameIcon(std::size_t row) const;
  void ThumbnailReady(const QString& path);

  Icons icons_ = Icons::kNone;
  mutable QHash<QString, QIcon> type_icons_;  // by lower-case extension
  mutable ThumbnailCache thumbnails_;
  mutable QHash<QString, int> thumbnail_rows_;
  bool file_tooltips_ = true;
  QString collision_tip_;
};

}  // namespace tarnwick::gui
