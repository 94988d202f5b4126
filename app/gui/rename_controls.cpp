#include "rename_controls.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "core/action_order.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

constexpr const char* kDigitsOnly = "digitsOnly";

QLabel* Label(const QString& text, QWidget* parent) { return new QLabel(text, parent); }

}  // namespace

QString StepNumberField(const QString& text, int delta) {
  bool ok = false;
  const qlonglong value = text.trimmed().toLongLong(&ok);
  const qlonglong next = std::max<qlonglong>(0, (ok ? value : 0) + delta);
  const int width = ok && text.trimmed().startsWith('0') ? text.trimmed().size() : 0;
  return QString("%1").arg(next, width, 10, QChar('0'));
}

RenameControls::RenameControls(const MessageTable& messages, QWidget* parent)
    : QWidget(parent), messages_(messages) {
  auto* layout = new QBoxLayout(QBoxLayout::LeftToRight, this);
  layout_ = layout;
  layout->setContentsMargins(0, 0, 0, 0);
  auto* actions = new QGridLayout;
  actions->setHorizontalSpacing(4);
  actions->setVerticalSpacing(2);
  int row = 0;
  const QString chars = Msg(messages, "sample.chars");
  const QString with = Msg(messages, "main.label.with");
  auto line = [&](const char* tick, int code, std::vector<QWidget*> widgets) {
    actions->addWidget(Tick(tick, Q(ActionDisplayName(code, messages))), row, 0);
    auto* box = new QHBoxLayout;
    for (QWidget* widget : widgets)
      box->addWidget(widget, qobject_cast<QLineEdit*>(widget) ? 1 : 0);
    actions->addLayout(box, row, 1);
    EnableWith(tick, widgets);
    ++row;
  };
  QLineEdit* complete = Field("txtCompleteName");
  line("chkCompleteName", kActionCompleteName, {complete, PatternButton(complete)});
  QLineEdit* extension = Field("txtExtension");
  line("chkExtension", kActionExtension, {extension, PatternButton(extension)});
  QLineEdit* replace_chars = Field("txtReplaceChars");
  line("chkCutMiddle", kActionReplaceRange,
       {Field("txtFromChar", true, 40), Label(Msg(messages, "manual.to"), this),
        Field("txtToChar", true, 40), Label(with, this), replace_chars,
        PatternButton(replace_chars)});
  line("chkCutLeft", kActionCutLeft, {Field("txtLeftCut", true, 40), Label(chars, this)});
  line("chkCutRight", kActionCutRight, {Field("txtRightCut", true, 40), Label(chars, this)});
  QLineEdit* prefix = Field("txtPrefix");
  line("chkPrefix", kActionPrefix, {prefix, PatternButton(prefix)});
  QLineEdit* postfix = Field("txtPostfix");
  line("chkPostfix", kActionPostfix, {postfix, PatternButton(postfix)});
  QLineEdit* replace_with = Field("txtReplaceString");
  line("chkReplace", kActionReplaceText,
       {Field("txtSearchString"), Label(with, this), replace_with, PatternButton(replace_with)});
  QLineEdit* placeholder = Field("txtUsePlaceholder");
  line("chkOnlyUsePatterns", kActionUsePlaceholder, {placeholder, PatternButton(placeholder)});
  actions->addWidget(Tick("chkEditManual", Q(ActionDisplayName(kActionEditManual, messages))), row,
                     0, 1, 2);
  actions->setColumnStretch(1, 1);
  layout->addLayout(actions, 3);

  auto* side = new QVBoxLayout;
  side->addWidget(NumberingGroup());
  side->addWidget(ModeGroup());
  action_order_ = new QLabel(this);
  action_order_->setObjectName("lblActionOrder");
  action_order_->setWordWrap(true);
  action_order_->setToolTip(Msg(messages, "order.hint_double_click"));
  action_order_->setFrameShape(QFrame::StyledPanel);
  action_order_->installEventFilter(this);
  side->addWidget(action_order_);
  side->addStretch();
  layout->addLayout(side, 2);
  wide_width_ = minimumSizeHint().width();
}

void RenameControls::FitWidth(int available) {
  const auto direction =
      available < wide_width_ ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
  if (layout_->direction() != direction) layout_->setDirection(direction);
}

QWidget* RenameControls::Tick(const char* name, const QString& caption) {
  auto* box = new QCheckBox(caption, this);
  box->setObjectName(name);
  return box;
}

QLineEdit* RenameControls::Field(const char* name, bool digits_only, int width) {
  auto* field = new QLineEdit(this);
  field->setObjectName(name);
  if (width > 0) field->setFixedWidth(width);
  if (digits_only) field->setProperty(kDigitsOnly, true);
  field->installEventFilter(this);
  text_fields_.push_back(field);
  return field;
}

QToolButton* RenameControls::PatternButton(QLineEdit* field) {
  auto* button = new QToolButton(this);
  button->setObjectName("cmdPattern" + field->objectName().mid(3));
  button->setText("{{}}");
  button->setToolTip(Msg(messages_, "main.tip.placeholder_button"));
  connect(button, &QToolButton::clicked, this, [this, field] { emit PatternRequested(field); });
  return button;
}

