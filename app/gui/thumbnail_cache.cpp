#include "thumbnail_cache.h"

#include <QImage>
#include <QImageReader>
#include <QPixmap>
#include <QPointer>

namespace tarnwick::gui {
namespace {

constexpr std::size_t kKept = 4000;

// Reads only as much of the picture as the small size needs (JPEG decodes
// at a fraction of its size).
QImage ReadSmall(const QString& path) {
  QImageReader reader(path);
  reader.setAutoTransform(true);
  const QSize full = reader.size();
  if (full.isValid()) {
    reader.setScaledSize(full.scaled(ThumbnailCache::kSize, ThumbnailCache::kSize,
                                     Qt::KeepAspectRatio));
  }
  QImage image = reader.read();
  if (!image.isNull() && (image.width() > ThumbnailCache::kSize ||
                          image.height() > ThumbnailCache::kSize)) {
    image = image.scaled(ThumbnailCache::kSize, ThumbnailCache::kSize, Qt::KeepAspectRatio,
                         Qt::SmoothTransformation);
  }
  return image;
}

}  // namespace

ThumbnailCache::ThumbnailCache(QObject* parent) : QObject(parent) { pool_.setMaxThreadCount(2); }

ThumbnailCache::~ThumbnailCache() {
  pool_.clear();
  pool_.waitForDone();
}

bool ThumbnailCache::HasThumbnail(const QString& name) {
  return name.endsWith(".jpg", Qt::CaseInsensitive) || name.endsWith(".jpeg", Qt::CaseInsensitive) ||
         name.endsWith(".png", Qt::CaseInsensitive);
}

QIcon ThumbnailCache::Find(const QString& path) {
  if (const auto found = icons_.constFind(path); found != icons_.constEnd()) return *found;
  if (pending_.contains(path)) return {};
  pending_.insert(path);
  QPointer<ThumbnailCache> self(this);
  pool_.start([self, path] {
    const QImage image = ReadSmall(path);
    QMetaObject::invokeMethod(
        self.data(),
        [self, path, image] {
          if (self) self->Store(path, image);
        },
        Qt::QueuedConnection);
  });
  return {};
}

void ThumbnailCache::Store(const QString& path, const QImage& image) {
  pending_.remove(path);
  // A picture that cannot be read keeps its type's icon: an empty entry.
  icons_.insert(path, image.isNull() ? QIcon() : QIcon(QPixmap::fromImage(image)));
  order_.push_back(path);
  while (order_.size() > kKept) {
    icons_.remove(order_.front());
    order_.pop_front();
  }
  emit Ready(path);
}

void ThumbnailCache::WaitForAll() { pool_.waitForDone(); }

}  // namespace tarnwick::gui
