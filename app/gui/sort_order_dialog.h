#pragma once

#include <QDialog>

#include "core/action_order.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

class QTreeWidget;

namespace tarnwick::gui {

// `frmSortOrder`: the ten positions with their current and default action;
// Up and Down (also Ctrl with + or - of the number pad) swap the selected
// row's action with its neighbour, Default asks and restores the default
// order, OK stores it, Esc closes without storing.
class SortOrderDialog : public QDialog {
  Q_OBJECT

 public:
  SortOrderDialog(OptionStore& options, const MessageTable& messages, Interaction& questions,
                  QWidget* parent = nullptr);

  QTreeWidget* list() const { return list_; }
  const SortOrderEditor& editor() const { return editor_; }

  void MoveUp();
  void MoveDown();
  void Default();
  void Ok();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ShowRows();
  int SelectedRow() const;
  void SelectRow(int row);

  OptionStore& options_;
  const MessageTable& messages_;
  Interaction& questions_;
  SortOrderEditor editor_;
  QTreeWidget* list_ = nullptr;
};

}  // namespace tarnwick::gui
