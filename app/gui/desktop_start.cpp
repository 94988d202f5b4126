#include "desktop_start.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QPixmap>
#include <QTableView>
#include <QTranslator>
#include <chrono>

#include "dialog_screenshot.h"
#include "base/path_text.h"
#include "main_window.h"
#include "playlist_dialog.h"
#include "persist/option_store.h"
#include "qt_text.h"
#include "startup/startup.h"

namespace tarnwick::gui {
namespace {

// The playlist file a command line of one argument names, made absolute;
// empty for anything else.
std::string PlaylistArgument(std::span<const std::string> args) {
  if (args.size() != 1 || !IsPlaylistName(args[0])) return {};
  const QFileInfo file(Q(args[0]));
  if (!file.isFile()) return {};
  return S(file.absoluteFilePath());
}

}  // namespace

// Start-up of the window with `arguments` as the command line. False when
// start-up ended the process.
bool StartWindow(MainWindow& window, std::vector<std::string> arguments, std::ostream& err) {
  window.app().LoadingFlag = true;
  const StartupResult result = RunStartup(window.env(), window.settings(), window.host(),
                                          MachineStartupInput(std::move(arguments)));
  window.app().LoadingFlag = false;
  window.ShowSettings();
  if (result.outcome == StartupResult::Outcome::kReady) return true;
  if (!result.error.empty()) err << "tarnwick: start-up failed: " << result.error << '\n';
  return false;
}

// The language the options name, read once at start: a switch in the
// options applies from the next start.
Language ChosenLanguage(const OptionStore& options) {
  return LanguageChoice(options.GetOption("Language", "Options", ""));
}

void InstallQtTranslations(QApplication& application, Language language) {
  if (language != Language::kGerman) return;
  // Qt's own words (Yes, No, the file dialogues, standard buttons) in German.
  auto* translator = new QTranslator(&application);
  if (translator->load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(translator);
  }
}

namespace {

// Whether Qt can show a window: a display, or a platform chosen by hand.
bool HasDisplay() {
  return !qEnvironmentVariableIsEmpty("DISPLAY") ||
         !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
         !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

}  // namespace

int RunDesktop(int& argc, char** argv, std::span<const std::string> args, std::ostream& err) {
  if (!HasDisplay()) {
    err << "tarnwick: " << MessageTable::Get(SystemLanguage()).Text("startup.no_desktop_window")
        << '\n';
    return 2;
  }
  QApplication application(argc, argv);
  QApplication::setApplicationName("Tarnwick");
  QApplication::setOrganizationName("Oakhollow");
  OptionStore options = OptionStore::ForCurrentUser();
  InstallQtTranslations(application, ChosenLanguage(options));
  // "Use current Windows style": the desktop's own style; off, Qt's Fusion.
  if (options.GetOption("UseWindowsStyle", "Options", "1") == "0") QApplication::setStyle("Fusion");
  MainWindow window(options, MessageTable::Get(ChosenLanguage(options)));
  // "tarnwick PLAYLIST.m3u": the playlist's folder in the window, the
  // playlist in the editor.
  const std::string playlist = PlaylistArgument(args);
  std::vector<std::string> arguments(args.begin(), args.end());
  if (!playlist.empty()) arguments = {ParentFolder(playlist)};
  if (!StartWindow(window, std::move(arguments), err)) return 2;
  window.show();
  if (!playlist.empty()) window.OpenPlaylistEditor(playlist);
  return QApplication::exec();
}

int RunScreenshot(int& argc, char** argv, std::span<const std::string> args, std::ostream& err) {
  if (args.size() > 2 && args[2] == "--dialog") return RunDialogScreenshot(argc, argv, args, err);
  if (args.size() < 2) {
    err << "usage: tarnwick --screenshot OUT.png [FOLDER] [--size WxH]\n"
           "       tarnwick --screenshot OUT.png --dialog NAME [FILE] [--size WxH]\n";
    return 2;
  }
  const QString out = Q(args[1]);
  std::vector<std::string> folder;
  QSize size(1200, 800);
  for (std::size_t i = 2; i < args.size(); ++i) {
    if (args[i] == "--size" && i + 1 < args.size()) {
      const QStringList parts = Q(args[++i]).split('x');
      if (parts.size() == 2) size = QSize(parts[0].toInt(), parts[1].toInt());
    } else {
      folder = {args[i]};
    }
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  OptionStore options = OptionStore::ForCurrentUser();
  InstallQtTranslations(application, ChosenLanguage(options));
  MainWindow window(options, MessageTable::Get(ChosenLanguage(options)));
  window.resize(size);
  QElapsedTimer timer;
  timer.start();
  if (!StartWindow(window, folder, err)) return 2;
  const qint64 fill_ms = timer.elapsed();
  timer.restart();
  window.SortBy(0, true);
  window.SortBy(0, false);
  const qint64 sort_ms = timer.elapsed();
  timer.restart();
  window.SelectAll();
  const qint64 select_ms = timer.elapsed();
  timer.restart();
  window.FinishNewNames();
  const qint64 new_names_ms = timer.elapsed();
  window.DeselectAll();
  window.file_view()->selectRow(0);
  timer.restart();
  window.SampleTick(true);
  const qint64 sample_ms = timer.elapsed();
  window.FinishNewNames();
  window.show();
  QApplication::processEvents();
  // A first drawing asks for the pictures of the Symbols view; the saved one
  // shows them.
  window.grab();
  window.FinishThumbnails();
  if (!window.grab().save(out)) {
    err << "tarnwick: could not write " << args[1] << '\n';
    return 2;
  }
  err << "tarnwick: " << window.list().size() << " files; fill " << fill_ms << " ms, two sorts "
      << sort_ms << " ms, select all " << select_ms << " ms, new names of all rows " << new_names_ms
      << " ms, one sample " << sample_ms << " ms\n";
  return 0;
}

}  // namespace tarnwick::gui
