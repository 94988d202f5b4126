#include "export_dialogs.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>

#include "dialog_parts.h"
#include "filelist/column_headings.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

// The name, the title and the frame of column ticks both dialogues begin
// with; returns the dialogue's layout.
QVBoxLayout* BeginDialog(QDialog* dialog, const char* name, const char* title_key,
                         const OptionStore& options, const MessageTable& messages,
                         std::unique_ptr<ExportColumnTicks>& columns) {
  dialog->setObjectName(name);
  dialog->setWindowTitle(Msg(messages, title_key));
  auto* layout = new QVBoxLayout(dialog);
  auto* frame = new QGroupBox(Msg(messages, "export.columns_frame"), dialog);
  columns = std::make_unique<ExportColumnTicks>(options, messages, frame);
  layout->addWidget(frame);
  return layout;
}

// "OK" starts the export, while a column is ticked; the texts of the
// dialogue's own buttons.
void EndDialog(QDialog* dialog, QVBoxLayout* layout, ExportColumnTicks& columns) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
  buttons->button(QDialogButtonBox::Ok)->setObjectName("cmdOK");
  buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  columns.EnableWhenAny(buttons->button(QDialogButtonBox::Ok));
  layout->addWidget(buttons);
}

}  // namespace

ExportColumnTicks::ExportColumnTicks(const OptionStore& options, const MessageTable& messages,
                                     QWidget* frame) {
  const auto headings = ColumnHeadings(options, messages);
  auto* grid = new QGridLayout(frame);
  for (int column = 0; column < static_cast<int>(ticks_.size()); ++column) {
    ticks_[column] = new QCheckBox(Q(headings[column]), frame);
    ticks_[column]->setObjectName("chkTextToCreate_" + QString::number(column));
    grid->addWidget(ticks_[column], column % 4, column / 4);
  }
}

void ExportColumnTicks::Show(const ExportColumns& columns) {
  for (std::size_t i = 0; i < ticks_.size(); ++i) ticks_[i]->setChecked(columns.chosen[i]);
}

void ExportColumnTicks::EnableWhenAny(QPushButton* ok) {
  for (QCheckBox* tick : ticks_) {
    QObject::connect(tick, &QCheckBox::toggled, ok, [this, ok] { ok->setEnabled(Chosen().any()); });
  }
}

ExportColumns ExportColumnTicks::Chosen() const {
  ExportColumns columns;
  for (std::size_t i = 0; i < ticks_.size(); ++i) columns.chosen[i] = ticks_[i]->isChecked();
  return columns;
}

SelectTextDialog::SelectTextDialog(const OptionStore& options, const MessageTable& messages,
                                   QWidget* parent)
    : QDialog(parent) {
  QVBoxLayout* layout = BeginDialog(this, "frmSelectText", "export.select_text.title", options,
                                    messages, columns_);

  auto* rows = new QGridLayout;
  only_selected_ = Tick(messages, "export.only_selected", "chkOnlySelected", this);
  include_subdirs_ = Tick(messages, "export.include_subdirs", "chkIncludeSubDirs", this);
  number_of_files_ = Tick(messages, "export.number_of_files", "chkNumberOfFiles", this);
  date_time_ = Tick(messages, "export.date_time", "chkDateTime", this);
  rows->addWidget(only_selected_, 0, 0);
  rows->addWidget(include_subdirs_, 1, 0);
  rows->addWidget(number_of_files_, 0, 1);
  rows->addWidget(date_time_, 1, 1);
  layout->addLayout(rows);
  // The walk reads every file of the folders: "only selected" has no meaning then.
  connect(include_subdirs_, &QCheckBox::toggled, only_selected_,
          [this](bool on) { only_selected_->setEnabled(!on); });

  auto* delimiter_frame = new QGroupBox(Msg(messages, "export.delimiter_frame"), this);
  auto* grid = new QGridLayout(delimiter_frame);
  delimiter_ = new QButtonGroup(this);
  const char* keys[] = {"export.delimiter_tab", "export.delimiter_semicolon",
                        "export.delimiter_other"};
  for (int i = 0; i < 3; ++i) {
    auto* button = new QRadioButton(Msg(messages, keys[i]), delimiter_frame);
    button->setObjectName("optDelimiter_" + QString::number(i));
    delimiter_->addButton(button, i);
    grid->addWidget(button, i, 0);
  }
  auto* tabs_row = new QHBoxLayout;
  tabs_row->addWidget(new QLabel(Msg(messages, "export.delimiter_tabs_count"), delimiter_frame));
  tabs_ = new QSlider(Qt::Horizontal, delimiter_frame);
  tabs_->setObjectName("sldTabs");
  tabs_->setRange(1, kMaxDelimiterTabs);
  tabs_->setMinimumWidth(140);
  tabs_value_ = new QLabel(delimiter_frame);
  tabs_value_->setMinimumWidth(24);
  connect(tabs_, &QSlider::valueChanged, tabs_value_,
          [this](int value) { tabs_value_->setText(QString::number(value)); });
  tabs_row->addWidget(tabs_, 1);
  tabs_row->addWidget(tabs_value_);
  grid->addLayout(tabs_row, 0, 1);
  other_ = new QLineEdit(delimiter_frame);
  other_->setObjectName("txtDelimiter");
  grid->addWidget(other_, 2, 1);
  layout->addWidget(delimiter_frame);
  connect(delimiter_, &QButtonGroup::idToggled, this, [this] { DelimiterChanged(); });

  EndDialog(this, layout, *columns_);
  ShowChoices(ReadTextExportChoices(options));
}

