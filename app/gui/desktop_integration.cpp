#include "desktop_integration.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

#include "qt_text.h"

namespace tarnwick::gui {
namespace {

QString DataHome() {
  const QByteArray data = qgetenv("XDG_DATA_HOME");
  return data.isEmpty() ? QDir::homePath() + "/.local/share" : QString::fromLocal8Bit(data);
}

QString ConfigHome() {
  const QByteArray config = qgetenv("XDG_CONFIG_HOME");
  return config.isEmpty() ? QDir::homePath() + "/.config" : QString::fromLocal8Bit(config);
}

QString ApplicationsFolder() { return DataHome() + "/applications"; }
QString MimeFolder() { return DataHome() + "/mime"; }

QString ProgramPath() {
  const QString program = QCoreApplication::applicationFilePath();
  return program.isEmpty() ? QString("tarnwick") : program;
}

// Writes the whole file or leaves the old one as it was.
bool WriteWholeFile(const QString& path, const QString& text) {
  if (!QDir().mkpath(QFileInfo(path).absolutePath())) return false;
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  file.write(text.toUtf8());
  return file.commit();
}

QString XmlEscaped(const QString& text) { return text.toHtmlEscaped(); }

// Starts a tool without waiting for it; nothing when it is not installed.
void StartDetached(const QString& tool, const QStringList& arguments) {
  const QString path = QStandardPaths::findExecutable(tool);
  if (!path.isEmpty()) QProcess::startDetached(path, arguments);
}

}  // namespace

std::string FolderActionPath() { return S(ApplicationsFolder() + "/tarnwick-folder.desktop"); }

bool SetFolderAction(bool installed, const std::string& caption) {
  const QString path = Q(FolderActionPath());
  if (!installed) return !QFile::exists(path) || QFile::remove(path);
  if (!QDir().mkpath(ApplicationsFolder())) return false;
  const QString program = ProgramPath();
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) return false;
  const QString entry = "[Desktop Entry]\nType=Application\nName=" + Q(caption) + "\nExec=\"" +
                        program +
                        "\" %f\nIcon=tarnwick\nTerminal=false\n"
                        "NoDisplay=true\nMimeType=inode/directory;\n";
  file.write(entry.toUtf8());
  return file.commit();
}

std::string AutostartPath() { return S(ConfigHome() + "/autostart/tarnwick.desktop"); }

bool SetAutostart(bool on) {
  const QString path = Q(AutostartPath());
  if (!on) return !QFile::exists(path) || QFile::remove(path);
  return WriteWholeFile(path, "[Desktop Entry]\nType=Application\nName=Tarnwick\nExec=\"" +
                                  ProgramPath() +
                                  "\"\nIcon=tarnwick\nTerminal=false\n"
                                  "X-GNOME-Autostart-enabled=true\n");
}

std::string SettingsMimeTypePath() { return S(MimeFolder() + "/packages/tarnwick-settings.xml"); }

std::string ProgramDesktopFilePath() { return S(ApplicationsFolder() + "/tarnwick.desktop"); }

bool RegisterSettingsFileType(const std::string& type_name, bool refresh_caches) {
  const QString type = kSettingsMimeType;
  const QString mime =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
      "  <mime-type type=\"" +
      type + "\">\n    <comment>" + XmlEscaped(Q(type_name)) +
      "</comment>\n    <glob pattern=\"*.twr\"/>\n  </mime-type>\n</mime-info>\n";
  const QString entry = "[Desktop Entry]\nType=Application\nName=Tarnwick\nExec=\"" +
                        ProgramPath() +
                        "\" %f\nIcon=tarnwick\nTerminal=false\nCategories=Utility;\n"
                        "MimeType=" +
                        type + ";\n";
  if (!WriteWholeFile(Q(SettingsMimeTypePath()), mime)) return false;
  if (!WriteWholeFile(Q(ProgramDesktopFilePath()), entry)) return false;
  if (refresh_caches) {
    StartDetached("update-mime-database", {MimeFolder()});
    StartDetached("update-desktop-database", {ApplicationsFolder()});
  }
  return true;
}

bool OpenWithDesktop(const std::string& path) {
  if (path.empty()) return false;
  return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path)));
}

}  // namespace tarnwick::gui
