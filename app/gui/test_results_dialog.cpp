#include "test_results_dialog.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "core/result_batch.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

QString JoinPath(const std::string& folder, const std::string& name) {
  QString path = Q(folder);
  if (!path.endsWith('/')) path += '/';
  return path + Q(name);
}

void Colour(QTreeWidgetItem* item, const TestResultRow& row) {
  // A new name the run could not write is shown in angle brackets.
  const bool error = row.new_name.empty() || row.new_name.front() == '<';
  QColor colour = Qt::black;
  if (error) {
    colour = Qt::red;
    QFont bold = item->font(1);
    bold.setBold(true);
    for (int c = 0; c < 3; ++c) item->setFont(c, bold);
  } else if (row.new_name == row.present_name) {
    colour = Qt::blue;
  }
  for (int c = 0; c < 3; ++c) item->setForeground(c, colour);
}

}  // namespace

TestResultsDialog::TestResultsDialog(const std::vector<TestResultRow>& rows,
                                     const MessageTable& messages, Interaction& interaction,
                                     QWidget* parent)
    : QDialog(parent), rows_(rows), messages_(messages), interaction_(interaction) {
  setWindowTitle(Msg(messages, "result_list.title"));
  resize(760, 420);
  auto* layout = new QVBoxLayout(this);
  list_ = new QTreeWidget(this);
  list_->setObjectName("lvwFilePreview");
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setHeaderLabels({Msg(messages, "result_list.column_present_name"),
                          Msg(messages, "result_list.column_new_name"),
                          Msg(messages, "result_list.column_folder")});
  QList<QTreeWidgetItem*> items;
  items.reserve(static_cast<qsizetype>(rows.size()));
  for (const TestResultRow& row : rows) {
    auto* item = new QTreeWidgetItem({Q(row.present_name), Q(row.new_name), Q(row.folder)});
    Colour(item, row);
    items.append(item);
  }
  list_->addTopLevelItems(items);
  list_->header()->resizeSections(QHeaderView::ResizeToContents);
  layout->addWidget(list_);
  auto* legend =
      new QLabel(Msg(messages, "result_list.legend_unchanged") + "   " +
                     Msg(messages, "result_list.legend_possible_error") + "   " +
                     Msg(messages, "result_list.legend_renamed") + "   " +
                     Msg(messages, "filelist.label_files") + " " + QString::number(rows.size()),
                 this);
  legend->setObjectName("lblFileCount");
  layout->addWidget(legend);
  auto* buttons = new QDialogButtonBox(this);
  auto* copy = buttons->addButton(Msg(messages, "result_list.copy_to_clipboard"),
                                  QDialogButtonBox::ActionRole);
  auto* batch =
      buttons->addButton(Msg(messages, "result_list.create_batch"), QDialogButtonBox::ActionRole);
  batch->setObjectName("cmdCreateBatch");
  auto* close =
      buttons->addButton(Msg(messages, "result_list.close"), QDialogButtonBox::AcceptRole);
  layout->addWidget(buttons);
  connect(copy, &QPushButton::clicked, this,
          [this] { QApplication::clipboard()->setText(ClipboardText()); });
  connect(batch, &QPushButton::clicked, this, &TestResultsDialog::CreateBatch);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
}

QString TestResultsDialog::ClipboardText() const {
  QString text;
  for (const TestResultRow& row : rows_) {
    text +=
        JoinPath(row.folder, row.present_name) + '\t' + JoinPath(row.folder, row.new_name) + "\r\n";
  }
  return text;
}

void TestResultsDialog::CreateBatch() {
  const std::string filter = std::string(messages_.Text("result_list.filter_batch_file"));
  FileChooserRequest request;
  request.title = messages_.Text("result_list.title_save_batch");
  request.filters = {{filter + " (*.bat)", "*.bat"}};
  request.default_extension = "bat";
  request.for_saving = true;
  const std::optional<std::string> path = interaction_.ChooseFile(request);
  if (!path || path->empty()) return;
  const std::optional<std::string> error = SaveResultListBatch(*path, rows_);
  if (!error) return;
  MessageBoxRequest box;
  box.title = messages_.Text("result_list.title_save_batch");
  box.text =
      std::string(messages_.Text("result_list.batch_not_written")) + " " + *path + "\n" + *error;
  box.icon = MessageIcon::kCritical;
  interaction_.ShowMessage(box);
}

}  // namespace tarnwick::gui
