#pragma once

#include <QDialog>
#include <vector>

#include "shell/interaction.h"
#include "shell/interaction_dialogs.h"
#include "shell/message_table.h"

class QTreeWidget;

namespace tarnwick::gui {

// `frmFileList`: the result list of a test run. Rows whose name stays are
// blue, rows without a usable new name red and bold, renamed rows black.
// The rows can go to the clipboard as "old path TAB new path" lines, or to a
// batch file of the renames (`cmdCreateBatch`).
class TestResultsDialog : public QDialog {
  Q_OBJECT

 public:
  TestResultsDialog(const std::vector<TestResultRow>& rows, const MessageTable& messages,
                    Interaction& interaction, QWidget* parent = nullptr);
  QTreeWidget* list() const { return list_; }
  // The text the clipboard button copies.
  QString ClipboardText() const;
  // `cmdCreateBatch`: asks for a file and writes the batch there.
  void CreateBatch();

 private:
  std::vector<TestResultRow> rows_;
  const MessageTable& messages_;
  Interaction& interaction_;
  QTreeWidget* list_ = nullptr;
};

}  // namespace tarnwick::gui
