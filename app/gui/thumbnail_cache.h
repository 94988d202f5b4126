#pragma once

#include <QHash>
#include <QIcon>
#include <QObject>
#include <QSet>
#include <QThreadPool>
#include <deque>

namespace tarnwick::gui {

// Small pictures of JPEG and PNG files for the Symbols view, read in the
// background (never while the list scrolls) and kept for the most recently
// asked files. Ready(path) says when one is there.
class ThumbnailCache : public QObject {
  Q_OBJECT

 public:
  static constexpr int kSize = 64;

  explicit ThumbnailCache(QObject* parent = nullptr);
  ~ThumbnailCache() override;

  // True for the names whose pictures are made (.jpg, .jpeg, .png).
  static bool HasThumbnail(const QString& name);
  // The picture of `path` when it is made; otherwise a null icon, and the
  // picture is asked for.
  QIcon Find(const QString& path);
  // Waits for every picture asked for (tests; the end of the program).
  void WaitForAll();

 signals:
  void Ready(const QString& path);

 private:
  void Store(const QString& path, const QImage& image);

  QThreadPool pool_;
  QHash<QString, QIcon> icons_;
  std::deque<QString> order_;  // oldest first, for dropping
  QSet<QString> pending_;
};

}  // namespace tarnwick::gui
