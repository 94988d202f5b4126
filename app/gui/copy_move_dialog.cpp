#include "copy_move_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimeEdit>
#include <QVBoxLayout>

#include "dialog_parts.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

constexpr const char* kAmountNames[6] = {"txtDays",  "txtMonths",  "txtYears",
                                         "txtHours", "txtMinutes", "txtSeconds"};
constexpr const char* kAmountKeys[6] = {"copymove.days",  "copymove.months",  "copymove.years",
                                        "copymove.hours", "copymove.minutes", "copymove.seconds"};

}  // namespace

CopyMoveDialog::CopyMoveDialog(OptionStore& options, const MessageTable& messages,
                               Interaction& notices, QWidget* parent)
    : QDialog(parent), options_(options), messages_(messages), notices_(notices) {
  setObjectName("frmCopyMoveFiles");
  setWindowTitle(Msg(messages, "copymove.title"));
  auto* layout = new QVBoxLayout(this);

  auto* actions = new QHBoxLayout;
  action_ = new QButtonGroup(this);
  action_->setObjectName("optAction");
  const char* action_keys[] = {"copymove.action_copy", "copymove.action_move"};
  for (int i = 0; i < 2; ++i) {
    auto* button = new QRadioButton(Msg(messages, action_keys[i]), this);
    action_->addButton(button, i);
    actions->addWidget(button);
  }
  action_->button(0)->setChecked(true);
  actions->addStretch();
  layout->addLayout(actions);

  layout->addWidget(new QLabel(Msg(messages, "copymove.target_directory"), this));
  auto* target_row = new QHBoxLayout;
  target_ = new QLineEdit(Q(SavedCopyMoveFolder(options)), this);
  target_->setObjectName("txtNewFile");
  target_->setMinimumWidth(360);
  auto* choose = new QPushButton(Msg(messages, "copymove.select_destination_directory"), this);
  choose->setObjectName("cmdSelectSettingsFile");
  target_row->addWidget(target_, 1);
  target_row->addWidget(choose);
  layout->addLayout(target_row);

  overwrite_ = Tick(messages, "copymove.overwrite_existing_files", "chkOverwriteFiles", this);
  save_target_ = Tick(messages, "copymove.save_path", "chkSaveTargetDir", this);
  save_target_->setChecked(options.GetOption("SaveCopyMoveDir", "Options", "0") == "1");
  batch_only_ = Tick(messages, "copymove.only_create_batch", "chkCreateBatchOnly", this);
  append_batch_ = Tick(messages, "copymove.append_to_batch", "chkAppendBatch", this);
  for (QCheckBox* tick : {overwrite_, save_target_, batch_only_}) layout->addWidget(tick);
  auto* append_row = new QHBoxLayout;
  append_row->addSpacing(20);
  append_row->addWidget(append_batch_);
  layout->addLayout(append_row);

  change_date_ = Tick(messages, "copymove.change_file_date_time", "chkChangeDateTime", this);
  layout->addWidget(change_date_);
  layout->addWidget(BuildDateBox());

  auto* buttons = new QDialogButtonBox(this);
  auto* ok = buttons->addButton(Msg(messages, "file_exists.button_ok"), QDialogButtonBox::AcceptRole);
  ok->setObjectName("cmdOK");
  auto* cancel = buttons->addButton(Msg(messages, "run.button_cancel"), QDialogButtonBox::RejectRole);
  cancel->setObjectName("cmdCancel");
  ok->setDefault(true);
  layout->addWidget(buttons);

  connect(choose, &QPushButton::clicked, this, &CopyMoveDialog::ChooseFolder);
  connect(ok, &QPushButton::clicked, this, [this] { Ok(); });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  for (QCheckBox* tick : {batch_only_, change_date_, set_date_, set_time_}) {
    connect(tick, &QCheckBox::toggled, this, &CopyMoveDialog::RefreshStates);
  }
  connect(shift_, &QButtonGroup::idToggled, this, &CopyMoveDialog::RefreshStates);
  RefreshStates();
}

