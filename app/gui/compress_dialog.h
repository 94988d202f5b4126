#pragma once

#include <QDialog>

#include "picture/compress_job.h"
#include "picture/image_buffer.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSlider;

namespace tarnwick::gui {

// `frmSaveJPG`: the choices of Compress picture files to JPEG, with a
// preview of the first selected picture turned and mirrored as chosen.
// Quality and sampling live as long as the dialogue; nothing is stored.
class CompressDialog : public QDialog {
  Q_OBJECT

 public:
  // `first_picture`: the path of the first selected file, for the preview.
  CompressDialog(const std::string& first_picture, const MessageTable& messages,
                 Interaction& notices, QWidget* parent = nullptr);

  CompressChoices choices() const;
  // The Start button, also for tests: true when the dialogue closed. A
  // destination folder that does not exist keeps it open with a message.
  bool Start();
  // The preview as it stands, for tests; null without a picture.
  const QLabel* preview() const { return preview_; }

 private:
  void ShowPreview();

  const MessageTable& messages_;
  Interaction& notices_;
  cImage picture_;  // the first picture, made small for the preview
  QSlider* quality_ = nullptr;
  QLabel* quality_value_ = nullptr;
  QComboBox* subsampling_ = nullptr;
  QCheckBox* greyscale_ = nullptr;
  QCheckBox* overwrite_ = nullptr;
  QCheckBox* other_folder_ = nullptr;
  QLineEdit* destination_ = nullptr;
  QLineEdit* comment_ = nullptr;
  QButtonGroup* rotation_ = nullptr;
  QButtonGroup* mirror_ = nullptr;
  QCheckBox* keep_exif_ = nullptr;
  QLabel* preview_ = nullptr;
};

}  // namespace tarnwick::gui
