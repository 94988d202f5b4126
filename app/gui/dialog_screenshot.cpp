#include "dialog_screenshot.h"

#include <QApplication>
#include <QPixmap>
#include <QTableView>
#include <filesystem>
#include <vector>

#include "desktop_start.h"
#include "main_window.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

struct DialogShotArgs {
  std::string out;
  std::string name;
  std::string file;
  QSize size;  // invalid: the dialogue's own size
};

void PrintUsage(std::ostream& err) {
  err << "usage: tarnwick --screenshot OUT.png --dialog NAME [FILE] [--size WxH]\n"
         "The dialogues:\n";
  for (const DialogShot& shot : DialogShots()) {
    err << "  " << shot.name << std::string(22 - std::min<std::size_t>(shot.name.size(), 20), ' ')
        << shot.what << '\n';
  }
}

std::optional<DialogShotArgs> ParseArgs(std::span<const std::string> args) {
  if (args.size() < 4 || args[2] != "--dialog") return std::nullopt;
  DialogShotArgs parsed{args[1], args[3], {}, {}};
  for (std::size_t i = 4; i < args.size(); ++i) {
    if (args[i] == "--size" && i + 1 < args.size()) {
      const QStringList parts = Q(args[++i]).split('x');
      if (parts.size() != 2) return std::nullopt;
      parsed.size = QSize(parts[0].toInt(), parts[1].toInt());
    } else if (parsed.file.empty()) {
      parsed.file = args[i];
    } else {
      return std::nullopt;
    }
  }
  return parsed;
}

const DialogShot* FindShot(std::string_view name) {
  for (const DialogShot& shot : DialogShots()) {
    if (shot.name == name) return &shot;
  }
  return nullptr;
}

// The folder start-up shows: FILE itself when it is a folder, else its folder.
std::vector<std::string> StartFolder(const std::string& file) {
  if (file.empty()) return {};
  std::error_code error;
  const std::filesystem::path path = std::filesystem::absolute(file, error);
  if (std::filesystem::is_directory(path, error)) return {path.string()};
  return {path.parent_path().string()};
}

void SelectFileRow(MainWindow& window, const std::string& file) {
  const std::string name = std::filesystem::path(file).filename().string();
  const auto rows = window.list().rows();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].name != name) continue;
    window.file_view()->selectRow(static_cast<int>(i));
    return;
  }
}

}  // namespace

int RunDialogScreenshot(int& argc, char** argv, std::span<const std::string> args,
                        std::ostream& err) {
  const std::optional<DialogShotArgs> parsed = ParseArgs(args);
  const DialogShot* shot = parsed ? FindShot(parsed->name) : nullptr;
  if (!shot) {
    if (parsed) err << "tarnwick: no dialogue is called \"" << parsed->name << "\"\n";
    PrintUsage(err);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  OptionStore options = OptionStore::ForCurrentUser();
  const MessageTable& messages = MessageTable::Get(ChosenLanguage(options));
  InstallQtTranslations(application, messages.language());
  MainWindow window(options, messages);
  if (!StartWindow(window, StartFolder(parsed->file), err)) return 2;
  if (!parsed->file.empty()) SelectFileRow(window, parsed->file);

  DialogShotContext context{options, messages, window, parsed->file};
  std::unique_ptr<QDialog> dialog = shot->make(context);
  if (!dialog) {
    err << "tarnwick: the dialogue \"" << parsed->name << "\" cannot be drawn for " << parsed->file
        << '\n';
    return 2;
  }
  dialog->adjustSize();
  if (parsed->size.isValid()) dialog->resize(parsed->size);
  dialog->show();
  QApplication::processEvents();
  if (!dialog->grab().save(Q(parsed->out))) {
    err << "tarnwick: could not write " << parsed->out << '\n';
    return 2;
  }
  err << "tarnwick: dialogue " << parsed->name << ", " << dialog->width() << "x" << dialog->height()
      << ", " << (messages.language() == Language::kGerman ? "German" : "English") << '\n';
  return 0;
}

}  // namespace tarnwick::gui
