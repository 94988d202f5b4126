#pragma once

#include <QDialog>
#include <optional>

#include "shell/interaction_dialogs.h"
#include "shell/message_table.h"

class QCheckBox;
class QLineEdit;

namespace tarnwick::gui {

// `frmSaveRenamingSettings`: "Save as:" with a path, a chooser button and the
// tick "Save current selected path".
class SaveSettingsDialog : public QDialog {
  Q_OBJECT

 public:
  SaveSettingsDialog(const SaveSettingsRequest& request, const MessageTable& messages,
                     QWidget* parent = nullptr);
  // The answer after Save; nothing after Cancel or with an empty path.
  std::optional<SaveSettingsAnswer> answer() const;
  QLineEdit* path_field() const { return path_; }
  QCheckBox* save_path_box() const { return save_path_; }

 private:
  void Browse();

  SaveSettingsRequest request_;
  QLineEdit* path_ = nullptr;
  QCheckBox* save_path_ = nullptr;
};

}  // namespace tarnwick::gui
