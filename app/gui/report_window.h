#pragma once

#include <QDialog>
#include <string>

#include "persist/option_store.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

class QPlainTextEdit;

namespace tarnwick::gui {

// `frmContainer`: a report a tool made (checksums, later the exports),
// shown as text that can be edited and saved. The folder of the last save is
// kept (`SavePath`).
class ReportWindow : public QDialog {
  Q_OBJECT

 public:
  ReportWindow(const QString& title, const std::string& text, OptionStore& options,
               const MessageTable& messages, Interaction& notices, QWidget* parent = nullptr);

  QPlainTextEdit* text_field() const { return text_; }
  // Writes the text, as it stands in the window, to `path`.
  bool SaveTo(const std::string& path);

 private:
  void Save();

  OptionStore& options_;
  const MessageTable& messages_;
  Interaction& notices_;
  QPlainTextEdit* text_ = nullptr;
};

}  // namespace tarnwick::gui
