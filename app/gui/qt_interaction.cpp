#include "qt_interaction.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QGridLayout>
#include <QMessageBox>
#include <QSpacerItem>
#include <QPushButton>

#include "qt_text.h"
#include "run_dialogs.h"
#include "save_settings_dialog.h"
#include "test_results_dialog.h"

namespace tarnwick::gui {
namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kInformation:
      return QMessageBox::Information;
    case MessageIcon::kExclamation:
      return QMessageBox::Warning;
    case MessageIcon::kQuestion:
      return QMessageBox::Question;
    case MessageIcon::kCritical:
      return QMessageBox::Critical;
    case MessageIcon::kNone:
      break;
  }
  return QMessageBox::NoIcon;
}

struct ButtonChoice {
  QMessageBox::StandardButton button;
  Answer answer;
};

std::vector<ButtonChoice> ButtonsOf(Buttons buttons) {
  using B = QMessageBox;
  switch (buttons) {
    case Buttons::kOk:
      return {{B::Ok, Answer::kOk}};
    case Buttons::kOkCancel:
      return {{B::Ok, Answer::kOk}, {B::Cancel, Answer::kCancel}};
    case Buttons::kYesNo:
      return {{B::Yes, Answer::kYes}, {B::No, Answer::kNo}};
    case Buttons::kYesNoCancel:
      return {{B::Yes, Answer::kYes}, {B::No, Answer::kNo}, {B::Cancel, Answer::kCancel}};
    case Buttons::kRetryCancel:
      return {{B::Retry, Answer::kRetry}, {B::Cancel, Answer::kCancel}};
    case Buttons::kAbortRetryIgnore:
      return {{B::Abort, Answer::kAbort}, {B::Retry, Answer::kRetry}, {B::Ignore, Answer::kIgnore}};
  }
  return {{B::Ok, Answer::kOk}};
}

QString FilterText(const std::vector<FileFilter>& filters) {
  QStringList parts;
  for (const FileFilter& filter : filters) {
    parts << (Q(filter.description).contains('(')
                  ? Q(filter.description)
                  : Q(filter.description) + " (" + Q(filter.pattern) + ")");
  }
  return parts.join(";;");
}

// A box with a short text is narrower than its title, which the window
// manager then cuts ("No file... elected"): the box is made wide enough for
// the title and the buttons of the title bar.
void KeepTitleWhole(QMessageBox& box) {
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (grid == nullptr) return;
  const int wanted = box.fontMetrics().horizontalAdvance(box.windowTitle()) + 160;
  grid->addItem(new QSpacerItem(wanted, 0, QSizePolicy::Minimum, QSizePolicy::Expanding),
                grid->rowCount(), 0, 1, grid->columnCount());
}

}  // namespace

QtInteraction::QtInteraction(const MessageTable& messages, QWidget* window, ProgressView* view)
    : messages_(messages), window_(window), view_(view) {
  qApp->installEventFilter(this);
  since_events_.start();
}

void QtInteraction::HandleEvents() {
  constexpr qint64 kEventInterval = 40;  // ms
  if (since_events_.elapsed() < kEventInterval) return;
  QCoreApplication::processEvents();
  since_events_.restart();
}

bool QtInteraction::eventFilter(QObject* watched, QEvent* event) {
  if (job_running_ && event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
      QApplication::activeModalWidget() == nullptr) {
    esc_pressed_ = true;
  }
  return QObject::eventFilter(watched, event);
}

Answer QtInteraction::ShowMessage(const MessageBoxRequest& request) {
  QString text = Q(request.text);
  text.replace("\r\n", "\n");
  // A long report (a validation of many rows) would grow the box past the
  // screen: its head shows, the whole text is under "Show Details...".
  constexpr int kShownLines = 25;
  QString details;
  if (text.count('\n') > kShownLines) {
    details = text;
    text = text.section('\n', 0, kShownLines - 1) + "\n...";
  }
  QMessageBox box(IconOf(request.icon), Q(request.title), text, QMessageBox::NoButton, window_);
  if (!details.isEmpty()) box.setDetailedText(details);
  KeepTitleWhole(box);
  const std::vector<ButtonChoice> choices = ButtonsOf(request.buttons);
  for (const ButtonChoice& choice : choices) box.addButton(choice.button);
  box.exec();
  const auto pressed =
      static_cast<QMessageBox::StandardButton>(box.standardButton(box.clickedButton()));
  for (const ButtonChoice& choice : choices) {
    if (choice.button == pressed) return choice.answer;
  }
  // Closed by Esc or the title bar: Cancel or No where there is one.
  for (const ButtonChoice& choice : choices) {
    if (choice.answer == Answer::kCancel || choice.answer == Answer::kNo) return choice.answer;
  }
  return choices.back().answer;
}

