#include "rename_text_dialog.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

#include "base/vb_format.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

QString Count(std::int64_t value) { return Q(vb::Format(value, "#,##0")); }

QLabel* Value(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

QLabel* Caption(const MessageTable& messages, const char* key, const char* name, QWidget* parent) {
  auto* label = new QLabel(Msg(messages, key), parent);
  label->setObjectName(name);
  return label;
}

}  // namespace

RenameTextDialog::RenameTextDialog(std::size_t selected_files, const MessageTable& messages,
                                   Interaction& notices, QWidget* parent)
    : QDialog(parent), selected_(selected_files), messages_(messages), notices_(notices) {
  setObjectName("frmRenameTextFile");
  setWindowTitle(Msg(messages, "renamefile.title"));
  auto* layout = new QVBoxLayout(this);
  path_ = new QLineEdit(this);
  path_->setObjectName("txtFilePath");
  path_->setReadOnly(true);
  path_->setMinimumWidth(420);
  layout->addWidget(path_);

  auto* facts = new QFormLayout;
  size_ = Value("lblSize", this);
  lines_ = Value("lblLines", this);
  words_ = Value("lblWords", this);
  QLabel* selected = Value("lblSelectedFilesCount", this);
  selected->setText(Count(static_cast<std::int64_t>(selected_files)));
  facts->addRow(Caption(messages, "renamefile.file_size", "lblFileSize", this), size_);
  facts->addRow(Caption(messages, "renamefile.rows", "lblRows", this), lines_);
  facts->addRow(Caption(messages, "renamefile.words", "lblWordsLbl", this), words_);
  facts->addRow(Caption(messages, "log.selected_files", "lblSelectedFiles", this), selected);
  layout->addLayout(facts);

  auto* buttons = new QHBoxLayout;
  auto* load = new QPushButton(Msg(messages, "renamefile.load_text_file"), this);
  load->setObjectName("cmdFilePath");
  view_ = new QPushButton(Msg(messages, "renamefile.view_file"), this);
  view_->setObjectName("cmdViewFile");
  execute_ = new QPushButton(Msg(messages, "renamefile.start"), this);
  execute_->setObjectName("cmdExecute");
  auto* cancel = new QPushButton(Msg(messages, "run.button_cancel"), this);
  cancel->setObjectName("cmdCancel");
  for (QPushButton* button : {load, view_}) buttons->addWidget(button);
  buttons->addStretch();
  for (QPushButton* button : {execute_, cancel}) buttons->addWidget(button);
  layout->addLayout(buttons);
  execute_->setEnabled(false);
  view_->setEnabled(false);
  load->setDefault(true);

  connect(load, &QPushButton::clicked, this, &RenameTextDialog::ChooseFile);
  connect(view_, &QPushButton::clicked, this, &RenameTextDialog::ViewFile);
  connect(execute_, &QPushButton::clicked, this, [this] { Execute(); });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void RenameTextDialog::ChooseFile() {
  const QString filters = Msg(messages_, "report.filter_textfile") + " (*.txt);;" +
                          Msg(messages_, "renamefile.csv_filter") + " (*.csv)";
  const QString chosen =
      QFileDialog::getOpenFileName(this, Msg(messages_, "renamefile.load_text_file"),
                                   QFileInfo(path_->text()).absolutePath(), filters);
  if (!chosen.isEmpty()) Load(S(chosen));
}

void RenameTextDialog::Load(const std::string& path) {
  execute_->setEnabled(false);
  file_ = ReadNameTextFile(path, messages_);
  path_->setText(Q(path));
  view_->setEnabled(file_.error.empty());
  size_->setText(Count(static_cast<std::int64_t>(file_.size)) +
                 Msg(messages_, "renamefile.bytes_suffix"));
  lines_->clear();
  words_->clear();
  const NameTextCheck check = CheckNameTextFile(file_, selected_, messages_);
  const bool refused_names = !file_.error.empty() || !NameTextReport(file_.rows, messages_).empty();
  if (refused_names) {
    notices_.ShowMessage({check.title, check.message, Buttons::kOk, MessageIcon::kExclamation,
                          Topic::kNotice});
    path_->clear();
    return;
  }
  if (!check.ok) {
    notices_.ShowMessage({check.title, check.message, Buttons::kOk, MessageIcon::kExclamation,
                          Topic::kNotice});
  }
  lines_->setText(Count(static_cast<std::int64_t>(file_.rows.size())));
  words_->setText(Count(CountNameTextWords(file_)));
  execute_->setEnabled(check.ok);
}

std::string RenameTextDialog::path() const { return S(path_->text()); }

void RenameTextDialog::ViewFile() {
  if (!QFileInfo::exists(path_->text())) return;
  QDesktopServices::openUrl(QUrl::fromLocalFile(path_->text()));
}

bool RenameTextDialog::Execute() {
  if (!execute_->isEnabled()) return false;
  if (!ConfirmRenameFromText(notices_, messages_)) return false;
  accept();
  return true;
}

}  // namespace tarnwick::gui
