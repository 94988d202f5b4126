#include "report_window.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFont>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/path_text.h"
#include "persist/log_append.h"
#include "qt_text.h"

namespace tarnwick::gui {

ReportWindow::ReportWindow(const QString& title, const std::string& text, OptionStore& options,
                           const MessageTable& messages, Interaction& notices, QWidget* parent)
    : QDialog(parent), options_(options), messages_(messages), notices_(notices) {
  setObjectName("frmContainer");
  setWindowTitle(title);
  setSizeGripEnabled(true);
  setMinimumSize(760, 380);
  auto* layout = new QVBoxLayout(this);
  text_ = new QPlainTextEdit(this);
  text_->setObjectName("txtContainer");
  QFont fixed("DejaVu Sans Mono");
  fixed.setStyleHint(QFont::TypeWriter, QFont::NoFontMerging);
  text_->setFont(fixed);
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  // The report's own CR LF line ends show as line breaks.
  text_->setPlainText(Q(text).replace("\r\n", "\n"));
  layout->addWidget(text_, 1);
  auto* buttons = new QDialogButtonBox(this);
  auto* save = buttons->addButton(Msg(messages, "report.save"), QDialogButtonBox::ActionRole);
  save->setObjectName("cmdSave");
  auto* preview =
      buttons->addButton(Msg(messages, "report.print_preview"), QDialogButtonBox::ActionRole);
  preview->setObjectName("cmdPrintPreview");
  auto* print = buttons->addButton(Msg(messages, "report.print"), QDialogButtonBox::ActionRole);
  print->setObjectName("cmdPrint");
  auto* close = buttons->addButton(Msg(messages, "report.close"), QDialogButtonBox::RejectRole);
  close->setObjectName("cmdClose");
  layout->addWidget(buttons);
  connect(save, &QPushButton::clicked, this, &ReportWindow::Save);
  connect(print, &QPushButton::clicked, this, &ReportWindow::Print);
  connect(preview, &QPushButton::clicked, this, &ReportWindow::PrintPreview);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
}

void ReportWindow::Save() {
  const QString start = Q(options_.GetOption("SavePath", "Options", ""));
  const QString path = QFileDialog::getSaveFileName(
      this, Msg(messages_, "report.save_title"), start,
      Msg(messages_, "report.filter_text") + " (*.txt);;" + Msg(messages_, "report.filter_all") +
          " (*)");
  if (path.isEmpty()) return;
  if (SaveTo(S(path))) options_.SaveOption("SavePath", "Options", ParentFolder(S(path)));
}

void ReportWindow::PrintTo(QPrinter& printer) const { text_->print(&printer); }

void ReportWindow::Print() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(windowTitle());
  QPrintDialog dialog(&printer, this);
  dialog.setWindowTitle(Msg(messages_, "report.print_title"));
  if (dialog.exec() != QDialog::Accepted) return;
  PrintTo(printer);
}

void ReportWindow::PrintPreview() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(windowTitle());
  QPrintPreviewDialog preview(&printer, this);
  preview.setWindowTitle(Msg(messages_, "report.print_preview_title"));
  connect(&preview, &QPrintPreviewDialog::paintRequested, this,
          [this](QPrinter* target) { PrintTo(*target); });
  preview.exec();
}

bool ReportWindow::SaveTo(const std::string& path) {
  // Saved with the report's CR LF line ends, as it was made.
  const std::string text = S(text_->toPlainText().replace("\n", "\r\n"));
  const FileStatus status = ReplaceFileWith(path, text);
  if (status.ok()) return true;
  notices_.ShowMessage({std::string(messages_.Text("run.title_error")),
                        path + "\r\n" + std::to_string(status.number) + ": " + status.description,
                        Buttons::kOk, MessageIcon::kCritical, Topic::kNotice});
  return false;
}

}  // namespace tarnwick::gui
