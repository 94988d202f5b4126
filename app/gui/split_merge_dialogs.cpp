#include "split_merge_dialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

#include "base/path_text.h"
#include "dialog_parts.h"
#include "platform/files.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

// The last choices of a split, kept for the next one.
constexpr std::string_view kSection = "Splitter";

// "1,5" and "1.5" alike; anything else is not a number.
std::optional<double> AmountOf(QString text) {
  text = text.trimmed().replace(',', '.');
  bool ok = false;
  const double value = text.toDouble(&ok);
  if (!ok) return std::nullopt;
  return value;
}

}  // namespace

SplitDialog::SplitDialog(OptionStore& options, const MessageTable& messages, Interaction& notices,
                         QWidget* parent)
    : QDialog(parent), options_(options), messages_(messages), notices_(notices) {
  setObjectName("frmSplitter");
  setWindowTitle(Msg(messages, "split.title"));
  auto* layout = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  size_ = new QLineEdit(Q(options.GetOption("Size", kSection, "100")), this);
  size_->setObjectName("txtUnits");
  unit_ = new QComboBox(this);
  unit_->setObjectName("cboUnits");
  for (const char* key : {"split.unit_megabytes", "split.unit_kilobytes", "split.unit_bytes",
                          "split.unit_count"}) {
    unit_->addItem(Msg(messages, key));
  }
  unit_->setCurrentIndex(std::clamp(Q(options.GetOption("Unit", kSection, "0")).toInt(), 0, 3));
  extension_ = new QLineEdit(Q(options.GetOption("Extension", kSection, "part")), this);
  extension_->setObjectName("txtExtension");
  form->addRow(Msg(messages, "split.size"), size_);
  form->addRow(Msg(messages, "split.measure"), unit_);
  form->addRow(Msg(messages, "split.file_extension"), extension_);
  layout->addLayout(form);

  layout->addWidget(new QLabel(Msg(messages, "split.destination"), this));
  destination_ = new QLineEdit(this);
  destination_->setObjectName("txtNewFile");
  destination_->setMinimumWidth(380);
  layout->addLayout(WithBrowse(destination_, messages, this, [this] {
    const QString folder = QFileDialog::getExistingDirectory(
        this, Msg(messages_, "copymove.select_destination_directory"), destination_->text());
    if (!folder.isEmpty()) destination_->setText(folder);
  }));
  overwrite_ = Tick(messages, "copymove.overwrite_existing_files", "chkOverwriteFiles", this);
  sort_ = Tick(messages, "split.sort_files", "chkSortItems", this);
  batch_ = Tick(messages, "split.create_merge_batch", "chkBatch", this);
  delete_source_ = Tick(messages, "split.delete_source_files", "chkDeleteSourceFiles", this);
  for (QCheckBox* tick : {overwrite_, sort_, batch_, delete_source_}) layout->addWidget(tick);
  layout->addWidget(StartCancel(messages, this, [this] { Start(); }));
}

SplitChoices SplitDialog::choices() const {
  SplitChoices choices;
  choices.amount = AmountOf(size_->text()).value_or(0);
  choices.unit = static_cast<SplitUnit>(unit_->currentIndex());
  choices.extension = S(extension_->text().trimmed());
  choices.destination = S(destination_->text().trimmed());
  choices.overwrite = overwrite_->isChecked();
  choices.sort = sort_->isChecked();
  choices.batch = batch_->isChecked();
  choices.delete_source = delete_source_->isChecked();
  return choices;
}

