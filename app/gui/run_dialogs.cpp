#include "run_dialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

#include "base/text.h"
#include "core/manual_rename.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

QLabel* Note(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setWordWrap(true);
  return label;
}

}  // namespace

StartRenamingDialog::StartRenamingDialog(const MessageTable& messages, std::size_t collisions,
                                         QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(Msg(messages, "run.start_title"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(Note(Msg(messages, "run.start_note"), this));
  if (collisions > 0) {
    QLabel* warning = Note(Q(CollisionText(messages, collisions)), this);
    warning->setObjectName("lblCollisions");
    warning->setStyleSheet("color: #b00000; font-weight: bold;");
    layout->addWidget(warning);
  }
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

RunSummaryDialog::RunSummaryDialog(const RunSummary& summary, const MessageTable& messages,
                                   QWidget* parent)
    : QDialog(parent) {
  setObjectName("frmRunSummary");
  setWindowTitle(Msg(messages, summary.cancelled ? "run.summary_title_cancelled"
                                                 : "run.summary_title_done"));
  auto* layout = new QVBoxLayout(this);
  const std::string counts = FillMessage(
      messages.Text(summary.mode == 1 ? "run.summary_copied" : "run.summary_renamed"),
      {std::to_string(summary.done), std::to_string(summary.skipped),
       std::to_string(summary.failed)});
  QLabel* text = Note(Q(counts), this);
  text->setObjectName("lblSummary");
  text->setWordWrap(false);
  if (summary.failed > 0) text->setStyleSheet("color: #b00000; font-weight: bold;");
  layout->addWidget(text);
  layout->addSpacing(8);
  setMinimumWidth(400);
  auto* buttons = new QDialogButtonBox(this);
  auto* log = buttons->addButton(Msg(messages, "run.summary_show_log"), QDialogButtonBox::ActionRole);
  log->setObjectName("cmdShowLog");
  auto* undo = buttons->addButton(Msg(messages, "run.summary_undo"), QDialogButtonBox::ActionRole);
  undo->setObjectName("cmdUndo");
  undo->setEnabled(summary.done > 0);
  auto* close = buttons->addButton(Msg(messages, "run.summary_close"), QDialogButtonBox::AcceptRole);
  close->setObjectName("cmdClose");
  close->setDefault(true);
  layout->addWidget(buttons);
  connect(log, &QPushButton::clicked, this, [this] {
    choice_ = RunSummaryChoice::kShowLog;
    accept();
  });
  connect(undo, &QPushButton::clicked, this, [this] {
    choice_ = RunSummaryChoice::kUndo;
    accept();
  });
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
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
  setObjectName("frmRenameDialog");
  setWindowTitle(Msg(messages, "manual.title"));
  answer_.file_name = request.original_name;
  answer_.cursor = request.cursor;
  answer_.cancelled = true;
  auto* layout = new QVBoxLayout(this);
  QLabel* note = Note(Msg(messages, "manual.note"), this);
  note->setObjectName("lblNote");
  layout->addWidget(note);
  original_ = new QLabel(Q(request.original_name), this);
  original_->setObjectName("lblOriginalName");
  original_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  layout->addWidget(original_);
  name_ = new QLineEdit(Q(request.file_name), this);
  name_->setObjectName("txtFileName");
  name_->setMaxLength(255);
  layout->addWidget(name_);
  auto* resets = new QHBoxLayout;
  auto* to_original = new QPushButton(Msg(messages, "manual.reset_to_original"), this);
  to_original->setObjectName("cmdReset");
  auto* to_start = new QPushButton(Msg(messages, "manual.reset_to_dialog_start"), this);
  to_start->setObjectName("cmdResetToRenamed");
  resets->addWidget(to_original);
  resets->addWidget(to_start);
  layout->addLayout(resets);
  layout->addLayout(BuildCursorRow());
  select_all_ = new QCheckBox(Msg(messages, "manual.select_whole_filename"), this);
  select_all_->setObjectName("chkSelectAll");
  select_all_->setChecked(request.cursor.select_all);
  layout->addWidget(select_all_);
  to_extension_ = new QCheckBox(Msg(messages, "manual.to_extension"), this);
  to_extension_->setObjectName("chkExtension");
  to_extension_->setChecked(request.cursor.to_extension);
  layout->addWidget(to_extension_);
  auto* buttons = new QDialogButtonBox(this);
  auto* ok =
      buttons->addButton(Msg(messages, "file_exists.button_ok"), QDialogButtonBox::AcceptRole);
  ok->setObjectName("cmdOK");
  auto* cancel =
      buttons->addButton(Msg(messages, "run.button_cancel"), QDialogButtonBox::RejectRole);
  cancel->setObjectName("cmdCancel");
  ok->setDefault(true);
  layout->addWidget(buttons);
  connect(to_original, &QPushButton::clicked, this, [this] {
    name_->setText(Q(request_.original_name));
    ApplySelection();
  });
  connect(to_start, &QPushButton::clicked, this, [this] { name_->setText(Q(request_.file_name)); });
  connect(ok, &QPushButton::clicked, this, [this] { Ok(); });
  connect(cancel, &QPushButton::clicked, this, [this] { CancelRenaming(); });
  for (QCheckBox* tick : {cursor_, select_all_, to_extension_}) {
    connect(tick, &QCheckBox::toggled, this, [this] { ApplySelection(); });
  }
  for (QComboBox* box : {start_, end_}) {
    connect(box, &QComboBox::currentIndexChanged, this, [this] { ApplySelection(); });
  }
  name_->setFocus();
  ApplySelection();
}

// `chkCursor` "Select filename", from `cboStartPos` to `cboEndPos`: caret
// positions 0 to the length of the name.
QHBoxLayout* ManualRenameDialog::BuildCursorRow() {
  auto* row = new QHBoxLayout;
  cursor_ = new QCheckBox(Msg(messages_, "manual.select_filename"), this);
  cursor_->setObjectName("chkCursor");
  cursor_->setChecked(request_.cursor.change_cursor_start);
  start_ = new QComboBox(this);
  start_->setObjectName("cboStartPos");
  end_ = new QComboBox(this);
  end_->setObjectName("cboEndPos");
  const int length = static_cast<int>(CharPosition(name_->text(), name_->text().size()));
  for (int position = 0; position <= length; ++position) {
    start_->addItem(QString::number(position));
    end_->addItem(QString::number(position));
  }
  start_->setCurrentIndex(std::clamp(request_.cursor.start_position, 0, length));
  end_->setCurrentIndex(std::clamp(request_.cursor.end_position, 0, length));
  from_ = new QLabel(Msg(messages_, "manual.from"), this);
  from_->setObjectName("lblFrom");
  to_ = new QLabel(Msg(messages_, "manual.to"), this);
  to_->setObjectName("lblTo");
  row->addWidget(cursor_);
  row->addWidget(from_);
  row->addWidget(start_);
  row->addWidget(to_);
  row->addWidget(end_);
  row->addStretch();
  return row;
}

// The ticks decide which controls take part, and the selection follows at
// once; the positions are the core's, in characters.
void ManualRenameDialog::ApplySelection() {
  const bool all = select_all_->isChecked();
  cursor_->setEnabled(!all);
  to_extension_->setEnabled(!all);
  const bool by_position = !all && cursor_->isChecked();
  for (QWidget* widget : std::initializer_list<QWidget*>{start_, end_, from_, to_}) {
    widget->setEnabled(by_position);
  }
  const QString text = name_->text();
  const NameSelection selection = ManualRenameSelection(CursorAtClose(), S(text));
  const int start = Utf16Offset(text, static_cast<std::size_t>(selection.start));
  const int end = Utf16Offset(text, static_cast<std::size_t>(selection.start + selection.length));
  if (end > start) {
    name_->setSelection(start, end - start);
  } else {
    name_->setCursorPosition(start);
  }
}

ManualRenameCursor ManualRenameDialog::CursorAtClose() const {
  ManualRenameCursor cursor;
  cursor.change_cursor_start = cursor_->isChecked();
  cursor.start_position = std::max(0, start_->currentIndex());
  cursor.end_position = std::max(0, end_->currentIndex());
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

// The question "Do you really want to cancel the renaming?" is the run's,
// asked once the dialogue has closed; here Cancel only gives the present
// name back.
void ManualRenameDialog::CancelRenaming() {
  name_->setText(original_->text());
  answer_ = {true, request_.original_name, CursorAtClose()};
  QDialog::reject();
}

}  // namespace tarnwick::gui