QWidget* CopyMoveDialog::BuildDateBox() {
  date_box_ = new QGroupBox(this);
  auto* grid = new QGridLayout(date_box_);
  set_date_ = Tick(messages_, "copymove.date", "chkDate", date_box_);
  date_ = new QDateEdit(QDate::currentDate(), date_box_);
  date_->setObjectName("dtpDate");
  date_->setCalendarPopup(true);
  date_->setDisplayFormat("dd.MM.yyyy");
  set_time_ = Tick(messages_, "copymove.time", "chkTime", date_box_);
  time_ = new QTimeEdit(QTime::currentTime(), date_box_);
  time_->setObjectName("dtpTime");
  time_->setDisplayFormat("HH:mm:ss");
  grid->addWidget(set_date_, 0, 0);
  grid->addWidget(date_, 0, 1);
  grid->addWidget(set_time_, 1, 0);
  grid->addWidget(time_, 1, 1);

  shift_ = new QButtonGroup(date_box_);
  shift_->setObjectName("optMinusPlus");
  auto* modes = new QHBoxLayout;
  const char* mode_keys[] = {"copymove.set_date", "copymove.add_date", "copymove.subtract_date"};
  for (int i = 0; i < 3; ++i) {
    auto* button = new QRadioButton(Msg(messages_, mode_keys[i]), date_box_);
    shift_->addButton(button, i);
    modes->addWidget(button);
  }
  shift_->button(0)->setChecked(true);
  modes->addStretch();
  grid->addLayout(modes, 2, 0, 1, 4);

  for (int i = 0; i < 6; ++i) {
    amounts_[i] = new QSpinBox(date_box_);
    amounts_[i]->setObjectName(kAmountNames[i]);
    amounts_[i]->setRange(0, 99999);
    const int row = 3 + i / 3;
    const int column = (i % 3) * 2;
    grid->addWidget(amounts_[i], row, column);
    grid->addWidget(new QLabel(Msg(messages_, kAmountKeys[i]), date_box_), row, column + 1);
  }
  return date_box_;
}

void CopyMoveDialog::RefreshStates() {
  append_batch_->setEnabled(batch_only_->isChecked());
  date_box_->setEnabled(change_date_->isChecked());
  const bool set = shift_->checkedId() == static_cast<int>(DateShift::kSet);
  set_date_->setEnabled(set);
  set_time_->setEnabled(set);
  date_->setEnabled(set && set_date_->isChecked());
  time_->setEnabled(set && set_time_->isChecked());
  for (QSpinBox* amount : amounts_) amount->setEnabled(!set);
}

void CopyMoveDialog::ChooseFolder() {
  const QString chosen = QFileDialog::getExistingDirectory(
      this, Msg(messages_, "copymove.select_destination_directory"), target_->text());
  if (!chosen.isEmpty()) target_->setText(chosen);
}

CopyMoveChoices CopyMoveDialog::choices() const {
  CopyMoveChoices choices;
  choices.move = action_->checkedId() == 1;
  choices.target_folder = S(target_->text().trimmed());
  choices.overwrite = overwrite_->isChecked();
  choices.save_target = save_target_->isChecked();
  choices.batch_only = batch_only_->isChecked();
  choices.append_batch = batch_only_->isChecked() && append_batch_->isChecked();
  DateChange& date = choices.date;
  date.enabled = change_date_->isChecked();
  date.shift = static_cast<DateShift>(shift_->checkedId());
  date.set_date = set_date_->isChecked();
  const QDate day = date_->date();
  date.date = {day.year(), day.month(), day.day(), 0, 0, 0};
  date.set_time = set_time_->isChecked();
  const QTime time = time_->time();
  date.time = {1899, 12, 30, time.hour(), time.minute(), time.second()};
  int* amounts[6] = {&date.days, &date.months, &date.years, &date.hours, &date.minutes, &date.seconds};
  for (int i = 0; i < 6; ++i) *amounts[i] = amounts_[i]->value();
  return choices;
}

bool CopyMoveDialog::Ok() {
  const CopyMoveChoices chosen = choices();
  const std::string problem = CheckCopyMoveTarget(chosen, messages_);
  if (!problem.empty()) {
    notices_.ShowMessage({std::string(messages_.Text("copymove.title")), problem, Buttons::kOk,
                          MessageIcon::kExclamation, Topic::kNotice});
    target_->setFocus();
    return false;
  }
  SaveCopyMoveFolder(options_, chosen);
  accept();
  return true;
}

}  // namespace tarnwick::gui
