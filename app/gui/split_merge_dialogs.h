#pragma once

#include <QDialog>

#include "persist/option_store.h"
#include "shell/interaction.h"
#include "shell/message_table.h"
#include "tools/merge_files.h"
#include "tools/split_file.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace tarnwick::gui {

// `frmSplitter`: the choices of a split. Start checks the size (the box
// "You must enter a size => 1!" and the dialogue stays) and the folder, and
// keeps the size, unit and extension for the next time.
class SplitDialog : public QDialog {
  Q_OBJECT

 public:
  SplitDialog(OptionStore& options, const MessageTable& messages, Interaction& notices,
              QWidget* parent = nullptr);

  SplitChoices choices() const;
  // The Start button, also for tests: true when the dialogue closed.
  bool Start();

 private:
  OptionStore& options_;
  const MessageTable& messages_;
  Interaction& notices_;
  QLineEdit* size_ = nullptr;
  QComboBox* unit_ = nullptr;
  QLineEdit* extension_ = nullptr;
  QLineEdit* destination_ = nullptr;
  QCheckBox* overwrite_ = nullptr;
  QCheckBox* sort_ = nullptr;
  QCheckBox* batch_ = nullptr;
  QCheckBox* delete_source_ = nullptr;
};

// `frmJoiner`: the target and the choices of a merge. The target starts as
// the first selected file's name without its piece number ("f.bin" for
// "f.bin_00000.part"); Start refuses an empty target with the tool's box.
class MergeDialog : public QDialog {
  Q_OBJECT

 public:
  MergeDialog(const std::string& folder, const std::string& first_name,
              const MessageTable& messages, Interaction& notices, QWidget* parent = nullptr);

  MergeChoices choices() const;
  QLineEdit* target_field() const { return target_; }
  bool Start();

 private:
  std::string folder_;
  const MessageTable& messages_;
  Interaction& notices_;
  QLineEdit* target_ = nullptr;
  QCheckBox* filter_ = nullptr;
  QLineEdit* filter_text_ = nullptr;
  QCheckBox* overwrite_ = nullptr;
  QCheckBox* sort_ = nullptr;
  QCheckBox* delete_source_ = nullptr;
};

// The name a merge of `first_name` most likely wants: without a piece
// number and its extension ("_00000.part"); empty when it has none.
std::string MergeTargetFor(const std::string& first_name);

}  // namespace tarnwick::gui
