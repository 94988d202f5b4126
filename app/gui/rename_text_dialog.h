#pragma once

#include <QDialog>

#include "shell/interaction.h"
#include "shell/message_table.h"
#include "tools/rename_from_text.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace tarnwick::gui {

// `frmRenameTextFile`: a text file of new names is loaded and checked (the
// validation report, the count against the selected files, its size, rows
// and words); Start asks "Are you sure to proceed?" and closes with the file
// for the run.
class RenameTextDialog : public QDialog {
  Q_OBJECT

 public:
  RenameTextDialog(std::size_t selected_files, const MessageTable& messages, Interaction& notices,
                   QWidget* parent = nullptr);

  // `cmdFilePath` after its file chooser: loads and checks `path`.
  void Load(const std::string& path);
  // `cmdExecute`; true when the dialogue closed for the run.
  bool Execute();
  const NameTextFile& file() const { return file_; }
  // The file loaded last; empty when it was refused.
  std::string path() const;
  QPushButton* execute_button() const { return execute_; }

 private:
  void ChooseFile();
  void ViewFile();

  std::size_t selected_;
  const MessageTable& messages_;
  Interaction& notices_;
  NameTextFile file_;
  QLineEdit* path_ = nullptr;
  QLabel* size_ = nullptr;
  QLabel* lines_ = nullptr;
  QLabel* words_ = nullptr;
  QPushButton* view_ = nullptr;
  QPushButton* execute_ = nullptr;
};

}  // namespace tarnwick::gui
