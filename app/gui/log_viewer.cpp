#include "log_viewer.h"

#include <sys/stat.h>

#include <QDialogButtonBox>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextCursor>
#include <QVBoxLayout>

#include "qt_text.h"

namespace tarnwick::gui {
namespace {

constexpr std::uint64_t kLargestShown = 16u << 20;
constexpr int kFollowMs = 500;

}  // namespace

LogViewer::LogViewer(const std::string& path, const MessageTable& messages, QWidget* parent)
    : QDialog(parent), path_(path), messages_(messages) {
  setObjectName("frmLogViewer");
  setWindowTitle(Msg(messages, "log_viewer.title") + " - " + Q(path));
  setMinimumSize(820, 460);
  setSizeGripEnabled(true);
  auto* layout = new QVBoxLayout(this);
  auto* search_row = new QHBoxLayout;
  search_row->addWidget(new QLabel(Msg(messages, "log_viewer.search"), this));
  search_ = new QLineEdit(this);
  search_->setObjectName("txtSearch");
  search_row->addWidget(search_, 1);
  auto* next = new QPushButton(Msg(messages, "log_viewer.find_next"), this);
  next->setObjectName("cmdFindNext");
  search_row->addWidget(next);
  layout->addLayout(search_row);
  note_ = new QLabel(this);
  note_->setObjectName("lblNote");
  note_->hide();
  layout->addWidget(note_);
  text_ = new QPlainTextEdit(this);
  text_->setObjectName("txtLog");
  text_->setReadOnly(true);
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  QFont fixed("DejaVu Sans Mono");
  fixed.setStyleHint(QFont::TypeWriter, QFont::NoFontMerging);
  text_->setFont(fixed);
  layout->addWidget(text_, 1);
  auto* buttons = new QDialogButtonBox(this);
  auto* close = buttons->addButton(Msg(messages, "report.close"), QDialogButtonBox::RejectRole);
  close->setObjectName("cmdClose");
  layout->addWidget(buttons);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  connect(next, &QPushButton::clicked, this, [this] { FindNext(); });
  connect(search_, &QLineEdit::returnPressed, this, [this] { FindNext(); });
  connect(&follow_, &QTimer::timeout, this, &LogViewer::Follow);
  Follow();
  follow_.start(kFollowMs);
}

void LogViewer::Follow() {
  struct stat info {};
  if (::stat(path_.c_str(), &info) != 0) {
    note_->setText(Msg(messages_, "log_viewer.no_log") + " " + Q(path_));
    note_->show();
    return;
  }
  const auto size = static_cast<std::uint64_t>(info.st_size);
  const auto inode = static_cast<std::uint64_t>(info.st_ino);
  if (inode != inode_ || size < read_up_to_) {
    // A new file under the name: from its start (or its last part).
    inode_ = inode;
    text_->clear();
    note_->hide();
    read_up_to_ = 0;
    if (size > kLargestShown) {
      read_up_to_ = size - kLargestShown;
      note_->setText(Msg(messages_, "log_viewer.only_the_end"));
      note_->show();
    }
  }
  if (size > read_up_to_) ReadFrom(read_up_to_);
}

void LogViewer::ReadFrom(std::uint64_t offset) {
  QFile file(Q(path_));
  if (!file.open(QIODevice::ReadOnly) || !file.seek(static_cast<qint64>(offset))) return;
  const QByteArray bytes = file.readAll();
  // Only whole lines, so a line being written is shown once it is complete.
  const qsizetype end = bytes.lastIndexOf('\n');
  if (end < 0) return;
  QScrollBar* bar = text_->verticalScrollBar();
  const bool at_end = bar->value() == bar->maximum();
  QString added = QString::fromUtf8(bytes.left(end + 1)).replace("\r\n", "\n");
  if (added.endsWith('\n')) added.chop(1);
  text_->appendPlainText(added);
  read_up_to_ = offset + static_cast<std::uint64_t>(end + 1);
  if (!at_end) return;
  // The cursor at the start of the last line: the end in view, from its left.
  QTextCursor cursor = text_->textCursor();
  cursor.movePosition(QTextCursor::End);
  cursor.movePosition(QTextCursor::StartOfBlock);
  text_->setTextCursor(cursor);
  bar->setValue(bar->maximum());
}

bool LogViewer::FindNext() {
  const QString wanted = search_->text();
  if (wanted.isEmpty()) return false;
  if (text_->find(wanted)) return true;
  text_->moveCursor(QTextCursor::Start);
  return text_->find(wanted);
}

}  // namespace tarnwick::gui
