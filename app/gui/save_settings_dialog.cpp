#include "save_settings_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt_text.h"

namespace tarnwick::gui {

SaveSettingsDialog::SaveSettingsDialog(const SaveSettingsRequest& request,
                                       const MessageTable& messages, QWidget* parent)
    : QDialog(parent), request_(request) {
  setWindowTitle(Msg(messages, "settings_file.title_save"));
  setMinimumWidth(480);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel(Msg(messages, "settings_file.save_as"), this));
  auto* row = new QHBoxLayout;
  path_ = new QLineEdit(Q(request.preset_path), this);
  path_->setObjectName("txtFileName");
  auto* browse = new QPushButton(Msg(messages, "settings_file.browse"), this);
  browse->setToolTip(Msg(messages, "settings_file.select_destination"));
  row->addWidget(path_);
  row->addWidget(browse);
  layout->addLayout(row);
  save_path_ = new QCheckBox(Msg(messages, "settings_file.save_current_path"), this);
  save_path_->setObjectName("chkSavePath");
  save_path_->setChecked(request.save_path);
  layout->addWidget(save_path_);
  auto* buttons = new QDialogButtonBox(this);
  auto* save =
      buttons->addButton(Msg(messages, "settings_file.button_save"), QDialogButtonBox::AcceptRole);
  buttons->addButton(Msg(messages, "settings_file.button_cancel"), QDialogButtonBox::RejectRole);
  save->setDefault(true);
  layout->addWidget(buttons);
  connect(browse, &QPushButton::clicked, this, &SaveSettingsDialog::Browse);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void SaveSettingsDialog::Browse() {
  QStringList filters;
  for (const FileFilter& filter : request_.chooser.filters) {
    filters << (Q(filter.description).contains('(')
                    ? Q(filter.description)
                    : Q(filter.description) + " (" + Q(filter.pattern) + ")");
  }
  const QString start = path_->text().isEmpty() ? Q(request_.chooser.start_folder) : path_->text();
  QString chosen =
      QFileDialog::getSaveFileName(this, Q(request_.chooser.title), start, filters.join(";;"));
  if (chosen.isEmpty()) return;
  const QString extension = "." + Q(request_.chooser.default_extension);
  if (!request_.chooser.default_extension.empty() &&
      !chosen.endsWith(extension, Qt::CaseInsensitive)) {
    chosen += extension;
  }
  path_->setText(chosen);
}

std::optional<SaveSettingsAnswer> SaveSettingsDialog::answer() const {
  if (result() != QDialog::Accepted || path_->text().trimmed().isEmpty()) return std::nullopt;
  return SaveSettingsAnswer{S(path_->text().trimmed()), save_path_->isChecked()};
}

}  // namespace tarnwick::gui
