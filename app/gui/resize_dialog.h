#pragma once

#include <QDialog>

#include "picture/resize_job.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QScrollBar;
class QSlider;
class QWidget;

namespace tarnwick::gui {

// `frmResizeJPG`: the choices of Resize picture. Percentage or size in
// pixels (each shows its own controls), the direction, blur, the format with
// its quality (JPEG) or compression (TIFF), and where the files go.
class ResizeDialog : public QDialog {
  Q_OBJECT

 public:
  ResizeDialog(const MessageTable& messages, Interaction& notices, QWidget* parent = nullptr);

  ResizeChoices choices() const;
  // The Start button, also for tests: true when the dialogue closed.
  bool Start();

 private:
  void ShowModeControls();
  void ShowFormatControls();

  const MessageTable& messages_;
  Interaction& notices_;
  QButtonGroup* mode_ = nullptr;
  QButtonGroup* direction_ = nullptr;
  QWidget* percent_box_ = nullptr;
  QLineEdit* percent_ = nullptr;
  QScrollBar* percent_bar_ = nullptr;
  QWidget* pixel_box_ = nullptr;
  QLineEdit* width_ = nullptr;
  QLineEdit* height_ = nullptr;
  QCheckBox* blur_ = nullptr;
  QButtonGroup* format_ = nullptr;
  QWidget* quality_box_ = nullptr;
  QSlider* quality_ = nullptr;
  QWidget* tiff_box_ = nullptr;
  QComboBox* tiff_ = nullptr;
  QCheckBox* overwrite_ = nullptr;
  QCheckBox* other_folder_ = nullptr;
  QLineEdit* destination_ = nullptr;
};

}  // namespace tarnwick::gui
