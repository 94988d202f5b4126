#include "run_dialogs.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/text.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

QLabel* Note(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setWordWrap(true);
  return label;
}

}  // namespace

StartRenamingDialog::StartRenamingDialog(const MessageTable& messages, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(Msg(messages, "run.start_title"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(Note(Msg(messages, "run.start_note"), this));
  auto* buttons = new QDialogButtonBox(this);
  auto* rename =
      buttons->addButton(Msg(messages, "run.button_rename"), QDialogButtonBox::AcceptRole);
  auto* test = buttons->addButton(Msg(messages, "run.button_test"), QDialogButtonBox::ActionRole);
  auto* cancel =
      buttons->addButton(Msg(messages, "run.button_cancel"), QDialogButtonBox::RejectRole);
  rename->setObjectName("cmdStart");
  test->setObjectName("cmdTest");
  cancel->setObjectName("cmdCancel");
  rename->setDefault(true);
  layout->addWidget(buttons);
  connect(rename, &QPushButton::clicked, this, [this] {
    choice_ = StartRenamingChoice::kRename;
    accept();
  });
  connect(test, &QPushButton::clicked, this, [this] {
    choice_ = StartRenamingChoice::kTest;
    accept();
  });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

FileExistsDialog::FileExistsDialog(const FileExistsRequest& request, const MessageTable& messages,
                                   Interaction& notices, QWidget* parent)
    : QDialog(parent), request_(request), messages_(messages), notices_(notices) {
  setWindowTitle(Msg(messages, "file_exists.title"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(Note(Msg(messages, "file_exists.note"), this));
  auto* original = new QLabel(Q(request.original_name), this);
  original->setObjectName("lblOriginalName");
  original->setTextInteractionFlags(Qt::TextSelectableByMouse);
  layout->addWidget(original);
  name_ = new QLineEdit(Q(request.proposed_name), this);
  name_->setObjectName("txtFileName");
  layout->addWidget(name_);
  skip_all_ = new QCheckBox(Msg(messages, "file_exists.skip_all_further"), this);
  skip_all_->setObjectName("chkSkipAllOtherExistingFiles");
  skip_all_->setChecked(request.skip_all_others);
  layout->addWidget(skip_all_);
  auto* buttons = new QDialogButtonBox(this);
  auto* ok =
      buttons->addButton(Msg(messages, "file_exists.button_ok"), QDialogButtonBox::AcceptRole);
  auto* skip =
      buttons->addButton(Msg(messages, "file_exists.button_skip"), QDialogButtonBox::ActionRole);
  auto* cancel =
      buttons->addButton(Msg(messages, "run.button_cancel"), QDialogButtonBox::RejectRole);
  ok->setObjectName("cmdOK");
  skip->setObjectName("cmdSkip");
  cancel->setObjectName("cmdCancel");
  ok->setDefault(true);
  layout->addWidget(buttons);
  connect(ok, &QPushButton::clicked, this, [this] { Ok(); });
  connect(skip, &QPushButton::clicked, this, [this] { Skip(); });
  connect(cancel, &QPushButton::clicked, this, [this] { CancelRun(); });
  name_->setFocus();
  name_->selectAll();
}

bool FileExistsDialog::Ok() {
  const std::string typed = S(name_->text());
  if (!IsAcceptedNewName(request_, typed)) {
    notices_.ShowMessage({std::string(messages_.Text("pipeline.title_filename")),
                          std::string(messages_.Text("file_exists.must_enter_other_name")),
                          Buttons::kOk, MessageIcon::kExclamation, Topic::kNotice});
    name_->setFocus();
    return false;
  }
  answer_ = {FileExistsChoice::kOk, typed, skip_all_->isChecked()};
  accept();
  return true;
}

void FileExistsDialog::Skip() {
  answer_ = {FileExistsChoice::kSkip, {}, skip_all_->isChecked()};
  accept();
}

void FileExistsDialog::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    event->accept();
    return;
  }
  QDialog::keyPressEvent(event);
}

void FileExistsDialog::CancelRun() {
  answer_ = {FileExistsChoice::kCancel, {}, skip_all_->isChecked()};
  QDialog::reject();
}

ManualRenameDialog::ManualRenameDialog(const ManualRenameRequest& request,
                                       const MessageTable& messages, Interaction& questions,
                                       QWidget* parent)
    : QDialog(parent), request_(request), messages_(messages), questions_(questions) {
  setWindowTitle(Msg(messages, "manual.title"));
  answer_.file_name = request.original_name;
  answer_.cursor = request.cursor;
  answer_.cancelled = true;
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(Note(Msg(messages, "manual.note"), this));
  auto* original = new QLabel(Q(request.original_name), this);
  original->setTextInteractionFlags(Qt::TextSelectableByMouse);
  layout->addWidget(original);
  name_ = new QLineEdit(Q(request.file_name), this);
  name_->setObjectName("txtFileName");
  name_->setMaxLength(255);
  layout->addWidget(name_);
  auto* resets = new QHBoxLayout;
  auto* to_original = new QPushButton(Msg(messages, "manual.reset_to_original"), this);
  auto* to_start = new QPushButton(Msg(messages, "manual.reset_to_dialog_start"), this);
  resets->addWidget(to_original);
  resets->addWidget(to_start);
  layout->addLayout(resets);
  select_all_ = new QCheckBox(Msg(messages, "manual.select_whole_filename"), this);
  select_all_->setChecked(request.cursor.select_all);
  layout->addWidget(select_all_);
  to_extension_ = new QCheckBox(Msg(messages, "manual.select_filename"), this);
  to_extension_->setChecked(request.cursor.to_extension);
  layout->addWidget(to_extension_);
  auto* buttons = new QDialogButtonBox(this);
  auto* ok =
      buttons->addButton(Msg(messages, "file_exists.button_ok"), QDialogButtonBox::AcceptRole);
  auto* cancel =
      buttons->addButton(Msg(messages, "run.button_cancel"), QDialogButtonBox::RejectRole);
  ok->setDefault(true);
  layout->addWidget(buttons);
  connect(to_original, &QPushButton::clicked, this,
          [this] { name_->setText(Q(request_.original_name)); });
  connect(to_start, &QPushButton::clicked, this, [this] { name_->setText(Q(request_.file_name)); });
  connect(ok, &QPushButton::clicked, this, [this] { Ok(); });
  connect(cancel, &QPushButton::clicked, this, [this] { CancelRenaming(); });
  name_->setFocus();
  SelectByCursor();
}

void ManualRenameDialog::SelectByCursor() {
  const QString text = name_->text();
  if (select_all_->isChecked()) {
    name_->selectAll();
    return;
  }
  if (to_extension_->isChecked()) {
    const qsizetype dot = text.lastIndexOf('.');
    name_->setSelection(0, dot > 0 ? dot : text.size());
    return;
  }
  if (request_.cursor.change_cursor_start) {
    const int start = Utf16Offset(text, std::max(0, request_.cursor.start_position - 1));
    const int end = std::max(start, Utf16Offset(text, std::max(0, request_.cursor.end_position)));
    name_->setSelection(start, end - start);
    return;
  }
  name_->setCursorPosition(static_cast<int>(text.size()));
}

ManualRenameCursor ManualRenameDialog::CursorAtClose() const {
  ManualRenameCursor cursor = request_.cursor;
  cursor.select_all = select_all_->isChecked();
  cursor.to_extension = to_extension_->isChecked();
  return cursor;
}

bool ManualRenameDialog::Ok() {
  const std::string typed = S(name_->text());
  if (typed.size() > 255) {
    questions_.ShowMessage({std::string(messages_.Text("manual.title")),
                            std::string(messages_.Text("manual.filename_too_long")), Buttons::kOk,
                            MessageIcon::kExclamation, Topic::kNotice});
    return false;
  }
  answer_ = {false, typed, CursorAtClose()};
  accept();
  return true;
}

bool ManualRenameDialog::CancelRenaming() {
  const Answer answer =
      questions_.ShowMessage({std::string(messages_.Text("manual.title_cancel_action")),
                              std::string(messages_.Text("manual.really_cancel")), Buttons::kYesNo,
                              MessageIcon::kQuestion, Topic::kConfirmCancelRename});
  if (answer != Answer::kYes) return false;
  answer_ = {true, request_.original_name, CursorAtClose()};
  QDialog::reject();
  return true;
}

}  // namespace tarnwick::gui
