#include "resize_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QVBoxLayout>

#include "dialog_parts.h"
#include "platform/files.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

// The TIFF compressions in the order of `cboCompressionTIF`.
constexpr const char* kTiffItems[] = {"LZW", "CCITT4", "CCITT3", "RLE"};

}  // namespace

ResizeDialog::ResizeDialog(const MessageTable& messages, Interaction& notices, QWidget* parent)
    : QDialog(parent), messages_(messages), notices_(notices) {
  setObjectName("frmResizeJPG");
  setWindowTitle(Msg(messages, "picture.resize_title"));
  auto* layout = new QVBoxLayout(this);
  auto* choices_row = new QHBoxLayout;
  mode_ = RadioFrame(messages, "picture.mode_frame", "optMode",
                     {"picture.mode_percentage", "picture.mode_size_in_pixel"}, choices_row, this);
  direction_ = RadioFrame(messages, "picture.direction_frame", "optResizeMode",
                          {"picture.scale_down", "picture.scale_up"}, choices_row, this);
  layout->addLayout(choices_row);

  percent_box_ = new QWidget(this);
  auto* percent_row = new QHBoxLayout(percent_box_);
  percent_row->setContentsMargins(0, 0, 0, 0);
  percent_ = new QLineEdit("25", percent_box_);
  percent_->setObjectName("txtPercent");
  percent_->setMaximumWidth(70);
  percent_bar_ = new QScrollBar(Qt::Horizontal, percent_box_);
  percent_bar_->setObjectName("VSPercent");
  percent_bar_->setRange(1, 400);
  percent_bar_->setValue(25);
  percent_bar_->setMinimumWidth(120);
  connect(percent_bar_, &QScrollBar::valueChanged, percent_,
          [this](int value) { percent_->setText(QString::number(value)); });
  // Text that is no number becomes 25, and the bar follows the text.
  connect(percent_, &QLineEdit::editingFinished, this, [this] {
    const double percent = PercentOf(S(percent_->text().trimmed()));
    if (percent == 25 && percent_->text().trimmed() != "25") percent_->setText("25");
    const QSignalBlocker quiet(percent_bar_);
    percent_bar_->setValue(static_cast<int>(percent));
  });
  percent_row->addWidget(percent_);
  percent_row->addWidget(percent_bar_, 1);
  percent_row->addWidget(new QLabel(Msg(messages, "picture.percent_of_original"), percent_box_));
  layout->addWidget(percent_box_);

  pixel_box_ = new QWidget(this);
  auto* pixel_rows = new QVBoxLayout(pixel_box_);
  pixel_rows->setContentsMargins(0, 0, 0, 0);
  auto* sizes = new QHBoxLayout;
  width_ = new QLineEdit(pixel_box_);
  width_->setObjectName("txtWidth");
  height_ = new QLineEdit(pixel_box_);
  height_->setObjectName("txtHeight");
  for (QLineEdit* side : {width_, height_}) side->setValidator(new QIntValidator(1, 65535, side));
  sizes->addWidget(new QLabel(Msg(messages, "picture.width"), pixel_box_));
  sizes->addWidget(width_);
  sizes->addWidget(new QLabel(Msg(messages, "picture.height"), pixel_box_));
  sizes->addWidget(height_);
  pixel_rows->addLayout(sizes);
  pixel_rows->addWidget(new QLabel(Msg(messages, "picture.no_value_no_change"), pixel_box_));
  layout->addWidget(pixel_box_);

  blur_ = Tick(messages, "picture.smooth_blur", "chkBlur", this);
  layout->addWidget(blur_);

  auto* format_row = new QHBoxLayout;
  auto* format_frame = new QGroupBox(Msg(messages, "picture.save_format_frame"), this);
  auto* format_buttons = new QHBoxLayout(format_frame);
  format_ = new QButtonGroup(this);
  int id = 0;
  for (const char* text : {"JPEG", "BMP", "TIFF", "PNG"}) {
    auto* button = new QRadioButton(text, format_frame);
    button->setObjectName(QString("optSaveFormat_%1").arg(id));
    format_->addButton(button, id++);
    format_buttons->addWidget(button);
  }
  format_->button(0)->setChecked(true);
  format_row->addWidget(format_frame, 1);
  layout->addLayout(format_row);

  quality_box_ = new QWidget(this);
  auto* quality_row = new QHBoxLayout(quality_box_);
  quality_row->setContentsMargins(0, 0, 0, 0);
  quality_ = new QSlider(Qt::Horizontal, quality_box_);
  quality_->setObjectName("hscQuality");
  quality_->setRange(0, 100);
  quality_->setValue(75);
  auto* quality_value = new QLabel("75", quality_box_);
  connect(quality_, &QSlider::valueChanged, quality_value,
          [quality_value](int value) { quality_value->setText(QString::number(value)); });
  quality_row->addWidget(new QLabel(Msg(messages, "picture.quality"), quality_box_));
  quality_row->addWidget(quality_, 1);
  quality_row->addWidget(quality_value);
  layout->addWidget(quality_box_);

  tiff_box_ = new QWidget(this);
  auto* tiff_row = new QHBoxLayout(tiff_box_);
  tiff_row->setContentsMargins(0, 0, 0, 0);
  tiff_ = new QComboBox(tiff_box_);
  tiff_->setObjectName("cboCompressionTIF");
  for (const char* item : kTiffItems) tiff_->addItem(item);
  tiff_->addItem(Msg(messages, "picture.tiff_compression_none"));
  tiff_row->addWidget(new QLabel(Msg(messages, "picture.tiff_compression"), tiff_box_));
  tiff_row->addWidget(tiff_, 1);
  layout->addWidget(tiff_box_);

  overwrite_ = Tick(messages, "picture.overwrite_originals", "chkSaveCopy", this);
  layout->addWidget(overwrite_);
  other_folder_ =
      Tick(messages, "picture.different_destination", "chkDifferentDestinationDir", this);
  layout->addWidget(other_folder_);
  destination_ = new QLineEdit(this);
  destination_->setObjectName("txtDestinationDir");
  destination_->setEnabled(false);
  destination_->setMinimumWidth(360);
  connect(other_folder_, &QCheckBox::toggled, destination_, &QWidget::setEnabled);
  layout->addLayout(WithBrowse(destination_, messages, this, [this] {
    const QString folder = QFileDialog::getExistingDirectory(
        this, Msg(messages_, "picture.please_select_folder"), destination_->text());
    if (!folder.isEmpty()) destination_->setText(folder);
  }));
  layout->addWidget(StartCancel(messages, this, [this] { Start(); }));

  connect(mode_, &QButtonGroup::idClicked, this, [this] { ShowModeControls(); });
  connect(format_, &QButtonGroup::idClicked, this, [this] { ShowFormatControls(); });
  ShowModeControls();
  ShowFormatControls();
}

