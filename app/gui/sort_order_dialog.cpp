#include "sort_order_dialog.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "qt_text.h"

namespace tarnwick::gui {

SortOrderDialog::SortOrderDialog(OptionStore& options, const MessageTable& messages,
                                 Interaction& questions, QWidget* parent)
    : QDialog(parent),
      options_(options),
      messages_(messages),
      questions_(questions),
      editor_(options) {
  setWindowTitle(Msg(messages, "order.title"));
  setMinimumSize(980, 380);
  auto* layout = new QVBoxLayout(this);
  auto* body = new QHBoxLayout;
  list_ = new QTreeWidget(this);
  list_->setObjectName("lvwSortOrder");
  list_->setRootIsDecorated(false);
  list_->setHeaderLabels({Msg(messages, "order.column_position"),
                          Msg(messages, "order.column_current_action"),
                          Msg(messages, "order.column_default_action")});
  body->addWidget(list_);
  auto* moves = new QVBoxLayout;
  auto* up = new QPushButton(Msg(messages, "order.button_up"), this);
  auto* down = new QPushButton(Msg(messages, "order.button_down"), this);
  auto* reset = new QPushButton(Msg(messages, "order.button_default"), this);
  up->setObjectName("cmdUp");
  down->setObjectName("cmdDown");
  reset->setObjectName("cmdDefault");
  moves->addWidget(up);
  moves->addWidget(down);
  moves->addStretch();
  moves->addWidget(reset);
  body->addLayout(moves);
  layout->addLayout(body);
  auto* indicator = new QLabel(Msg(messages, "order.changed_indicator"), this);
  indicator->setObjectName("lblCHangeIndicator");
  layout->addWidget(indicator);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(Msg(messages, "file_exists.button_ok"), QDialogButtonBox::AcceptRole);
  buttons->addButton(Msg(messages, "run.button_cancel"), QDialogButtonBox::RejectRole);
  layout->addWidget(buttons);
  // `mnuMoveUp`, `mnuMoveDown`: the list's own menu.
  list_->setContextMenuPolicy(Qt::ActionsContextMenu);
  auto* move_up = new QAction(Msg(messages, "order.menu_move_up"), list_);
  move_up->setObjectName("mnuMoveUp");
  auto* move_down = new QAction(Msg(messages, "order.menu_move_down"), list_);
  move_down->setObjectName("mnuMoveDown");
  list_->addActions({move_up, move_down});
  connect(move_up, &QAction::triggered, this, &SortOrderDialog::MoveUp);
  connect(move_down, &QAction::triggered, this, &SortOrderDialog::MoveDown);
  connect(up, &QPushButton::clicked, this, &SortOrderDialog::MoveUp);
  connect(down, &QPushButton::clicked, this, &SortOrderDialog::MoveDown);
  connect(reset, &QPushButton::clicked, this, &SortOrderDialog::Default);
  connect(buttons, &QDialogButtonBox::accepted, this, &SortOrderDialog::Ok);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  ShowRows();
  list_->header()->resizeSections(QHeaderView::ResizeToContents);
  SelectRow(0);
}

void SortOrderDialog::ShowRows() {
  const int selected = SelectedRow();
  list_->clear();
  for (std::size_t row = 0; row < static_cast<std::size_t>(kActionCount); ++row) {
    const int code = editor_.CurrentAction(row);
    auto* item =
        new QTreeWidgetItem({QString::number(row + 1), Q(ActionDisplayName(code, messages_)),
                             Q(ActionDisplayName(static_cast<int>(row) + 1, messages_))});
    item->setData(0, Qt::UserRole, code);
    if (editor_.Changed(row)) {
      QFont bold = item->font(1);
      bold.setBold(true);
      for (int c = 0; c < 3; ++c) item->setFont(c, bold);
    }
    list_->addTopLevelItem(item);
  }
  SelectRow(selected);
}

int SortOrderDialog::SelectedRow() const {
  QTreeWidgetItem* item = list_->currentItem();
  return item == nullptr ? -1 : list_->indexOfTopLevelItem(item);
}

void SortOrderDialog::SelectRow(int row) {
  if (row < 0 || row >= list_->topLevelItemCount()) return;
  list_->setCurrentItem(list_->topLevelItem(row));
}

void SortOrderDialog::MoveUp() {
  const int row = SelectedRow();
  if (row < 0 || !editor_.MoveUp(static_cast<std::size_t>(row))) return;
  ShowRows();
  SelectRow(row - 1);
}

void SortOrderDialog::MoveDown() {
  const int row = SelectedRow();
  if (row < 0 || !editor_.MoveDown(static_cast<std::size_t>(row))) return;
  ShowRows();
  SelectRow(row + 1);
}

void SortOrderDialog::Default() {
  if (editor_.ResetToDefault(questions_, messages_)) ShowRows();
}

void SortOrderDialog::Ok() {
  editor_.Store(options_);
  accept();
}

void SortOrderDialog::keyPressEvent(QKeyEvent* event) {
  const bool ctrl = event->modifiers() & Qt::ControlModifier;
  const bool keypad = event->modifiers() & Qt::KeypadModifier;
  if (ctrl && keypad && event->key() == Qt::Key_Plus) return MoveUp();
  if (ctrl && keypad && event->key() == Qt::Key_Minus) return MoveDown();
  QDialog::keyPressEvent(event);
}

}  // namespace tarnwick::gui
