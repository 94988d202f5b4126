#pragma once

#include <QDialog>

#include "shell/interaction.h"
#include "shell/message_table.h"

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;

namespace tarnwick::gui {

// `frmStartRenamingMessageBox`: Rename, Test or Cancel (also Esc).
class StartRenamingDialog : public QDialog {
  Q_OBJECT

 public:
  // `collisions`: the new names that collide; a line under the question
  // says how many, so nobody starts a run of collisions unawares.
  StartRenamingDialog(const MessageTable& messages, std::size_t collisions = 0,
                      QWidget* parent = nullptr);
  StartRenamingChoice choice() const { return choice_; }

 private:
  StartRenamingChoice choice_ = StartRenamingChoice::kCancel;
};

// After a run: how many files were renamed (or copied), skipped and failed,
// with "Show log" and "Undo".
class RunSummaryDialog : public QDialog {
  Q_OBJECT

 public:
  RunSummaryDialog(const RunSummary& summary, const MessageTable& messages,
                   QWidget* parent = nullptr);
  RunSummaryChoice choice() const { return choice_; }

 private:
  RunSummaryChoice choice_ = RunSummaryChoice::kClose;
};

// `frmFileExists`: another name, Skip, or Cancel the run. OK with a name that
// differs from the proposal only by case is refused with a notice through
// `notices`, and the dialogue stays open.
class FileExistsDialog : public QDialog {
  Q_OBJECT

 public:
  FileExistsDialog(const FileExistsRequest& request, const MessageTable& messages,
                   Interaction& notices, QWidget* parent = nullptr);
  const FileExistsAnswer& answer() const { return answer_; }
  QLineEdit* name_field() const { return name_; }
  QCheckBox* skip_all_box() const { return skip_all_; }

  // The buttons, also for tests. Ok returns whether the dialogue closed.
  bool Ok();
  void Skip();
  void CancelRun();

 protected:
  // The title bar's close is Cancel; Esc is not: a key meant for the run
  // must not end it through the dialogue.
  void reject() override { CancelRun(); }
  void keyPressEvent(QKeyEvent* event) override;

 private:
  FileExistsRequest request_;
  const MessageTable& messages_;
  Interaction& notices_;
  FileExistsAnswer answer_;
  QLineEdit* name_ = nullptr;
  QCheckBox* skip_all_ = nullptr;
};

// `frmRenameDialog`: the name of one file edited by hand during a run.
class ManualRenameDialog : public QDialog {
  Q_OBJECT

 public:
  ManualRenameDialog(const ManualRenameRequest& request, const MessageTable& messages,
                     Interaction& questions, QWidget* parent = nullptr);
  const ManualRenameAnswer& answer() const { return answer_; }
  QLineEdit* name_field() const { return name_; }

  bool Ok();
  // Closes with the present name; the run asks whether to stop.
  void CancelRenaming();

 protected:
  void reject() override { CancelRenaming(); }

 private:
  QHBoxLayout* BuildCursorRow();
  void ApplySelection();
  ManualRenameCursor CursorAtClose() const;

  ManualRenameRequest request_;
  const MessageTable& messages_;
  Interaction& questions_;
  ManualRenameAnswer answer_;
  QLabel* original_ = nullptr;
  QLineEdit* name_ = nullptr;
  QCheckBox* cursor_ = nullptr;
  QComboBox* start_ = nullptr;
  QComboBox* end_ = nullptr;
  QLabel* from_ = nullptr;
  QLabel* to_ = nullptr;
  QCheckBox* select_all_ = nullptr;
  QCheckBox* to_extension_ = nullptr;
};

}  // namespace tarnwick::gui