void ResizeDialog::ShowModeControls() {
  const bool by_percent = mode_->checkedId() == 0;
  percent_box_->setVisible(by_percent);
  pixel_box_->setVisible(!by_percent);
  direction_->button(0)->parentWidget()->setEnabled(by_percent);
}

void ResizeDialog::ShowFormatControls() {
  quality_box_->setVisible(format_->checkedId() == static_cast<int>(ResizeFormat::kJpeg));
  tiff_box_->setVisible(format_->checkedId() == static_cast<int>(ResizeFormat::kTiff));
}

ResizeChoices ResizeDialog::choices() const {
  ResizeChoices choices;
  choices.by_percent = mode_->checkedId() == 0;
  choices.scale_up = direction_->checkedId() == 1;
  choices.percent = PercentOf(S(percent_->text().trimmed()));
  choices.width = width_->text().trimmed().toInt();
  choices.height = height_->text().trimmed().toInt();
  choices.blur = blur_->isChecked();
  choices.format = static_cast<ResizeFormat>(format_->checkedId());
  choices.quality = quality_->value();
  choices.tiff = TiffCompressionOf(S(tiff_->currentText()),
                                   std::string(messages_.Text("picture.tiff_compression_none")));
  choices.overwrite = overwrite_->isChecked();
  choices.destination = other_folder_->isChecked() ? S(destination_->text().trimmed()) : "";
  return choices;
}

bool ResizeDialog::Start() {
  if (!DestinationReady(other_folder_, destination_, messages_, notices_)) return false;
  accept();
  return true;
}

}  // namespace tarnwick::gui
