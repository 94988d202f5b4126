#include "desktop_integration.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>

#include "qt_text.h"

namespace tarnwick::gui {
namespace {

QString ApplicationsFolder() {
  const QByteArray data = qgetenv("XDG_DATA_HOME");
  const QString base = data.isEmpty() ? QDir::homePath() + "/.local/share" : QString(data);
  return base + "/applications";
}

}  // namespace

std::string FolderActionPath() { return S(ApplicationsFolder() + "/tarnwick-folder.desktop"); }

bool SetFolderAction(bool installed, const std::string& caption) {
  const QString path = Q(FolderActionPath());
  if (!installed) return !QFile::exists(path) || QFile::remove(path);
  if (!QDir().mkpath(ApplicationsFolder())) return false;
  QString program = QCoreApplication::applicationFilePath();
  if (program.isEmpty()) program = "tarnwick";
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) return false;
  const QString entry = "[Desktop Entry]\nType=Application\nName=" + Q(caption) + "\nExec=\"" +
                        program +
                        "\" %f\nIcon=tarnwick\nTerminal=false\n"
                        "NoDisplay=true\nMimeType=inode/directory;\n";
  file.write(entry.toUtf8());
  return file.commit();
}

}  // namespace tarnwick::gui
