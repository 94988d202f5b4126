// The list's exports, the metadata reports, the tag editor and the viewers.
#include <QFileDialog>

#include "base/path_text.h"
#include "base/text.h"
#include "export_dialogs.h"
#include "main_window.h"
#include "media_viewers.h"
#include "qt_text.h"
#include "report_window.h"
#include "tag_editor_dialog.h"
#include "tools/list_export.h"

namespace tarnwick::gui {
namespace {

bool HasExtension(const std::string& path, std::initializer_list<std::string_view> extensions) {
  const std::string extension = vb::LCase(ExtensionName(path));
  for (std::string_view wanted : extensions) {
    if (extension == wanted) return true;
  }
  return false;
}

}  // namespace

ReportWindow* MainWindow::ExportListAsText() {
  ViewSelectionToList();
  SelectTextDialog dialog(options_, messages_, this);
  if (dialog.exec() != QDialog::Accepted) return nullptr;
  const TextExportChoices choices = dialog.choices();
  SaveTextExportChoices(options_, choices);
  change_timer_.stop();
  new_name_timer_.stop();
  const TextExportResult result = ExportListText(RunEnv(), choices);
  AfterJob();
  if (result.result.refused) return nullptr;
  auto* window = new ReportWindow(Q(result.title), result.text, options_, messages_,
                                  *interaction_, this);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->show();
  return window;
}

void MainWindow::ExportListAsXml() {
  ViewSelectionToList();
  SelectXmlDialog dialog(options_, messages_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  const XmlExportChoices choices = dialog.choices();
  SaveXmlExportChoices(options_, choices);
  const QString start = Q(options_.GetOption("SavePathXML", "Options", app_.CurrentPath));
  QString path = QFileDialog::getSaveFileName(
      this, Msg(messages_, "export.xml_save_title"), start,
      Msg(messages_, "export.xml_document_filter") + " (*.xml)");
  if (path.isEmpty()) return;
  if (!path.endsWith(".xml", Qt::CaseInsensitive)) path += ".xml";
  options_.SaveOption("SavePathXML", "Options", ParentFolder(S(path)));
  ExportListAsXmlTo(choices, S(path));
}

ToolJobResult MainWindow::ExportListAsXmlTo(const XmlExportChoices& choices,
                                            const std::string& path) {
  change_timer_.stop();
  new_name_timer_.stop();
  const ToolJobResult result = ExportListXml(RunEnv(), choices, path);
  AfterJob();
  return result;
}

void MainWindow::SaveMetadataReportFile(MetadataReport kind) {
  ViewSelectionToList();
  if (list_.SelectedCount() == 0) return;
  const bool exif = kind == MetadataReport::kExif;
  const QString start = Q(options_.GetOption("SavePath", "Options", app_.CurrentPath));
  QString path = QFileDialog::getSaveFileName(
      this, Q(messages_.Text(exif ? 847 : 850)), start,
      Msg(messages_, "report.filter_textfile") + " (*.txt)");
  if (path.isEmpty()) return;
  if (!path.endsWith(".txt", Qt::CaseInsensitive)) path += ".txt";
  options_.SaveOption("SavePath", "Options", ParentFolder(S(path)));
  change_timer_.stop();
  new_name_timer_.stop();
  SaveMetadataReport(RunEnv(), kind, S(path));
  AfterJob();
}

TagEditorDialog* MainWindow::OpenTagEditor() {
  ViewSelectionToList();
  std::vector<std::string> files = list_.SelectedPaths();
  if (files.empty()) return nullptr;
  auto* editor = new TagEditorDialog(std::move(files), options_, messages_, *interaction_, this);
  editor->setAttribute(Qt::WA_DeleteOnClose);
  // A tag written changes the file: the list shows its new size and date.
  connect(editor, &QDialog::finished, this, [this] { FillListFiles(); });
  editor->show();
  return editor;
}

MediaInfoDialog* MainWindow::ShowMediaInfo() {
  ViewSelectionToList();
  const std::vector<std::size_t> rows = list_.SelectedRows();
  if (rows.empty()) return nullptr;
  auto* viewer = new MediaInfoDialog(list_.Path(rows.front()), options_, messages_,
                                     *interaction_, this);
  viewer->setAttribute(Qt::WA_DeleteOnClose);
  viewer->show();
  return viewer;
}

ExifViewerDialog* MainWindow::ShowExifInfo() {
  ViewSelectionToList();
  const std::vector<std::size_t> rows = list_.SelectedRows();
  if (rows.empty()) return nullptr;
  auto* viewer = new ExifViewerDialog(list_.Path(rows.front()), options_, messages_,
                                      *interaction_, this);
  viewer->setAttribute(Qt::WA_DeleteOnClose);
  viewer->show();
  return viewer;
}

void MainWindow::RowActivated(std::size_t row) {
  const std::string path = list_.Path(row);
  if (options_.GetOption("DoubleClickShowsInfo", "Options", "0") == "1") {
    if (HasExtension(path, {"mp3", "wma"}) || HasExtension(path, {"jpg", "jpeg"})) {
      list_.DeselectAll();
      list_.Select(row);
      ListSelectionToView();
      if (HasExtension(path, {"mp3", "wma"})) {
        ShowMediaInfo();
      } else {
        ShowExifInfo();
      }
      return;
    }
  }
  OpenPath(path);
}

}  // namespace tarnwick::gui