QWidget* RenameControls::Spinner(QLineEdit* field, const char* name) {
  auto* spinner = new QWidget(this);
  spinner->setObjectName(name);
  auto* column = new QVBoxLayout(spinner);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  for (const int delta : {1, -1}) {
    auto* button = new QToolButton(spinner);
    button->setArrowType(delta > 0 ? Qt::UpArrow : Qt::DownArrow);
    button->setFixedSize(16, 11);
    button->setAutoRepeat(true);
    connect(button, &QToolButton::clicked, field, [field, delta] {
      field->setText(StepNumberField(field->text(), delta));
      emit field->textEdited(field->text());
    });
    column->addWidget(button);
  }
  return spinner;
}

void RenameControls::EnableWith(const char* tick, std::vector<QWidget*> widgets) {
  tick_targets_.emplace_back(tick, std::move(widgets));
}

QGroupBox* RenameControls::NumberingGroup() {
  auto* group = new QGroupBox(this);
  group->setObjectName("fraNumbers");
  auto* grid = new QGridLayout(group);
  grid->setVerticalSpacing(2);
  auto* tick = static_cast<QCheckBox*>(Tick("chkNumbers", Msg(messages_, "numbering.caption")));
  grid->addWidget(tick, 0, 0, 1, 4);
  auto* places = new QButtonGroup(group);
  places->setObjectName("optNumber");
  const char* place_keys[] = {"numbering.before_prefix", "numbering.after_prefix",
                              "numbering.before_postfix", "numbering.after_postfix"};
  std::vector<QWidget*> targets;
  for (int i = 0; i < 4; ++i) {
    auto* button = new QRadioButton(Msg(messages_, place_keys[i]), group);
    places->addButton(button, i);
    grid->addWidget(button, 1 + i / 2, (i % 2) * 2, 1, 2);
    targets.push_back(button);
  }
  QLineEdit* start = Field("txtStartNumber", true, 60);
  QLineEdit* limiter = Field("txtLimiter", false, 40);
  QLineEdit* step = Field("txtStep", true, 40);
  QLineEdit* add_count = Field("txtAddCount", true, 40);
  QWidget* start_spin = Spinner(start, "VSStart");
  QWidget* step_spin = Spinner(step, "VSSteps");
  auto pair = [&](int r, int c, const QString& caption, QLineEdit* field, QWidget* spinner) {
    grid->addWidget(new QLabel(caption, group), r, c);
    auto* box = new QHBoxLayout;
    box->setSpacing(1);
    box->addWidget(field);
    if (spinner != nullptr) box->addWidget(spinner);
    box->addStretch();
    grid->addLayout(box, r, c + 1);
  };
  pair(3, 0, Msg(messages_, "main.numbering.start"), start, start_spin);
  pair(3, 2, Msg(messages_, "numbering.separator"), limiter, nullptr);
  pair(4, 0, Msg(messages_, "numbering.steps"), step, step_spin);
  pair(4, 2, Msg(messages_, "main.numbering.files_per_number"), add_count, nullptr);
  auto* operators = new QButtonGroup(group);
  operators->setObjectName("optOperator");
  const char* operator_keys[] = {"numbering.add_steps", "numbering.subtract_steps",
                                 "numbering.multiply_steps"};
  auto* operator_row = new QHBoxLayout;
  for (int i = 0; i < 3; ++i) {
    auto* button = new QRadioButton(Msg(messages_, operator_keys[i]), group);
    operators->addButton(button, i);
    operator_row->addWidget(button);
    targets.push_back(button);
  }
  grid->addLayout(operator_row, 5, 0, 1, 4);
  targets.insert(targets.end(), {start, limiter, step, add_count, start_spin, step_spin});
  EnableWith("chkNumbers", targets);
  return group;
}

QGroupBox* RenameControls::ModeGroup() {
  auto* group = new QGroupBox(this);
  auto* row = new QHBoxLayout(group);
  auto* modes = new QButtonGroup(group);
  modes->setObjectName("optCopyRename");
  const char* keys[] = {"run.button_rename", "main.mode.copy", "run.button_test"};
  for (int i = 0; i < 3; ++i) {
    auto* button = new QRadioButton(Msg(messages_, keys[i]), group);
    modes->addButton(button, i);
    row->addWidget(button);
  }
  return group;
}

void RenameControls::RefreshControlStates(const RenameSettings& settings) {
  for (const auto& [tick, widgets] : tick_targets_) {
    const bool on = Ticked(std::stoi(GetRenameSetting(settings, tick).value_or("0")));
    for (QWidget* widget : widgets) widget->setEnabled(on);
  }
}

bool RenameControls::eventFilter(QObject* watched, QEvent* event) {
  if (watched == action_order_ && event->type() == QEvent::MouseButtonDblClick) {
    emit ActionOrderRequested();
    return true;
  }
  if (event->type() != QEvent::KeyPress || !watched->property(kDigitsOnly).toBool()) {
    return QWidget::eventFilter(watched, event);
  }
  const auto* key = static_cast<QKeyEvent*>(event);
  const QString text = key->text();
  if (text.isEmpty() || !text.at(0).isPrint() || (key->modifiers() & Qt::ControlModifier)) {
    return false;
  }
  if (text.at(0).isDigit()) return false;
  QApplication::beep();
  return true;
}

}  // namespace tarnwick::gui