bool SplitDialog::Start() {
  const SplitChoices chosen = choices();
  const std::string title(messages_.Text("run.title_error"));
  if (const std::string refused = CheckSplitChoices(chosen, messages_); !refused.empty()) {
    notices_.ShowMessage({title, refused, Buttons::kOk, MessageIcon::kExclamation, Topic::kNotice});
    size_->setFocus();
    return false;
  }
  if (!chosen.destination.empty() && !FolderExists(chosen.destination)) {
    notices_.ShowMessage({title, std::string(messages_.Text("copymove.target_missing")) + "\r\n" +
                                     chosen.destination,
                          Buttons::kOk, MessageIcon::kExclamation, Topic::kNotice});
    destination_->setFocus();
    return false;
  }
  options_.SaveOption("Size", kSection, S(size_->text().trimmed()));
  options_.SaveOption("Unit", kSection, std::to_string(unit_->currentIndex()));
  options_.SaveOption("Extension", kSection, chosen.extension);
  accept();
  return true;
}

std::string MergeTargetFor(const std::string& first_name) {
  static const QRegularExpression piece("_\\d{5,}\\.[^.]*$");
  QString name = Q(first_name);
  const QRegularExpressionMatch match = piece.match(name);
  if (!match.hasMatch() || match.capturedStart() == 0) return {};
  return S(name.left(match.capturedStart()));
}

MergeDialog::MergeDialog(const std::string& folder, const std::string& first_name,
                         const MessageTable& messages, Interaction& notices, QWidget* parent)
    : QDialog(parent), folder_(folder), messages_(messages), notices_(notices) {
  setObjectName("frmJoiner");
  setWindowTitle(Msg(messages, "merge.title"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel(Msg(messages, "merge.destination_file"), this));
  const std::string target = MergeTargetFor(first_name);
  target_ = new QLineEdit(target.empty() ? QString() : Q(JoinPath(folder, target)), this);
  target_->setObjectName("txtNewFile");
  target_->setMinimumWidth(420);
  layout->addLayout(WithBrowse(target_, messages, this, [this] {
    const QString chosen = QFileDialog::getSaveFileName(
        this, Msg(messages_, "merge.destination_file"),
        target_->text().isEmpty() ? Q(folder_) : target_->text(), QString(), nullptr,
        QFileDialog::DontConfirmOverwrite);
    if (!chosen.isEmpty()) target_->setText(chosen);
  }));
  auto* filter_row = new QHBoxLayout;
  filter_ = Tick(messages, "merge.only_with_text", "chkExtension", this);
  filter_text_ = new QLineEdit(this);
  filter_text_->setObjectName("txtExtension");
  filter_text_->setEnabled(false);
  connect(filter_, &QCheckBox::toggled, filter_text_, &QWidget::setEnabled);
  filter_row->addWidget(filter_);
  filter_row->addWidget(filter_text_, 1);
  layout->addLayout(filter_row);
  overwrite_ = Tick(messages, "copymove.overwrite_existing_files", "chkOverwriteFiles", this);
  sort_ = Tick(messages, "split.sort_files", "chkSortItems", this);
  delete_source_ = Tick(messages, "split.delete_source_files", "chkDeleteSourceFiles", this);
  for (QCheckBox* tick : {overwrite_, sort_, delete_source_}) layout->addWidget(tick);
  layout->addWidget(StartCancel(messages, this, [this] { Start(); }));
}

MergeChoices MergeDialog::choices() const {
  MergeChoices choices;
  const std::string typed = S(target_->text().trimmed());
  choices.target = typed.empty() ? typed : AbsolutePathName(typed, folder_);
  choices.filter = filter_->isChecked();
  choices.filter_text = S(filter_text_->text());
  choices.overwrite = overwrite_->isChecked();
  choices.sort = sort_->isChecked();
  choices.delete_source = delete_source_->isChecked();
  return choices;
}

bool MergeDialog::Start() {
  if (const std::string refused = CheckMergeChoices(choices(), messages_); !refused.empty()) {
    notices_.ShowMessage({std::string(messages_.Text("merge.title")), refused, Buttons::kOk,
                          MessageIcon::kExclamation, Topic::kNotice});
    target_->setFocus();
    return false;
  }
  accept();
  return true;
}

}  // namespace tarnwick::gui
