#include "compress_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>
#include <algorithm>

#include "dialog_parts.h"
#include "picture/picture_file.h"
#include "platform/files.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

constexpr int kPreviewSide = 220;

// The first picture at the preview's size: made smaller, or larger when it
// is tiny, keeping its proportions.
cImage PreviewPicture(const std::string& path) {
  const LoadedPicture loaded = path.empty() ? LoadedPicture{} : LoadPicture(path);
  cImage image;
  if (!loaded.ok() || !image.CopyPicture(loaded.picture, 24)) return cImage();
  const double scale = static_cast<double>(kPreviewSide) / std::max(image.Width(), image.Height());
  return image.Resample(std::max(1, static_cast<int>(image.Width() * scale)),
                        std::max(1, static_cast<int>(image.Height() * scale)));
}

}  // namespace

CompressDialog::CompressDialog(const std::string& first_picture, const MessageTable& messages,
                               Interaction& notices, QWidget* parent)
    : QDialog(parent),
      messages_(messages),
      notices_(notices),
      picture_(PreviewPicture(first_picture)) {
  setObjectName("frmSaveJPG");
  setWindowTitle(Msg(messages, "picture.compress_title"));
  auto* columns = new QHBoxLayout(this);
  auto* left = new QVBoxLayout;
  auto* right = new QVBoxLayout;
  columns->addLayout(left, 1);
  columns->addLayout(right);

  auto* form = new QFormLayout;
  auto* quality_row = new QHBoxLayout;
  quality_ = new QSlider(Qt::Horizontal, this);
  quality_->setObjectName("hscQuality");
  quality_->setRange(1, 100);
  quality_->setValue(75);
  quality_value_ = new QLabel("75", this);
  quality_value_->setObjectName("lblQuality");
  quality_value_->setMinimumWidth(quality_value_->fontMetrics().horizontalAdvance("100") + 4);
  connect(quality_, &QSlider::valueChanged, quality_value_,
          [this](int value) { quality_value_->setText(QString::number(value)); });
  quality_row->addWidget(quality_, 1);
  quality_row->addWidget(quality_value_);
  form->addRow(Msg(messages, "picture.quality"), quality_row);
  subsampling_ = new QComboBox(this);
  subsampling_->setObjectName("cboSubSample");
  for (const std::string& item : SubsamplingItems(messages)) subsampling_->addItem(Q(item));
  subsampling_->setCurrentIndex(kDefaultSubsamplingItem);
  form->addRow(Msg(messages, "picture.subsampling"), subsampling_);
  left->addLayout(form);
  greyscale_ = Tick(messages, "picture.greyscale", "chkGreyscale", this);
  connect(greyscale_, &QCheckBox::toggled, subsampling_, &QWidget::setDisabled);
  left->addWidget(greyscale_);
  overwrite_ = Tick(messages, "picture.overwrite_originals", "chkSaveCopy", this);
  left->addWidget(overwrite_);
  keep_exif_ = Tick(messages, "picture.keep_exif", "chkKeepExif", this);
  keep_exif_->setChecked(true);
  left->addWidget(keep_exif_);
  other_folder_ =
      Tick(messages, "picture.different_destination", "chkDifferentDestinationDir", this);
  left->addWidget(other_folder_);
  destination_ = new QLineEdit(this);
  destination_->setObjectName("txtDestinationDir");
  destination_->setEnabled(false);
  destination_->setMinimumWidth(320);
  auto* browse_row = WithBrowse(destination_, messages, this, [this] {
    const QString folder = QFileDialog::getExistingDirectory(
        this, Msg(messages_, "picture.please_select_folder"), destination_->text());
    if (!folder.isEmpty()) destination_->setText(folder);
  });
  connect(other_folder_, &QCheckBox::toggled, destination_, &QWidget::setEnabled);
  left->addLayout(browse_row);
  left->addWidget(new QLabel(Msg(messages, "picture.comment"), this));
  comment_ = new QLineEdit(this);
  comment_->setObjectName("txtComment");
  left->addWidget(comment_);
  auto* turns = new QHBoxLayout;
  auto* turn_column = new QVBoxLayout;
  auto* mirror_column = new QVBoxLayout;
  rotation_ = RadioFrame(messages, "picture.rotate_frame", "Option1",
                         {"picture.rotate_nothing", "picture.rotate_clockwise",
                          "picture.rotate_counterclockwise", "picture.rotate_180"},
                         turn_column, this);
  mirror_ =
      RadioFrame(messages, "picture.mirror_frame", "Option2",
                 {"picture.mirror_nothing", "picture.mirror_horizontal", "picture.mirror_vertical"},
                 mirror_column, this);
  mirror_column->addStretch();
  turns->addLayout(turn_column);
  turns->addLayout(mirror_column);
  left->addLayout(turns);
  left->addStretch();
  left->addWidget(StartCancel(messages, this, [this] { Start(); }));

  auto* frame = new QGroupBox(Msg(messages, "picture.preview"), this);
  auto* frame_layout = new QVBoxLayout(frame);
  preview_ = new QLabel(frame);
  preview_->setObjectName("picPreview");
  preview_->setAlignment(Qt::AlignCenter);
  preview_->setMinimumSize(kPreviewSide, kPreviewSide);
  frame_layout->addWidget(preview_);
  right->addWidget(frame);
  right->addStretch();
  connect(rotation_, &QButtonGroup::idClicked, this, [this] { ShowPreview(); });
  connect(mirror_, &QButtonGroup::idClicked, this, [this] { ShowPreview(); });
  connect(greyscale_, &QCheckBox::toggled, this, [this] { ShowPreview(); });
  ShowPreview();
}

void CompressDialog::ShowPreview() {
  if (picture_.empty()) {
    preview_->setText(Msg(messages_, "picture.no_preview"));
    return;
  }
  cImage shown = OrientedPicture(picture_, rotation_->checkedId(), mirror_->checkedId());
  if (greyscale_->isChecked()) shown = shown.Greyscale();
  const RgbPicture rgb = shown.ToRgb();
  const QImage image(rgb.rgb.data(), rgb.width, rgb.height, rgb.width * 3, QImage::Format_RGB888);
  preview_->setPixmap(QPixmap::fromImage(image.copy()));
}

CompressChoices CompressDialog::choices() const {
  CompressChoices choices;
  choices.quality = quality_->value();
  const auto [h, v] = SubsamplingFactors(S(subsampling_->currentText()));
  choices.h = h;
  choices.v = v;
  choices.greyscale = greyscale_->isChecked();
  choices.overwrite = overwrite_->isChecked();
  choices.destination = other_folder_->isChecked() ? S(destination_->text().trimmed()) : "";
  choices.comment = S(comment_->text());
  choices.rotation = rotation_->checkedId();
  choices.mirror = mirror_->checkedId();
  choices.keep_exif = keep_exif_->isChecked();
  return choices;
}

bool CompressDialog::Start() {
  if (!DestinationReady(other_folder_, destination_, messages_, notices_)) return false;
  accept();
  return true;
}

}  // namespace tarnwick::gui
