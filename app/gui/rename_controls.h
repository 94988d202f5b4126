#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "core/rename_settings.h"
#include "shell/message_table.h"

class QBoxLayout;
class QButtonGroup;
class QGroupBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace tarnwick::gui {

// The renaming controls of the main window: each action's tick with its
// fields and placeholder button, the numbering group with its spinners
// (`VSStart`, `VSSteps`), the mode `optCopyRename` and `lblActionOrder`.
// Every control carries its name from RenameSettings as object name, so the
// window binds them by name (control_binding.h).
class RenameControls : public QWidget {
  Q_OBJECT

 public:
  RenameControls(const MessageTable& messages, QWidget* parent = nullptr);

  // `RefreshControlStates`: each field, spinner and placeholder button is
  // enabled together with its tick.
  void RefreshControlStates(const RenameSettings& settings);
  // The text fields that set `FieldHasFocus`.
  const std::vector<QLineEdit*>& text_fields() const { return text_fields_; }
  QLabel* action_order_label() const { return action_order_; }
  // Puts the numbering group beside the actions when `available` pixels
  // give room for both, below them otherwise.
  void FitWidth(int available);

 signals:
  // A placeholder button was pressed for `field`.
  void PatternRequested(QLineEdit* field);
  // `lblActionOrder` was double-clicked.
  void ActionOrderRequested();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLineEdit* Field(const char* name, bool digits_only = false, int width = 0);
  QToolButton* PatternButton(QLineEdit* field);
  QWidget* Spinner(QLineEdit* field, const char* name);
  QWidget* Tick(const char* name, const QString& caption);
  // `widgets` are enabled with the tick `tick`.
  void EnableWith(const char* tick, std::vector<QWidget*> widgets);
  QGroupBox* NumberingGroup();
  QGroupBox* ModeGroup();

  const MessageTable& messages_;
  std::vector<QLineEdit*> text_fields_;
  std::vector<std::pair<std::string, std::vector<QWidget*>>> tick_targets_;
  QLabel* action_order_ = nullptr;
  QBoxLayout* layout_ = nullptr;
  int wide_width_ = 0;
};

// The text of a number field one step up or down, keeping its zero padding
// ("009" up gives "010"); a field that is not a number starts from 0.
QString StepNumberField(const QString& text, int delta);

}  // namespace tarnwick::gui