void SelectTextDialog::ShowChoices(const TextExportChoices& choices) {
  columns_->Show(choices.columns);
  only_selected_->setChecked(choices.only_selected);
  include_subdirs_->setChecked(choices.include_subfolders);
  only_selected_->setEnabled(!choices.include_subfolders);
  number_of_files_->setChecked(choices.number_of_files);
  date_time_->setChecked(choices.date_time);
  delimiter_->button(static_cast<int>(choices.delimiter))->setChecked(true);
  tabs_->setValue(choices.tabs);
  tabs_value_->setText(QString::number(choices.tabs));
  other_->setText(Q(choices.other));
  DelimiterChanged();
}

void SelectTextDialog::DelimiterChanged() {
  tabs_->setEnabled(delimiter_->checkedId() == static_cast<int>(ExportDelimiter::kTabs));
  other_->setEnabled(delimiter_->checkedId() == static_cast<int>(ExportDelimiter::kOther));
}

TextExportChoices SelectTextDialog::choices() const {
  TextExportChoices choices;
  choices.columns = columns_->Chosen();
  choices.only_selected = only_selected_->isChecked();
  choices.include_subfolders = include_subdirs_->isChecked();
  choices.number_of_files = number_of_files_->isChecked();
  choices.date_time = date_time_->isChecked();
  choices.delimiter = static_cast<ExportDelimiter>(std::max(0, delimiter_->checkedId()));
  choices.tabs = tabs_->value();
  choices.other = S(other_->text());
  return choices;
}

SelectXmlDialog::SelectXmlDialog(const OptionStore& options, const MessageTable& messages,
                                 QWidget* parent)
    : QDialog(parent) {
  QVBoxLayout* layout = BeginDialog(this, "frmSelectXML", "export.select_xml.title", options,
                                    messages, columns_);
  only_selected_ = Tick(messages, "export.only_selected", "chkOnlySelected", this);
  convert_ = Tick(messages, "export.parse_invalid_chars", "chkParseInvalidChars", this);
  layout->addWidget(only_selected_);
  layout->addWidget(convert_);
  EndDialog(this, layout, *columns_);
  const XmlExportChoices stored = ReadXmlExportChoices(options);
  columns_->Show(stored.columns);
  only_selected_->setChecked(stored.only_selected);
  convert_->setChecked(stored.convert_invalid);
}

XmlExportChoices SelectXmlDialog::choices() const {
  XmlExportChoices choices;
  choices.columns = columns_->Chosen();
  choices.only_selected = only_selected_->isChecked();
  choices.convert_invalid = convert_->isChecked();
  return choices;
}

}  // namespace tarnwick::gui