StartRenamingChoice QtInteraction::AskStartRenaming(const StartRenamingRequest& request) {
  StartRenamingDialog dialog(messages_, request.collisions, window_);
  dialog.exec();
  return dialog.choice();
}

FileExistsAnswer QtInteraction::AskFileExists(const FileExistsRequest& request) {
  FileExistsDialog dialog(request, messages_, *this, window_);
  dialog.exec();
  return dialog.answer();
}

ManualRenameAnswer QtInteraction::AskManualRename(const ManualRenameRequest& request) {
  ManualRenameDialog dialog(request, messages_, *this, window_);
  dialog.exec();
  return dialog.answer();
}

RunSummaryChoice QtInteraction::ShowRunSummary(const RunSummary& summary) {
  RunSummaryDialog dialog(summary, messages_, window_);
  dialog.exec();
  return dialog.choice();
}

void QtInteraction::PlayWave(const std::string& path) { sound_.Play(Q(path)); }

void QtInteraction::ShowTestResults(const std::vector<TestResultRow>& rows) {
  TestResultsDialog dialog(rows, messages_, *this, window_);
  dialog.exec();
}

std::optional<std::string> QtInteraction::AskInput(const InputRequest& request) {
  bool ok = false;
  const QString text = QInputDialog::getText(window_, Q(request.title), Q(request.prompt),
                                             QLineEdit::Normal, Q(request.preset), &ok);
  if (!ok) return std::nullopt;
  return S(text);
}

std::optional<std::string> QtInteraction::ChooseFile(const FileChooserRequest& request) {
  QString start = Q(request.start_folder);
  if (!request.preset_name.empty()) start += "/" + Q(request.preset_name);
  const QString filters = FilterText(request.filters);
  const QString chosen =
      request.for_saving ? QFileDialog::getSaveFileName(window_, Q(request.title), start, filters)
                         : QFileDialog::getOpenFileName(window_, Q(request.title), start, filters);
  if (chosen.isEmpty()) return std::nullopt;
  return S(chosen);
}

std::optional<std::string> QtInteraction::ChooseFolder(const FolderChooserRequest& request) {
  const QString chosen =
      QFileDialog::getExistingDirectory(window_, Q(request.title), Q(request.start_folder));
  if (chosen.isEmpty()) return std::nullopt;
  return S(chosen);
}

std::optional<SaveSettingsAnswer> QtInteraction::AskSaveSettings(
    const SaveSettingsRequest& request) {
  SaveSettingsDialog dialog(request, messages_, window_);
  dialog.exec();
  return dialog.answer();
}

void QtInteraction::ShowStatus(StatusArea area, std::string_view text) {
  if (view_ != nullptr) view_->ShowStatusText(area, Q(text));
}

void QtInteraction::SetCaption(std::string_view text) {
  if (view_ != nullptr) view_->SetWindowCaption(Q(text));
}

void QtInteraction::ShowProgress(std::int64_t value, std::int64_t max) {
  if (view_ != nullptr) view_->ShowProgressBar(value, max);
}

void QtInteraction::HideProgress() {
  if (view_ != nullptr) view_->HideProgressBar();
}

void QtInteraction::SetControlsEnabled(bool enabled, bool keep_busy_indicator) {
  job_running_ = !enabled;
  esc_pressed_ = false;
  if (view_ != nullptr) view_->PrepareButtons(enabled, keep_busy_indicator);
}

bool QtInteraction::PollCancel() {
  HandleEvents();
  const bool pressed = esc_pressed_;
  esc_pressed_ = false;
  return pressed;
}

void QtInteraction::Yield() { HandleEvents(); }

}  // namespace tarnwick::gui
