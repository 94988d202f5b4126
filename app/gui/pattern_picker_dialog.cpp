#include "pattern_picker_dialog.h"

#include <QButtonGroup>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "base/text.h"
#include "placeholders/catalogue_rows.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

CatalogueLanguage CatalogueLanguageOf(const MessageTable& messages) {
  return messages.language() == Language::kGerman ? CatalogueLanguage::kGerman
                                                  : CatalogueLanguage::kEnglish;
}

}  // namespace

PatternPickerDialog::PatternPickerDialog(const MessageTable& messages,
                                         const std::string& field_text, std::size_t field_cursor,
                                         QWidget* parent)
    : QDialog(parent), messages_(messages), field_text_(field_text), field_cursor_(field_cursor) {
  setWindowTitle(Msg(messages, "catalogue.title"));
  resize(820, 560);
  picker_.ShowMe(BuildCatalogueRows(CatalogueLanguageOf(messages),
                                    LocalCatalogueMoment(std::chrono::system_clock::now())),
                 field_text, field_cursor);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel(Msg(messages, "catalogue.search_label"), this));
  search_ = new QLineEdit(this);
  search_->setObjectName("txtSearch");
  layout->addWidget(search_);
  list_ = new QTreeWidget(this);
  list_->setObjectName("lvwPatterns");
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list_->setHeaderLabels({Msg(messages, "catalogue.column_tag"),
                          Msg(messages, "catalogue.column_sample"),
                          Msg(messages, "catalogue.column_description")});
  const QString in_use = Msg(messages, "catalogue.selected_in_main_dialogue");
  for (std::size_t i = 0; i < picker_.rows().size(); ++i) {
    const CatalogueRow& row = picker_.rows()[i];
    auto* item =
        new QTreeWidgetItem({Q(picker_.RowText(i, S(in_use))), Q(row.sample), Q(row.description)});
    if (picker_.IsInUse(i)) {
      QFont bold = item->font(0);
      bold.setBold(true);
      item->setFont(0, bold);
    }
    list_->addTopLevelItem(item);
  }
  list_->header()->resizeSection(0, 260);
  list_->header()->resizeSection(1, 200);
  layout->addWidget(list_);
  count_ = new QLabel(Q(picker_.CountText(messages.Text("catalogue.available_patterns"))), this);
  count_->setObjectName("lblPatternCount");
  layout->addWidget(count_);

  auto* options = new QGridLayout;
  modes_ = new QButtonGroup(this);
  const char* mode_keys[] = {"catalogue.append", "catalogue.overwrite",
                             "catalogue.insert_at_cursor", "catalogue.to_clipboard",
                             "catalogue.manual_and_overwrite"};
  for (int mode = 0; mode < 5; ++mode) {
    auto* button = new QRadioButton(Msg(messages, mode_keys[mode]), this);
    modes_->addButton(button, mode);
    options->addWidget(button, mode < 4 ? 0 : 1, mode < 4 ? mode : 0);
  }
  modes_->button(0)->setChecked(true);
  manual_ = new QLineEdit(Q(picker_.manual_text()), this);
  manual_->setObjectName("txtReplacementManual");
  auto* clear = new QPushButton(Msg(messages, "catalogue.clear_text_field"), this);
  options->addWidget(manual_, 1, 1, 1, 2);
  options->addWidget(clear, 1, 3);
  options->addWidget(new QLabel(Msg(messages, "catalogue.separator"), this), 2, 0);
  separator_ = new QLineEdit(this);
  separator_->setObjectName("txtSeparator");
  options->addWidget(separator_, 2, 1);
  layout->addLayout(options);

  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(Msg(messages, "file_exists.button_ok"), QDialogButtonBox::AcceptRole);
  buttons->addButton(Msg(messages, "catalogue.button_cancel"), QDialogButtonBox::RejectRole);
  layout->addWidget(buttons);

  connect(search_, &QLineEdit::textChanged, this, &PatternPickerDialog::Search);
  connect(list_, &QTreeWidget::itemSelectionChanged, this, &PatternPickerDialog::SelectionToPicker);
  connect(list_, &QTreeWidget::itemClicked, this,
          [this](QTreeWidgetItem* item) { ChooseRow(list_->indexOfTopLevelItem(item)); });
  connect(modes_, &QButtonGroup::idClicked, this,
          [this](int mode) { SetMode(static_cast<InsertMode>(mode)); });
  connect(manual_, &QLineEdit::textEdited, this, [this](const QString& text) {
    picker_.SetManualText(S(text), CharPosition(text, manual_->cursorPosition()));
  });
  connect(clear, &QPushButton::clicked, this, [this] {
    picker_.ClearManualText();
    ShowManualText();
  });
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { Ok(); });
  connect(buttons, &QDialogButtonBox::rejected, this, [this] {
    picker_.Cancel();
    reject();
  });
  SetMode(InsertMode::kAppend);
  search_->setFocus();
}

void PatternPickerDialog::SetMode(InsertMode mode) {
  picker_.SetMode(mode);
  if (modes_->checkedId() != static_cast<int>(mode)) {
    modes_->button(static_cast<int>(mode))->setChecked(true);
  }
  manual_->setEnabled(picker_.ManualEnabled());
}

void PatternPickerDialog::Search(const QString& text) {
  const std::optional<std::size_t> found = picker_.Search(S(text));
  if (!found) return;
  QTreeWidgetItem* item = list_->topLevelItem(static_cast<int>(*found));
  mirroring_ = true;
  list_->setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect);
  mirroring_ = false;
  list_->scrollToItem(item);
}

void PatternPickerDialog::SelectionToPicker() {
  if (mirroring_) return;
  for (int i = 0; i < list_->topLevelItemCount(); ++i) {
    picker_.SetSelected(static_cast<std::size_t>(i), list_->topLevelItem(i)->isSelected());
  }
}

void PatternPickerDialog::ChooseRow(int row) {
  if (row < 0) return;
  picker_.ChooseRow(static_cast<std::size_t>(row));
  if (picker_.ManualEnabled()) ShowManualText();
}

void PatternPickerDialog::ShowManualText() {
  manual_->setText(Q(picker_.manual_text()));
  manual_->setCursorPosition(Utf16Offset(manual_->text(), picker_.manual_cursor()));
}

bool PatternPickerDialog::Ok() {
  if (!picker_.Confirm(S(separator_->text()))) return false;
  accept();
  return true;
}

FieldUpdate PatternPickerDialog::FieldAfter() const {
  return ApplyPattern(field_text_, field_cursor_, picker_.mode(), picker_.GetPattern());
}

}  // namespace tarnwick::gui
