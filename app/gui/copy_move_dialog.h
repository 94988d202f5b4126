#pragma once

#include <QDialog>

#include "persist/option_store.h"
#include "shell/interaction.h"
#include "shell/message_table.h"
#include "tools/copy_move.h"

class QButtonGroup;
class QCheckBox;
class QDateEdit;
class QGroupBox;
class QLineEdit;
class QSpinBox;
class QTimeEdit;

namespace tarnwick::gui {

// `frmCopyMoveFiles`: copy or move the selected files into a folder, or only
// write a batch script, with the date step on the way. OK checks the folder
// (and stays open when it cannot take the files) and stores the folder when
// "Save path" is ticked.
class CopyMoveDialog : public QDialog {
  Q_OBJECT

 public:
  CopyMoveDialog(OptionStore& options, const MessageTable& messages, Interaction& notices,
                 QWidget* parent = nullptr);

  CopyMoveChoices choices() const;
  QLineEdit* target_field() const { return target_; }

  // The OK button, also for tests: true when the dialogue closed.
  bool Ok();

 private:
  QWidget* BuildDateBox();
  void RefreshStates();
  void ChooseFolder();

  OptionStore& options_;
  const MessageTable& messages_;
  Interaction& notices_;
  QButtonGroup* action_ = nullptr;
  QLineEdit* target_ = nullptr;
  QCheckBox* overwrite_ = nullptr;
  QCheckBox* save_target_ = nullptr;
  QCheckBox* batch_only_ = nullptr;
  QCheckBox* append_batch_ = nullptr;
  QCheckBox* change_date_ = nullptr;
  QGroupBox* date_box_ = nullptr;
  QCheckBox* set_date_ = nullptr;
  QDateEdit* date_ = nullptr;
  QCheckBox* set_time_ = nullptr;
  QTimeEdit* time_ = nullptr;
  QButtonGroup* shift_ = nullptr;
  QSpinBox* amounts_[6] = {};  // days, months, years, hours, minutes, seconds
};

}  // namespace tarnwick::gui
