// The start window, and folders, files and settings files dropped on the
// main window.
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QPainter>
#include <QSplashScreen>

#include "core/settings_file.h"
#include "main_window.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

QPixmap SplashPicture() {
  QPixmap picture(420, 220);
  picture.fill(QColor(0xf4, 0xf1, 0xe8));
  QPainter painter(&picture);
  painter.setPen(QColor(0x2e, 0x7d, 0x4f));
  QFont title = painter.font();
  title.setPointSize(28);
  title.setBold(true);
  painter.setFont(title);
  painter.drawText(QRect(0, 40, 420, 70), Qt::AlignCenter, "Tarnwick");
  QFont small = painter.font();
  small.setPointSize(10);
  small.setBold(false);
  painter.setFont(small);
  painter.setPen(QColor(0x4a, 0x5a, 0x6a));
  painter.drawText(QRect(0, 110, 420, 30), Qt::AlignCenter, "Oakhollow");
  painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
  return picture;
}

}  // namespace

void MainWindow::ShowSplash() {
  if (splash_ != nullptr) {
    splash_->show();
    return;
  }
  splash_ = new QSplashScreen(SplashPicture());
  splash_->show();
}

void MainWindow::CloseSplash() {
  if (splash_ == nullptr) return;
  splash_->close();
  splash_->deleteLater();
  splash_ = nullptr;
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls() && !app_.run_active) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const QList<QUrl> urls = event->mimeData()->urls();
  if (urls.isEmpty() || !urls.front().isLocalFile()) return;
  const QFileInfo dropped(urls.front().toLocalFile());
  event->acceptProposedAction();
  if (dropped.isDir()) {
    ShowFolder(dropped.absoluteFilePath());
    return;
  }
  if (dropped.suffix().compare(Q(kSettingsFileExtension), Qt::CaseInsensitive) == 0) {
    const LoadSettingsResult result =
        LoadSettingsFile(env_, S(dropped.absoluteFilePath()), settings_);
    if (result.outcome != LoadSettingsResult::Outcome::kLoaded) return;
    ShowSettings();
    app_.CurrentFilter = settings_.cboExtension;
    ShowFolder(Q(app_.CurrentPath));
    return;
  }
  // A file: its folder is shown and the file selected.
  ShowFolder(dropped.absolutePath());
  for (std::size_t row = 0; row < list_.size(); ++row) {
    if (Q(list_.rows()[row].name) != dropped.fileName()) continue;
    list_.DeselectAll();
    list_.Select(row);
    ListSelectionToView();
    break;
  }
}

}  // namespace tarnwick::gui
