#pragma once

#include <QDialog>
#include <string>

#include "persist/option_store.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

class QPlainTextEdit;
class QPrinter;

namespace tarnwick::gui {

// `frmContainer`: a report a tool made (checksums, the text export), shown
// as text that can be edited, saved and printed. The folder of the last save
// is kept (`SavePath`). Printing goes through the system's printers (or a PDF
// file) with a preview first if the user asks for one.
class ReportWindow : public QDialog {
  Q_OBJECT

 public:
  ReportWindow(const QString& title, const std::string& text, OptionStore& options,
               const MessageTable& messages, Interaction& notices, QWidget* parent = nullptr);

  QPlainTextEdit* text_field() const { return text_; }
  // Writes the text, as it stands in the window, to `path`.
  bool SaveTo(const std::string& path);
  // Prints the text as it stands in the window, in the report's fixed font.
  void PrintTo(QPrinter& printer) const;

 private:
  void Save();
  void Print();
  void PrintPreview();

  OptionStore& options_;
  const MessageTable& messages_;
  Interaction& notices_;
  QPlainTextEdit* text_ = nullptr;
};

}  // namespace tarnwick::gui
